// A hand that answers a modal dialog, so that no test waits for a person.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace pitchcraft {

/// Waits for a dialog of that kind and acts on it; the watchdog leaves it to this hand.
template <typename Dialog>
class Hand {
 public:
  explicit Hand(std::function<void(Dialog&)> action) {
    qApp->setProperty("dialogIsExpected", true);
    timer_.setInterval(1);
    QObject::connect(&timer_, &QTimer::timeout, [this, action] {
      QWidget* any = QApplication::activeModalWidget();
      if (any == nullptr) return;
      timer_.stop();
      auto* dialog = qobject_cast<Dialog*>(any);
      came_ = dialog != nullptr;
      if (came_) action(*dialog);
      if (!came_ || any->isVisible()) {
        EXPECT_FALSE(came_) << "the dialog is still open";
        any->close();
      }
    });
    timer_.start();
  }
  ~Hand() {
    EXPECT_TRUE(came_) << "no such dialog came up";
    qApp->setProperty("dialogIsExpected", false);
  }

 private:
  QTimer timer_;
  bool came_ = false;
};

}  // namespace pitchcraft
