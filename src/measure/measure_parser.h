// Reads a measure as a carpenter types it.
#pragma once

#include <optional>
#include <string_view>

namespace pitchcraft {

enum class LengthSystem { None, Inches, Millimetres };

struct Measure {
  double amount;        // in inches, in millimetres, or as written
  LengthSystem system;  // None: the text contains no unit
};

/// Reads the whole text or nothing. Blanks and the case of letters do not matter.
///
///     measure  = [+ or -] quantity [unit] { [- or ,] quantity unit }
///     quantity = 12   12.5   .5   1e-3   3,6   1/2   6 1/2   6-1/2   6½
///     unit     = ' ft foot feet   " '' in inch inches   mm   cm   m; a word may end in a point
///
/// - After feet the unit may be left out: 12'6 is twelve feet and six inches. A smaller unit of the same
///   system follows a larger one, so a dash between them joins and never subtracts: 12'-6" is twelve and a
///   half feet.
/// - A comma is a decimal point unless it could group thousands: 3,6 and 0,125 and 1234,567 can be read, but
///   1,200 cannot.
/// - A fraction has whole numbers above and below, the lower one not 0.
///
/// The amount may be infinite when a number near the end of the range has a unit.
std::optional<Measure> ReadMeasure(std::string_view text);

}  // namespace pitchcraft
