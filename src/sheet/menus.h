// Every menu item by its name, as plain state: the bar, its menus, and the three popups.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace pitchcraft {

/// One item. A caption "-" makes it a separator; "&" stands before its access key.
struct MenuItem {
  std::string Name;
  std::string Caption;
  std::string StatusText;  ///< what the status bar shows while the item is under the pointer
  int Level = 1;           ///< 0: an item of the bar or the holder of a popup; 1: in a menu
  bool Visible = true;
  bool Enabled = true;
  bool Checked = false;

  bool IsSeparator() const { return Caption == "-"; }
};

/// The items in the order of the menus: plain, copyable state. A check mark shows a choice that the design
/// holds.
class Menus {
 public:
  Menus();

  MenuItem File, FileNew, FileOpen, FileSave, FileSaveAs, FileProjectName, FileExportMetafile, FileExportDXF,
      FileDXFSettings, FilePageSetup, FilePrint, FileExit;
  MenuItem Settings, SettingsHeelLocked, SettingsSeatLocked, SettingsPlumbCut, SettingsSquareCut,
      SettingsLevelCut, SettingsRiseOverRun, SettingsDegrees, Imperial, Metric, ViewOptions;
  MenuItem View, ViewToolbar, ViewStatusBar;
  MenuItem Tools;
  MenuItem Dutch;
  MenuItem HipLayout, HipLayoutCenter, HipLayoutCorners, HipLayoutCornersFlush, HipLayoutJackMeasurement,
      HipLayoutOverhangsEqual;
  MenuItem Gambrel, GambrelRegular, GambrelCustom, GambrelPurlins, GambrelWallSupport,
      GambrelWallSupportRaised, GambrelPlumb, GambrelSquare, GambrelLevel;
  MenuItem Help, Helpcontents, HelpGlossary, HelpSearch, HelpTips, HelpAbout;
  MenuItem PopUp1, PopUp1PrintSetup, PopUp1Print, PopUp1DXFSettings, PopUp1DXF, PopUp1PlumbCut,
      PopUp1SquareCut, PopUp1LayoutCenter, PopUp1LayoutCorner, PopUp1LayoutCornerFlush, PopUp1JackMeasurement,
      PopUp1OverhangsEqual;
  MenuItem PopUp2, PopUp2PrintSetup, PopUp2Print, PopUp2DXFSettings, PopUp2DXF, PopUp2PlumbCut,
      PopUp2SquareCut, PopUp2LevelCut, PopUp2GambrelRegular, PopUp2GambrelCustom, PopUp2GambrelPurlins,
      PopUp2GambrelWallSupport, PopUp2GambrelWallSupportRaised;
  MenuItem Spin, SpinIncrement, SpinCancel;
  std::array<MenuItem, 4> FileMRU;
  std::array<MenuItem, 2> DutchLedger, PopUp1Ledger;
  std::array<MenuItem, 26> Separator;

  /// All items, each bar item followed by those of its menu.
  std::vector<MenuItem*> Items();
  std::vector<const MenuItem*> Items() const;
  /// The item of that name, written as `mnuMetric` or `mnuDutchLedger(1)`; null when there is none.
  MenuItem* Find(std::string_view name);
  const MenuItem* Find(std::string_view name) const;
  /// The items of the menu under a bar item or of a popup.
  std::vector<MenuItem*> ItemsUnder(const MenuItem& holder);
  std::vector<const MenuItem*> ItemsUnder(const MenuItem& holder) const;

  /// The bar item or popup that an item stands under; null for one of the bar itself.
  const MenuItem* HolderOf(const MenuItem& item) const;
  bool IsPopup(const MenuItem& holder) const;
};

}  // namespace pitchcraft
