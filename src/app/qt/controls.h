// The few kinds of control the dialog has that Qt lacks as such: a shape, a
// clickable image, and a locked text box whose text is exactly what was put
// in it.
#pragma once

#include <QColor>
#include <QLabel>
#include <QPlainTextEdit>
#include <QWidget>
#include <string>

namespace jeerbox {

// A rectangle: an outline of a given width, filled or not. Clicks go through.
class CShape : public QWidget {
 public:
  CShape(QWidget* parent, QColor outline, int outlineWidth, QColor fill = QColor());

  QColor OutlineColor() const { return mOutline; }
  QColor FillColor() const { return mFill; }  // invalid: no fill
  int OutlineWidth() const { return mOutlineWidth; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor mOutline;
  int mOutlineWidth;
  QColor mFill;
};

// A picture that reports a click of the left button.
class CImage : public QLabel {
  Q_OBJECT

 public:
  explicit CImage(QWidget* parent);

 signals:
  void Click();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
};

// A scrolling, read-only text box of 8-bit Windows-1252 text. Text() gives
// back the very bytes SetText was given (CR LF, a stray CR, a trailing
// blank), which the document itself would normalise.
class CTextBox : public QPlainTextEdit {
 public:
  explicit CTextBox(QWidget* parent);

  void SetText(const std::string& text);
  const std::string& Text() const { return mText; }

 private:
  std::string mText;
};

}  // namespace jeerbox
