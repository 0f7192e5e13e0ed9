// Outline, slopes and dimensions of plan and layout, and the order of all steps.
#include "drawings/hip_plan_drafter.h"

#include <algorithm>

#include "core/run_time_error.h"
#include "drawing/text_align.h"
#include "drawings/drawing_measures.h"
#include "drawings/hip_notes.h"
#include "drawings/lettering.h"

namespace pitchcraft {

using namespace measures;

namespace {

// The points of the outline.
constexpr int kLeftCorner = 0;
constexpr int kRightCorner = 1;
constexpr int kPeak = 2;
constexpr int kRidgeEnd = 3;
constexpr int kLeftEaveEnd = 4;
constexpr int kRightEaveEnd = 5;
constexpr int kEndCommonFoot = 15;
constexpr int kMainCommonFoot = 17;

constexpr double kSlopeText = 1.25 * kTextHeight;
constexpr double kSmallestSlopeText = kSlopeText / 8;
constexpr double kShrink = 0.75;

}  // namespace

HipPlanDrafter::HipPlanDrafter(DraftingBoard& board, const Rafter& rafter, const DrawingContext& context)
    : board_(board), rafter_(rafter), context_(context) {}

void HipPlanDrafter::DrawPlan() {
  const HipOutline outline = OutlineOfHip(rafter_, context_.HipLayout);
  board_.BeginDrawing(context_.BackColor, context_.LineColor);
  DrawOutline(outline);
  if (outline.LastCommon) DrawLastCommon(outline);
  board_.SetMetrics();
  ChooseLettering(board_, context_);
  if (outline.LastCommon) {
    board_.Text("Last Common", -board_.DimTextHeight, Y(kMainCommonFoot) - board_.DimTextHeight / 4,
                kAlignRightBase);
  }
  LabelSlopes(kAlignCenterBottom, X(kPeak));
  DimensionOutline();
  board_.EndDrawing();
}

void HipPlanDrafter::DrawLayout() {
  const HipLayout layout = LayOutHip(rafter_, context_.HipLayout);
  board_.BeginDrawing(context_.BackColor, context_.LineColor);
  DrawOutline(layout.Outline);
  DrawRafters(layout);
  board_.SetMetrics();
  ChooseLettering(board_, context_);
  LabelSlopes(kAlignLeftBottom, X(kPeak) + Twips(kGap));
  DimensionOutline();
  WriteFeet(layout);
  WriteNotes();
  board_.EndDrawing();
}

void HipPlanDrafter::DrawOutline(const HipOutline& outline) {
  PointArray& pts = board_.Pts;
  const double width = Units(2 * outline.MainRun);
  const double top = Units(outline.Top);
  const double wall = Units(outline.Overhang);
  pts(kRightCorner) = {width, 0};
  pts(kPeak) = {width / 2, Units(outline.EndRun)};
  pts(kRidgeEnd) = {width / 2, top};
  pts(kLeftEaveEnd) = {0, top};
  pts(kRightEaveEnd) = {width, top};
  pts(6) = {wall, top};
  pts(7) = {wall, Units(outline.EndOverhang)};
  pts(8) = {width - wall, pts(7).Y};
  pts(9) = {width - wall, top};
  board_.Strokes.SetDrawWidth(context_.LineWidth);
  board_.Line(kLeftCorner, kRightCorner);
  board_.Line(kRightCorner, kPeak);
  board_.Line(kPeak, kLeftCorner);
  board_.Line(kPeak, kRidgeEnd);
  board_.Line(kLeftCorner, kLeftEaveEnd);
  board_.Line(kRightCorner, kRightEaveEnd);
  board_.Strokes.SetDrawWidth(0);
  board_.Strokes.SetDrawStyle(kDashed);
  for (int wallPoint = 6; wallPoint < 9; ++wallPoint) board_.Line(wallPoint, wallPoint + 1);
  board_.Strokes.SetDrawStyle(0);
}

void HipPlanDrafter::DrawLastCommon(const HipOutline& outline) {
  const double y = Units(outline.LastCommonPlace());
  board_.Pts(kMainCommonFoot) = {0, y};
  board_.Pts(kMainCommonFoot + 1) = {X(kPeak), y};
  board_.Strokes.SetDrawWidth(context_.LineWidth);
  board_.Line(kMainCommonFoot, kMainCommonFoot + 1);
  board_.Strokes.SetDrawWidth(0);
}

/// Only the left half shows rafters: the right half is free for lettering.
void HipPlanDrafter::DrawRafters(const HipLayout& layout) {
  board_.Strokes.SetPenColor(context_.DimColor);
  for (const LaidRafter& rafter : layout.Rafters) {
    const double place = Units(rafter.Place);
    const double length = Units(rafter.PlanLength);
    const bool end = rafter.Face == HipRoofFace::kEnd;
    const PointRecord foot = end ? PointRecord{place, 0} : PointRecord{0, place};
    const PointRecord top = end ? PointRecord{place, length} : PointRecord{length, place};
    board_.Strokes.DrawLine(foot.X, foot.Y, top.X, top.Y);
    const int point = end ? kEndCommonFoot : kMainCommonFoot;
    if (rafter.IsJack() || X(point + 1) != 0) continue;  // the first common of a face
    board_.Pts(point) = foot;
    board_.Pts(point + 1) = top;
  }
}

/// The main slope is to the right of the ridge, above the dimension's extension line that runs out from the
/// peak; the slope of the end is above the end's eave.
void HipPlanDrafter::LabelSlopes(int endAlign, double endX) {
  const double base = Y(kPeak) + Twips(kGap);
  const double middle = (X(kPeak) + X(9)) / 2;
  WriteWhereClear(MainSlopeText(rafter_, context_.RiseOverRun),
                  {{X(kRightCorner) * 0.75, base}, {middle, base}}, kAlignCenterBase);
  slopeLabelTop_ = base + Twips(kSlopeText * kCapitalPerCell);
  const double wall = Y(7) + Twips(kClear);
  WriteWhereClear(EndSlopeText(rafter_, context_.RiseOverRun),
                  {{endX, Y(kPeak) / 4}, {endX, wall}, {endX, Y(kPeak) / 2}}, endAlign);
  board_.Letters.FontHeight = ToLong(board_.DimTextHeight);
}

/// Stays between the eaves even above the drawing, where the dimension's extension lines will run up.
void HipPlanDrafter::WriteWhereClear(const std::string& text, const std::vector<PointRecord>& places,
                                     int align) {
  const PointRecord* place = nullptr;
  for (double size = kSlopeText; place == nullptr && size > kSmallestSlopeText; size *= kShrink) {
    board_.Letters.FontHeight = ToLong(Twips(size));
    const double width = board_.Letters.TextWidth(text);
    const auto clear = std::find_if(places.begin(), places.end(), [&](const PointRecord& at) {
      const double right = at.X + width * (1 - ShareLeftOf(SideOf(align))) + Twips(kClear);
      return right <= X(kRightCorner) && board_.IsClear(text, at.X, at.Y, align, Twips(kClear));
    });
    if (clear != places.end()) place = &*clear;
  }
  if (place == nullptr) place = &places.back();
  board_.Text(text, place->X, place->Y, align);
}

/// The run of the end goes on the right, the whole width on top. Where the roof is cut off close to the peak,
/// the width keeps clear of the main slope's label.
void HipPlanDrafter::DimensionOutline() {
  board_.Strokes.SetPenColor(context_.DimColor);
  Dimension run = PlainDimension(board_, kVertical, kPeak, kRightCorner, 2 * board_.DimLeg);
  run.TextMode = 1;
  board_.Dimension2(run);
  const double overLabel = slopeLabelTop_ + Twips(kClear) - Y(kLeftEaveEnd) - board_.DimGap;
  Dimension width = PlainDimension(board_, kAligned, kLeftEaveEnd, kRightEaveEnd,
                                   std::max<double>(board_.DimLeg, overLabel));
  width.TextFlag = 1;
  board_.Dimension2(width);
}

}  // namespace pitchcraft
