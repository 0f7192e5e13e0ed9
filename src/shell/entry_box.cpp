#include "shell/entry_box.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

#include "shell/field_look.h"

namespace pitchcraft {
namespace {

constexpr int kTextMargin = 2;
constexpr double kClockSize = 10;
constexpr double kClockMargin = 5;
constexpr int kBesideText = 3;  // what the toolkit leaves beside the margin, with the line of the cursor

}  // namespace

EntryBox::EntryBox(QWidget* parent) : QLineEdit(parent) {
  setTextMargins(kTextMargin, 0, kTextMargin, 0);
  // Not textEdited: assistive programs put their text in as a whole.
  connect(this, &QLineEdit::textChanged, this, [this] {
    if (showing_) return;
    modified_ = true;
    emit Edited();
  });
}

QSize EntryBox::SizeFor(const QString& text) const {
  QStyleOptionFrame frame;
  initStyleOption(&frame);
  const QFontMetrics words = fontMetrics();
  const QSize inside(words.horizontalAdvance(text) + 2 * (kTextMargin + kBesideText), words.height());
  const QSize outside = style()->sizeFromContents(QStyle::CT_LineEdit, &frame, inside, this);
  return {outside.width(), words.height() + kAboveAndBelowText};
}

void EntryBox::ShowText(const std::string& text) {
  if (modified_) return;
  const QString shown = QString::fromStdString(text);
  if (shown == this->text()) return;
  showing_ = true;
  setText(shown);
  setCursorPosition(0);  // of a text that is too long, the beginning shows
  if (hasFocus()) selectAll();
  showing_ = false;
}

void EntryBox::SetTakesEntry(bool takes) {
  if (isReadOnly() != takes) return;
  setReadOnly(!takes);
  QAccessible::State changed;
  changed.readOnly = true;
  changed.editable = true;
  QAccessibleStateChangeEvent event(this, changed);
  QAccessible::updateAccessibility(&event);
}

// The text keeps clear of the clock.
void EntryBox::ShowWaiting(bool waits) {
  if (waits_ == waits) return;
  waits_ = waits;
  const int room = waits ? static_cast<int>(kClockSize + kClockMargin) : kTextMargin;
  setTextMargins(kTextMargin, 0, room, 0);
  update();
}

void EntryBox::CommitFocused() {
  auto* box = qobject_cast<EntryBox*>(QApplication::focusWidget());
  if (box != nullptr) emit box->Left();
}

void EntryBox::keyPressEvent(QKeyEvent* event) {
  const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const int key = event->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    // Where nothing can be typed, the rounded text must not come in as a number.
    if (!isReadOnly()) emit Entered();
    selectAll();
  } else if (key == Qt::Key_F4 || (key == Qt::Key_Down && modifiers == Qt::AltModifier)) {
    emit ListAsked();
  } else if ((key == Qt::Key_Up || key == Qt::Key_Down) && modifiers == Qt::NoModifier) {
    emit Stepped(key == Qt::Key_Up);
  } else if (key == Qt::Key_Escape && modified_) {
    emit Escaped();
    selectAll();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

bool EntryBox::focusNextPrevChild(bool next) {
  emit Tabbed();
  return QLineEdit::focusNextPrevChild(next);
}

// The style's own mark of the focus is too faint on a dark field.
void EntryBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!hasFocus() && !waits_) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (waits_) PaintClock(painter);
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
}

void EntryBox::PaintClock(QPainter& painter) const {
  const QPointF middle(width() - kClockMargin - kClockSize / 2, height() / 2.0);
  painter.setPen(QPen(WaitingColor(palette().color(QPalette::Base)), 1.3, Qt::SolidLine, Qt::RoundCap));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(middle, kClockSize / 2, kClockSize / 2);
  painter.drawLine(middle, middle + QPointF(0, -3.2));
  painter.drawLine(middle, middle + QPointF(2.4, 1.4));
}

// A menu, a list or another program's window only borrows the focus.
void EntryBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const Qt::FocusReason reason = event->reason();
  const bool lent = reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason ||
                    reason == Qt::ActiveWindowFocusReason;
  if (!lent) emit Left();
}

}  // namespace pitchcraft
