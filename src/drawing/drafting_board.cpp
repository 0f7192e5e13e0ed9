#include "drawing/drafting_board.h"

#include <cmath>
#include <utility>

#include "core/angles.h"
#include "core/run_time_error.h"
#include "drawing/clear_space.h"
#include "drawing/text_align.h"

namespace pitchcraft {
namespace {

constexpr double kGapTwips = 120;
constexpr double kArrowTwips = 160;
constexpr double kTextTwips = 240;  // 12 points

constexpr double kHalfTurn = 3.14159265359;
constexpr double kQuarterTurn = 1.570796326795;
constexpr double kWholeTurn = 6.28318530718;
// Just above a whole turn, so that rounding does not wrap an angle of exactly one turn.
constexpr double kWholeTurnLimit = 6.283185482025;

double TurnedBy(int mode, double angle) {
  switch (mode) {
    case 1: return angle - kHalfTurn;
    case 2: return angle + kQuarterTurn;
    case 3: return angle - kQuarterTurn;
    default: return angle;
  }
}

const char* LetterOf(AlignSide side) {
  if (side == AlignSide::kCenter) return "C";
  return side == AlignSide::kRight ? "R" : "L";
}

/// Only these nine combinations of flags have a letter; any other code is written without one.
bool IsKnownAlign(int align) {
  switch (align) {
    case kAlignLeftTop:
    case kAlignRightTop:
    case kAlignCenterTop:
    case kAlignLeftBottom:
    case kAlignRightBottom:
    case kAlignCenterBottom:
    case kAlignLeftBase:
    case kAlignRightBase:
    case kAlignCenterBase: return true;
    default: return false;
  }
}

}  // namespace

PointRecord& PointArray::operator()(int index) {
  if (index < 0 || index >= kCount) throw RunTimeError::SubscriptOutOfRange();
  return points_[static_cast<std::size_t>(index)];
}

const PointRecord& PointArray::operator()(int index) const {
  if (index < 0 || index >= kCount) throw RunTimeError::SubscriptOutOfRange();
  return points_[static_cast<std::size_t>(index)];
}

DraftingBoard::DraftingBoard(const TextMeter& meter, std::function<std::string(double)> lengthText)
    : Recorder(meter), LengthText(std::move(lengthText)) {
  Recorder.Attach(Strokes, Letters);
}

void DraftingBoard::BeginDrawing(DrawColor backColor, DrawColor lineColor) {
  Recorder.BackColor = backColor;
  Recorder.Clear();
  Pts.Clear();
  DimensionPoints.clear();
  Dimensions.clear();
  Strokes.EntryMode = 0;
  Strokes.SetDrawStyle(0);
  Strokes.SetDrawWidth(0);
  Strokes.SetPenColor(lineColor);
  Letters.FontName = "Arial";
  Letters.FontBold = false;
  Letters.FontItalic = false;
  Letters.Angle = 0;
}

void DraftingBoard::EndDrawing() {
  Recorder.Close();
  DrawingWidth = Recorder.MaxX() - Recorder.MinX();
}

void DraftingBoard::AbandonDrawing() {
  Recorder.Clear();
  DimensionPoints.clear();
  Dimensions.clear();
  EndDrawing();
}

Single DraftingBoard::SetMetrics() {
  const PointSize point = Recorder.CalcPointSize();
  PointFactor = point.Size;
  DimGap = PointFactor * kGapTwips;
  DimArrow = PointFactor * kArrowTwips;
  DimLeg = DimArrow;
  DimTextHeight = PointFactor * kTextTwips;
  return point.Ratio;
}

void DraftingBoard::Text(const std::string& text, double x, double y, int align) {
  Letters.SetTextAlign(align);
  Letters.TextLine(text, Single(x), Single(y));
}

bool DraftingBoard::IsClear(const std::string& text, double x, double y, int align, double margin) {
  const TextOp op{{ToLong(x), ToLong(y)},
                  text,
                  Letters.FontHeight,
                  Letters.Angle,
                  align,
                  0,
                  Letters.FontName,
                  Letters.FontBold,
                  Letters.FontItalic};
  return pitchcraft::IsClear(Recorder.Operations(), Recorder.Meter(), op, margin);
}

double DraftingBoard::WidthOf(const std::string& text, double height) {
  Letters.FontHeight = ToLong(height);
  return Letters.TextWidth(text);
}

PointRecord DraftingBoard::AngleDistance(double angle, double distance) {
  return {distance * std::cos(angle), distance * std::sin(angle)};
}

void DraftingBoard::DimensionStroke(PointRecord from, PointRecord to) {
  Strokes.DrawLine(from.X, from.Y, to.X, to.Y);
  for (const Single value : {from.X, from.Y, to.X, to.Y})
    DimensionPoints.emplace_back(Single(value / DrawScale));
}

void DraftingBoard::DimText(const std::string& text, Single height, Single angle, int mode, int align) {
  Single turned = TurnedBy(mode, angle);
  if (turned > kWholeTurnLimit) turned -= kWholeTurn;
  if (!text.empty()) {
    const Single kept = Letters.Angle;
    Letters.SetTextAlign(align);
    Letters.FontHeight = ToLong(height);
    Letters.Angle = turned * kDegreesPerRadian * TextFlip;
    Letters.TextLine(text, Pts(10).X, Pts(10).Y);
    Letters.Angle = kept;
  }
  DimensionPoints.emplace_back(Single(Pts(10).X / DrawScale));
  DimensionPoints.emplace_back(Single(Pts(10).Y / DrawScale));
  DimensionPoints.emplace_back(text);
  DimensionPoints.emplace_back(turned);
  if (IsKnownAlign(align)) DimensionPoints.emplace_back(std::string(LetterOf(SideOf(align))));
}

}  // namespace pitchcraft
