#include "drawings/lettering.h"

#include <array>
#include <charconv>

#include "core/number_text.h"
#include "drawing/text_align.h"

namespace pitchcraft {
std::string AngleText(double degrees) {
  std::array<char, 64> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), degrees, std::chars_format::fixed, 1);
  return std::string(digits.data(), end.ptr) + kDegreeSign;
}

std::string WithoutDegreeSign(std::string_view label) {
  const std::string_view degree = kDegreeSign;
  const std::size_t sign = label.find(degree);
  if (sign == std::string_view::npos) return std::string(label);
  const std::string_view rest = label.substr(sign + degree.size());
  return std::string(label.substr(0, sign)) + (rest.empty() ? "" : "d") + std::string(rest);
}

std::string SlopeText(const std::string& pitch, double degrees, bool riseOverRun) {
  return riseOverRun ? pitch : PlainText(RoundTo(degrees, 2)) + kDegreeSign;
}

void ChooseLettering(DraftingBoard& board, const DrawingContext& context) {
  board.Letters.TextColor = context.TextColor;
  board.Letters.FontHeight = ToLong(board.DimTextHeight);
  board.Letters.SetTextAlign(kAlignLeftBase);
  board.Strokes.SetPenColor(context.DimColor);
}

Dimension PlainDimension(const DraftingBoard& board, int kind, int p1, int p2, double leg) {
  Dimension dimension;
  dimension.Kind = kind;
  dimension.P1 = p1;
  dimension.P2 = p2;
  dimension.Gap = board.DimGap;
  dimension.Arrow = board.DimArrow;
  dimension.Leg = leg;
  dimension.TextHeight = board.DimTextHeight;
  return dimension;
}

}  // namespace pitchcraft
