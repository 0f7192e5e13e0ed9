#include "platform/svg_canvas.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "core/angles.h"
#include "drawing/colors.h"

namespace pitchcraft {
namespace {

constexpr double kPixelsPerTwip = 1.0 / 15;
constexpr double kHairline = 1;
constexpr double kHatch = 6;

/// A hundredth of a pixel is finer than any screen or printer can show.
std::string Number(double value) {
  if (!std::isfinite(value)) return "0";
  const double rounded = std::round(std::clamp(value, -1e9, 1e9) * 100) / 100;
  char text[32];
  const auto result = std::to_chars(text, text + sizeof text, rounded == 0 ? 0 : rounded);
  return {text, result.ptr};
}

std::string Attribute(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + value + "\"";
}

std::string Pair(CanvasPoint point) { return Number(point.X) + " " + Number(point.Y); }

std::string ColorText(DrawColor color) {
  constexpr const char* kDigits = "0123456789abcdef";
  const Rgb rgb = RgbOf(static_cast<std::uint32_t>(color));
  std::string text = "#";
  for (const int part : {rgb.Red, rgb.Green, rgb.Blue}) {
    text += kDigits[part / 16];
    text += kDigits[part % 16];
  }
  return text;
}

/// Leaves out characters that XML does not allow.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char sign : text) {
    switch (sign) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '>': escaped += "&gt;"; break;
      case '"': escaped += "&quot;"; break;
      default:
        if (static_cast<unsigned char>(sign) >= 0x20) escaped += sign;
    }
  }
  return escaped;
}

std::string PathElement(const std::string& data, const std::string& attributes) {
  return "<path" + Attribute("d", data) + attributes + "/>\n";
}

}  // namespace

SvgCanvas::SvgCanvas(CanvasSize size, const TextMeter& meter) : Canvas(size, meter, kPixelsPerTwip) {}

std::string SvgCanvas::Document(DrawColor background, const std::string& title) const {
  const std::string width = Number(std::fabs(Size().ScaleWidth) * kPixelsPerTwip);
  const std::string height = Number(std::fabs(Size().ScaleHeight) * kPixelsPerTwip);
  std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\"";
  text += Attribute("width", width) + Attribute("height", height);
  text += Attribute("viewBox", "0 0 " + width + " " + height);
  text +=
      " font-family=\"Arial, 'Liberation Sans', Helvetica, sans-serif\" font-kerning=\"none\" fill=\"none\"";
  text += " stroke-linecap=\"round\">\n<title>" + Escaped(title) + "</title>\n";
  if (!patterns_.empty()) text += "<defs>\n" + patterns_ + "</defs>\n";
  text += "<rect width=\"100%\" height=\"100%\"" + Attribute("fill", ColorText(background)) + "/>\n";
  text += body_;
  if (!strokes_.empty()) text += PathElement(strokes_, pen_);
  return text + "</svg>\n";
}

// Successive lines with the same pen form one path.
void SvgCanvas::EndStrokes() {
  if (!strokes_.empty()) body_ += PathElement(strokes_, pen_);
  strokes_.clear();
}

void SvgCanvas::doPen(const CanvasPen& pen) {
  EndStrokes();
  pen_ = Attribute("stroke", ColorText(pen.Color));
  if (pen.Width > kHairline) pen_ += Attribute("stroke-width", Number(pen.Width));
  if (pen.Dashes.empty()) return;
  std::string dashes;
  for (const double length : pen.Dashes) dashes += (dashes.empty() ? "" : " ") + Number(length);
  pen_ += Attribute("stroke-dasharray", dashes) + Attribute("stroke-linecap", "butt");
}

void SvgCanvas::doLine(CanvasPoint from, CanvasPoint to) {
  const bool goesOn = !strokes_.empty() && from.X == last_.X && from.Y == last_.Y;
  strokes_ += goesOn ? " " + Pair(to) : "M" + Pair(from) + " " + Pair(to);
  last_ = to;
}

