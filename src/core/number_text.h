// Numbers as text, the same under every locale: a point for the decimals, never a comma.
#pragma once

#include <string>
#include <string_view>

namespace pitchcraft {

/// General form with up to seven significant digits and no blank in front: "0.5", "8.485281", "1E+30". An
/// infinity is "inf" or "-inf", an undefined number "nan".
std::string PlainText(double value);

/// As PlainText, with a blank in front of a number that is not negative and no zero before the decimal point:
/// " .5".
std::string SignedText(double value);

/// The fewest digits that bring back the same 32-bit (or 64-bit) number.
std::string ExactText(float value);
std::string ExactText(double value);

/// Rounds to a number of decimals; a half goes to the even neighbour. Works on value times a power of ten in
/// double.
double RoundTo(double value, int decimals);

/// Reads the decimal number that a text begins with, blanks skipped; 0 when there is none: "25%" is 25, "x"
/// is 0.
double LeadingNumber(std::string_view text);

/// The text without white space at either end.
std::string_view Trimmed(std::string_view text);

}  // namespace pitchcraft
