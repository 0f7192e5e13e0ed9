// Where the parts of the window stand, computed from its size alone, so that window and driver draw on the
// same areas.
#pragma once

namespace pitchcraft {

/// A place in the window's client area, in twips.
struct Area {
  int Left = 0, Top = 0, Width = 0, Height = 0;

  int Right() const { return Left + Width; }
  int Bottom() const { return Top + Height; }
  bool operator==(const Area&) const = default;
};

/// What the layout depends on beside the size.
struct FormParts {
  bool toolBar = true;
  bool statusBar = true;
  bool bayStrip = false;
  bool rearRoof = false;  ///< the captions of front and rear roof show
};

struct FormLayout {
  Area menuBar;
  Area toolBar;         ///< height 0 while it is hidden
  Area bayStrip;        ///< height 0 while it is hidden
  Area tabStrip;        ///< the page captions of Tabs(0)
  Area sheet;           ///< the design sheet, at the left of the first page
  Area roofTabs;        ///< the captions of Tabs(1), inside the sheet's area; height 0 with one roof
  Area picture1;        ///< the drawing of the design page
  Area picture3;        ///< the drawing of every other page
  Area statusBar;       ///< height 0 while it is hidden
  int sheetOrigin = 0;  ///< added to a control's Top to get its place below the sheet's top, before scaling
  double sheetScale = 1.0;  ///< 1 in a small window; a larger one gives the rows more air
};

inline constexpr int kMinimumWidth = 9400;
inline constexpr int kMinimumHeight = 7000;

/// `width`, `height`: client area of the window in twips; anything below the minimum is laid out at the
/// minimum.
FormLayout LayOutForm(int width, int height, const FormParts& parts);

}  // namespace pitchcraft
