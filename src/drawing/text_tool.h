// The lettering of a drawing: text at any angle, aligned about its anchor, in drawing units.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/single.h"
#include "drawing/recording.h"

namespace pitchcraft {

class DrawingRecorder;

/// Writes on its canvas and reports the box that each text covers. Text is UTF-8.
class TextTool {
 public:
  using Bounds = std::function<void(double left, double top, double right, double bottom)>;
  Bounds BoundsChanged;

  void SetCanvas(DrawingRecorder* canvas);
  DrawingRecorder* Canvas() const { return canvas_; }
  void Destroy() { canvas_ = nullptr; }
  int CanvasKind() const;

  Single Angle;  ///< degrees, counter-clockwise
  std::string FontName = "Arial";
  std::int32_t FontHeight = 0;  ///< of the cell, drawing units
  bool FontBold = false;
  bool FontItalic = false;
  bool FontUnderline = false;
  bool FontStrikethru = false;
  double Fontsize = 10;  ///< only stored; the drawings set FontHeight
  DrawColor TextColor = 0;
  DrawColor GrowColor = 0;  ///< of the effects that grow
  int Appearance = 0;       ///< 1 draws a shadow first
  DrawColor ShadowColor = 0;
  Single ShadowOffsetX = 1;
  Single ShadowOffsetY = -1;

  int TextAlign() const { return textAlign_; }
  void SetTextAlign(int align);

  /// In drawing units, in the current font.
  double TextWidth(std::string_view text) const;
  double TextHeight(std::string_view text) const;

  /// A missing x or y means the canvas's current position. Without a canvas nothing happens.
  void TextLine(std::string_view text, std::optional<Single> x = {}, std::optional<Single> y = {});

  // Effects: each character is a text of its own, placed separately.
  /// Down from (x, y), one cell below another.
  void TextVertical(std::string_view text, Single x, Single y);
  /// Clockwise and evenly around a whole circle, feet inward, the first at `startAngle` degrees.
  void TextCircle(std::string_view text, Single x, Single y, Single radius, double startAngle = 90);
  /// Evenly from one angle to the other, feet inward.
  void TextArc(std::string_view text, Single x, Single y, Single radius, double startAngle, double endAngle);
  /// A line at Angle, in GrowColor, growing from FontHeight to `endHeight`.
  void GrowTextLine(std::string_view text, Single x, Single y, double endHeight);
  void GrowTextVertical(std::string_view text, Single x, Single y, double endHeight);
  void GrowTextArc(std::string_view text, Single x, Single y, Single radius, double startAngle,
                   double endAngle, double endHeight);
  /// Clockwise from the top in GrowColor, over `turns` whole turns, while the radius changes from one to the
  /// other.
  void SpiralText(std::string_view text, Single x, Single y, Single startRadius, Single endRadius,
                  double turns);

 private:
  class EffectScope;
  void GrowTextVerticalIn(DrawColor color, std::string_view text, double x, double y, double endHeight);
  void OnCircle(std::string_view character, double x, double y, double radius, double angle);
  void UseFont() const;
  void ReportBox(std::string_view text, double x, double y) const;

  DrawingRecorder* canvas_ = nullptr;
  int textAlign_ = 0;
};

}  // namespace pitchcraft
