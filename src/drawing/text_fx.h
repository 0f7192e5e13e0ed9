// The lettering of a drawing: text at any angle, aligned about its anchor, in drawing units.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/single.h"
#include "drawing/recording.h"

namespace pitchcraft {

class CMetaFile;

/// Writes on its canvas and reports the box that each text covers. Text is UTF-8.
class CTextFX {
 public:
  using Bounds = std::function<void(double left, double top, double right, double bottom)>;
  Bounds BoundsChanged;

  void SetCanvas(CMetaFile* canvas);
  CMetaFile* Canvas() const { return canvas_; }
  void Destroy() { canvas_ = nullptr; }
  int TypeofDC() const;

  Single Angle;  ///< degrees, counter-clockwise
  std::string FontName = "Arial";
  std::int32_t FontHeight = 0;  ///< of the cell, drawing units
  bool FontBold = false;
  bool FontItalic = false;
  bool FontUnderline = false;
  bool FontStrikethru = false;
  double Fontsize = 10;  ///< kept only; the drawings set FontHeight
  DrawColor TextColor = 0;
  DrawColor GrowColor = 0;  ///< of the effect figures that grow
  int Appearance = 0;       ///< 1 writes a shadow first
  DrawColor ShadowColor = 0;
  Single ShadowOffsetX = 1;
  Single ShadowOffsetY = -1;

  int TextAlign() const { return textAlign_; }
  void SetTextAlign(int align);

  /// In drawing units, with the present font.
  double TextWidth(std::string_view text) const;
  double TextHeight(std::string_view text) const;

  /// A missing x or y is the canvas's current position. Without a canvas nothing happens.
  void TextLine(std::string_view text, std::optional<Single> x = {}, std::optional<Single> y = {});

 private:
  void UseFont() const;
  void ReportBox(std::string_view text, double x, double y) const;

  CMetaFile* canvas_ = nullptr;
  int textAlign_ = 0;
};

}  // namespace pitchcraft
