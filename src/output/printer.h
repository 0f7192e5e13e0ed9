// The printer that prints are written to: one page, written row by row, and drawings played onto it.
#pragma once

#include <string>
#include <string_view>

#include "drawing/drawing_recorder.h"
#include "drawing/text_meter.h"
#include "output/printed_page.h"

namespace pitchcraft {

/// One page in the making. Lengths are in twips within the printable area. If ScaleHeight is negative, y is 0
/// at the top edge and grows upward, so that the bottom edge is at y = ScaleHeight; the height of a text is
/// then negative, too.
class Printer {
 public:
  Printer(const Paper& paper, const TextMeter& meter);

  const double ScaleLeft = 0;
  double ScaleWidth;
  double ScaleHeight;
  double CurrentX = 0;
  double CurrentY = 0;
  std::string FontName = "Arial";
  double FontSize = 10;  ///< points
  bool FontBold = false;
  bool FontItalic = false;
  DrawColor ForeColor = 0;
  int ColorMode;  ///< 2 prints in colour, 1 only in black

  double TextWidth(std::string_view text) const;
  /// The step from one row to the next, negative where y grows upward.
  double TextHeight() const;
  /// The y that is `twips` above the bottom edge, whichever way y grows.
  double AboveBottom(double twips) const { return ScaleHeight - Downward() * twips; }

  /// Writes the text with its left upper corner at the current position, then moves to the left edge of the
  /// next row.
  void Print(std::string_view text);
  /// A straight line in ForeColor, one point wide.
  void Line(double x1, double y1, double x2, double y2);
  /// Plays a finished drawing into an area whose Top is a y of this page; pen widths count in half points on
  /// paper.
  void Play(const DrawingRecorder& drawing, const PlayArea& area);
  /// Plays a finished drawing by itself into a window of 1400 by 1600 units that fills the page. "No metafile
  /// to print!" when there is none.
  void PrintRecording(const DrawingRecorder& drawing);
  /// Hands over the page and starts an empty one.
  PrintedPage EndDoc();

 private:
  double Downward() const { return ScaleHeight < 0 ? -1 : 1; }
  TextFace Face() const;
  PageLayer& RowLayer();

  const TextMeter& meter_;
  PrintedPage page_;
};

}  // namespace pitchcraft
