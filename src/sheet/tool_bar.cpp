#include "sheet/tool_bar.h"

#include <cassert>

namespace pitchcraft {

ToolBar::ToolBar()
    // key                     tool tip                 group  roof
    : buttons_{{{"New", "New project", true},
                {"Open", "Open project"},
                {"Save", "Save project"},
                {"Print", "Print", true},
                {"Gable", "Common Gable", true, 0},
                {"Shed", "Common Shed", false, 1},
                {"Dual", "Dual Slope", false, 2},
                {"Hip", "Hip", false, 3},
                {"Valley", "Valley", false, 4},
                {"Unequal Span Valley", "Unequal Span Valley", false, 5},
                {"Bay", "Bay Roof", false, 6},
                {"Dutch Hip", "Dutch Hip", false, 7},
                {"Blind Valley", "Blind Valley", false, 8},
                {"Octagon", "Octagon", false, 9},
                {"Gambrel", "Gambrel Roof", false, 10},
                {"Plumb", "Plumb Cut Fascia", true},
                {"Square", "Square Cut Fascia"},
                {"Level", "Level Cut Fascia", false, -1, false}}} {}

ToolButton* ToolBar::Find(std::string_view key) {
  for (ToolButton& button : buttons_) {
    if (button.Key == key) return &button;
  }
  return nullptr;
}

ToolButton& ToolBar::operator[](std::string_view key) {
  ToolButton* button = Find(key);
  assert(button != nullptr);
  return *button;
}

void ToolBar::PressRoof(int listIndex) {
  for (ToolButton& button : buttons_) {
    if (button.RoofListIndex >= 0) button.Pressed = button.RoofListIndex == listIndex;
  }
}

void ToolBar::PressFasciaCut(std::string_view key) {
  for (const char* cut : {"Plumb", "Square", "Level"}) (*this)[cut].Pressed = cut == key;
}

}  // namespace pitchcraft
