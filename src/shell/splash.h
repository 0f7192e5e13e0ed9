// What shows while the program starts.
#pragma once

#include <QBasicTimer>
#include <QDialog>

namespace pitchcraft {

/// Closes after a short time, or at once by a click or Esc.
class Splash : public QDialog {
 public:
  explicit Splash(const QString& version);
  /// Returns when it has closed. It is shown before.
  void Wait();

 protected:
  void timerEvent(QTimerEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QBasicTimer timer1_;
  int ticks_ = 0;
};

}  // namespace pitchcraft
