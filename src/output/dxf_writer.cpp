#include "output/dxf_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "core/angles.h"
#include "core/run_time_error.h"
#include "output/dimension_list.h"
#include "output/dxf_file.h"
#include "output/save_file.h"

namespace pitchcraft {
namespace {

constexpr int kWhite = 7;
constexpr std::size_t kLongestLayerName = 31;

template <typename... Values>
void RequireFinite(Values... values) {
  if (!(std::isfinite(static_cast<double>(values)) && ...)) throw RunTimeError::Overflow();
}

bool IsColor(int color) { return color >= 1 && color <= 255; }

double AtLeastZero(double length) {
  RequireFinite(length);
  return std::max(length, 0.0);
}

char AlignOf(const std::string& align) { return align == "C" || align == "R" ? align.front() : 'L'; }

/// A name that every reader accepts: capitals, digits, "$", "-" and "_".
std::string LayerName(std::optional<std::string_view> wanted) {
  std::string name;
  for (const char c : wanted.value_or("").substr(0, kLongestLayerName)) {
    const bool isSmall = c >= 'a' && c <= 'z';
    const bool isPlain = (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '$' || c == '-';
    name += isSmall ? static_cast<char>(c - 'a' + 'A') : isPlain ? c : '_';
  }
  return name.empty() ? "0" : name;
}

std::string PlainNumber(double length) {
  constexpr int kDecimals = 4;
  std::array<char, 400> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), length,
                                    std::chars_format::fixed, kDecimals);
  std::string text(digits.data(), result.ptr);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

bool LiesOnLine(const DxfDimension& dimension, DxfPoint point) {
  constexpr double kSinglePrecision = 1e-6;
  const double size = std::max({1.0, Length(point), Length(dimension.OnLine)});
  return std::fabs(Dot(point - dimension.OnLine, LeftOf(DirectionOf(dimension)))) <= kSinglePrecision * size;
}

DxfPoint PointOf(Single x, Single y) { return {x, y}; }

}  // namespace

void DxfWriter::SetDimensionPoints(std::vector<DimensionValue> points, bool flag) {
  listed_ = std::move(points);
  listAlways_ = flag;
}

void DxfWriter::Line(Single x1, Single y1, Single x2, Single y2, std::optional<std::string_view> layer) {
  RequireFinite(x1, y1, x2, y2);
  drawing_.Lines.push_back(
      {PointOf(x1, y1), PointOf(x2, y2), LayerName(layer), IsColor(Color) ? Color : kDxfByLayer});
  drawing_.Extents.Include(drawing_.Lines.back());
}

void DxfWriter::Text(const std::string& text, Single x, Single y, std::optional<Single> height,
                     std::optional<int> rotation) {
  const double used = height.value_or(TextHeight);
  RequireFinite(x, y, used);
  if (text.empty() || used <= 0) return;
  drawing_.Texts.push_back({text, PointOf(x, y), used, static_cast<double>(rotation.value_or(0)),
                            AlignOf(TextAlign), "0", IsColor(Color) ? Color : kDxfByLayer});
  drawing_.Extents.Include(drawing_.Texts.back());
}

void DxfWriter::Add(DxfDimension dimension, std::optional<Single> textX, std::optional<Single> textY) {
  dimension.Text = std::exchange(DimText, {});
  RequireFinite(dimension.P1.X, dimension.P1.Y, dimension.P2.X, dimension.P2.Y, dimension.OnLine.X,
                dimension.OnLine.Y, textX.value_or(0), textY.value_or(0));
  if (textX) dimension.TextX = *textX;
  if (textY) dimension.TextY = *textY;
  const bool hasPlace = textX || textY;
  if (!hasPlace && LiesOnLine(dimension, dimension.P1) && LiesOnLine(dimension, dimension.P2)) {
    RequireFinite(DimTierDistance());
    const DxfPoint out = LeftOf(DirectionOf(dimension));
    const double side = Dot(dimension.P1 - drawing_.Extents.Middle(), out) < 0 ? -1 : 1;
    dimension.OnLine = dimension.OnLine + side * DimTierDistance() * out;
  }
  drawing_.Extents.Include(dimension.P1);
  drawing_.Extents.Include(dimension.P2);
  drawing_.Dimensions.push_back(dimension);
}

void DxfWriter::DimAligned(Single x1, Single y1, Single x2, Single y2, Single x3, Single y3) {
  Add({DxfDimensionKind::kAligned, PointOf(x1, y1), PointOf(x2, y2), PointOf(x3, y3), {}, {}});
}

void DxfWriter::DimVertical(Single x1, Single y1, Single x2, Single y2, Single xLine,
                            std::optional<Single> textX, std::optional<Single> textY) {
  Add({DxfDimensionKind::kVertical, PointOf(x1, y1), PointOf(x2, y2), PointOf(xLine, y1), {}, {}}, textX,
      textY);
}

void DxfWriter::DimHorizontal(Single x1, Single y1, Single x2, Single y2, Single yLine,
                              std::optional<Single> textX, std::optional<Single> textY) {
  Add({DxfDimensionKind::kHorizontal, PointOf(x1, y1), PointOf(x2, y2), PointOf(x1, yLine), {}, {}}, textX,
      textY);
}

std::string DxfWriter::Bytes() const {
  DxfFileStyle style;
  style.Units = Units;
  style.TextHeight = AtLeastZero(TextHeight);
  style.DimIncrement = AtLeastZero(DimIncrement);
  style.Dimensions.Color = IsColor(DimColor) ? DimColor : kWhite;
  style.Dimensions.TextHeight = AtLeastZero(DimTextHeight);
  style.Dimensions.ArrowSize = AtLeastZero(DimArrowSize);
  style.Dimensions.Extension = AtLeastZero(DimExtension);
  style.Dimensions.Start = style.Dimensions.Extension / 2;
  style.Dimensions.TextGap = style.Dimensions.TextHeight / 2;
  style.Dimensions.LengthText = LengthText ? LengthText : PlainNumber;
  if (listed_.empty() || (!listAlways_ && !drawing_.Dimensions.empty())) return DxfFile(drawing_, style);
  DxfDrawing withList = drawing_;
  AddListed(withList, style.Dimensions);
  return DxfFile(withList, style);
}

void DxfWriter::AddListed(DxfDrawing& drawing, const DxfDimensionStyle& style) const {
  const ListedDimensions listed = ReadDimensionList(listed_);
  for (const ListedStroke& stroke : listed.Strokes) {
    RequireFinite(stroke.X1, stroke.Y1, stroke.X2, stroke.Y2);
    drawing.Lines.push_back(
        {PointOf(stroke.X1, stroke.Y1), PointOf(stroke.X2, stroke.Y2), kDxfDimensionLayer, style.Color});
    drawing.Extents.Include(drawing.Lines.back());
  }
  for (const ListedText& text : listed.Texts) {
    RequireFinite(text.X, text.Y, text.Angle);
    if (text.Text.empty() || style.TextHeight <= 0) continue;
    drawing.Texts.push_back({text.Text, PointOf(text.X, text.Y), style.TextHeight,
                             text.Angle * kDegreesPerRadian, text.Align, kDxfDimensionLayer, style.Color});
    drawing.Extents.Include(drawing.Texts.back());
  }
}

void DxfWriter::Save() const { SaveFile(FileName, Bytes()); }

}  // namespace pitchcraft
