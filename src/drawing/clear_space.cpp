#include "drawing/clear_space.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/angles.h"
#include "drawing/text_align.h"

namespace pitchcraft {
namespace {

struct Vector {
  double X, Y;
};

/// The letters of a text as a rotated rectangle: from `Left` to `Right` along its base line, from `Low` to
/// `High` across it.
struct LetterBox {
  Vector Anchor, Along;
  double Left, Right, Low, High;

  /// A point of the drawing in the box's own frame.
  Vector Inside(Vector point) const {
    const double dx = point.X - Anchor.X;
    const double dy = point.Y - Anchor.Y;
    return {dx * Along.X + dy * Along.Y, dy * Along.X - dx * Along.Y};
  }
  Vector Corner(double along, double across) const {
    return {Anchor.X + along * Along.X - across * Along.Y, Anchor.Y + along * Along.Y + across * Along.X};
  }
};

LetterBox BoxOf(const TextOp& text, const TextMeter& meter, double margin) {
  const double height = text.Height;
  const double width = meter.TextWidth(text.Text, {text.Font, height, text.Bold, text.Italic});
  const double left = -width * ShareLeftOf(SideOf(text.Align));
  const AlignLevel level = LevelOf(text.Align);
  double base = 0;
  if (level == AlignLevel::kTop) base = -kAscentPerCell * height;
  if (level == AlignLevel::kBottom) base = kDescentPerCell * height;
  const double angle = text.Angle * kRadiansPerDegree;
  return {{static_cast<double>(text.At.X), static_cast<double>(text.At.Y)},
          {std::cos(angle), std::sin(angle)},
          left - margin,
          left + width + margin,
          base - margin,
          base + kCapitalPerCell * height + margin};
}

/// Cuts the part of a segment (from, from + step) between two bounds; false when nothing is left.
bool CutBetween(double from, double step, double low, double high, double& begin, double& end) {
  if (step == 0) return from >= low && from <= high;
  const double first = (low - from) / step;
  const double second = (high - from) / step;
  begin = std::max(begin, std::min(first, second));
  end = std::min(end, std::max(first, second));
  return begin <= end;
}

bool Crosses(const LetterBox& box, const LineOp& line) {
  const Vector from = box.Inside({static_cast<double>(line.From.X), static_cast<double>(line.From.Y)});
  const Vector to = box.Inside({static_cast<double>(line.To.X), static_cast<double>(line.To.Y)});
  double begin = 0;
  double end = 1;
  return CutBetween(from.X, to.X - from.X, box.Left, box.Right, begin, end) &&
         CutBetween(from.Y, to.Y - from.Y, box.Low, box.High, begin, end);
}

/// True when all of `other` lies beyond one side of `box`.
bool Separates(const LetterBox& box, const LetterBox& other) {
  const std::array<Vector, 4> corners = {
      box.Inside(other.Corner(other.Left, other.Low)), box.Inside(other.Corner(other.Left, other.High)),
      box.Inside(other.Corner(other.Right, other.Low)), box.Inside(other.Corner(other.Right, other.High))};
  const auto all = [&corners](auto beyond) { return std::all_of(corners.begin(), corners.end(), beyond); };
  return all([&](Vector c) { return c.X < box.Left; }) || all([&](Vector c) { return c.X > box.Right; }) ||
         all([&](Vector c) { return c.Y < box.Low; }) || all([&](Vector c) { return c.Y > box.High; });
}

}  // namespace

bool IsClear(const Recording& recording, const TextMeter& meter, const TextOp& text, double margin) {
  const LetterBox box = BoxOf(text, meter, margin);
  return std::none_of(recording.begin(), recording.end(), [&](const DrawOp& operation) {
    if (const auto* line = std::get_if<LineOp>(&operation)) return Crosses(box, *line);
    if (const auto* other = std::get_if<TextOp>(&operation)) {
      const LetterBox otherBox = BoxOf(*other, meter, 0);
      return !Separates(box, otherBox) && !Separates(otherBox, box);
    }
    return false;
  });
}

}  // namespace pitchcraft
