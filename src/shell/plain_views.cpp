#include "shell/plain_views.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOption>

#include "shell/entry_box.h"
#include "shell/field_look.h"

namespace pitchcraft {
namespace {

constexpr int kBesideCaption = 1;  // a letter may reach out of its advance
constexpr int kBesideButtonText = 8;

}  // namespace

// --- Label
// ----------------------------------------------------------------------------------------------------------

LabelView::LabelView(Session& session, LabelControl& label, QWidget* host)
    : QLabel(host), ControlView(session, label), label_(label) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setTextFormat(Qt::PlainText);
}

// The style's own grey for what is switched off is too faint to read.
void LabelView::ShowColors() {
  QPalette colors = parentWidget()->palette();
  if (colors.cacheKey() == desktop_) return;
  desktop_ = colors.cacheKey();
  colors.setColor(QPalette::Disabled, QPalette::WindowText,
                  SwitchedOff(colors.color(QPalette::Active, QPalette::WindowText),
                              colors.color(QPalette::Active, QPalette::Window)));
  setPalette(colors);
}

void LabelView::ShowState() {
  ShowColors();
  const QString caption = QString::fromStdString(label_.Caption);
  if (caption != text()) setText(caption);
}

QSize LabelView::SizeForWords() const { return SizeFor(QString::fromStdString(label_.Caption)); }

QSize LabelView::SizeFor(const QString& caption) const {
  return {fontMetrics().horizontalAdvance(caption) + kBesideCaption, fontMetrics().height()};
}

// --- Check box
// ------------------------------------------------------------------------------------------------------

CheckView::CheckView(Session& session, CheckControl& box, QWidget* host)
    : QCheckBox(host),
      ControlView(session, box),
      box_(box),
      isLock_(!box.Name.starts_with("chkKneewall") && !box.Name.starts_with("chkLastCommon")) {
  connect(this, &QCheckBox::toggled, this, [this](bool on) {
    EntryBox::CommitFocused();
    TheSession().Do([&](Actions& actions) { actions.Check(Name(), on); });
  });
}

void CheckView::ShowState() {
  const QSignalBlocker quiet(this);
  if (isChecked() != box_.Ticked()) setChecked(box_.Ticked());
}

void CheckView::ShowName(const QString& name) {
  setAccessibleName(isLock_ ? tr("%1, lock").arg(name) : tr("%1, in use").arg(name));
}

void CheckView::paintEvent(QPaintEvent* event) {
  if (!isLock_) return QCheckBox::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  // The padlock stands in a square of 16 units.
  const double unit = std::min(width(), height()) / 18.0;
  painter.translate((width() - 16 * unit) / 2, (height() - 16 * unit) / 2);
  painter.scale(unit, unit);
  QColor color = palette().color(QPalette::WindowText);
  if (!isChecked()) color.setAlphaF(0.45F);
  painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap));
  painter.setBrush(Qt::NoBrush);
  const double swing = isChecked() ? 0 : 3.5;
  painter.drawArc(QRectF(4.5 + swing, 2, 7, 8), isChecked() ? 0 : 20 * 16, (isChecked() ? 180 : 160) * 16);
  painter.drawLine(QPointF(4.5 + swing, 6), QPointF(4.5 + swing, 7.5));
  if (isChecked()) painter.drawLine(QPointF(11.5, 6), QPointF(11.5, 7.5));
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawRoundedRect(QRectF(2.5, 7.5, 11, 7.5), 1.5, 1.5);
  if (!hasFocus()) return;
  painter.resetTransform();
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

// --- Button
// ---------------------------------------------------------------------------------------------------------

ButtonView::ButtonView(Session& session, ButtonControl& button, QWidget* host)
    : QPushButton(host), ControlView(session, button), button_(button) {
  connect(this, &QPushButton::clicked, this, [this] {
    EntryBox::CommitFocused();
    TheSession().Do([this](Actions& actions) { actions.Click(Name()); });
  });
}

QSize ButtonView::SizeForWords() const {
  const QString caption = QString::fromStdString(button_.Caption);
  const QSize words = fontMetrics().size(Qt::TextShowMnemonic, caption);
  return {words.width() + 2 * kBesideButtonText, words.height() + kAboveAndBelowText};
}

void ButtonView::ShowState() {
  const QString caption = QString::fromStdString(button_.Caption);
  if (caption != text()) setText(caption);
}

}  // namespace pitchcraft
