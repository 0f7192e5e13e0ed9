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

/// The items in the order of the menus. The check of an item is the state of its option: there is no second
/// variable.
class Menus {
 public:
  Menus();
  Menus(const Menus&) = delete;
  Menus& operator=(const Menus&) = delete;

  MenuItem mnuFile, mnuFileNew, mnuFileOpen, mnuFileSave, mnufileSaveAs, mnuFileProjectName,
      mnuFileExportMetafile, mnuFileExportDXF, mnuFileDXFSettings, mnuFilePageSetup, mnuFilePrint,
      mnuFileExit;
  MenuItem mnuSettings, mnuSettingsHeelLocked, mnuSettingsSeatLocked, mnuSettingsPlumbCut,
      mnuSettingsSquareCut, mnuSettingsLevelCut, mnuSettingsRiseOverRun, mnuSettingsDegrees, mnuImperial,
      mnuMetric, mnuViewOptions;
  MenuItem mnuView, mnuViewToolbar, mnuViewStatusBar;
  MenuItem mnuTools;
  MenuItem mnuDutch;
  MenuItem mnuHipLayout, mnuHipLayoutCenter, mnuHipLayoutCorners, mnuHipLayoutCornersFlush,
      mnuHipLayoutJackMeasurement, mnuHipLayoutOverhangsEqual;
  MenuItem mnuGambrel, mnuGambrelRegular, mnuGambrelCustom, mnuGambrelPurlins, mnuGambrelWallSupport,
      mnuGambrelWallSupportRaised, mnuGambrelPlumb, mnuGambrelSquare, mnuGambrelLevel;
  MenuItem mnuHelp, mnuHelpcontents, mnuHelpGlossary, mnuHelpSearch, mnuHelpTips, mnuHelpAbout;
  MenuItem mnuPopUp1, mnuPopUp1PrintSetup, mnuPopUp1Print, mnuPopUp1DXFSettings, mnuPopUp1DXF,
      mnuPopUp1PlumbCut, mnuPopUp1SquareCut, mnuPopUp1LayoutCenter, mnuPopUp1LayoutCorner,
      mnuPopUp1LayoutCornerFlush, mnuPopUp1JackMeasurement, mnuPopUp1OverhangsEqual;
  MenuItem mnuPopUp2, mnuPopUp2PrintSetup, mnuPopUp2Print, mnuPopUp2DXFSettings, mnuPopUp2DXF,
      mnuPopUp2PlumbCut, mnuPopUp2SquareCut, mnuPopUp2LevelCut, mnuPopup2GambrelRegular,
      mnuPopup2GambrelCustom, mnuPopup2GambrelPurlins, mnuPopup2GambrelWallSupport,
      mnuPopup2GambrelWallSupportRaised;
  MenuItem mnuSpin, mnuSpinIncrement, mnuSpinCancel;
  std::array<MenuItem, 4> mnuFileMRU;
  std::array<MenuItem, 2> mnuDutchLedger, mnuPopUp1Ledger;
  std::array<MenuItem, 26> mnuSeparator;

  /// All items, each bar item followed by those of its menu.
  const std::vector<MenuItem*>& Items() const { return items_; }
  /// The item of that name, written as `mnuMetric` or `mnuDutchLedger(1)`; null when there is none.
  MenuItem* Find(std::string_view name) const;
  /// The items of the menu under a bar item or of a popup.
  std::vector<MenuItem*> ItemsUnder(const MenuItem& holder) const;

  /// The bar item or popup that an item stands under; null for one of the bar itself.
  const MenuItem* HolderOf(const MenuItem& item) const;
  bool IsPopup(const MenuItem& holder) const;

 private:
  std::vector<MenuItem*> items_;
};

}  // namespace pitchcraft
