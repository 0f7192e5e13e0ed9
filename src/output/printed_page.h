// A finished print of one page: a printer, a PDF file or a test plays it.
#pragma once

#include <vector>

#include "drawing/canvas.h"
#include "drawing/recording.h"

namespace pitchcraft {

inline constexpr int kTwipsPerInch = 1440;

/// The paper in a printer, in portrait, in twips.
struct Paper {
  double Width = 0;
  double Height = 0;
  double Margin = 720;  ///< left free on every side
  bool Color = true;    ///< false for a printer that prints only black

  double PrintableWidth() const { return Width - 2 * Margin; }
  double PrintableHeight() const { return Height - 2 * Margin; }
};

inline constexpr Paper kLetterPaper{12240, 15840};
inline constexpr Paper kA4Paper{11906, 16838};

/// One recording and its place: the map leads to twips from the left upper corner of the printable area, y
/// downward.
struct PageLayer {
  Recording Drawing;
  CanvasMap Map;
};

struct PrintedPage {
  pitchcraft::Paper Paper;
  std::vector<PageLayer> Layers;

  /// Plays the page on a canvas with its origin at the corner of the printable area.
  void PlayOn(Canvas& canvas) const;
};

}  // namespace pitchcraft
