#include "drawing/text_trace.h"

#include "core/number_text.h"

namespace pitchcraft {

void TextTrace::Add(CanvasPoint point) { lines_ += " " + ExactText(point.X) + "," + ExactText(point.Y); }

void TextTrace::Add(const char* name, double value) {
  lines_ += std::string(" ") + name + " " + ExactText(value);
}

void TextTrace::EndWithPen() {
  Add("color", pen_.Color);
  Add("style", pen_.Style);
  Add("width", pen_.Width);
  lines_ += "\n";
}

void TextTrace::doLine(CanvasPoint from, CanvasPoint to) {
  Begin("line");
  Add(from);
  Add(to);
  EndWithPen();
}

void TextTrace::doText(const CanvasText& text) {
  Begin("text");
  Add(text.At);
  lines_ += " [" + std::string(text.Text) + "]";
  Add("height", text.Height);
  // A hundredth of a degree is finer than the eye can see, and the same on every machine.
  Add("angle", RoundTo(text.Angle, 2));
  Add("align", text.Align);
  Add("color", text.Color);
  lines_ += " " + std::string(text.Font) + (text.Bold ? " bold" : "") + (text.Italic ? " italic" : "") + "\n";
}

void TextTrace::doFill(std::span<const CanvasPoint> points, const DrawnBrush& brush) {
  Begin("fill");
  for (const CanvasPoint& point : points) Add(point);
  Add("color", brush.Color);
  Add("style", brush.Style);
  lines_ += "\n";
}

void TextTrace::doEllipse(CanvasPoint from, CanvasPoint to, const DrawnBrush& brush) {
  Begin("ellipse");
  Add(from);
  Add(to);
  Add("fill", brush.Color);
  Add("style", brush.Style);
  EndWithPen();
}

void TextTrace::doArc(CanvasPoint from, CanvasPoint to, CanvasPoint start, CanvasPoint end) {
  Begin("arc");
  Add(from);
  Add(to);
  Add(start);
  Add(end);
  EndWithPen();
}

void TextTrace::doRectangle(CanvasPoint from, CanvasPoint to, CanvasPoint corner, const DrawnBrush& brush) {
  Begin("rectangle");
  Add(from);
  Add(to);
  Add("corner", corner.X);
  Add("fill", brush.Color);
  Add("style", brush.Style);
  EndWithPen();
}

}  // namespace pitchcraft
