// Outline, angle labels and title of the side view, and the order of all steps.
#include "drawings/rafter_elevation_drafter.h"

#include "core/run_time_error.h"
#include "drawing/text_align.h"
#include "drawings/drawing_measures.h"
#include "drawings/lettering.h"

namespace pitchcraft {
namespace {

constexpr double kTitleTwips = 360;  // 18 points

}  // namespace

RafterElevationDrafter::RafterElevationDrafter(DraftingBoard& board, const Rafter& rafter,
                                               const DrawingContext& context)
    : board_(board),
      context_(context),
      type_(rafter.RafterType),
      member_(ChooseElevationMember(rafter, context)) {}

void RafterElevationDrafter::Draw() {
  board_.BeginDrawing(context_.BackColor, context_.LineColor);
  geometry_ = LayOutElevation(member_, context_.SquareCut, board_.DrawScale, board_.Pts);
  DrawOutline();
  WidenByMargin();
  ratio_ = board_.SetMetrics();
  ChooseLettering(board_, context_);
  DimensionAlongRafter();
  DimensionTail();
  DimensionOverhang();
  DimensionHeel();
  DimensionHeights();
  DimensionRuns();
  DimensionWholeRise();
  LabelAngles();
  WriteTitle();
  DrawEndView();
  board_.EndDrawing();
}

void RafterElevationDrafter::DrawOutline() {
  board_.Strokes.SetDrawWidth(context_.LineWidth);
  board_.Line(0, 1);
  DrawTail();
  DrawHeelLines();
  for (std::size_t at = 0; at < geometry_.StrokeCount; ++at) {
    const auto [from, to] = geometry_.Strokes[at];
    if (X(from) != X(to) || Y(from) != Y(to)) board_.Line(from, to);
  }
  board_.Strokes.SetDrawWidth(0);
}

/// A hip's square cut is measured from the corner where the roof planes meet. The tail counts up to there
/// towards the extents, unseen; the wood ends a little short of it.
void RafterElevationDrafter::DrawTail() {
  if (member_.Overhang == 0) return;
  const PointRecord& first = geometry_.FirstTail;
  if (first.X != X(2) || first.Y != Y(2)) {
    board_.Strokes.SetPenColor(context_.BackColor);
    board_.Strokes.DrawLine(X(1), Y(1), first.X, first.Y);
    board_.Strokes.SetPenColor(context_.LineColor);
  }
  board_.Line(1, 2);
}

void RafterElevationDrafter::DrawHeelLines() {
  if (member_.Heel == 0) return;
  board_.Strokes.SetPenColor(context_.DimColor);
  board_.Strokes.SetDrawWidth(0);
  board_.Strokes.SetDrawStyle(measures::kDashed);
  board_.Line(1, 5);
  if (geometry_.Kneewall) board_.Line(27, 28);
  board_.Strokes.SetPenColor(context_.LineColor);
  board_.Strokes.SetDrawWidth(context_.LineWidth);
  board_.Strokes.SetDrawStyle(0);
}

void RafterElevationDrafter::WidenByMargin() {
  const double margin = member_.PlumbCut * board_.DrawScale;
  const DrawingRecorder& canvas = board_.Recorder;
  const double left = canvas.MinX() - margin;
  const double bottom = canvas.MinY() - margin;
  const double right = canvas.MaxX() + margin;
  const double top = canvas.MaxY() + margin;
  board_.Strokes.MoveToPoint(left, bottom);
  board_.Strokes.MoveToPoint(right, top);
}

/// The plumb angle is above the extension line that starts at the ridge; the angle of a square tail is beside
/// the end of the tail.
void RafterElevationDrafter::LabelAngles() {
  board_.Letters.FontHeight = ToLong(board_.DimTextHeight);
  board_.Text(AngleText(geometry_.PlumbAngle), X(0) + board_.DimGap, Y(0), kAlignLeftBottom);
  if (!geometry_.SquareCut || member_.SetsFascia()) return;
  board_.Text(AngleText(geometry_.TailAngle), X(2) - board_.DimGap, Y(2), kAlignRightTop);
}

/// In the left upper corner, or above everything if a line or text is there.
void RafterElevationDrafter::WriteTitle() {
  const double height = Twips(kTitleTwips);
  const DrawingRecorder& canvas = board_.Recorder;
  board_.Pts(14).X =
      X(0) + 2 * board_.DimTextHeight + static_cast<double>(member_.SlopeText.size()) * board_.DimTextHeight;
  board_.Letters.FontBold = true;
  board_.Letters.FontHeight = ToLong(height);
  const double left = canvas.MinX();
  double top = canvas.MaxY();
  if (!board_.IsClear(member_.SlopeText, left, top, kAlignLeftTop, board_.DimGap)) top += height;
  board_.Text(member_.SlopeText, left, top, kAlignLeftTop);
  board_.Letters.FontBold = false;
  board_.Letters.FontHeight = ToLong(board_.DimTextHeight);
  board_.Pts(9) = board_.Pts(10);
}

double RafterElevationDrafter::AngleLabelEnd() {
  return X(0) + board_.DimGap + board_.WidthOf(AngleText(geometry_.PlumbAngle), board_.DimTextHeight);
}

}  // namespace pitchcraft
