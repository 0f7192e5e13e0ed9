// The user's settings: read once when the window loads, written once when it unloads.
#pragma once

#include <cstdint>
#include <string>

#include "core/single.h"
#include "storage/keyed_store.h"

namespace pitchcraft {

/// Codes of system colours, as they stand in a colour value.
inline constexpr std::uint32_t kSystemWindowColor = 0x80000005;
inline constexpr std::uint32_t kSystemWindowTextColor = 0x80000008;
inline constexpr std::uint32_t kSystemGrayTextColor = 0x80000011;

/// What a session works with as it is stored. The initial values are those of a first run. Colours are
/// 0xBBGGRR, or a system colour code from 0x80000000 up.
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

/// All that is stored: with the preferences what a session turns into something else. Places and sizes are
/// twips.
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

/// Reads every setting that the store holds; a text that is not of its kind gives what its leading number
/// says. With UseSystemColors the three colours of the fields are those of the system, whatever is stored.
Settings ReadSettings(const KeyedStore& store);

/// Writes the settings that belong to the end of a session. Place and size go only while the window is
/// normal, the imperial spacing only from an imperial session; the metric spacing, the disclaimer and the
/// tips are not written.
void WriteSettings(const Settings& settings, KeyedStore& store);

/// The two that their forms write at once.
void WriteShowDisclaimer(int value, KeyedStore& store);
void WriteShowTips(int value, KeyedStore& store);

}  // namespace pitchcraft
