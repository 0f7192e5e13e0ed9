// One line of a script, cut into what it says.
#pragma once

#include <string_view>

namespace pitchcraft {

/// Cuts off the first word and the blanks around it. What is left keeps its own blanks at the end.
std::string_view TakeWord(std::string_view& line);

/// Reads a whole number that fills the text. False where it does not.
bool ReadNumber(std::string_view text, int& number);

}  // namespace pitchcraft
