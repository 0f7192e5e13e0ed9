// The rafter from below at the foot of the drawing, with the bevels of its two ends.
#include "drawing/text_align.h"
#include "drawings/rafter_elevation_drafter.h"
#include "drawings/rafter_end_view.h"

namespace pitchcraft {
namespace {

constexpr int kDashed = 2;

/// How far the two edges and the middle of an end stand inside of its outermost line, in half thicknesses.
struct EndShape {
  double Upper, Middle, Lower;
};

EndShape ShapeOf(EndCut cut) {
  switch (cut) {
    case EndCut::kPoint: return {1, 0, 1};
    case EndCut::kNotch: return {0, 1, 0};
    case EndCut::kOneSided: return {0, 1, 2};
    case EndCut::kSquare: break;
  }
  return {0, 0, 0};
}

}  // namespace

std::optional<BeveledEnds> EndsOf(RafterType type) {
  switch (type) {
    case RafterType::kHip: return BeveledEnds{EndCut::kPoint, EndCut::kPoint};
    case RafterType::kValley: return BeveledEnds{EndCut::kPoint, EndCut::kNotch};
    case RafterType::kLongValley: return BeveledEnds{EndCut::kOneSided, EndCut::kNotch};
    case RafterType::kShortValley: return BeveledEnds{EndCut::kSquare, EndCut::kNotch};
    default: return std::nullopt;
  }
}

const char* BevelLabel(EndCut cut) {
  if (cut == EndCut::kSquare) return "";
  return cut == EndCut::kOneSided ? "45\u00BA bevel" : "45\u00BA bevels";
}

/// Only where the drawing is narrower than its canvas, beside which the labels have room.
void RafterElevationDrafter::DrawEndView() {
  const std::optional<BeveledEnds> ends = EndsOf(type_);
  if (!ends || context_.CurrentTab <= 0 || !(ratio_ < 1)) return;
  const double half = board_.DimTextHeight / 2;
  const double top = board_.MetaCanvas.MinY() - 2 * board_.DimTextHeight;
  const EndShape ridge = ShapeOf(ends->Ridge);
  const EndShape tail = ShapeOf(ends->Tail);
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

  board_.DrawFX.SetPenColor(context_.LineColor);
  board_.DrawFX.SetDrawWidth(context_.LineWidth);
  for (int corner = 18; corner < 24; ++corner) board_.Line(corner, corner + 1);
  board_.DrawFX.SetPenColor(context_.DimColor);
  board_.DrawFX.SetDrawWidth(0);
  board_.DrawFX.SetDrawStyle(kDashed);
  board_.Line(25, 26);
  board_.DrawFX.SetDrawStyle(0);

  board_.Text(BevelLabel(ends->Tail), left - half, Y(20), kAlignRightBottom);
  if (ends->Ridge != EndCut::kSquare)
    board_.Text(BevelLabel(ends->Ridge), right + half, Y(20), kAlignLeftBottom);
}

}  // namespace pitchcraft
