// The heights in the side view: the heel under the rafter, ridge and kneewall on the right.
#include <algorithm>

#include "drawings/rafter_elevation_drafter.h"
#include "drawings/rafter_elevation_measures.h"

namespace pitchcraft {

using namespace elevation;
using namespace measures;

namespace {

// Where the heel's extension lines begin.
constexpr int kHeelTop = 34;
constexpr int kHeelFoot = 35;

}  // namespace

/// The heel is dimensioned in the open space under the rafter: its upper extension line begins where a level
/// line from the top edge at the wall comes out of the underside. If there is no room before the ridge, the
/// dimension goes right of it.
void RafterElevationDrafter::DimensionHeel() {
  if (!(member_.Heel > 0)) return;
  const double width = WidthOfLength(kVertical, 1, 5);
  const double wayOut = X(1) + member_.PlumbCut * member_.UnitRun / member_.Slope * board_.DrawScale;
  const std::optional<double> inside = HeelColumnInside(wayOut, width);
  const double start = inside ? wayOut : X(0);
  double column = inside.value_or(X(0) + board_.DimGap + kHeelTier * board_.DimLeg);
  if (!inside && Y(1) + Twips(kOutsideArrow) > Y(0))
    column = std::max(column, AngleLabelEnd() + Twips(kArrow));

  board_.Pts(kHeelTop) = {start, Y(1)};
  board_.Pts(kHeelFoot) = {start, Y(5)};
  Dimension dimension = Plain(kVertical, kHeelTop, kHeelFoot, column - start - board_.DimGap);
  dimension.ArrowsOutside = 1;
  dimension.TextMode = 2;
  // Beside the arrows, half-way up, but clear of the line that continues at the seat's level.
  const double textBegin = column + Twips(kArrow + kClear);
  double base = std::max((Y(1) + Y(5)) / 2 - Twips(kCapital / 2), Y(5) + Twips(kClear));
  if (!inside && base + Twips(kCapital + kClear) > LowestLineRight()) base = Y(5) - Twips(kClear + kCapital);
  dimension.TextAt = PointRecord{textBegin + width / 2, base};
  board_.Dimension2(dimension);
  if (!inside) heelColumnEnd_ = textBegin + width;
}

/// The lowest extension line that runs out from the ridge above the level of the seat.
double RafterElevationDrafter::LowestLineRight() const { return geometry_.Kneewall ? Y(29) : Y(0); }

/// The x of the heel's dimension line under the rafter: its upper arrow must end below the underside, and its
/// text must be clear of the extension lines that run down from kneewall and ridge.
std::optional<double> RafterElevationDrafter::HeelColumnInside(double wayOut, double textWidth) const {
  if (!(member_.Slope > 0)) return std::nullopt;
  const double underArrow = Twips(kOutsideArrow + kClear) * member_.UnitRun / member_.Slope;
  const double reach = Twips(kArrow + 2 * kClear) + textWidth;
  double column = wayOut + std::max(board_.DimGap + kHeelTier * board_.DimLeg, underArrow);
  if (geometry_.Kneewall && column - Twips(kArrow) < X(30) && column + reach > X(30)) {
    column = X(30) + Twips(kArrow);
  }
  if (!(column + reach <= X(8))) return std::nullopt;
  return column;
}

Dimension RafterElevationDrafter::RightOfRidge(int upper, int lower, double column) const {
  return Plain(kVertical, upper, lower, column - std::max(X(upper), X(lower)) - board_.DimGap);
}

bool RafterElevationDrafter::ArrowsStandOutside(int upper, int lower) const {
  return Y(upper) - Y(lower) <= Twips(kRoomForArrows);
}

bool RafterElevationDrafter::TextStandsAside(int upper, int lower) {
  return Y(upper) - Y(lower) < Twips(2 * kArrow) + WidthOfLength(kVertical, upper, lower);
}

void RafterElevationDrafter::DimensionHeights() {
  if (!(Y(0) > Y(7))) return;
  if (geometry_.Kneewall) {
    KneewallHeights();
  } else {
    WholeHeight();
  }
}

void RafterElevationDrafter::WholeHeight() {
  double column = X(0) + board_.DimGap + kHeightTier * board_.DimLeg;
  // An arrow above the upper extension line keeps clear of the angle written there.
  if (ArrowsStandOutside(0, 7)) column = std::max(column, AngleLabelEnd() + Twips(kArrow));
  if (heelColumnEnd_ > 0) {
    const double leftOfLine = TextStandsAside(0, 7) ? kArrow : kGap + kCapital;
    column = std::max(column, heelColumnEnd_ + Twips(leftOfLine + kClear));
  }
  Dimension dimension = RightOfRidge(0, 7, column);
  dimension.TextMode = 1;
  board_.Dimension2(dimension);
}

/// A level text to the right of a height's line: half-way up if it fits between the extension lines,
/// otherwise beyond the one that has nothing above or below it.
PointRecord RafterElevationDrafter::BesideHeight(double begin, int upper, int lower, bool above) {
  const double half = WidthOfLength(kVertical, upper, lower) / 2;
  double base = (Y(upper) + Y(lower)) / 2 - Twips(kCapital / 2);
  if (Y(upper) - Y(lower) < Twips(kCapital + 2 * kClear)) {
    base = above ? Y(upper) + Twips(kClear) : Y(lower) - Twips(kClear + kCapital);
    if (above) begin = std::max(begin, AngleLabelEnd() + Twips(2 * kClear));
  }
  return {begin + half, base};
}

/// The height of the kneewall above the plate and the rest up to the ridge share one line; the whole height
/// is outside it.
void RafterElevationDrafter::KneewallHeights() {
  board_.Pts(31) = {board_.Pts(0).X, board_.Pts(29).Y};
  const double half = WidthOfLength(kVertical, 31, 7) / 2;
  const bool upperOutside = ArrowsStandOutside(0, 31);
  double column = X(0) + std::max(board_.DimGap + kKneewallTier * board_.DimLeg, half + Twips(kClear));
  if (upperOutside) column = std::max(column, AngleLabelEnd() + Twips(kArrow));
  if (heelColumnEnd_ > 0) column = std::max(column, heelColumnEnd_ + Twips(kClear) + half);
  const double beside = column + Twips(kArrow + kClear);
  double end = column + half;

  Dimension lower = RightOfRidge(31, 7, column);
  lower.ArrowsOutside = 1;
  lower.TextMode = 2;
  if (upperOutside) {  // the arrow of the rest comes down where the text would be
    lower.TextAt = BesideHeight(beside, 31, 7, false);
    end = lower.TextAt->X + half;
  }
  board_.Dimension2(lower);

  Dimension upper = RightOfRidge(0, 31, column);
  upper.TextMode = 1;
  if (TextStandsAside(0, 31)) {
    upper.TextMode = 2;
    upper.TextAt = BesideHeight(beside, 0, 31, true);
    end = std::max(end, upper.TextAt->X + WidthOfLength(kVertical, 0, 31) / 2);
  }
  board_.Dimension2(upper);

  const double leftOfLine = TextStandsAside(0, 7) ? kArrow : kGap + kCapital;
  const double whole = std::max(X(0) + board_.DimGap + kWholeHeightTier * board_.DimLeg,
                                std::max(end, column + board_.DimArrow) + Twips(kClear + leftOfLine));
  Dimension dimension = RightOfRidge(0, 7, whole);
  dimension.TextMode = 1;
  board_.Dimension2(dimension);
}

}  // namespace pitchcraft
