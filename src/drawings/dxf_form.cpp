#include "drawings/dxf_form.h"

#include <algorithm>
#include <cmath>

#include "drawing/text_meter.h"

namespace pitchcraft {
namespace {

constexpr int kAligned = 1;
constexpr int kHorizontal = 2;
constexpr double kLetterWidth = 0.85;  // of a stroke font, in letter heights

/// Where a dimension line goes when its distance from the nearer of its points grows.
double GrownLine(double line, double a, double b, double growth) {
  const double base = std::clamp(line, std::min(a, b), std::max(a, b));
  return base + (line - base) * growth;
}

}  // namespace

DxfForm::DxfForm(DxfWriter& writer, const DraftingBoard& board)
    : writer_(writer),
      board_(board),
      textHeight_(writer.TextHeight),
      right_(board.Recorder.MaxX() / board.DrawScale),
      top_(board.Recorder.MaxY() / board.DrawScale),
      bottom_(board.Recorder.MinY() / board.DrawScale) {
  const double capital = board.DimTextHeight * kCapitalPerCell / board.DrawScale;
  if (capital > 0 && textHeight_ > 0) growth_ = textHeight_ / capital;
}

PointRecord DxfForm::Real(int point) const {
  const PointRecord& drawn = board_.Pts(point);
  return {drawn.X / board_.DrawScale, drawn.Y / board_.DrawScale};
}

void DxfForm::Cover(PointRecord point) {
  right_ = std::max<double>(right_, point.X);
  top_ = std::max<double>(top_, point.Y);
  bottom_ = std::min<double>(bottom_, point.Y);
  written_.Include(DxfPoint{point.X, point.Y});
}

void DxfForm::Line(PointRecord from, PointRecord to) {
  if (from.X == to.X && from.Y == to.Y) return;
  Write(from, to, kDxfPlainLayer);
}

void DxfForm::CenterLine(PointRecord from, PointRecord to) {
  if (from.X == to.X && from.Y == to.Y) return;
  const int kept = writer_.Color;
  writer_.Color = writer_.DimColor;
  Write(from, to, kDxfCenterLayer);
  writer_.Color = kept;
}

void DxfForm::HiddenLine(PointRecord from, PointRecord to) {
  if (from.X == to.X && from.Y == to.Y) return;
  Write(from, to, kDxfHiddenLayer);
}

void DxfForm::Leader(PointRecord from, PointRecord to) { Write(from, to, kDxfDimensionLayer); }

void DxfForm::Write(PointRecord from, PointRecord to, const char* layer) {
  writer_.Line(from.X, from.Y, to.X, to.Y, layer);
  Cover(from);
  Cover(to);
}

void DxfForm::Line(int from, int to) { Line(Real(from), Real(to)); }
void DxfForm::CenterLine(int from, int to) { CenterLine(Real(from), Real(to)); }

void DxfForm::Dimensions() {
  writer_.DimFirstTier();
  for (const DrawnDimension& dimension : board_.Dimensions) {
    writer_.DimText = dimension.Text;
    switch (dimension.Kind) {
      case kAligned: Aligned(dimension); break;
      case kHorizontal: Horizontal(dimension); break;
      default: Vertical(dimension); break;
    }
    writer_.DimNextTier();
  }
}

void DxfForm::Aligned(const DrawnDimension& dimension) {
  const auto& [kind, p1, p2, end1, end2, text, outside, shown] = dimension;
  if (p1.X == p2.X && p1.Y == p2.Y) return;
  const double scale = board_.DrawScale;
  const PointRecord third{(p1.X + (end1.X - p1.X) * growth_) / scale,
                          (p1.Y + (end1.Y - p1.Y) * growth_) / scale};
  writer_.DimAligned(p1.X / scale, p1.Y / scale, p2.X / scale, p2.Y / scale, third.X, third.Y);
  Cover(third);
  Cover({third.X + (p2.X - p1.X) / scale, third.Y + (p2.Y - p1.Y) / scale});
}

// A text with a place of its own keeps that place along the measured direction; across it, its distance grows
// with the lettering. The file places a text by its middle.
void DxfForm::Horizontal(const DrawnDimension& dimension) {
  const auto& [kind, p1, p2, end1, end2, text, outside, shown] = dimension;
  if (p1.X == p2.X) return;
  const double scale = board_.DrawScale;
  const double line = GrownLine(end1.Y, p1.Y, p2.Y, growth_) / scale;
  std::optional<Single> textX;
  std::optional<Single> textY;
  if (text) {
    textX = text->X / scale;
    textY = line + Grown(text->Y - end1.Y) + textHeight_ / 2;
  }
  writer_.DimHorizontal(p1.X / scale, p1.Y / scale, p2.X / scale, p2.Y / scale, line, textX, textY);
  Cover({p1.X / scale, line - 2 * textHeight_});
  Cover({p2.X / scale, line + 2 * textHeight_});
}

void DxfForm::Vertical(const DrawnDimension& dimension) {
  const auto& [kind, p1, p2, end1, end2, text, outside, shown] = dimension;
  if (p1.Y == p2.Y) return;
  const double scale = board_.DrawScale;
  const double line = GrownLine(end1.X, p1.X, p2.X, growth_) / scale;
  std::optional<Single> textX;
  std::optional<Single> textY;
  if (text && outside) {
    // In the file a text runs along its line: beside a short line it would cross the wood; below there is
    // room.
    const double length = static_cast<double>(shown.size()) * textHeight_ * kLetterWidth;
    textX = line + 1.5 * textHeight_;
    textY = std::min<double>(p1.Y, p2.Y) / scale - textHeight_ - length / 2;
  } else if (text) {
    textX = line + Grown(text->X - end1.X);
    textY = text->Y / scale + textHeight_ / 2;
  }
  writer_.DimVertical(p1.X / scale, p1.Y / scale, p2.X / scale, p2.Y / scale, line, textX, textY);
  const double reach = textX ? std::max(0.0, 2 * (*textX - line)) : 0;
  Cover({line + std::max(reach, 2 * textHeight_), p1.Y / scale});
}

void DxfForm::Label(const std::string& text, PointRecord at, const char* align, std::optional<double> height,
                    int rotation) {
  const double high = height.value_or(textHeight_);
  writer_.TextAlign = align;
  writer_.Text(text, at.X, at.Y, Single(high), rotation);
  writer_.TextAlign = "L";
  const double width = static_cast<double>(text.size()) * high * kLetterWidth;
  const double left = -width * (*align == 'C' ? 0.5 : *align == 'R' ? 1 : 0);
  const DxfPoint along = DirectionAt(rotation);
  for (const double x : {left, left + width}) {
    for (const double y : {0.0, high}) {
      const DxfPoint corner = DxfPoint{at.X, at.Y} + x * along + y * LeftOf(along);
      Cover({corner.X, corner.Y});
    }
  }
}

void DxfForm::Title(const std::string& text) {
  const DrawingRecorder& canvas = board_.Recorder;
  const double middle = (canvas.MinX() + canvas.MaxX()) / 2 / board_.DrawScale;
  const double y = top_ + 2 * textHeight_;
  writer_.Text(text, middle - static_cast<double>(text.size()) * textHeight_ / 2, y, 2 * textHeight_);
}

void DxfForm::Block(const std::vector<std::string>& rows, int first) {
  const double x = right_ + 3 * textHeight_;
  double y = Real(first).Y;
  for (const std::string& row : rows) {
    writer_.Text(row, x, y);
    y -= 3 * textHeight_;
  }
}

}  // namespace pitchcraft