// States the length, so that a viewer with another face keeps the text in its place.
void SvgCanvas::doText(const CanvasText& text) {
  if (text.Text.empty()) return;
  EndStrokes();
  body_ += "<text" + Attribute("x", Number(text.Origin.X)) + Attribute("y", Number(text.Origin.Y));
  if (text.Angle != 0) {
    body_ += Attribute("transform", "rotate(" + Number(-text.Angle) + " " + Pair(text.Origin) + ")");
  }
  if (text.Font != "Arial") body_ += Attribute("font-family", Escaped(text.Font));
  if (text.Bold) body_ += Attribute("font-weight", "bold");
  if (text.Italic) body_ += Attribute("font-style", "italic");
  body_ += Attribute("font-size", Number(text.Height * kEmPerCell)) +
           Attribute("textLength", Number(text.Width)) + Attribute("fill", ColorText(text.Color)) + ">" +
           Escaped(text.Text) + "</text>\n";
}

std::string SvgCanvas::FillOf(const DrawnBrush& brush) {
  constexpr int kOpen = 1;
  constexpr int kHatched = 2;
  if (brush.Style == kOpen) return {};
  if (brush.Style != kHatched) return Attribute("fill", ColorText(brush.Color));
  const std::string name = "h" + std::to_string(++patternCount_);
  const std::string side = Number(kHatch);
  patterns_ += "<pattern" + Attribute("id", name) + Attribute("width", side) + Attribute("height", side) +
               " patternUnits=\"userSpaceOnUse\">" + "<path" +
               Attribute("d", "M-1 -1 7 7M-1 5 1 7M5 -1 7 1") + Attribute("stroke", ColorText(brush.Color)) +
               "/></pattern>\n";
  return Attribute("fill", "url(#" + name + ")");
}

void SvgCanvas::doFill(std::span<const CanvasPoint> points, const DrawnBrush& brush) {
  EndStrokes();
  std::string data;
  for (const CanvasPoint& point : points) data += (data.empty() ? "M" : " ") + Pair(point);
  body_ += PathElement(data + "Z", FillOf(brush));
}

void SvgCanvas::doEllipse(CanvasPoint from, CanvasPoint to, const DrawnBrush& brush) {
  EndStrokes();
  body_ += "<ellipse" + Attribute("cx", Number((from.X + to.X) / 2)) +
           Attribute("cy", Number((from.Y + to.Y) / 2)) + Attribute("rx", Number((to.X - from.X) / 2)) +
           Attribute("ry", Number((to.Y - from.Y) / 2)) + pen_ + FillOf(brush) + "/>\n";
}

void SvgCanvas::doArc(CanvasPoint from, CanvasPoint to, CanvasPoint start, CanvasPoint end) {
  EndStrokes();
  const CanvasPoint middle{(from.X + to.X) / 2, (from.Y + to.Y) / 2};
  const CanvasPoint radius{(to.X - from.X) / 2, (to.Y - from.Y) / 2};
  const auto angleOf = [&](CanvasPoint point) {
    return std::atan2((middle.Y - point.Y) / radius.Y, (point.X - middle.X) / radius.X);
  };
  const auto pointAt = [&](double angle) {
    return CanvasPoint{middle.X + radius.X * std::cos(angle), middle.Y - radius.Y * std::sin(angle)};
  };
  const double first = angleOf(start);
  double sweep = angleOf(end) - first;
  if (sweep <= 0) sweep += 360 * kRadiansPerDegree;
  // In two halves, because an arc that ends where it starts is not drawn.
  const std::string half = "A" + Pair(radius) + " 0 0 0 ";
  body_ += PathElement("M" + Pair(pointAt(first)) + half + Pair(pointAt(first + sweep / 2)) + half +
                           Pair(pointAt(first + sweep)),
                       pen_);
}

void SvgCanvas::doRectangle(CanvasPoint from, CanvasPoint to, CanvasPoint corner, const DrawnBrush& brush) {
  EndStrokes();
  body_ += "<rect" + Attribute("x", Number(from.X)) + Attribute("y", Number(from.Y)) +
           Attribute("width", Number(to.X - from.X)) + Attribute("height", Number(to.Y - from.Y));
  if (corner.X != 0) body_ += Attribute("rx", Number(corner.X / 2)) + Attribute("ry", Number(corner.Y / 2));
  body_ += pen_ + FillOf(brush) + "/>\n";
}

}  // namespace pitchcraft
