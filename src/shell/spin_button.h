// The pair of arrows beside a field.
#pragma once

#include <QBasicTimer>

#include "shell/control_view.h"

namespace pitchcraft {

/// One step at a press, more while the button is held. The keyboard steps from within the field, with the
/// arrow keys.
class SpinView : public QWidget, public ControlView {
  Q_OBJECT

 public:
  SpinView(Session& session, SpinControl& spin, QWidget* host);
  QWidget& Widget() override { return *this; }
  void StepOnce(bool up);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowState() override {}
  void ShowName(const QString& name) override { setAccessibleName(tr("%1, step").arg(name)); }
  void Step();
  void Stop();

  QBasicTimer repeat_;
  bool up_ = false;
  bool down_ = false;
};

}  // namespace pitchcraft
