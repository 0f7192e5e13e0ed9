// One dimension line: extension lines, line, arrowheads and text, in that order.
#include <cmath>
#include <tuple>
#include <utility>

#include "core/angles.h"
#include "drawing/drafting_board.h"
#include "drawing/text_align.h"

namespace pitchcraft {
namespace {

// The quarter turns as a Single holds them.
constexpr double kUp = 1.570796370506;
constexpr double kLeft = 3.141592741013;
constexpr double kDown = 4.71238899231;
constexpr double kArrowHalf = 0.436332312999;      // 25 degrees
constexpr double kArrowBackHalf = 3.577924966588;  // 205 degrees
// A dimension shorter than this many text heights has no room for arrows between its ends.
constexpr double kRoomForArrows = 2.5;

constexpr int kAligned = 1;
constexpr int kHorizontal = 2;
constexpr int kVertical = 3;

struct Direction {
  Single Radians;
  Single Degrees;
  /// The line runs from right to left, but its text must read from left to right: the direction then points
  /// from P2 to P1.
  bool Reversed = false;
};

PointRecord operator+(PointRecord a, PointRecord b) { return {a.X + b.X, a.Y + b.Y}; }

/// The cosine of a quarter turn held as a Single is not quite 0. Where the ends of a level line fall half-way
/// between two units, the remainder would tip it by one. So less than a millionth counts as 0.
PointRecord Offset(double angle, double distance) {
  constexpr double kNothing = 1e-6;
  PointRecord offset = DraftingBoard::AngleDistance(angle, distance);
  if (std::fabs(offset.X) < kNothing * std::fabs(distance)) offset.X = 0;
  if (std::fabs(offset.Y) < kNothing * std::fabs(distance)) offset.Y = 0;
  return offset;
}

Direction Horizontal(double x1, double x2) { return x1 > x2 ? Direction{kLeft, 180} : Direction{0, 0}; }

Direction Vertical(double y1, double y2) {
  if (y1 == y2) return {0, 0};
  return y1 < y2 ? Direction{kUp, 90} : Direction{kDown, 270};
}

Direction Aligned(PointRecord p1, PointRecord p2) {
  if (p1.X == p2.X) return Vertical(p1.Y, p2.Y);
  if (p1.Y == p2.Y) return Horizontal(p1.X, p2.X);
  const Single angle = std::atan((p1.Y - p2.Y) / (p1.X - p2.X));
  return {angle, angle * kDegreesPerRadian, p1.X > p2.X};
}

Direction DirectionOf(int kind, PointRecord p1, PointRecord p2) {
  if (kind == kHorizontal) return Horizontal(p1.X, p2.X);
  if (kind == kVertical) return Vertical(p1.Y, p2.Y);
  return Aligned(p1, p2);
}

double LengthOf(int kind, PointRecord p1, PointRecord p2) {
  const double dx = p2.X - p1.X;
  const double dy = p2.Y - p1.Y;
  if (kind == kHorizontal) return std::fabs(dx);
  if (kind == kVertical) return std::fabs(dy);
  return std::sqrt(dy * dy + dx * dx);
}

/// The two legs that bring both extension lines of a horizontal or vertical dimension to the same level.
std::pair<Single, Single> EvenLegs(const Direction& direction, PointRecord p1, PointRecord p2, Single leg) {
  // How much further P1 or P2 lies from the dimension line, along the extension lines.
  double ahead = 0;
  if (direction.Degrees == 0) ahead = p1.Y - p2.Y;
  if (direction.Degrees == 180) ahead = p2.Y - p1.Y;
  if (direction.Degrees == 90) ahead = p2.X - p1.X;
  if (direction.Degrees == 270) ahead = p1.X - p2.X;
  if (ahead > 0) return {leg, ahead + leg};
  return {-ahead + leg, leg};
}

class DimensionDrafter {
 public:
  DimensionDrafter(DraftingBoard& board, const Dimension& dimension)
      : board_(board),
        dim_(dimension),
        p1_(board.Pts(dimension.P1)),
        p2_(board.Pts(dimension.P2)),
        length_(LengthOf(dimension.Kind, p1_, p2_)),
        direction_(DirectionOf(dimension.Kind, p1_, p2_)) {
    text_ = dim_.Text ? *dim_.Text : board.LengthText(length_ / board.DrawScale);
    outside_ = dim_.ArrowsOutside == 1 || dim_.TextHeight * kRoomForArrows >= length_;
  }

  void Draw() {
    LayOut();
    DrawExtensionLines();
    MarkHighWater();
    DrawDimensionLine();
    DrawArrowheads();
    PlaceText();
    board_.Dimensions.push_back(
        {dim_.Kind, p1_, p2_, end1_, end2_, dim_.TextAt, dim_.ArrowsOutside == 1, text_});
    board_.DimText(text_, dim_.TextHeight, direction_.Radians, dim_.TextMode, kAlignCenterBase);
  }

 private:
  void LayOut();
  void DrawExtensionLines();
  void MarkHighWater();
  void DrawDimensionLine();
  void DrawArrowheads();
  void PlaceText();
  void PlaceAlignedText(PointRecord& anchor) const;
  void PlaceHorizontalText(PointRecord& anchor);
  void PlaceVerticalText(PointRecord& anchor);

