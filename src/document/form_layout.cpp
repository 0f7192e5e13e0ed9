#include "document/form_layout.h"

#include <algorithm>

namespace pitchcraft {
namespace {

// Twips; 15 are a pixel at the usual scale.
constexpr int kMenuBarHeight = 360;
constexpr int kToolBarHeight = 420;
constexpr int kBayStripHeight = 420;
constexpr int kTabStripHeight = 420;
constexpr int kStatusBarHeight = 330;
constexpr int kRoofTabsHeight = 330;
constexpr int kSheetWidth = 3990;
constexpr int kSheetHeight = 5000;  // the longest sheet, that of a gambrel
constexpr int kTypeRowHeight = 400;
constexpr int kFirstRowTop = 480;
constexpr int kMargin = 60;
constexpr double kMostAir = 1.2;

// Screen pixels are 15 twips: a picture that begins and ends on one is sharp.
int ToPixel(int twips) { return twips / 15 * 15; }

// A share of exactly 1 leaves every length as it is.
int Scaled(int twips, double share) { return static_cast<int>(twips * share); }

}  // namespace

// The drawing keeps the width that it has beside the usual sheet.
Area LeastForm(const WordRoom& words) {
  const int widerSheet = Scaled(kSheetWidth, words.across) - kSheetWidth;
  return {0, 0, std::max(kMinimumWidth + widerSheet, words.widestStrip), Scaled(kMinimumHeight, words.down)};
}

FormLayout LayOutForm(int width, int height, const FormParts& parts) {
  const WordRoom& words = parts.words;
  const Area least = LeastForm(words);
  width = ToPixel(std::max(width, least.Width));
  height = ToPixel(std::max(height, least.Height));
  FormLayout layout;
  int top = 0;
  const auto strip = [&](bool shown, int stripHeight) {
    const Area area{0, top, width, shown ? stripHeight : 0};
    top = area.Bottom();
    return area;
  };
  const auto forWords = [&](int usual) { return ToPixel(Scaled(usual, words.down)); };
  layout.menuBar = strip(true, forWords(kMenuBarHeight));
  layout.toolBar = strip(parts.toolBar, kToolBarHeight);  // pictures alone
  layout.bayStrip = strip(parts.bayStrip, forWords(kBayStripHeight));
  layout.tabStrip = strip(true, forWords(kTabStripHeight));
  const int statusHeight = parts.statusBar ? forWords(kStatusBarHeight) : 0;
  layout.statusBar = {0, height - statusHeight, width, statusHeight};
  const int bodyHeight = layout.statusBar.Top - top;

  const double air = std::clamp(
      static_cast<double>(bodyHeight) / ((kSheetHeight + kTypeRowHeight) * words.down), 1.0, kMostAir);
  layout.sheetAcross = air * words.across;
  layout.sheetDown = air * words.down;
  const int sheetWidth = ToPixel(Scaled(kSheetWidth, layout.sheetAcross));
  layout.sheet = {0, top, sheetWidth, bodyHeight};
  layout.roofTabs = {0, top + Scaled(kTypeRowHeight, layout.sheetDown), sheetWidth,
                     parts.rearRoof ? forWords(kRoofTabsHeight) : 0};
  // Row 0 of the sheet stands just under the roof type, or under the captions of the two roofs.
  layout.sheetOrigin =
      kTypeRowHeight + kMargin - kFirstRowTop + (parts.rearRoof ? kRoofTabsHeight + kMargin : 0);

  layout.picture1 = {sheetWidth, top + kMargin, width - sheetWidth - kMargin, bodyHeight - 2 * kMargin};
  layout.picture3 = {kMargin, top + kMargin, width - 2 * kMargin, bodyHeight - 2 * kMargin};
  return layout;
}

}  // namespace pitchcraft
