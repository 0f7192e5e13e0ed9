// Which handler a menu item calls. An item without one here is not available yet and stays grey.
#include "document/document.h"

namespace pitchcraft {
namespace {

using D = Document;

struct MenuHandlerRow {
  MenuItem Menus::*item;
  void (Document::*handler)(int);
};

// Each popup item calls the handler of its twin.
constexpr MenuHandlerRow kMenuHandlers[] = {
    {&Menus::FileNew, &D::mnuFileNew_Click},
    {&Menus::FileOpen, &D::mnuFileOpen_Click},
    {&Menus::FileSave, &D::mnuFileSave_Click},
    {&Menus::FileSaveAs, &D::mnufileSaveAs_Click},
    {&Menus::FileProjectName, &D::mnuFileProjectName_Click},
    {&Menus::FileExportMetafile, &D::mnuFileExportMetafile_Click},
    {&Menus::FileExportDXF, &D::mnuFileExportDXF_Click},
    {&Menus::PopUp1DXF, &D::mnuFileExportDXF_Click},
    {&Menus::PopUp2DXF, &D::mnuFileExportDXF_Click},
    {&Menus::FilePageSetup, &D::mnuFilePageSetup_Click},
    {&Menus::PopUp1PrintSetup, &D::mnuFilePageSetup_Click},
    {&Menus::PopUp2PrintSetup, &D::mnuFilePageSetup_Click},
    {&Menus::FilePrint, &D::mnuFilePrint_Click},
    {&Menus::PopUp1Print, &D::mnuFilePrint_Click},
    {&Menus::PopUp2Print, &D::mnuFilePrint_Click},
    {&Menus::FileExit, &D::mnuFileExit_Click},
    {&Menus::SettingsHeelLocked, &D::mnuSettingsHeelLocked_Click},
    {&Menus::SettingsSeatLocked, &D::mnuSettingsSeatLocked_Click},
    {&Menus::SettingsPlumbCut, &D::mnuSettingsPlumbCut_Click},
    {&Menus::GambrelPlumb, &D::mnuSettingsPlumbCut_Click},
    {&Menus::PopUp1PlumbCut, &D::mnuSettingsPlumbCut_Click},
    {&Menus::PopUp2PlumbCut, &D::mnuSettingsPlumbCut_Click},
    {&Menus::SettingsSquareCut, &D::mnuSettingsSquareCut_Click},
    {&Menus::GambrelSquare, &D::mnuSettingsSquareCut_Click},
    {&Menus::PopUp1SquareCut, &D::mnuSettingsSquareCut_Click},
    {&Menus::PopUp2SquareCut, &D::mnuSettingsSquareCut_Click},
    {&Menus::SettingsLevelCut, &D::mnuSettingsLevelCut_Click},
    {&Menus::GambrelLevel, &D::mnuSettingsLevelCut_Click},
    {&Menus::PopUp2LevelCut, &D::mnuSettingsLevelCut_Click},
    {&Menus::SettingsRiseOverRun, &D::mnuSettingsRiseOverRun_Click},
    {&Menus::SettingsDegrees, &D::mnuSettingsDegrees_Click},
    {&Menus::Imperial, &D::mnuImperial_Click},
    {&Menus::Metric, &D::mnuMetric_Click},
    {&Menus::ViewToolbar, &D::mnuViewToolbar_Click},
    {&Menus::ViewStatusBar, &D::mnuViewStatusBar_Click},
    {&Menus::Tools, &D::mnuTools_Click},
    {&Menus::Helpcontents, &D::mnuHelpcontents_Click},
    {&Menus::HelpGlossary, &D::mnuHelpGlossary_Click},
    {&Menus::HelpSearch, &D::mnuHelpSearch_Click},
    {&Menus::HipLayoutCenter, &D::mnuHipLayoutCenter_Click},
    {&Menus::PopUp1LayoutCenter, &D::mnuHipLayoutCenter_Click},
    {&Menus::HipLayoutCorners, &D::mnuHipLayoutCorners_Click},
    {&Menus::PopUp1LayoutCorner, &D::mnuHipLayoutCorners_Click},
    {&Menus::HipLayoutCornersFlush, &D::mnuHipLayoutCornersFlush_Click},
    {&Menus::PopUp1LayoutCornerFlush, &D::mnuHipLayoutCornersFlush_Click},
    {&Menus::HipLayoutJackMeasurement, &D::mnuHipLayoutJackMeasurement_Click},
    {&Menus::PopUp1JackMeasurement, &D::mnuHipLayoutJackMeasurement_Click},
    {&Menus::HipLayoutOverhangsEqual, &D::mnuHipLayoutOverhangsEqual_Click},
    {&Menus::PopUp1OverhangsEqual, &D::mnuHipLayoutOverhangsEqual_Click},
    {&Menus::GambrelRegular, &D::mnuGambrelRegular_Click},
    {&Menus::PopUp2GambrelRegular, &D::mnuGambrelRegular_Click},
    {&Menus::GambrelCustom, &D::mnuGambrelCustom_Click},
    {&Menus::PopUp2GambrelCustom, &D::mnuGambrelCustom_Click},
    {&Menus::GambrelPurlins, &D::mnuGambrelPurlins_Click},
    {&Menus::PopUp2GambrelPurlins, &D::mnuGambrelPurlins_Click},
    {&Menus::GambrelWallSupport, &D::mnuGambrelWallSupport_Click},
    {&Menus::PopUp2GambrelWallSupport, &D::mnuGambrelWallSupport_Click},
    {&Menus::GambrelWallSupportRaised, &D::mnuGambrelWallSupportRaised_Click},
    {&Menus::PopUp2GambrelWallSupportRaised, &D::mnuGambrelWallSupportRaised_Click},
    {&Menus::FileDXFSettings, &D::mnuFileDXFSettings_Click},
    {&Menus::PopUp1DXFSettings, &D::mnuFileDXFSettings_Click},
    {&Menus::PopUp2DXFSettings, &D::mnuFileDXFSettings_Click},
    {&Menus::ViewOptions, &D::mnuViewOptions_Click},
    {&Menus::HelpTips, &D::mnuHelpTips_Click},
    {&Menus::HelpAbout, &D::mnuHelpAbout_Click},
    {&Menus::SpinIncrement, &D::mnuSpinIncrement_Click},
    {&Menus::SpinCancel, &D::mnuSpinCancel_Click},
};

}  // namespace

/// Runs `action` with the handler of the item and the index that it takes. False where the item has none.
template <typename Action>
bool Document::WithHandler(const MenuItem& item, Action action) const {
  for (const MenuHandlerRow& row : kMenuHandlers) {
    if (&(menus.*row.item) != &item) continue;
    action(row.handler, 0);
    return true;
  }
  for (std::size_t i = 0; i < menus.DutchLedger.size(); ++i) {
    if (&item != &menus.DutchLedger[i] && &item != &menus.PopUp1Ledger[i]) continue;
    action(&D::mnuDutchLedger_Click, static_cast<int>(i));
    return true;
  }
  for (std::size_t i = 0; i < menus.FileMRU.size(); ++i) {
    if (&item != &menus.FileMRU[i]) continue;
    action(&D::mnuFileMRU_Click, static_cast<int>(i));
    return true;
  }
  return false;
}

bool Document::ClickMenu(MenuItem& item) {
  return WithHandler(item, [this](auto handler, int index) { (this->*handler)(index); });
}

void Document::DisableItemsWithoutHandler() {
  for (MenuItem* item : menus.Items()) {
    const bool holder = item->Level == 0 && !menus.ItemsUnder(*item).empty();
    if (!holder && !item->IsSeparator() && !WithHandler(*item, [](auto, int) {})) item->Enabled = false;
  }
}

bool Document::ToolButtonEnabled(const ToolButton& button) const {
  if (button.RoofListIndex >= 0 || button.Key == "Plumb" || button.Key == "Square" || button.Key == "Level") {
    return true;
  }
  const MenuItem* twin = button.Key == "New"    ? &menus.FileNew
                         : button.Key == "Open" ? &menus.FileOpen
                         : button.Key == "Save" ? &menus.FileSave
                                                : &menus.FilePrint;
  return twin->Enabled;
}

}  // namespace pitchcraft
