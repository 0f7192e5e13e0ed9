// Dialogs with a hand in them: the test says what happens to a form while it is open.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "document/forms.h"
#include "document/surroundings.h"

namespace pitchcraft {

class FormDialogs final : public Dialogs {
 public:
  void MsgBox(const std::string&, const std::string& text) override { messages.push_back(text); }
  void ShowForm(const AnyForm& form) override {
    std::visit([this](auto* shown) { names.emplace_back(shown->kName); }, form);
    if (hand) hand(form);
  }
  /// Acts on forms of that kind; others stay without an answer.
  template <typename Form>
  void On(std::function<void(Form&)> action) {
    hand = [action = std::move(action)](const AnyForm& form) {
      if (auto* const* shown = std::get_if<Form*>(&form)) action(**shown);
    };
  }

  std::function<void(const AnyForm&)> hand;
  std::vector<std::string> names;
  std::vector<std::string> messages;
};

}  // namespace pitchcraft
