// Writes drawings as DXF files, for CAD programs. The writer knows lines, texts and dimensions, but no roofs:
// an export adds them one by one and saves the file at the end.
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

/// One DXF file. Coordinates, distances and heights are in real size, in the file's unit, +Y up. Colours are
/// CAD colour numbers, 1 to 255; 256 is the colour of the layer. A line, text or dimension with an infinity
/// or a not-a-number in it raises Overflow and is left out; the rest of the file is unchanged.
class DxfWriter {
 public:
  /// Writes the whole file named by FileName. Raises "Path not found" (76) if its folder is missing,
  /// "Path/File access error" (75) if it cannot be written, Overflow for a size or a listed dimension that is
  /// infinite or undefined. In each case an old file stays as it was.
  void Save() const;
  /// What Save writes: ASCII, with CR LF at the end of each line.
  std::string Bytes() const;

  /// Takes the dimensions that a drawing has recorded, to be written as plain lines and texts: with `flag`
  /// always; without it only if no dimension operation was called, so that no dimension appears twice. A text
  /// without an alignment letter is left aligned.
  void SetDimensionPoints(std::vector<DimensionValue> points, bool flag);
  /// Starts over at the first tier.
  void DimFirstTier() { tier_ = 0; }
  /// Moves on to the next tier, one DimIncrement further out.
  void DimNextTier() { ++tier_; }
  /// How far the current tier is from the object: DimOffset, plus one DimIncrement for each tier after the
  /// first.
  double DimTierDistance() const { return DimOffset + tier_ * DimIncrement; }

  /// `layer` "CENTER" is for centre lines, "HIDDEN" for edges hidden under something. Any other name makes a
  /// layer of that name; without a name the line goes on layer 0.
  void Line(Single x1, Single y1, Single x2, Single y2, std::optional<std::string_view> layer = {});
  /// A text on its base line, by TextAlign, TextHeight high unless `height` is given; `rotation` is in whole
  /// degrees, counter-clockwise. A text that is empty or has no height above 0 is not written.
  void Text(const std::string& text, Single x, Single y, std::optional<Single> height = {},
            std::optional<int> rotation = {});
  // Dimensions between the first two points. If the dimension line is requested right on both of them and the
  // text has no place of its own, the line is moved off the object by DimTierDistance, away from the middle
  // of the drawing.
  /// The third point is on the dimension line.
  void DimAligned(Single x1, Single y1, Single x2, Single y2, Single x3, Single y3);
  /// The dimension line is at x = `xLine`. `textX` and `textY` are the middle of the text, by default its
  /// usual place.
  void DimVertical(Single x1, Single y1, Single x2, Single y2, Single xLine, std::optional<Single> textX = {},
                   std::optional<Single> textY = {});
  /// The dimension line is at y = `yLine`.
  void DimHorizontal(Single x1, Single y1, Single x2, Single y2, Single yLine,
                     std::optional<Single> textX = {}, std::optional<Single> textY = {});

  std::string FileName;
  DxfUnits Units = DxfUnits::kInch;
  /// Writes the measured length of a dimension; without it, a plain number with up to four decimals.
  std::function<std::string(double)> LengthText;
  /// Text of the next dimension, where it is known; it is used up. A measure that lies on the edge of two
  /// sixteenths reads as it does in the figure then.
  std::string DimText;

  // All dimensions of a file look alike: these values apply when it is saved. A negative one counts as 0.
  Single DimOffset = 2;     ///< from the object to the first tier
  Single DimIncrement = 2;  ///< from tier to tier
  Single DimExtension =
      2;  ///< how far extension lines pass the dimension line; they start half as far from the object
  Single DimArrowSize = 2;   ///< length of an arrowhead; 0 for none
  Single DimTextHeight = 2;  ///< 0 leaves out the texts of dimensions
  int DimColor = 7;          ///< of dimensions and of the layer CENTER
  // These apply to what is added after they are set.
  Single TextHeight = 2;
  std::string TextAlign = "L";  ///< "L", "C" or "R"; anything else is "L"
  int Color = kDxfByLayer;      ///< of lines and texts; an invalid number means the colour of the layer

 private:
  void Add(DxfDimension dimension, std::optional<Single> textX = {}, std::optional<Single> textY = {});
  void AddListed(DxfDrawing& drawing, const DxfDimensionStyle& style) const;

  DxfDrawing drawing_;
  std::vector<DimensionValue> listed_;
  bool listAlways_ = false;
  int tier_ = 0;
};

}  // namespace pitchcraft
