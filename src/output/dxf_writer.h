// Drawings as DXF files, for CAD programs. The writer knows lines, texts and dimensions and nothing of roofs:
// whoever exports a drawing tells it figure by figure and saves it at the end.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/single.h"
#include "drawing/dimension_value.h"
#include "output/dxf_dimension.h"
#include "output/dxf_figures.h"

namespace pitchcraft {

/// One DXF file. Coordinates, distances and heights are of real size, in the unit that the file names, +Y up.
/// Colours are CAD colour numbers, 1 to 255; 256 is the colour of the layer. A figure with an infinity or a
/// not-a-number in it raises Overflow and is left out, and the file stays as it was without it.
class DxfWriter {
 public:
  /// Writes the file named by FileName as a whole. Raises "Path not found" (76) where its folder is missing,
  /// "Path/File access error" (75) where it cannot be written, Overflow for a size or a listed dimension that
  /// is infinite or undefined. An old file is untouched then.
  void Save() const;
  /// What Save writes: ASCII, lines end with CR LF.
  std::string Bytes() const;

  /// Takes the dimensions that a drawing has recorded. They are written as plain lines and texts: with `flag`
  /// always, without it only if no dimension operation was called, so that no dimension stands twice. A text
  /// without an alignment letter is left aligned.
  void SetDimensionPoints(std::vector<DimensionValue> points, bool flag);
  /// Sets the running tier to the first.
  void DimFirstTier() { tier_ = 0; }
  /// Goes on to the next tier, which lies one DimIncrement further out.
  void DimNextTier() { ++tier_; }
  /// How far the running tier lies from the object: DimOffset and one DimIncrement for each further tier.
  double DimTierDistance() const { return DimOffset + tier_ * DimIncrement; }

  /// `layer` "CENTER" is for centre lines, "HIDDEN" for what lies under something. Another name makes a layer
  /// of that name; none is layer 0.
  void Line(Single x1, Single y1, Single x2, Single y2, std::optional<std::string_view> layer = {});
  /// A text on its base line, in TextHeight and TextAlign unless `height` is given; `rotation` is whole
  /// degrees, counter-clockwise. A text that is empty or not higher than 0 is not written.
  void Text(const std::string& text, Single x, Single y, std::optional<Single> height = {},
            std::optional<int> rotation = {});
  // Dimensions between the first two points. A dimension line that is asked for right on both of them, with
  // no place for its text, is moved off the object by DimTierDistance, away from the middle of what is drawn.
  /// The third point lies on the dimension line.
  void DimAligned(Single x1, Single y1, Single x2, Single y2, Single x3, Single y3);
  /// Its line stands at x = `xLine`. `textX` and `textY` are the middle of the text; a missing one is the
  /// usual.
  void DimVertical(Single x1, Single y1, Single x2, Single y2, Single xLine, std::optional<Single> textX = {},
                   std::optional<Single> textY = {});
  /// Its line lies at y = `yLine`.
  void DimHorizontal(Single x1, Single y1, Single x2, Single y2, Single yLine,
                     std::optional<Single> textX = {}, std::optional<Single> textY = {});

  std::string FileName;
  DxfUnits Units = DxfUnits::kInch;
  /// Renders the measured length of a dimension; without one it is a plain number of up to four decimals.
  std::function<std::string(double)> LengthText;

  // Dimensions look alike in the whole file: these count when it is saved. Below 0 is 0.
  Single DimOffset = 2;      ///< from the object to the first tier
  Single DimIncrement = 2;   ///< from tier to tier
  Single DimExtension = 2;   ///< by which extension lines pass the dimension line; they start half as far off
  Single DimArrowSize = 2;   ///< length of an arrowhead; 0 for none
  Single DimTextHeight = 2;  ///< 0 leaves the texts of dimensions out
  int DimColor = 7;          ///< of dimensions and of the layer CENTER
  // These are for the figures that follow.
  Single TextHeight = 2;
  std::string TextAlign = "L";  ///< "L", "C" or "R"; anything else is "L"
  int Color = kDxfByLayer;      ///< of lines and texts; what is no colour number is that of the layer

 private:
  void Add(DxfDimension dimension, std::optional<Single> textX = {}, std::optional<Single> textY = {});
  void AddListed(DxfDrawing& drawing, const DxfDimensionStyle& style) const;

  DxfDrawing drawing_;
  std::vector<DimensionValue> listed_;
  bool listAlways_ = false;
  int tier_ = 0;
};

}  // namespace pitchcraft
