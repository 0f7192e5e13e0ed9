// Measures as text: feet and inches to the nearest sixteenth, inches alone, millimetres, plain numbers.
#pragma once

#include <string>
#include <string_view>

namespace pitchcraft {

/// How a measure is shown; any other code shows a plain number.
inline constexpr int kPlainNumber = 0;
inline constexpr int kInchesAlone = 3;
inline constexpr int kFeetAndInches = 4;
inline constexpr int kMillimetres = 6;

/// The unit of a measure's number.
inline constexpr int kBaseInches = 0;
inline constexpr int kBaseMillimetres = 1;

/// Turns text into a number in base units and back. Only the text is rounded, never a stored number.
class MeasureConverter {
 public:
  int Units = kFeetAndInches;
  int BaseUnits = kBaseInches;
  int DecimalPlaces = 4;  // of millimetres and plain numbers: 0 to 7, trailing zeros cut
  bool Imperial = true;

  /// The number in base units that the text means: always finite, and 0 if it cannot be read. A unit in the
  /// text is converted, whatever BaseUnits is; a bare number is in base units. measure_parser.h says what can
  /// be read.
  double ToValue(std::string_view text) const;

  /// The text of a number in base units: 12' 6 1/2", 19 3/16", 3600 mm, 26.5651. Half a sixteenth or half a
  /// last decimal goes to the even neighbour. A number too small to show is 0; from 1e9 on it is written
  /// without a unit and with an exponent, as in 1E+30. An infinity is "inf" or "-inf", an undefined number
  /// "nan".
  std::string ToText(double value) const;
};

}  // namespace pitchcraft
