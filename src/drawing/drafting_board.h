// The drafting board: the recording, the two drawing tools, the points, and the dimension lines.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/single.h"
#include "drawing/dimension_value.h"
#include "drawing/drawing_recorder.h"
#include "drawing/stroke_tool.h"
#include "drawing/text_tool.h"

namespace pitchcraft {

/// A point in drawing units.
struct PointRecord {
  Single X;
  Single Y;
};

/// The named points of a drawing. An index outside the array raises "Subscript out of range".
class PointArray {
 public:
  static constexpr int kCount = 64;
  PointRecord& operator()(int index);
  const PointRecord& operator()(int index) const;
  void Clear() { points_ = {}; }

 private:
  std::array<PointRecord, kCount> points_;
};

/// One dimension between two points. Distances are in drawing units.
struct Dimension {
  int Kind = 1;  ///< 1 aligned with the points, 2 horizontal, 3 vertical
  int P1 = 0;
  int P2 = 0;
  Single Gap;    ///< from the point to the start of its extension line
  Single Arrow;  ///< of an arrowhead's stroke, and how far an extension line passes the dimension line
  Single Leg;    ///< from the start of the shorter extension line to the dimension line
  Single TextHeight;
  int ArrowsOutside = 0;
  int TextMode = 0;  ///< 0 along the line, 1 half a turn, 2 a quarter turn on, 3 a quarter turn back
  int TextFlag = 0;  ///< 1 sets the text of a horizontal dimension below the ends of its extension lines
  std::optional<std::string> Text;    ///< instead of the measured length
  std::optional<PointRecord> TextAt;  ///< centre of the text's base line, instead of the usual place
};

/// A dimension as it was drawn, so that it can be repeated at another scale. Drawing units.
struct DrawnDimension {
  int Kind = 1;
  PointRecord P1, P2;
  PointRecord End1, End2;             ///< of the dimension line
  std::optional<PointRecord> TextAt;  ///< centre of the text's base line, if given
  bool ArrowsOutside = false;         ///< as requested
  std::string Text;
};

class DraftingBoard {
 public:
  /// `lengthText` writes a length in the document's unit.
  DraftingBoard(const TextMeter& meter, std::function<std::string(double)> lengthText);
  DraftingBoard(const DraftingBoard&) = delete;
  DraftingBoard& operator=(const DraftingBoard&) = delete;
  ~DraftingBoard() { Recorder.Destroy(); }

  DrawingRecorder Recorder;
  StrokeTool Strokes;
  TextTool Letters;
  PointArray Pts;
  std::vector<DimensionValue> DimensionPoints;
  std::vector<DrawnDimension> Dimensions;  ///< in drawing order
  std::function<std::string(double)> LengthText;

  Single PointFactor;     ///< drawing units per twip at the extents of the outline
  Single DimGap;          ///< 120 twips
  Single DimArrow;        ///< 160 twips
  Single DimLeg;          ///< the step between stacked dimension lines: the same as DimArrow
  Single DimTextHeight;   ///< 240 twips
  int TextFlip = 1;       ///< -1 turns dimension texts the other way, for printers that turn fonts that way
  Single DrawScale = 10;  ///< drawing units per unit of length: 10 imperial, 1 metric
  Single DrawingWidth;    ///< of the last finished drawing

  /// Clears the recording, the points and the list of dimensions, and resets pen, style, font and text angle.
  void BeginDrawing(DrawColor backColor, DrawColor lineColor);
  /// Closes the recording.
  void EndDrawing();
  /// Leaves a closed, empty recording, as for a figure that cannot be drawn.
  void AbandonDrawing();
  /// Sets PointFactor and the dimension measures from the extents so far; returns the aspect ratio.
  Single SetMetrics();

  void Move(int point) { Strokes.MoveToPoint(Pts(point).X, Pts(point).Y); }
  void Line(int from, int to) { Strokes.DrawLine(Pts(from).X, Pts(from).Y, Pts(to).X, Pts(to).Y); }
  void Text(const std::string& text, double x, double y, int align);
  /// Whether a text in the current face would keep `margin` drawing units clear of everything drawn so far.
  bool IsClear(const std::string& text, double x, double y, int align, double margin);
  /// The width of a text at a cell height, in the current face.
  double WidthOf(const std::string& text, double height);

  /// The offset of a step of `distance` at `angle` radians.
  static PointRecord AngleDistance(double angle, double distance);
  void Dimension2(const Dimension& dimension);
  void Dimension2(int kind, int p1, int p2, Single gap, Single arrow, Single leg, Single textHeight,
                  int arrowsOutside, int textMode, int textFlag, std::optional<std::string> text = {});
  /// Draws a stroke of a dimension and appends it to DimensionPoints.
  void DimensionStroke(PointRecord from, PointRecord to);
  /// Writes at Pts(10). `angle` is in radians; `mode` turns it like Dimension::TextMode.
  void DimText(const std::string& text, Single height, Single angle, int mode, int align);
  /// The text of the length that a dimension would show.
  std::string DimensionText(int kind, int p1, int p2) const;
};

}  // namespace pitchcraft
