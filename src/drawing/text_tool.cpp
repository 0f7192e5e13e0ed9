#include "drawing/text_tool.h"

#include <cmath>

#include "core/angles.h"
#include "core/run_time_error.h"
#include "drawing/drawing_recorder.h"
#include "drawing/text_align.h"

namespace pitchcraft {

void TextTool::SetCanvas(DrawingRecorder* canvas) {
  if (canvas == nullptr) throw RunTimeError(91, "Object variable or With block variable not set");
  canvas_ = canvas;
}

int TextTool::CanvasKind() const { return canvas_ != nullptr ? canvas_->CanvasKind() : 0; }

void TextTool::SetTextAlign(int align) {
  textAlign_ = align;
  if (canvas_ != nullptr) canvas_->TextAlign = align;
}

void TextTool::UseFont() const {
  canvas_->FontName = FontName;
  canvas_->FontHeight = FontHeight;
  canvas_->FontBold = FontBold;
  canvas_->FontItalic = FontItalic;
  canvas_->FontUnderline = FontUnderline;
  canvas_->FontStrikethru = FontStrikethru;
  canvas_->TextAngle = Angle;
  canvas_->TextAlign = textAlign_;
}

double TextTool::TextWidth(std::string_view text) const {
  if (canvas_ == nullptr) return 0;
  UseFont();
  return canvas_->TextWidth(text);
}

double TextTool::TextHeight(std::string_view text) const {
  if (canvas_ == nullptr) return 0;
  UseFont();
  return canvas_->TextHeight(text);
}

void TextTool::TextLine(std::string_view text, std::optional<Single> x, std::optional<Single> y) {
  if (canvas_ == nullptr) return;
  const double atX = x ? double{*x} : canvas_->CurrentX();
  const double atY = y ? double{*y} : canvas_->CurrentY();
  UseFont();
  if (Appearance == 1) {
    canvas_->TextColor = ShadowColor;
    canvas_->TextOut({ToLong(atX + ShadowOffsetX), ToLong(atY + ShadowOffsetY)}, text);
  }
  canvas_->TextColor = TextColor;
  canvas_->TextOut({ToLong(atX), ToLong(atY)}, text);
  ReportBox(text, atX, atY);
}

/// The text's box, placed by the flags and turned about the anchor. Above the base line it counts as a whole
/// cell high, so that the next text keeps clear of it.
void TextTool::ReportBox(std::string_view text, double x, double y) const {
  if (!BoundsChanged) return;
  const double width = canvas_->TextWidth(text);
  const double height = canvas_->TextHeight(text);
  const double left = -width * ShareLeftOf(SideOf(textAlign_));
  const double top = LevelOf(textAlign_) == AlignLevel::kTop ? -height : height;
  const double angle = Angle * kRadiansPerDegree;
  for (const double along : {left, left + width}) {
    for (const double across : {0.0, top}) {
      const double cornerX = x + along * std::cos(angle) - across * std::sin(angle);
      const double cornerY = y + along * std::sin(angle) + across * std::cos(angle);
      BoundsChanged(cornerX, cornerY, cornerX, cornerY);
    }
  }
}

}  // namespace pitchcraft
