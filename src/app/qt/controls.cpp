// Painting and input of the dialog's own controls.
#include "app/qt/controls.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleFactory>

#include "platform/qt/qt_text.h"

namespace jeerbox {

CShape::CShape(QWidget* parent, QColor outline, int outlineWidth, QColor fill)
    : QWidget(parent), mOutline(outline), mOutlineWidth(outlineWidth), mFill(fill) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void CShape::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (mFill.isValid()) painter.fillRect(rect(), mFill);
  // The outline lies inside the shape's rectangle, as wide as it is told.
  QPen pen(mOutline, mOutlineWidth);
  pen.setJoinStyle(Qt::MiterJoin);
  painter.setPen(pen);
  const qreal inset = mOutlineWidth / 2.0;
  painter.drawRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
}

CImage::CImage(QWidget* parent) : QLabel(parent) {}

void CImage::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) emit Click();
  QLabel::mouseReleaseEvent(event);
}

CTextBox::CTextBox(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setLineWrapMode(QPlainTextEdit::WidgetWidth);
  // The classic Windows scroll bar, flat and bevelled. Every new text
  // resets the bar's steps and so repaints it, and Fusion's gradients would
  // have Qt hand that repaint to its paint threads: on two cores the
  // hand-over alone doubled the time of a press.
  if (QStyle* classic = QStyleFactory::create(QStringLiteral("Windows"))) {
    classic->setParent(verticalScrollBar());
    verticalScrollBar()->setStyle(classic);
  }
}

void CTextBox::SetText(const std::string& text) {
  mText = text;
  setPlainText(ToQString(text));
}

}  // namespace jeerbox
