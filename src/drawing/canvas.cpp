#include "drawing/canvas.h"

#include <algorithm>
#include <cmath>

#include "core/angles.h"
#include "drawing/text_align.h"

namespace pitchcraft {
namespace {

// Lengths of dash and gap in twips. The drawings use style 2 for hidden and centre lines: its dashes are
// short, and the gaps still show in the smallest picture.
constexpr double kLongDash[2] = {180, 90};
constexpr double kShortDash[2] = {75, 45};

struct Box {
  CanvasPoint From, To;
};

Box Ordered(CanvasPoint a, CanvasPoint b) {
  return {{std::min(a.X, b.X), std::min(a.Y, b.Y)}, {std::max(a.X, b.X), std::max(a.Y, b.Y)}};
}

/// How far the base line lies below the anchor, in cells.
double DropToBase(AlignLevel level) {
  if (level == AlignLevel::kTop) return kAscentPerCell;
  return level == AlignLevel::kBottom ? -kDescentPerCell : 0;
}

}  // namespace

Canvas::Canvas(CanvasSize size, const TextMeter& meter, double unitsPerTwip)
    : size_(size), meter_(meter), unitsPerTwip_(unitsPerTwip) {}

CanvasPoint Canvas::Mapped(DrawnPoint point) const {
  return {map_.OffsetX + point.X * map_.ScaleX, map_.OffsetY + point.Y * map_.ScaleY};
}

void Canvas::UsePen(const DrawnPen& pen) {
  if (penKnown_ && pen == pen_) return;
  pen_ = pen;
  penKnown_ = true;
  CanvasPen mapped{pen.Color, pen.Width * std::fabs(map_.ScaleX), {}, pen.Style};
  if (pen.Style == 1 || pen.Style == 2) {
    const auto& twips = pen.Style == 1 ? kLongDash : kShortDash;
    std::transform(std::begin(twips), std::end(twips), std::begin(dashes_),
                   [this](double length) { return length * unitsPerTwip_; });
    mapped.Dashes = dashes_;
  }
  doPen(mapped);
}

void Canvas::Play(std::span<const DrawOp> recording) {
  penKnown_ = false;
  for (const DrawOp& operation : recording) {
    std::visit([this](const auto& figure) { Play(figure); }, operation);
  }
}

void Canvas::Play(const LineOp& line) {
  UsePen(line.Pen);
  doLine(Mapped(line.From), Mapped(line.To));
}

void Canvas::Play(const TextOp& text) {
  CanvasText set;
  set.Text = text.Text;
  set.Height = text.Height * std::fabs(map_.ScaleX);
  set.Width = meter_.TextWidth(text.Text, {text.Font, set.Height, text.Bold, text.Italic});
  set.Angle = text.Angle;
  set.Color = text.Color;
  set.Font = text.Font;
  set.Bold = text.Bold;
  set.Italic = text.Italic;
  set.At = Mapped(text.At);
  set.Align = text.Align;
  const double angle = text.Angle * kRadiansPerDegree;
  const double back = set.Width * ShareLeftOf(SideOf(text.Align));
  const double down = set.Height * DropToBase(LevelOf(text.Align));
  const double side = map_.ScaleY > 0 ? 1 : -1;  // where y grows downward, the text's "up" is towards -y
  set.Origin = {set.At.X - back * std::cos(angle) + down * std::sin(angle),
                set.At.Y - side * (back * std::sin(angle) + down * std::cos(angle))};
  doText(set);
}

void Canvas::Play(const FillOp& fill) {
  polygon_.clear();
  for (const DrawnPoint& point : fill.Points) polygon_.push_back(Mapped(point));
  doFill(polygon_, fill.Brush);
}

void Canvas::Play(const EllipseOp& ellipse) {
  UsePen(ellipse.Pen);
  const Box box = Ordered(Mapped(ellipse.From), Mapped(ellipse.To));
  doEllipse(box.From, box.To, ellipse.Brush);
}

void Canvas::Play(const ArcOp& arc) {
  UsePen(arc.Pen);
  const Box box = Ordered(Mapped(arc.From), Mapped(arc.To));
  doArc(box.From, box.To, Mapped(arc.Start), Mapped(arc.End));
}

void Canvas::Play(const RectangleOp& rectangle) {
  UsePen(rectangle.Pen);
  const Box box = Ordered(Mapped(rectangle.From), Mapped(rectangle.To));
  doRectangle(box.From, box.To,
              {rectangle.Corner * std::fabs(map_.ScaleX), rectangle.Corner * std::fabs(map_.ScaleY)},
              rectangle.Brush);
}

}  // namespace pitchcraft
