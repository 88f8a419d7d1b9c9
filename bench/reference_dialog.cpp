// The reference for the window program's start-up time and memory: the
// smallest Qt dialog that does the same kind of thing, a label and two
// buttons, where the default button changes the label's text.
#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QDialog dialog;
  dialog.setWindowTitle("Jeerbox reference dialog");

  auto* label = new QLabel("Press the button.", &dialog);
  label->setWordWrap(true);
  auto* press = new QPushButton("Press me", &dialog);
  auto* close = new QPushButton("Close", &dialog);
  press->setDefault(true);

  int presses = 0;
  QObject::connect(press, &QPushButton::clicked,
                   [&] { label->setText(QString("Pressed %1 times, and still here.").arg(++presses)); });
  QObject::connect(close, &QPushButton::clicked, &dialog, &QDialog::accept);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(press);
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(label);
  layout->addLayout(buttons);

  dialog.show();
  return app.exec();
}
