// The boxes that speak to the person.
#pragma once

#include <QWidget>

#include "document/surroundings.h"

namespace pitchcraft {

class QtDialogs : public Dialogs {
 public:
  /// The window that the boxes stand over; none before it is there.
  void SetOwner(QWidget* owner) { owner_ = owner; }
  void MsgBox(const std::string& title, const std::string& text) override;

 private:
  QWidget* owner_ = nullptr;
};

}  // namespace pitchcraft
