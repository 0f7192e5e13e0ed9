// Ends the program when its window has been painted for the first time.
#pragma once

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdlib>

namespace pitchcraft {

class ExitAtFirstPaint : public QObject {
 public:
  explicit ExitAtFirstPaint(QWidget& window) : QObject(&window) { window.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    // The children are painted after the window, all before the next turn of the loop.
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, [] { std::_Exit(0); });
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace pitchcraft
