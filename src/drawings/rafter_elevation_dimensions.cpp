// The dimensions along the top edge, at the tail and below the wood, and how they are stacked.
//
// No line runs through a text: where a measure is too short for its text, the text moves to where no line is.
#include <algorithm>
#include <cmath>
#include <limits>

#include "drawing/extents_canvas.h"
#include "drawing/text_align.h"
#include "drawings/lettering.h"
#include "drawings/rafter_elevation_drafter.h"
#include "drawings/rafter_elevation_measures.h"

namespace pitchcraft {

using namespace elevation;
using namespace measures;

namespace {

constexpr double kNoLimit = std::numeric_limits<double>::infinity();

}  // namespace

Dimension RafterElevationDrafter::Plain(int kind, int p1, int p2, double leg) const {
  return PlainDimension(board_, kind, p1, p2, leg);
}

double RafterElevationDrafter::WidthOfLength(int kind, int p1, int p2) {
  return board_.WidthOf(board_.DimensionText(kind, p1, p2), board_.DimTextHeight);
}

/// A text too long for its line moves down the rafter, clear of the outer dimensions' extension lines at the
/// upper end, and over its own lower one.
void RafterElevationDrafter::Along(int p1, int p2, double tier) {
  const double dx = X(p2) - X(p1);
  const double dy = Y(p2) - Y(p1);
  const double length = std::hypot(dx, dy);
  if (length == 0) return;
  Dimension dimension = Plain(kAligned, p1, p2, tier * board_.DimLeg);
  const double excess = WidthOfLength(kAligned, p1, p2) + Twips(2 * kClear) - length;
  if (excess > 0) {
    const double along = (length - excess) / 2;
    const double out = dimension.Gap + dimension.Leg + Twips(2 * kGap);
    const double cosine = dx / length;
    const double sine = dy / length;
    dimension.TextAt = PointRecord{X(p1) + cosine * along - sine * out, Y(p1) + sine * along + cosine * out};
  }
  board_.Dimension2(dimension);
}

void RafterElevationDrafter::DimensionAlongRafter() {
  const std::size_t first = board_.Recorder.Operations().size();
  double tier = kFirstTier;
  if (geometry_.Kneewall) {
    Along(27, 0, tier);
    tier = kSecondTier;
  }
  if (member_.Overhang > 0) {
    Along(1, 0, tier);
    tier = geometry_.Kneewall ? kThirdTier : kSecondTier;
  }
  Along(2, 0, tier);
  board_.Pts(14).Y = board_.Pts(12).Y;

  ExtentsCanvas reach({}, board_.Recorder.Meter());
  reach.Play(std::span(board_.Recorder.Operations()).subspan(first));
  if (!reach.Empty()) ChooseTailColumn(reach.Left());
}

/// The height of a plumb tail cut, to the left of it. The text goes between the two arrows or below them.
void RafterElevationDrafter::DimensionTail() {
  if (!(member_.Overhang > 0) || geometry_.SquareCut || Y(3) == Y(2)) return;
  Dimension dimension = Plain(kVertical, 3, 2, tailGap_ + tailLeg_ - board_.DimGap);
  dimension.ArrowsOutside = 1;
  dimension.TextMode = 3;
  const bool arrowAbove = WholeRiseIsShown() && Y(0) - Y(2) <= Twips(kRoomForArrows);
  if (arrowAbove) {  // it comes down where the text would be
    const double column = X(2) - dimension.Gap - dimension.Leg;
    const double half = WidthOfLength(kVertical, 3, 2) / 2;
    const bool fits = Y(2) - Y(3) >= Twips(kCapital + 2 * kClear);
    const double base = fits ? (Y(2) + Y(3) - Twips(kCapital)) / 2 : Y(3) - Twips(kClear + kCapital);
    dimension.TextAt = PointRecord{column - Twips(kArrow + kClear) - half, base};
  }
  board_.Dimension2(dimension);
  board_.Pts(13).X = board_.Pts(11).X;
}

/// The heights at the tail share one line. It is far enough out that the text of the tail, which is centred
/// on it, ends clear of the arrows of the overhang below. Beside a steep rafter it also keeps clear of the
/// lengths along the top edge.
void RafterElevationDrafter::ChooseTailColumn(double lengthsLeft) {
  tailGap_ = board_.DimGap;
  tailLeg_ = kTailTier * board_.DimLeg;
  if (member_.Overhang > 0 && !geometry_.SquareCut) {
    const double half = WidthOfLength(kVertical, 3, 2) / 2;
    tailLeg_ = std::max(tailLeg_, half + Twips(kOutsideArrow + kClear - kGap));
  }
  if (!WholeRiseIsShown() || lengthsLeft > X(2) - tailGap_ - tailLeg_) return;
  const bool steep = Y(0) - Y(2) > X(0) - X(2);
  const PointRecord text = WholeRiseText();
  board_.Letters.Angle = 90;
  const bool clear = board_.IsClear(board_.LengthText((Y(0) - Y(2)) / board_.DrawScale), text.X, text.Y,
                                    kAlignCenterBase, Twips(kClear));
  board_.Letters.Angle = 0;
  if (!steep && clear) return;
  tailGap_ = X(2) - lengthsLeft;
  tailLeg_ = board_.DimArrow;
}

/// The centre of the base line, left of the line; further left if the text is longer than the line.
PointRecord RafterElevationDrafter::WholeRiseText() {
  const double line = X(2) - tailGap_ - tailLeg_;
  const double length = Y(0) - Y(2);
  const double width = board_.WidthOf(board_.LengthText(length / board_.DrawScale), board_.DimTextHeight);
  if (width + Twips(2 * kClear) <= length) return {line - board_.DimGap, (Y(0) + Y(2)) / 2};
  return {line - Twips(2 * kGap), Y(2) + Twips(kClear) + width / 2};
}

bool RafterElevationDrafter::WholeRiseIsShown() const {
  return member_.ShowsWholeRise && !context_.OnDesignPage && Y(0) > Y(2);
}

/// On the later pages: the height of the ridge above the tail, in line with the height of the tail cut.
void RafterElevationDrafter::DimensionWholeRise() {
  if (!WholeRiseIsShown()) return;
  board_.Pts(14) = {board_.Pts(2).X, board_.Pts(0).Y};
  Dimension dimension = Plain(kVertical, 2, 14, tailLeg_);
  dimension.Gap = tailGap_;
  dimension.TextFlag = 1;
  dimension.TextAt = WholeRiseText();
  board_.Dimension2(dimension);
}

/// The lines below all hang from the lowest corner at tail and wall, so that those of one tier meet end to
/// end.
double RafterElevationDrafter::LevelBelow(double tier) const {
  return std::min(Y(3), Y(geometry_.WallFoot)) - board_.DimGap - tier * board_.DimLeg;
}

/// The line runs from right to left, so its text is turned to read upright.
Dimension RafterElevationDrafter::BelowWood(int right, int left, double tier) const {
  const double lower = std::min(Y(right), Y(left));
  Dimension dimension = Plain(kHorizontal, right, left, lower - board_.DimGap - LevelBelow(tier));
  dimension.TextMode = 1;
  return dimension;
}

void RafterElevationDrafter::Below(int right, int left, double tier, double leftLimit, double rightLimit) {
  if (!(X(right) > X(left))) return;
  Dimension dimension = BelowWood(right, left, tier);
  dimension.TextFlag = 1;
  const double half = WidthOfLength(kHorizontal, right, left) / 2;
  const double middle = (X(right) + X(left)) / 2;
  double centre = std::min(std::max(middle, leftLimit + half), rightLimit - half);
  if (centre - half < leftLimit)
    centre = rightLimit + Twips(2 * kClear) + half;  // too wide: past the right limit
  if (centre != middle) dimension.TextAt = PointRecord{centre, LevelBelow(tier) - Twips(kTextUnderLine)};
  board_.Dimension2(dimension);
}

bool RafterElevationDrafter::RunNeedsOwnTier() {
  if (geometry_.Kneewall) return true;
  if (!(member_.Overhang > 0)) return false;
  const int foot = geometry_.WallFoot;
  const double overhangEnd = (X(TailEnd()) + X(foot) + WidthOfLength(kHorizontal, foot, TailEnd())) / 2;
  const double runBegin = (X(foot) + X(8) - WidthOfLength(kHorizontal, 8, foot)) / 2;
  return overhangEnd + Twips(2 * kClear) > runBegin;
}

/// Above the line where the text fits between the extension lines of a plumb tail, otherwise below it.
void RafterElevationDrafter::DimensionOverhang() {
  if (!(member_.Overhang > 0)) return;
  const int foot = geometry_.WallFoot;
  const double length = X(foot) - X(TailEnd());
  const double width = WidthOfLength(kHorizontal, foot, TailEnd());
  if (!geometry_.SquareCut && length > std::max(width + Twips(2 * kClear), Twips(kRoomForArrows))) {
    board_.Dimension2(BelowWood(foot, TailEnd(), kFirstTierBelow));
    return;
  }
  const double rightLimit = RunNeedsOwnTier() ? X(foot) - Twips(kClear) : kNoLimit;
  Below(foot, TailEnd(), kFirstTierBelow, -kNoLimit, rightLimit);
}

void RafterElevationDrafter::DimensionRuns() {
  const int foot = geometry_.WallFoot;
  if (geometry_.Kneewall) {
    Below(30, foot, kFirstTierBelow, X(foot) + Twips(kClear), X(8) - Twips(kClear));
  }
  Below(8, foot, RunNeedsOwnTier() ? kSecondTierBelow : kFirstTierBelow, -kNoLimit, kNoLimit);
  board_.Pts(13).Y = board_.Pts(11).Y;
}

}  // namespace pitchcraft
