#include "sheet/menus.h"

namespace pitchcraft {
namespace {

struct MenuRow {
  MenuItem* item;
  const char* name;
  int level;
  const char* caption;
  const char* statusText;
};

void FillRows(Menus& menus, std::vector<MenuItem*>& items) {
  // clang-format off
  const MenuRow rows[] = {
      // item, name, level, caption, text of the status bar
      {&menus.mnuFile, "mnuFile", 0, "&File", ""},
      {&menus.mnuFileNew, "mnuFileNew", 1, "&New", "Start a new project."},
      {&menus.mnuFileOpen, "mnuFileOpen", 1, "&Open...", "Open an existing project."},
      {&menus.mnuSeparator[1], "mnuSeparator1", 1, "-", ""},
      {&menus.mnuFileSave, "mnuFileSave", 1, "&Save", "Save the current project."},
      {&menus.mnufileSaveAs, "mnufileSaveAs", 1, "Save &As...", "Save and rename the current project."},
      {&menus.mnuFileProjectName, "mnuFileProjectName", 1, "Project Name...", "Set the current project name."},
      {&menus.mnuSeparator[2], "mnuSeparator2", 1, "-", ""},
      {&menus.mnuFileExportMetafile, "mnuFileExportMetafile", 1, "Export Metafile...", "Export the current drawing as a Windows metafile."},
      {&menus.mnuFileExportDXF, "mnuFileExportDXF", 1, "Export DXF...", "Export the current drawing as a DXF file."},
      {&menus.mnuFileDXFSettings, "mnuFileDXFSettings", 1, "DXF Settings...", "Set DXF options."},
      {&menus.mnuSeparator[3], "mnuSeparator3", 1, "-", ""},
      {&menus.mnuFilePageSetup, "mnuFilePageSetup", 1, "Page Set&up...", "Setup margins, page size, etc."},
      {&menus.mnuFilePrint, "mnuFilePrint", 1, "&Print...", "Print the current drawing."},
      {&menus.mnuSeparator[4], "mnuSeparator4", 1, "-", ""},
      {&menus.mnuFileMRU[0], "mnuFileMRU(0)", 1, "", "Most recent files"},
      {&menus.mnuFileMRU[1], "mnuFileMRU(1)", 1, "", "Most recent files"},
      {&menus.mnuFileMRU[2], "mnuFileMRU(2)", 1, "", "Most recent files"},
      {&menus.mnuFileMRU[3], "mnuFileMRU(3)", 1, "", "Most recent files"},
      {&menus.mnuSeparator[5], "mnuSeparator5", 1, "-", ""},
      {&menus.mnuFileExit, "mnuFileExit", 1, "E&xit", "Exit Pitchcraft"},
      {&menus.mnuSettings, "mnuSettings", 0, "&Settings", ""},
      {&menus.mnuSettingsHeelLocked, "mnuSettingsHeelLocked", 1, "Heel Locked", "Lock or unlock the current heel height."},
      {&menus.mnuSettingsSeatLocked, "mnuSettingsSeatLocked", 1, "Seat Locked", "Lock or unlock the current seat cut length."},
      {&menus.mnuSeparator[6], "mnuSeparator6", 1, "-", ""},
      {&menus.mnuSettingsPlumbCut, "mnuSettingsPlumbCut", 1, "&Plumb Cut Fascia", "Select plumb cut fascia."},
      {&menus.mnuSettingsSquareCut, "mnuSettingsSquareCut", 1, "&Square Cut Fascia", "Select square cut fascia."},
      {&menus.mnuSettingsLevelCut, "mnuSettingsLevelCut", 1, "&Level Cut Fascia", "Select level cut fascia."},
      {&menus.mnuSeparator[7], "mnuSeparator7", 1, "-", ""},
      {&menus.mnuSettingsRiseOverRun, "mnuSettingsRiseOverRun", 1, "Rise over Run", "Enter slope as Rise over Run"},
      {&menus.mnuSettingsDegrees, "mnuSettingsDegrees", 1, "Degrees", "Enter slope as Degrees"},
      {&menus.mnuSeparator[8], "mnuSeparator8", 1, "-", ""},
      {&menus.mnuImperial, "mnuImperial", 1, "Imperial", "Use English measurements"},
      {&menus.mnuMetric, "mnuMetric", 1, "Metric", "Use Metric measurements"},
      {&menus.mnuSeparator[9], "mnuSeparator9", 1, "-", ""},
      {&menus.mnuViewOptions, "mnuViewOptions", 1, "&Options...", "Configure Pitchcraft"},
      {&menus.mnuView, "mnuView", 0, "&View", ""},
      {&menus.mnuViewToolbar, "mnuViewToolbar", 1, "&Toolbar", "Show or hide the toolbar."},
      {&menus.mnuViewStatusBar, "mnuViewStatusBar", 1, "Status &Bar", "Show or hide the status bar."},
      {&menus.mnuTools, "mnuTools", 0, "FtInch &Calculator", "FtInch Calculator"},
      {&menus.mnuDutch, "mnuDutch", 0, "&Dutch Hip", ""},
      {&menus.mnuDutchLedger[0], "mnuDutchLedger(0)", 1, "Ledger", "Include Ledger Board in calculations."},
      {&menus.mnuDutchLedger[1], "mnuDutchLedger(1)", 1, "No Ledger", "Don't include Ledger Board in calculations."},
      {&menus.mnuHipLayout, "mnuHipLayout", 0, "&Hip Layout", ""},
      {&menus.mnuHipLayoutCenter, "mnuHipLayoutCenter", 1, "Layout Jacks O.C. from Center", "Layout jacks from center working out to wall corners."},
      {&menus.mnuHipLayoutCorners, "mnuHipLayoutCorners", 1, "Layout Jacks O.C. from Wall Corners", "Layout jacks centered from outside wall corners working to center."},
      {&menus.mnuHipLayoutCornersFlush, "mnuHipLayoutCornersFlush", 1, "Layout Jacks Flush from Wall Corners", "Layout jacks flush from outside wall corners working to center."},
      {&menus.mnuSeparator[16], "mnuSeparator16", 1, "-", ""},
      {&menus.mnuHipLayoutJackMeasurement, "mnuHipLayoutJackMeasurement", 1, "Include Overhang in Jack Measurements", "Include overhang in jack rafter measurements."},
      {&menus.mnuSeparator[17], "mnuSeparator17", 1, "-", ""},
      {&menus.mnuHipLayoutOverhangsEqual, "mnuHipLayoutOverhangsEqual", 1, "Make Overhangs Equal", "Adjust calculations to make overhangs equal."},
      {&menus.mnuGambrel, "mnuGambrel", 0, "&Gambrel Settings", ""},
      {&menus.mnuGambrelRegular, "mnuGambrelRegular", 1, "Regular Gambrel", "Calculate a regular gambrel roof (slopes are fixed)."},
      {&menus.mnuGambrelCustom, "mnuGambrelCustom", 1, "Custom Gambrel", "Calculate a custom gambrel roof."},
      {&menus.mnuSeparator[20], "mnuSeparator20", 1, "-", ""},
      {&menus.mnuGambrelPurlins, "mnuGambrelPurlins", 1, "Purlins", "Use purlins at joints (purlins are the same size as the ridge board)."},
      {&menus.mnuGambrelWallSupport, "mnuGambrelWallSupport", 1, "Wall Supported (Flush)", "Upper roof is supported on walls."},
      {&menus.mnuGambrelWallSupportRaised, "mnuGambrelWallSupportRaised", 1, "Wall Supported (Raised)", "Upper roof is supported on walls and is raised."},
      {&menus.mnuSeparator[21], "mnuSeparator21", 1, "-", ""},
      {&menus.mnuGambrelPlumb, "mnuGambrelPlumb", 1, "Plumb Cut Fascia", "Select plumb cut fascia."},
      {&menus.mnuGambrelSquare, "mnuGambrelSquare", 1, "Square Cut Fascia", "Select square cut fascia."},
      {&menus.mnuGambrelLevel, "mnuGambrelLevel", 1, "Level Cut Fascia", "Select level cut fascia."},
      {&menus.mnuHelp, "mnuHelp", 0, "&Help", ""},
      {&menus.mnuHelpcontents, "mnuHelpcontents", 1, "&Contents...", ""},
      {&menus.mnuHelpGlossary, "mnuHelpGlossary", 1, "&Glossary...", ""},
      {&menus.mnuHelpSearch, "mnuHelpSearch", 1, "&Search...", ""},
      {&menus.mnuHelpTips, "mnuHelpTips", 1, "&Tip of the Day", ""},
      {&menus.mnuSeparator[10], "mnuSeparator10", 1, "-", ""},
      {&menus.mnuHelpAbout, "mnuHelpAbout", 1, "&About Pitchcraft...", ""},
      {&menus.mnuPopUp1, "mnuPopUp1", 0, "PopUp1", ""},
      {&menus.mnuPopUp1PrintSetup, "mnuPopUp1PrintSetup", 1, "Page Setup...", "Setup margins, page size, etc."},
      {&menus.mnuPopUp1Print, "mnuPopUp1Print", 1, "Print...", "Print the current drawing."},
      {&menus.mnuSeparator[11], "mnuSeparator11", 1, "-", ""},
      {&menus.mnuPopUp1DXFSettings, "mnuPopUp1DXFSettings", 1, "DXF Settings...", "Set DXF options."},
      {&menus.mnuPopUp1DXF, "mnuPopUp1DXF", 1, "Export DXF...", "Export the current drawing as a DXF file."},
      {&menus.mnuSeparator[12], "mnuSeparator12", 1, "-", ""},
      {&menus.mnuPopUp1PlumbCut, "mnuPopUp1PlumbCut", 1, "Plumb Cut Fascia", "Select plumb cut fascia."},
      {&menus.mnuPopUp1SquareCut, "mnuPopUp1SquareCut", 1, "Square Cut Fascia", "Select square cut fascia."},
      {&menus.mnuSeparator[13], "mnuSeparator13", 1, "-", ""},
      {&menus.mnuPopUp1Ledger[0], "mnuPopUp1Ledger(0)", 1, "Ledger", "Include Ledger Board in calculations."},
      {&menus.mnuPopUp1Ledger[1], "mnuPopUp1Ledger(1)", 1, "No Ledger", "Don't include Ledger Board in calculations."},
      {&menus.mnuSeparator[15], "mnuSeparator15", 1, "-", ""},
      {&menus.mnuPopUp1LayoutCenter, "mnuPopUp1LayoutCenter", 1, "Layout Jacks O.C. from Center", "Layout jacks from center working out to wall corners."},
      {&menus.mnuPopUp1LayoutCorner, "mnuPopUp1LayoutCorner", 1, "Layout Jacks O.C. from Wall Corners", "Layout jacks centered from outside wall corners working to center."},
      {&menus.mnuPopUp1LayoutCornerFlush, "mnuPopUp1LayoutCornerFlush", 1, "Layout Jacks Flush from Wall Corners", "Layout jacks flush from outside wall corners working to center."},
      {&menus.mnuSeparator[18], "mnuSeparator18", 1, "-", ""},
      {&menus.mnuPopUp1JackMeasurement, "mnuPopUp1JackMeasurement", 1, "Include Overhang in Jack Measurements", "Include overhang in jack rafter measurements."},
      {&menus.mnuSeparator[19], "mnuSeparator19", 1, "-", ""},
      {&menus.mnuPopUp1OverhangsEqual, "mnuPopUp1OverhangsEqual", 1, "Make Overhangs Equal", "Adjust calculations to make overhangs equal."},
      {&menus.mnuPopUp2, "mnuPopUp2", 0, "PopUp2", ""},
      {&menus.mnuPopUp2PrintSetup, "mnuPopUp2PrintSetup", 1, "Page Setup...", "Setup margins, page size, etc."},
      {&menus.mnuPopUp2Print, "mnuPopUp2Print", 1, "Print...", "Print the current drawing."},
      {&menus.mnuSeparator[22], "mnuSeparator22", 1, "-", ""},
      {&menus.mnuPopUp2DXFSettings, "mnuPopUp2DXFSettings", 1, "DXF Settings...", "Set DXF options."},
      {&menus.mnuPopUp2DXF, "mnuPopUp2DXF", 1, "Export DXF...", "Export the current drawing as a DXF file."},
      {&menus.mnuSeparator[23], "mnuSeparator23", 1, "-", ""},
      {&menus.mnuPopUp2PlumbCut, "mnuPopUp2PlumbCut", 1, "Plumb Cut Fascia", "Select plumb cut fascia."},
      {&menus.mnuPopUp2SquareCut, "mnuPopUp2SquareCut", 1, "Square Cut Fascia", "Select square cut fascia."},
      {&menus.mnuPopUp2LevelCut, "mnuPopUp2LevelCut", 1, "Level Cut Fascia", "Select level cut fascia."},
      {&menus.mnuSeparator[24], "mnuSeparator24", 1, "-", ""},
      {&menus.mnuPopup2GambrelRegular, "mnuPopup2GambrelRegular", 1, "Regular Gambrel", "Calculate a regular gambrel roof (slopes are fixed)."},
      {&menus.mnuPopup2GambrelCustom, "mnuPopup2GambrelCustom", 1, "Custom Gambrel", "Calculate a custom gambrel roof."},
      {&menus.mnuSeparator[25], "mnuSeparator25", 1, "-", ""},
      {&menus.mnuPopup2GambrelPurlins, "mnuPopup2GambrelPurlins", 1, "Purlins", "Use purlins at joints (purlins are the same size as the ridge board)."},
      {&menus.mnuPopup2GambrelWallSupport, "mnuPopup2GambrelWallSupport", 1, "Wall Supported (Flush)", "Upper roof is supported on walls."},
      {&menus.mnuPopup2GambrelWallSupportRaised, "mnuPopup2GambrelWallSupportRaised", 1, "Wall Supported (Raised)", "Upper roof is supported on walls and is raised."},
      {&menus.mnuSpin, "mnuSpin", 0, "Spin", ""},
      {&menus.mnuSpinIncrement, "mnuSpinIncrement", 1, "Increment Amount", "Enter a new increment amount."},
      {&menus.mnuSeparator[14], "mnuSeparator14", 1, "-", ""},
      {&menus.mnuSpinCancel, "mnuSpinCancel", 1, "Cancel", "Cancel this menu"},
  };
  // clang-format on
  for (const MenuRow& row : rows) {
    MenuItem& item = *row.item;
    item.Name = row.name;
    item.Caption = row.caption;
    item.StatusText = row.statusText;
    item.Level = row.level;
    items.push_back(&item);
  }
}

}  // namespace

Menus::Menus() {
  FillRows(*this, items_);
  // The popups hang on hidden items of the bar.
  for (MenuItem* popup : {&mnuPopUp1, &mnuPopUp2, &mnuSpin}) popup->Visible = false;
  for (MenuItem& recent : mnuFileMRU) recent.Visible = false;
}

MenuItem* Menus::Find(std::string_view name) const {
  for (MenuItem* item : items_) {
    if (item->Name == name) return item;
  }
  return nullptr;
}

std::vector<MenuItem*> Menus::ItemsUnder(const MenuItem& holder) const {
  std::vector<MenuItem*> found;
  bool inside = false;
  for (MenuItem* item : items_) {
    if (item->Level == 0) inside = item == &holder;
    if (inside && item->Level > 0) found.push_back(item);
  }
  return found;
}

const MenuItem* Menus::HolderOf(const MenuItem& item) const {
  const MenuItem* holder = nullptr;
  for (const MenuItem* candidate : items_) {
    if (candidate->Level == 0) holder = candidate;
    if (candidate == &item) break;
  }
  return holder == &item ? nullptr : holder;
}

bool Menus::IsPopup(const MenuItem& holder) const {
  return &holder == &mnuPopUp1 || &holder == &mnuPopUp2 || &holder == &mnuSpin;
}

}  // namespace pitchcraft
