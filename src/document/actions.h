// What a person does to a control, by the control's name. Window and driver both go through here, so that a
// script and a hand end in the same state.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/document.h"

namespace pitchcraft {

/// Why an action was not taken; nothing when it was.
using Refusal = std::optional<std::string>;

/// A control that is unknown, hidden or disabled refuses, and so does one that does not know the action. A
/// field that takes no typing (a locked slope, a derived bay dimension) keeps its text.
class Actions {
 public:
  explicit Actions(Document& document) : document_(document) {}

  /// Puts the text in and leaves the field: its commit runs. Of a left/right field both texts stand with a
  /// bar between them; without a bar the right one stays.
  Refusal Type(std::string_view name, std::string_view text);
  /// Puts the text in and presses Enter.
  Refusal Enter(std::string_view name, std::string_view text);
  /// Puts the text in and stays in the field.
  Refusal Edit(std::string_view name, std::string_view text);
  /// Picks the list row with that caption.
  Refusal Pick(std::string_view name, std::string_view item);
  /// Clicks a check box if it is not so already.
  Refusal Check(std::string_view name, bool on);
  /// Clicks a menu item or a command button.
  Refusal Click(std::string_view name);
  /// Clicks a button of the tool bar.
  Refusal Press(std::string_view key);
  Refusal Spin(std::string_view name, bool up);
  /// Chooses a page of "Tabs(0)" or "Tabs(1)", counted from 0.
  Refusal Page(std::string_view name, int page);
  /// The pointer comes over a control, a menu item or a drawing.
  Refusal Hover(std::string_view name);
  /// Calculates the roof with every entry that waits.
  Refusal Calculate();

 private:
  enum class Way { kLeave, kEnter, kStay };
  Refusal PutIn(std::string_view name, std::string_view text, Way way);
  Refusal Reach(std::string_view name, std::optional<AnyControl>& control) const;
  void Run(const struct ControlEvent& event, int index);
  Refusal ReachMenu(const MenuItem& item) const;

  Document& document_;
};

}  // namespace pitchcraft
