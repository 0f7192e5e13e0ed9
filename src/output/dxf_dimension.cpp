#include "output/dxf_dimension.h"

#include <algorithm>
#include <cmath>

#include "core/angles.h"

namespace pitchcraft {
namespace {

// A dimension shorter than this many arrowheads has no room for them between its ends.
constexpr double kRoomForArrows = 2.5;
constexpr double kTailArrows = 2;
constexpr double kHalfWidthOfArrow = 1.0 / 6;

double ReadingAngle(DxfPoint along) {
  constexpr double kAHair = 1e-4;  // a line that leans by less counts as upright
  const double angle = std::atan2(along.Y, along.X) * kDegreesPerRadian;
  if (angle > 90 + kAHair) return angle - 180;
  return angle <= -90 + kAHair ? angle + 180 : angle;
}

class Drafter {
 public:
  Drafter(const DxfDimension& dimension, const DxfDimensionStyle& style)
      : dim_(dimension),
        style_(style),
        along_(DirectionOf(dimension)),
        end1_(FootOf(dimension.P1)),
        end2_(FootOf(dimension.P2)),
        span_(Length(end2_ - end1_)),
        outside_(style.ArrowSize > 0 && span_ < kRoomForArrows * style.ArrowSize) {}

  DxfDimensionLook Draw() {
    look_.Color = style_.Color;
    look_.LineEnd = end2_;
    DrawExtensionLine(dim_.P1, end1_);
    DrawExtensionLine(dim_.P2, end2_);
    const DxfPoint tail = outside_ ? kTailArrows * style_.ArrowSize * along_ : DxfPoint{};
    DrawLine(end1_ - tail, end2_ + tail);
    if (style_.ArrowSize > 0) {
      const double inward = outside_ ? -1 : 1;
      DrawArrow(end1_, inward * along_);
      DrawArrow(end2_, -inward * along_);
    }
    PlaceText();
    return std::move(look_);
  }

 private:
  DxfPoint FootOf(DxfPoint point) const { return dim_.OnLine + Dot(point - dim_.OnLine, along_) * along_; }
  void DrawLine(DxfPoint from, DxfPoint to) { look_.Lines.push_back({from, to, "0", style_.Color}); }
  void DrawExtensionLine(DxfPoint point, DxfPoint foot);
  void DrawArrow(DxfPoint tip, DxfPoint back);
  void PlaceText();

  const DxfDimension& dim_;
  const DxfDimensionStyle& style_;
  DxfPoint along_;
  DxfPoint end1_, end2_;  // of the dimension line
  double span_;
  bool outside_;  // the arrowheads
  DxfDimensionLook look_;
};

void Drafter::DrawExtensionLine(DxfPoint point, DxfPoint foot) {
  const double distance = Length(foot - point);
  if (distance <= style_.Start || distance == 0) return;
  const DxfPoint out = (1 / distance) * (foot - point);
  DrawLine(point + style_.Start * out, foot + style_.Extension * out);
}

void Drafter::DrawArrow(DxfPoint tip, DxfPoint back) {
  const DxfPoint middle = tip + style_.ArrowSize * back;
  const DxfPoint half = kHalfWidthOfArrow * style_.ArrowSize * LeftOf(back);
  look_.Arrows.push_back({tip, middle + half, middle - half});
}

/// The text is above its line and reads from below or from the right. A text longer than its line goes beside
/// it.
void Drafter::PlaceText() {
  look_.Angle = ReadingAngle(along_);
  const DxfPoint reading = DirectionAt(look_.Angle);
  const std::string text = style_.TextHeight <= 0 ? std::string()
                           : dim_.Text.empty()    ? style_.LengthText(MeasureOf(dim_))
                                                  : dim_.Text;
  const double width = DxfTextWidth(text, style_.TextHeight);
  const DxfPoint up = LeftOf(reading);
  DxfPoint middle = 0.5 * (end1_ + end2_) + (style_.TextGap + style_.TextHeight / 2) * up;
  if (width > span_) {
    middle = middle + (span_ / 2 + style_.TextGap + width / 2) * reading;
    look_.TextMoved = true;
  }
  if (dim_.TextX || dim_.TextY) {
    middle = {dim_.TextX.value_or(middle.X), dim_.TextY.value_or(middle.Y)};
    look_.TextMoved = true;
  }
  look_.TextMiddle = middle;
  if (text.empty()) return;
  look_.Text = DxfText{
      text, middle - style_.TextHeight / 2 * up, style_.TextHeight, look_.Angle, 'C', "0", style_.Color};
}

}  // namespace

DxfPoint DirectionOf(const DxfDimension& dimension) {
  const DxfPoint way = dimension.P2 - dimension.P1;
  switch (dimension.Kind) {
    case DxfDimensionKind::kHorizontal: return {way.X < 0 ? -1.0 : 1.0, 0};
    case DxfDimensionKind::kVertical: return {0, way.Y < 0 ? -1.0 : 1.0};
    case DxfDimensionKind::kAligned: break;
  }
  const double length = Length(way);
  return length == 0 ? DxfPoint{1, 0} : (1 / length) * way;
}

double MeasureOf(const DxfDimension& dimension) {
  return std::fabs(Dot(dimension.P2 - dimension.P1, DirectionOf(dimension)));
}

DxfDimensionLook LookOf(const DxfDimension& dimension, const DxfDimensionStyle& style) {
  return Drafter(dimension, style).Draw();
}

}  // namespace pitchcraft
