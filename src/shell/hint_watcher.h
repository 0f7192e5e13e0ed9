// Tells the session what the pointer or the focus is on.
#pragma once

#include <QEvent>
#include <QObject>
#include <string>

#include "shell/session.h"

namespace pitchcraft {

/// Installed on a widget, and on the parts of it that take the focus, as an event filter.
class HintWatcher : public QObject {
 public:
  HintWatcher(Session& session, std::string_view name, QObject* parent)
      : QObject(parent), session_(session), name_(name) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn) session_.Hint(name_);
    if (event->type() == QEvent::Leave) session_.Hint("");
    return QObject::eventFilter(watched, event);
  }

 private:
  Session& session_;
  std::string name_;
};

}  // namespace pitchcraft
