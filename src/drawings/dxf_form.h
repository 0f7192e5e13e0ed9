// What all drawings need to become a DXF file: the points of the last drawing in real size, dimensions, title
// and text block.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drawing/drafting_board.h"
#include "output/dxf_writer.h"

namespace pitchcraft {

/// Reads the points that a drawing has left on its board. Everything it writes is in real size: drawing units
/// divided by the board's scale.
///
/// The file's lettering has a size of its own. So distances that go with the lettering (how far off a
/// dimension line is, a label from its point) are scaled from the letter height on screen to that of the
/// file, while everything measured stays where it is.
class DxfForm {
 public:
  DxfForm(DxfWriter& writer, const DraftingBoard& board);

  /// An edge between two points of the array; an edge of no length is left out.
  void Line(int from, int to);
  /// The same on the layer of centre lines, in the colour of the dimensions.
  void CenterLine(int from, int to);
  void Line(PointRecord from, PointRecord to);
  void CenterLine(PointRecord from, PointRecord to);
  /// An edge that is hidden under something else.
  void HiddenLine(PointRecord from, PointRecord to);
  /// From a text to the thing it labels, on the layer of the dimensions.
  void Leader(PointRecord from, PointRecord to);
  /// The drawing's dimensions, each measured between its own points.
  void Dimensions();
  /// In real size. `align` is "L", "C" or "R", `rotation` whole degrees; `height` is TextHeight unless given.
  void Label(const std::string& text, PointRecord at, const char* align, std::optional<double> height = {},
             int rotation = 0);
  /// Twice as high as the texts, centred above everything written.
  void Title(const std::string& text);
  /// To the right of everything written, with the first row at the level of `first`.
  void Block(const std::vector<std::string>& rows, int first);

  PointRecord Real(int point) const;
  /// Turns a distance that goes with the lettering on screen, in drawing units, into the file's.
  double Grown(double distance) const { return distance / board_.DrawScale * growth_; }
  double TextHeight() const { return textHeight_; }
  double Bottom() const { return bottom_; }
  /// The lowest point written so far, with the file's own lettering.
  double LowestWritten() const { return written_.IsEmpty() ? 0 : written_.Min.Y; }

 private:
  void Cover(PointRecord point);
  void Write(PointRecord from, PointRecord to, const char* layer);
  void Aligned(const DrawnDimension& dimension);
  void Horizontal(const DrawnDimension& dimension);
  void Vertical(const DrawnDimension& dimension);

  DxfWriter& writer_;
  const DraftingBoard& board_;
  double textHeight_;
  double growth_ = 1;
  double right_, top_, bottom_;
  DxfExtents written_;
};

}  // namespace pitchcraft
