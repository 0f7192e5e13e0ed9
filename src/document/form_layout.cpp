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

}  // namespace

FormLayout LayOutForm(int width, int height, const FormParts& parts) {
  width = ToPixel(std::max(width, kMinimumWidth));
  height = ToPixel(std::max(height, kMinimumHeight));
  FormLayout layout;
  int top = 0;
  const auto strip = [&](bool shown, int stripHeight) {
    const Area area{0, top, width, shown ? stripHeight : 0};
    top = area.Bottom();
    return area;
  };
  layout.menuBar = strip(true, kMenuBarHeight);
  layout.toolBar = strip(parts.toolBar, kToolBarHeight);
  layout.bayStrip = strip(parts.bayStrip, kBayStripHeight);
  layout.tabStrip = strip(true, kTabStripHeight);
  const int statusHeight = parts.statusBar ? kStatusBarHeight : 0;
  layout.statusBar = {0, height - statusHeight, width, statusHeight};
  const int bodyHeight = layout.statusBar.Top - top;

  layout.sheetScale =
      std::clamp(static_cast<double>(bodyHeight) / (kSheetHeight + kTypeRowHeight), 1.0, kMostAir);
  const int sheetWidth = ToPixel(static_cast<int>(kSheetWidth * layout.sheetScale));
  layout.sheet = {0, top, sheetWidth, bodyHeight};
  const int typeRow = static_cast<int>(kTypeRowHeight * layout.sheetScale);
  layout.roofTabs = {0, top + typeRow, sheetWidth, parts.rearRoof ? kRoofTabsHeight : 0};
  // Row 0 of the sheet stands just under the roof type, or under the captions of the two roofs.
  layout.sheetOrigin =
      kTypeRowHeight + kMargin - kFirstRowTop + (parts.rearRoof ? kRoofTabsHeight + kMargin : 0);

  layout.picture1 = {sheetWidth, top + kMargin, width - sheetWidth - kMargin, bodyHeight - 2 * kMargin};
  layout.picture3 = {kMargin, top + kMargin, width - 2 * kMargin, bodyHeight - 2 * kMargin};
  return layout;
}

}  // namespace pitchcraft