  DraftingBoard& board_;
  const Dimension& dim_;
  PointRecord p1_, p2_;
  Single length_;
  Direction direction_;
  std::string text_;
  bool outside_ = false;
  Single across_;    // from the points towards the dimension line, radians
  Single forward_;   // from the P1 end to the P2 end, radians
  PointRecord gap_;  // offset of the gap
  PointRecord leg1_, leg2_;
  PointRecord end1_, end2_;  // the ends of the dimension line
};

void DimensionDrafter::LayOut() {
  across_ = direction_.Radians + 90 * kRadiansPerDegree;
  forward_ = direction_.Reversed ? direction_.Radians + kLeft : double{direction_.Radians};
  gap_ = Offset(across_, dim_.Gap);
  Single leg1 = dim_.Leg;
  Single leg2 = dim_.Leg;
  if (dim_.Kind == kHorizontal || dim_.Kind == kVertical) {
    std::tie(leg1, leg2) = EvenLegs(direction_, p1_, p2_, dim_.Leg);
  }
  leg1_ = Offset(across_, leg1);
  leg2_ = Offset(across_, leg2);
  end1_ = p1_ + gap_ + leg1_;
  end2_ = p2_ + gap_ + leg2_;
}

void DimensionDrafter::DrawExtensionLines() {
  const PointRecord past = Offset(across_, dim_.Arrow);
  board_.DimensionStroke(p1_ + gap_, p1_ + gap_ + leg1_ + past);
  board_.DimensionStroke(p2_ + gap_, p2_ + gap_ + leg2_ + past);
}

/// Stores how far the drawing reaches by now, so that the next dimension or text can be stacked clear of it.
void DimensionDrafter::MarkHighWater() {
  const DrawingRecorder& canvas = board_.Recorder;
  if (dim_.Kind == kAligned) board_.Pts(12).Y = canvas.MaxY();
  if (dim_.Kind == kHorizontal) board_.Pts(11).Y = canvas.MaxY();
  if (dim_.Kind == kVertical) board_.Pts(12).X = canvas.MaxX();
}

void DimensionDrafter::DrawDimensionLine() {
  if (!outside_) {
    board_.Pts(33) = end1_;
    board_.DimensionStroke(end1_, end2_);
    return;
  }
  const PointRecord tail = Offset(forward_, 2 * dim_.Arrow);
  board_.DimensionStroke(end1_, {end1_.X - tail.X, end1_.Y - tail.Y});
  board_.DimensionStroke(end2_, end2_ + tail);
}

/// Every stroke starts at the tip. The heads point outward when they are between the ends, inward when they
/// are outside.
void DimensionDrafter::DrawArrowheads() {
  const double atFirst = outside_ ? kArrowBackHalf : kArrowHalf;
  const double atSecond = outside_ ? kArrowHalf : kArrowBackHalf;
  for (const double half : {atFirst, -atFirst}) {
    board_.DimensionStroke(end1_, end1_ + Offset(forward_ + half, dim_.Arrow));
  }
  for (const double half : {atSecond, -atSecond}) {
    board_.DimensionStroke(end2_, end2_ + Offset(forward_ + half, dim_.Arrow));
  }
}

void DimensionDrafter::PlaceText() {
  PointRecord& anchor = board_.Pts(10);
  if (dim_.TextAt) {
    anchor = *dim_.TextAt;
    return;
  }
  anchor = {(end1_.X + end2_.X) / 2, (end1_.Y + end2_.Y) / 2};
  if (dim_.Kind == kAligned) PlaceAlignedText(anchor);
  if (dim_.Kind == kHorizontal) PlaceHorizontalText(anchor);
  if (dim_.Kind == kVertical) PlaceVerticalText(anchor);
}

void DimensionDrafter::PlaceAlignedText(PointRecord& anchor) const {
  anchor = anchor + gap_;
  if (p1_.X > p2_.X) anchor = anchor + gap_;
}

void DimensionDrafter::PlaceHorizontalText(PointRecord& anchor) {
  if (direction_.Degrees == 0) return;
  if (dim_.TextMode == 1 && dim_.TextFlag == 1) {
    anchor.Y = anchor.Y + gap_.Y * 1.25 - dim_.TextHeight;
    board_.Pts(11).Y = anchor.Y;
    return;
  }
  anchor = {anchor.X - gap_.X, anchor.Y - gap_.Y};
}

void DimensionDrafter::PlaceVerticalText(PointRecord& anchor) {
  if (dim_.TextMode <= 1) {
    const double side = direction_.Degrees == 90 ? 1 : -1;
    anchor = {anchor.X + side * gap_.X, anchor.Y + side * gap_.Y};
  }
  if (dim_.TextMode != 0) anchor.Y -= dim_.TextHeight / 2;
  if (outside_ && dim_.TextMode >= 2 && dim_.TextHeight * 1.5 > length_) {
    anchor.Y = anchor.Y - dim_.Arrow - 2 * dim_.Gap - dim_.Arrow;
  }
  // A text longer than its line goes beside it, past the ends of the extension lines.
  if (dim_.TextMode == 1 && length_ < 2 * dim_.Arrow + board_.WidthOf(text_, dim_.TextHeight)) {
    const double aside = dim_.TextHeight + dim_.Gap * 2.5;
    anchor.X += aside;
    board_.Pts(12).X += aside;
    board_.Pts(14).X = anchor.X;
  }
}

}  // namespace

void DraftingBoard::Dimension2(const Dimension& dimension) { DimensionDrafter(*this, dimension).Draw(); }

void DraftingBoard::Dimension2(int kind, int p1, int p2, Single gap, Single arrow, Single leg,
                               Single textHeight, int arrowsOutside, int textMode, int textFlag,
                               std::optional<std::string> text) {
  Dimension2(Dimension{
      kind, p1, p2, gap, arrow, leg, textHeight, arrowsOutside, textMode, textFlag, std::move(text), {}});
}

std::string DraftingBoard::DimensionText(int kind, int p1, int p2) const {
  return LengthText(LengthOf(kind, Pts(p1), Pts(p2)) / DrawScale);
}

}  // namespace pitchcraft
