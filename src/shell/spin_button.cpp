#include "shell/spin_button.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include "shell/arrow_button.h"
#include "shell/entry_box.h"

namespace pitchcraft {
namespace {

constexpr int kFirstRepeat = 400;  // milliseconds
constexpr int kNextRepeats = 60;

}  // namespace

SpinView::SpinView(Session& session, SpinControl& spin, QWidget* host)
    : QWidget(host), ControlView(session, spin) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_Hover);
}

void SpinView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  up_ = event->position().y() < height() / 2.0;
  down_ = !up_;
  repeat_.start(kFirstRepeat, this);
  Step();
}

void SpinView::mouseReleaseEvent(QMouseEvent*) { Stop(); }

void SpinView::timerEvent(QTimerEvent*) {
  const bool held = QApplication::mouseButtons().testFlag(Qt::LeftButton) && isVisible() &&
                    QApplication::activeModalWidget() == nullptr;
  if (!held) return Stop();
  repeat_.start(kNextRepeats, this);
  Step();
}

void SpinView::Step() {
  StepOnce(up_);
  update();
}

void SpinView::StepOnce(bool up) {
  EntryBox::CommitFocused();
  TheSession().Do([&](Actions& actions) { actions.Spin(Name(), up); });
}

void SpinView::Stop() {
  repeat_.stop();
  up_ = down_ = false;
  update();
}

void SpinView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF upper(0, 0, width(), height() / 2.0);
  const QRectF lower = upper.translated(0, height() / 2.0);
  const bool hovered = underMouse() && isEnabled();
  DrawFace(painter, upper, palette(), hovered, up_);
  DrawFace(painter, lower, palette(), hovered, down_);
  const QColor color =
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
  DrawArrow(painter, upper, true, color);
  DrawArrow(painter, lower, false, color);
}

}  // namespace pitchcraft
