// Where the parts of the window stand, computed from its size and from the room that its words need. With the
// usual letters window and driver draw on the same areas.
#pragma once

namespace pitchcraft {

/// A place in the window's client area, in twips.
struct Area {
  int Left = 0, Top = 0, Width = 0, Height = 0;

  int Right() const { return Left + Width; }
  int Bottom() const { return Top + Height; }
  bool operator==(const Area&) const = default;
};

inline constexpr int kMinimumWidth = 9400;
inline constexpr int kMinimumHeight = 7000;

/// How much room words need where a font is wider or higher than the usual one: shares of the usual lengths,
/// never below 1. The driver has no font and keeps to the usual.
struct WordRoom {
  double across = 1.0;              ///< of the columns of the sheet
  double down = 1.0;                ///< of the rows of the sheet and of the strips that hold words
  int widestStrip = kMinimumWidth;  ///< twips

  bool operator==(const WordRoom&) const = default;
};

/// What the layout depends on beside the size.
struct FormParts {
  bool toolBar = true;
  bool statusBar = true;
  bool bayStrip = false;
  bool rearRoof = false;  ///< the captions of front and rear roof show
  WordRoom words = {};
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
  /// A control's place and size on the sheet are its own times these. A larger window gives the rows more
  /// air, a larger font more room.
  double sheetAcross = 1.0;
  double sheetDown = 1.0;
};

/// The least client area of a window with those words; its Left and Top are 0.
Area LeastForm(const WordRoom& words);

/// `width`, `height`: client area of the window in twips; anything below the least is laid out at the least.
FormLayout LayOutForm(int width, int height, const FormParts& parts);

}  // namespace pitchcraft
