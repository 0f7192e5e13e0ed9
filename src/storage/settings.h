// The user's settings: read once when the window opens, written once when it closes.
#pragma once

#include <cstdint>
#include <string>

#include "core/single.h"
#include "storage/keyed_store.h"

namespace pitchcraft {

/// Codes of system colours, as used in a colour value.
inline constexpr std::uint32_t kSystemWindowColor = 0x80000005;
inline constexpr std::uint32_t kSystemWindowTextColor = 0x80000008;
inline constexpr std::uint32_t kSystemGrayTextColor = 0x80000011;

/// The settings that a session uses just as they are stored. The initial values are those of a first run.
/// Colours are 0xBBGGRR, or a system colour code from 0x80000000 up.
struct Preferences {
  bool UseSystemColors = false;
  bool RotateFonts = false;
  int LineWidth = 1;  ///< of a printed line
  Single Spacing = 16;
  Single MetricSpacing = 400;
  Single Increment = 0.25;        ///< step of the spin buttons, imperial
  Single MetricIncrement = 0.25;  ///< the same, metric
  int WindowState = 0;            ///< 0 normal, 1 minimized, 2 maximized

  std::uint32_t CtlBackColor = 0;
  std::uint32_t CtlForeColor = 65535;
  std::uint32_t CtlCalcColor = 255;
  std::uint32_t BackColor = 0;
  std::uint32_t LineColor = 16777215;
  std::uint32_t DimColor = 255;
  std::uint32_t TextColor = 65535;

  std::uint32_t DxfBackColor = 0;
  int DxfTextColor = 14;
  int DxfLineColor = 15;
  int DxfDimColor = 12;
  Single DxfTextSize = 2;
  Single DxfMetricTextSize = 2;
  Single DxfDimTextSize = 2;
};

/// Everything stored: the preferences, and the settings that a session turns into something else. Positions
/// and sizes are in twips.
struct Settings : Preferences {
  int Units = 0;         ///< 0 imperial, 1 metric
  bool Degrees = false;  ///< slopes are entered in degrees
  int MainLeft = 1000;
  int MainTop = 1000;
  int MainWidth = 6500;
  int MainHeight = 6500;
  std::string Kneewall1 = "0";
  std::string Kneewall2 = "0";
  std::string HipLayout = "Corner";  ///< "Corner", "Center", "Corner Flush"
  bool OverhangsEqual = true;
  bool JackMeasurement = true;
  int ShowDisclaimer = 1;
  int ShowTipsAtStartup = 1;
};

/// Reads every setting in the store. A text of the wrong kind counts as the number it begins with. With
/// UseSystemColors the three field colours are those of the system, whatever is stored.
Settings ReadSettings(const KeyedStore& store);

/// Writes the settings at the end of a session: position and size only if the window is normal, the imperial
/// spacing only if the session is imperial. The metric spacing, the disclaimer and the tips are not written
/// here.
void WriteSettings(const Settings& settings, KeyedStore& store);

/// These two are written at once by their dialogs.
void WriteShowDisclaimer(int value, KeyedStore& store);
void WriteShowTips(int value, KeyedStore& store);

}  // namespace pitchcraft
