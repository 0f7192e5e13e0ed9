// The printer as the sheets see it: one page that is written row by row, and drawings played onto it.
#pragma once

#include <string>
#include <string_view>

#include "drawing/drawing_recorder.h"
#include "drawing/text_meter.h"
#include "output/printed_page.h"

namespace pitchcraft {

/// One page in the making. Lengths are twips within the printable area. With ScaleHeight below 0, y is 0 at
/// the top edge and grows upward, so that the bottom edge is y = ScaleHeight; a text's height then counts
/// downward, too.
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
  int ColorMode;  ///< 2 prints in colour, 1 in black alone

  double TextWidth(std::string_view text) const;
  /// The way from one row to the next, below 0 where y grows upward.
  double TextHeight() const;
  /// The lower edge of the page less that far up, whichever way y grows.
  double AboveBottom(double twips) const { return ScaleHeight - Downward() * twips; }

  /// Writes with the left upper corner of the text at the current position, then goes to the left edge of the
  /// next row.
  void Print(std::string_view text);
  /// A straight line in ForeColor, a point thick.
  void Line(double x1, double y1, double x2, double y2);
  /// Plays a finished drawing into an area, Top counted in y; its pen widths are half points of the paper.
  void Play(const DrawingRecorder& drawing, const PlayArea& area);
  /// Plays a finished drawing alone into a window of 1400 by 1600 units that fills the page. "No metafile to
  /// print!" when there is none.
  void PrintRecording(const DrawingRecorder& drawing);
  /// Gives the page away; an empty one stands for it.
  PrintedPage EndDoc();

 private:
  double Downward() const { return ScaleHeight < 0 ? -1 : 1; }
  TextFace Face() const;
  PageLayer& RowLayer();

  const TextMeter& meter_;
  PrintedPage page_;
};

}  // namespace pitchcraft
