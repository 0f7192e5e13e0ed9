// The tool bar: buttons by key, in groups.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace pitchcraft {

struct ToolButton {
  std::string_view Key;
  std::string_view ToolTip;
  bool StartsGroup = false;  ///< a gap stands before it
  int RoofListIndex = -1;    ///< position in RoofList of the roof that it picks; -1 for the other buttons
  bool Visible = true;
  bool Pressed = false;
};

class ToolBar {
 public:
  ToolBar();

  /// The button of that key, or null.
  ToolButton* Find(std::string_view key);
  ToolButton& operator[](std::string_view key);

  /// Presses the button of a roof and releases those of the others.
  void PressRoof(int listIndex);
  /// Presses "Plumb", "Square" or "Level" and releases the two others.
  void PressFasciaCut(std::string_view key);

  std::span<const ToolButton> Buttons() const { return buttons_; }

 private:
  std::array<ToolButton, 18> buttons_;
};

}  // namespace pitchcraft
