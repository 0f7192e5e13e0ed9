// The rafter from below, at the foot of the drawing, with the bevels of its two ends.
#include <algorithm>
#include <cmath>
#include <optional>

#include "core/angles.h"
#include "drawing/text_align.h"
#include "drawings/drawing_measures.h"
#include "drawings/lettering.h"
#include "drawings/rafter_elevation_drafter.h"
#include "drawings/rafter_end_view.h"

namespace pitchcraft {
namespace {

// The longest point that is drawn, in half thicknesses; a sharper one is drawn blunt.
constexpr double kLongestPoint = 6;

/// How an end is cut, seen from below. A point fits into a corner, a notch fits around one.
enum class EndCut { kPoint, kNotch, kOneSided, kSquare };

struct BeveledEnds {
  EndCut Ridge;
  EndCut Tail;
};

std::optional<BeveledEnds> EndsOf(Member type) {
  switch (type) {
    case Member::kHip:
    case Member::kBastardHip: return BeveledEnds{EndCut::kPoint, EndCut::kPoint};
    case Member::kValley: return BeveledEnds{EndCut::kPoint, EndCut::kNotch};
    case Member::kLongValley: return BeveledEnds{EndCut::kOneSided, EndCut::kNotch};
    case Member::kShortValley: return BeveledEnds{EndCut::kSquare, EndCut::kNotch};
    default: return std::nullopt;
  }
}

std::vector<std::string> RowsOf(EndCut cut) {
  if (cut == EndCut::kSquare) return {};
  return {cut == EndCut::kOneSided ? "45\u00BA bevel" : "45\u00BA bevels"};
}

std::vector<std::string> RowsOf(const CheekBevels& bevels) {
  return {AngleText(bevels.Upper) + " bevel", AngleText(bevels.Lower) + " bevel"};
}

/// How far the two edges and the middle of an end lie inside its outermost line, in half thicknesses.
struct EndShape {
  double Upper, Middle, Lower;
};

double SetBack(double bevel) {
  return bevel == 45 ? 1 : std::min(std::tan(bevel * kRadiansPerDegree), kLongestPoint);
}

EndShape ShapeOf(EndCut cut, const CheekBevels& bevels) {
  switch (cut) {
    case EndCut::kPoint: return {SetBack(bevels.Upper), 0, SetBack(bevels.Lower)};
    case EndCut::kNotch: return {0, 1, 0};
    case EndCut::kOneSided: return {0, 1, 2};
    case EndCut::kSquare: break;
  }
  return {0, 0, 0};
}

}  // namespace

EndLabels EndLabelsOf(Member type, const ElevationMember& member) {
  const std::optional<BeveledEnds> ends = EndsOf(type);
  if (!ends) return {};
  if (type == Member::kBastardHip) return {RowsOf(member.TailBevels), RowsOf(member.RidgeBevels)};
  return {RowsOf(ends->Tail), RowsOf(ends->Ridge)};
}

/// Drawn only if the drawing is narrower than its canvas, so that the labels have room on either side.
void RafterElevationDrafter::DrawEndView() {
  const std::optional<BeveledEnds> ends = EndsOf(type_);
  if (!ends || context_.OnDesignPage || !(ratio_ < 1)) return;
  const double half = board_.DimTextHeight / 2;
  const double top = board_.Recorder.MinY() - 2 * board_.DimTextHeight;
  const EndShape ridge = ShapeOf(ends->Ridge, member_.RidgeBevels);
  const EndShape tail = ShapeOf(ends->Tail, member_.TailBevels);
  const double right = X(0);
  const double left = X(2);
  board_.Pts(18) = {right - ridge.Upper * half, top};
  board_.Pts(19) = {left + tail.Upper * half, top};
  board_.Pts(20) = {left + tail.Middle * half, top - half};
  board_.Pts(21) = {left + tail.Lower * half, top - 2 * half};
  board_.Pts(22) = {right - ridge.Lower * half, top - 2 * half};
  board_.Pts(23) = {right - ridge.Middle * half, top - half};
  board_.Pts(24) = board_.Pts(18);
  board_.Pts(25) = board_.Pts(20);
  board_.Pts(26) = board_.Pts(23);

  board_.Strokes.SetPenColor(context_.LineColor);
  board_.Strokes.SetDrawWidth(context_.LineWidth);
  for (int corner = 18; corner < 24; ++corner) board_.Line(corner, corner + 1);
  board_.Strokes.SetPenColor(context_.DimColor);
  board_.Strokes.SetDrawWidth(0);
  board_.Strokes.SetDrawStyle(measures::kDashed);
  board_.Line(25, 26);
  board_.Strokes.SetDrawStyle(0);

  const EndLabels labels = EndLabelsOf(type_, member_);
  constexpr int kTailRows[] = {kAlignRightBottom, kAlignRightTop};
  constexpr int kRidgeRows[] = {kAlignLeftBottom, kAlignLeftTop};
  for (std::size_t row = 0; row < labels.Tail.size(); ++row)
    board_.Text(labels.Tail[row], left - half, Y(20), kTailRows[row]);
  for (std::size_t row = 0; row < labels.Ridge.size(); ++row)
    board_.Text(labels.Ridge[row], right + half, Y(20), kRidgeRows[row]);
}

}  // namespace pitchcraft
