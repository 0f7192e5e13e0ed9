// What the DXF forms of all drawings share: from the points of the last drawing to real size, the dimensions,
// title and text block.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drawing/drafting_board.h"
#include "output/dxf_writer.h"

namespace pitchcraft {

/// Walks the points that a drawing has left on its board. All that it writes is in real size: drawing units
/// divided by the board's scale.
///
/// The lettering of the file has a size of its own. What belongs to it (how far a dimension line stands off,
/// a label beside its point) is therefore brought from the screen's letter height to the file's, while what
/// is measured stays where it is.
class DxfForm {
 public:
  DxfForm(DxfWriter& writer, const DraftingBoard& board);

  /// An edge between two points of the array; one without length is left out.
  void Line(int from, int to);
  /// The same on the layer of centre lines, in the colour of the dimensions.
  void CenterLine(int from, int to);
  void Line(PointRecord from, PointRecord to);
  void CenterLine(PointRecord from, PointRecord to);
  /// The edge of what lies under something else.
  void HiddenLine(PointRecord from, PointRecord to);
  /// From a text to what it tells about, among the dimensions.
  void Leader(PointRecord from, PointRecord to);
  /// The drawing's dimensions, each measured between its points.
  void Dimensions();
  /// In real size. `align` is "L", "C" or "R", `rotation` whole degrees; without a height in TextHeight.
  void Label(const std::string& text, PointRecord at, const char* align, std::optional<double> height = {},
             int rotation = 0);
  /// Twice as high as the texts, centred over all that was written.
  void Title(const std::string& text);
  /// Right of all that was written, the first row at the level of `first`.
  void Block(const std::vector<std::string>& rows, int first);

  PointRecord Real(int point) const;
  /// A distance of the screen's lettering, in drawing units, as one of the file's.
  double Grown(double distance) const { return distance / board_.DrawScale * growth_; }
  double TextHeight() const { return textHeight_; }
  double Bottom() const { return bottom_; }
  /// The lowest of what is written so far, in the file's own lettering.
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
