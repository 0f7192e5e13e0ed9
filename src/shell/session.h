// The document behind the window, and the one way to it: an action, then the news that something changed.
#pragma once

#include <QObject>
#include <string>
#include <string_view>

#include "document/actions.h"
#include "document/document.h"
#include "document/pages.h"

namespace pitchcraft {

class Session : public QObject {
  Q_OBJECT

 public:
  explicit Session(const Surroundings& surroundings) : document_(surroundings), actions_(document_) {}

  pitchcraft::Document& Document() { return document_; }

  /// Runs `action` with the actions of the document; the widgets take the new state after it. While an action
  /// waits for its message to be read, no other one can begin: false then.
  template <typename Action>
  bool Do(Action action) {
    if (acting_) return false;
    acting_ = true;
    action(actions_);
    acting_ = false;
    emit Changed();
    return true;
  }

  /// The pointer or the focus came to something; an empty name when it left.
  void Hint(std::string_view name) {
    ShowHint(document_, name);
    emit StatusChanged();
  }

 signals:
  void Changed();
  void StatusChanged();

 private:
  pitchcraft::Document document_;
  Actions actions_;
  bool acting_ = false;
};

}  // namespace pitchcraft
