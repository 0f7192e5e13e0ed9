// Which handler a menu item calls. An item without one here is not available yet and stays grey.
#include "document/frm_document.h"

namespace pitchcraft {
namespace {

using D = frmDocument;

struct MenuHandlerRow {
  MenuItem Menus::*item;
  void (frmDocument::*handler)(int);
};

// Each popup item calls the handler of its twin.
constexpr MenuHandlerRow kMenuHandlers[] = {
    {&Menus::mnuFileNew, &D::mnuFileNew_Click},
    {&Menus::mnuFileOpen, &D::mnuFileOpen_Click},
    {&Menus::mnuFileSave, &D::mnuFileSave_Click},
    {&Menus::mnufileSaveAs, &D::mnufileSaveAs_Click},
    {&Menus::mnuFileProjectName, &D::mnuFileProjectName_Click},
    {&Menus::mnuFileExportMetafile, &D::mnuFileExportMetafile_Click},
    {&Menus::mnuFileExportDXF, &D::mnuFileExportDXF_Click},
    {&Menus::mnuPopUp1DXF, &D::mnuFileExportDXF_Click},
    {&Menus::mnuPopUp2DXF, &D::mnuFileExportDXF_Click},
    {&Menus::mnuFilePageSetup, &D::mnuFilePageSetup_Click},
    {&Menus::mnuPopUp1PrintSetup, &D::mnuFilePageSetup_Click},
    {&Menus::mnuPopUp2PrintSetup, &D::mnuFilePageSetup_Click},
    {&Menus::mnuFilePrint, &D::mnuFilePrint_Click},
    {&Menus::mnuPopUp1Print, &D::mnuFilePrint_Click},
    {&Menus::mnuPopUp2Print, &D::mnuFilePrint_Click},
    {&Menus::mnuFileExit, &D::mnuFileExit_Click},
    {&Menus::mnuSettingsHeelLocked, &D::mnuSettingsHeelLocked_Click},
    {&Menus::mnuSettingsSeatLocked, &D::mnuSettingsSeatLocked_Click},
    {&Menus::mnuSettingsPlumbCut, &D::mnuSettingsPlumbCut_Click},
    {&Menus::mnuGambrelPlumb, &D::mnuSettingsPlumbCut_Click},
    {&Menus::mnuPopUp1PlumbCut, &D::mnuSettingsPlumbCut_Click},
    {&Menus::mnuPopUp2PlumbCut, &D::mnuSettingsPlumbCut_Click},
    {&Menus::mnuSettingsSquareCut, &D::mnuSettingsSquareCut_Click},
    {&Menus::mnuGambrelSquare, &D::mnuSettingsSquareCut_Click},
    {&Menus::mnuPopUp1SquareCut, &D::mnuSettingsSquareCut_Click},
    {&Menus::mnuPopUp2SquareCut, &D::mnuSettingsSquareCut_Click},
    {&Menus::mnuSettingsLevelCut, &D::mnuSettingsLevelCut_Click},
    {&Menus::mnuGambrelLevel, &D::mnuSettingsLevelCut_Click},
    {&Menus::mnuPopUp2LevelCut, &D::mnuSettingsLevelCut_Click},
    {&Menus::mnuSettingsRiseOverRun, &D::mnuSettingsRiseOverRun_Click},
    {&Menus::mnuSettingsDegrees, &D::mnuSettingsDegrees_Click},
    {&Menus::mnuImperial, &D::mnuImperial_Click},
    {&Menus::mnuMetric, &D::mnuMetric_Click},
    {&Menus::mnuViewToolbar, &D::mnuViewToolbar_Click},
    {&Menus::mnuViewStatusBar, &D::mnuViewStatusBar_Click},
    {&Menus::mnuTools, &D::mnuTools_Click},
    {&Menus::mnuHelpcontents, &D::mnuHelpcontents_Click},
    {&Menus::mnuHelpGlossary, &D::mnuHelpGlossary_Click},
    {&Menus::mnuHelpSearch, &D::mnuHelpSearch_Click},
    {&Menus::mnuHipLayoutCenter, &D::mnuHipLayoutCenter_Click},
    {&Menus::mnuPopUp1LayoutCenter, &D::mnuHipLayoutCenter_Click},
    {&Menus::mnuHipLayoutCorners, &D::mnuHipLayoutCorners_Click},
    {&Menus::mnuPopUp1LayoutCorner, &D::mnuHipLayoutCorners_Click},
    {&Menus::mnuHipLayoutCornersFlush, &D::mnuHipLayoutCornersFlush_Click},
    {&Menus::mnuPopUp1LayoutCornerFlush, &D::mnuHipLayoutCornersFlush_Click},
    {&Menus::mnuHipLayoutJackMeasurement, &D::mnuHipLayoutJackMeasurement_Click},
    {&Menus::mnuPopUp1JackMeasurement, &D::mnuHipLayoutJackMeasurement_Click},
    {&Menus::mnuHipLayoutOverhangsEqual, &D::mnuHipLayoutOverhangsEqual_Click},
    {&Menus::mnuPopUp1OverhangsEqual, &D::mnuHipLayoutOverhangsEqual_Click},
    {&Menus::mnuGambrelRegular, &D::mnuGambrelRegular_Click},
    {&Menus::mnuPopup2GambrelRegular, &D::mnuGambrelRegular_Click},
    {&Menus::mnuGambrelCustom, &D::mnuGambrelCustom_Click},
    {&Menus::mnuPopup2GambrelCustom, &D::mnuGambrelCustom_Click},
    {&Menus::mnuGambrelPurlins, &D::mnuGambrelPurlins_Click},
    {&Menus::mnuPopup2GambrelPurlins, &D::mnuGambrelPurlins_Click},
    {&Menus::mnuGambrelWallSupport, &D::mnuGambrelWallSupport_Click},
    {&Menus::mnuPopup2GambrelWallSupport, &D::mnuGambrelWallSupport_Click},
    {&Menus::mnuGambrelWallSupportRaised, &D::mnuGambrelWallSupportRaised_Click},
    {&Menus::mnuPopup2GambrelWallSupportRaised, &D::mnuGambrelWallSupportRaised_Click},
    {&Menus::mnuFileDXFSettings, &D::mnuFileDXFSettings_Click},
    {&Menus::mnuPopUp1DXFSettings, &D::mnuFileDXFSettings_Click},
    {&Menus::mnuPopUp2DXFSettings, &D::mnuFileDXFSettings_Click},
    {&Menus::mnuViewOptions, &D::mnuViewOptions_Click},
    {&Menus::mnuHelpTips, &D::mnuHelpTips_Click},
    {&Menus::mnuHelpAbout, &D::mnuHelpAbout_Click},
    {&Menus::mnuSpinIncrement, &D::mnuSpinIncrement_Click},
    {&Menus::mnuSpinCancel, &D::mnuSpinCancel_Click},
};

}  // namespace

/// Runs `action` with the handler of the item and the index that it takes. False where the item has none.
template <typename Action>
bool frmDocument::WithHandler(const MenuItem& item, Action action) const {
  for (const MenuHandlerRow& row : kMenuHandlers) {
    if (&(menus.*row.item) != &item) continue;
    action(row.handler, 0);
    return true;
  }
  for (std::size_t i = 0; i < menus.mnuDutchLedger.size(); ++i) {
    if (&item != &menus.mnuDutchLedger[i] && &item != &menus.mnuPopUp1Ledger[i]) continue;
    action(&D::mnuDutchLedger_Click, static_cast<int>(i));
    return true;
  }
  for (std::size_t i = 0; i < menus.mnuFileMRU.size(); ++i) {
    if (&item != &menus.mnuFileMRU[i]) continue;
    action(&D::mnuFileMRU_Click, static_cast<int>(i));
    return true;
  }
  return false;
}

bool frmDocument::ClickMenu(MenuItem& item) {
  return WithHandler(item, [this](auto handler, int index) { (this->*handler)(index); });
}

void frmDocument::DisableItemsWithoutHandler() {
  for (MenuItem* item : menus.Items()) {
    const bool holder = item->Level == 0 && !menus.ItemsUnder(*item).empty();
    if (!holder && !item->IsSeparator() && !WithHandler(*item, [](auto, int) {})) item->Enabled = false;
  }
}

bool frmDocument::ToolButtonEnabled(const ToolButton& button) const {
  if (button.RoofListIndex >= 0 || button.Key == "Plumb" || button.Key == "Square" || button.Key == "Level") {
    return true;
  }
  const MenuItem* twin = button.Key == "New"    ? &menus.mnuFileNew
                         : button.Key == "Open" ? &menus.mnuFileOpen
                         : button.Key == "Save" ? &menus.mnuFileSave
                                                : &menus.mnuFilePrint;
  return twin->Enabled;
}

}  // namespace pitchcraft
