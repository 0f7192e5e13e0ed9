// How wide a text is. Window, driver, paper and tests measure with the same table, so that a drawing is the
// same everywhere.
#pragma once

#include <string_view>

namespace pitchcraft {

/// Height is that of the cell, ascent and descent together, in the unit in which the answer is wanted.
struct TextFace {
  std::string_view Name = "Arial";
  double Height = 0;
  bool Bold = false;
  bool Italic = false;
};

/// For a cell of height 1: the em, and the parts above and below the base line.
inline constexpr double kEmPerCell = 1.0 / 1.117;
inline constexpr double kAscentPerCell = 0.905 * kEmPerCell;
inline constexpr double kDescentPerCell = 0.212 * kEmPerCell;
/// Height of a capital letter or a digit above the base line.
inline constexpr double kCapitalPerCell = 0.716 * kEmPerCell;

class TextMeter {
 public:
  virtual ~TextMeter() = default;
  /// The advance width of a UTF-8 text. Each invalid byte counts as one character of average width.
  virtual double TextWidth(std::string_view text, const TextFace& face) const = 0;
};

}  // namespace pitchcraft
