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
      {&menus.File, "mnuFile", 0, "&File", ""},
      {&menus.FileNew, "mnuFileNew", 1, "&New", "Start a new project."},
      {&menus.FileOpen, "mnuFileOpen", 1, "&Open...", "Open an existing project."},
      {&menus.Separator[1], "mnuSeparator1", 1, "-", ""},
      {&menus.FileSave, "mnuFileSave", 1, "&Save", "Save the current project."},
      {&menus.FileSaveAs, "mnufileSaveAs", 1, "Save &As...", "Save and rename the current project."},
      {&menus.FileProjectName, "mnuFileProjectName", 1, "Project Name...", "Set the current project name."},
      {&menus.Separator[2], "mnuSeparator2", 1, "-", ""},
      {&menus.FileExportMetafile, "mnuFileExportMetafile", 1, "Export Metafile...", "Export the current drawing as a Windows metafile."},
      {&menus.FileExportDXF, "mnuFileExportDXF", 1, "Export DXF...", "Export the current drawing as a DXF file."},
      {&menus.FileDXFSettings, "mnuFileDXFSettings", 1, "DXF Settings...", "Set DXF options."},
      {&menus.Separator[3], "mnuSeparator3", 1, "-", ""},
      {&menus.FilePageSetup, "mnuFilePageSetup", 1, "Page Set&up...", "Setup margins, page size, etc."},
      {&menus.FilePrint, "mnuFilePrint", 1, "&Print...", "Print the current drawing."},
      {&menus.Separator[4], "mnuSeparator4", 1, "-", ""},
      {&menus.FileMRU[0], "mnuFileMRU(0)", 1, "", "Most recent files"},
      {&menus.FileMRU[1], "mnuFileMRU(1)", 1, "", "Most recent files"},
      {&menus.FileMRU[2], "mnuFileMRU(2)", 1, "", "Most recent files"},
      {&menus.FileMRU[3], "mnuFileMRU(3)", 1, "", "Most recent files"},
      {&menus.Separator[5], "mnuSeparator5", 1, "-", ""},
      {&menus.FileExit, "mnuFileExit", 1, "E&xit", "Exit Pitchcraft"},
      {&menus.Settings, "mnuSettings", 0, "&Settings", ""},
      {&menus.SettingsHeelLocked, "mnuSettingsHeelLocked", 1, "Heel Locked", "Lock or unlock the current heel height."},
      {&menus.SettingsSeatLocked, "mnuSettingsSeatLocked", 1, "Seat Locked", "Lock or unlock the current seat cut length."},
      {&menus.Separator[6], "mnuSeparator6", 1, "-", ""},
      {&menus.SettingsPlumbCut, "mnuSettingsPlumbCut", 1, "&Plumb Cut Fascia", "Select plumb cut fascia."},
      {&menus.SettingsSquareCut, "mnuSettingsSquareCut", 1, "&Square Cut Fascia", "Select square cut fascia."},
      {&menus.SettingsLevelCut, "mnuSettingsLevelCut", 1, "&Level Cut Fascia", "Select level cut fascia."},
      {&menus.Separator[7], "mnuSeparator7", 1, "-", ""},
      {&menus.SettingsRiseOverRun, "mnuSettingsRiseOverRun", 1, "Rise over Run", "Enter slope as Rise over Run"},
      {&menus.SettingsDegrees, "mnuSettingsDegrees", 1, "Degrees", "Enter slope as Degrees"},
      {&menus.Separator[8], "mnuSeparator8", 1, "-", ""},
      {&menus.Imperial, "mnuImperial", 1, "Imperial", "Use English measurements"},
      {&menus.Metric, "mnuMetric", 1, "Metric", "Use Metric measurements"},
      {&menus.Separator[9], "mnuSeparator9", 1, "-", ""},
      {&menus.ViewOptions, "mnuViewOptions", 1, "&Options...", "Configure Pitchcraft"},
      {&menus.View, "mnuView", 0, "&View", ""},
      {&menus.ViewToolbar, "mnuViewToolbar", 1, "&Toolbar", "Show or hide the toolbar."},
      {&menus.ViewStatusBar, "mnuViewStatusBar", 1, "Status &Bar", "Show or hide the status bar."},
      {&menus.Tools, "mnuTools", 0, "FtInch &Calculator", "FtInch Calculator"},
      {&menus.Dutch, "mnuDutch", 0, "&Dutch Hip", ""},
      {&menus.DutchLedger[0], "mnuDutchLedger(0)", 1, "Ledger", "Include Ledger Board in calculations."},
      {&menus.DutchLedger[1], "mnuDutchLedger(1)", 1, "No Ledger", "Don't include Ledger Board in calculations."},
      {&menus.HipLayout, "mnuHipLayout", 0, "&Hip Layout", ""},
      {&menus.HipLayoutCenter, "mnuHipLayoutCenter", 1, "Layout Jacks O.C. from Center", "Layout jacks from center working out to wall corners."},
      {&menus.HipLayoutCorners, "mnuHipLayoutCorners", 1, "Layout Jacks O.C. from Wall Corners", "Layout jacks centered from outside wall corners working to center."},
      {&menus.HipLayoutCornersFlush, "mnuHipLayoutCornersFlush", 1, "Layout Jacks Flush from Wall Corners", "Layout jacks flush from outside wall corners working to center."},
      {&menus.Separator[16], "mnuSeparator16", 1, "-", ""},
      {&menus.HipLayoutJackMeasurement, "mnuHipLayoutJackMeasurement", 1, "Include Overhang in Jack Measurements", "Include overhang in jack rafter measurements."},
      {&menus.Separator[17], "mnuSeparator17", 1, "-", ""},
      {&menus.HipLayoutOverhangsEqual, "mnuHipLayoutOverhangsEqual", 1, "Make Overhangs Equal", "Adjust calculations to make overhangs equal."},
      {&menus.Gambrel, "mnuGambrel", 0, "&Gambrel Settings", ""},
      {&menus.GambrelRegular, "mnuGambrelRegular", 1, "Regular Gambrel", "Calculate a regular gambrel roof (slopes are fixed)."},
      {&menus.GambrelCustom, "mnuGambrelCustom", 1, "Custom Gambrel", "Calculate a custom gambrel roof."},
      {&menus.Separator[20], "mnuSeparator20", 1, "-", ""},
      {&menus.GambrelPurlins, "mnuGambrelPurlins", 1, "Purlins", "Use purlins at joints (purlins are the same size as the ridge board)."},
      {&menus.GambrelWallSupport, "mnuGambrelWallSupport", 1, "Wall Supported (Flush)", "Upper roof is supported on walls."},
      {&menus.GambrelWallSupportRaised, "mnuGambrelWallSupportRaised", 1, "Wall Supported (Raised)", "Upper roof is supported on walls and is raised."},
      {&menus.Separator[21], "mnuSeparator21", 1, "-", ""},
      {&menus.GambrelPlumb, "mnuGambrelPlumb", 1, "Plumb Cut Fascia", "Select plumb cut fascia."},
      {&menus.GambrelSquare, "mnuGambrelSquare", 1, "Square Cut Fascia", "Select square cut fascia."},
      {&menus.GambrelLevel, "mnuGambrelLevel", 1, "Level Cut Fascia", "Select level cut fascia."},
      {&menus.Help, "mnuHelp", 0, "&Help", ""},
      {&menus.Helpcontents, "mnuHelpcontents", 1, "&Contents...", ""},
      {&menus.HelpGlossary, "mnuHelpGlossary", 1, "&Glossary...", ""},
      {&menus.HelpSearch, "mnuHelpSearch", 1, "&Search...", ""},
      {&menus.HelpTips, "mnuHelpTips", 1, "&Tip of the Day", ""},
      {&menus.Separator[10], "mnuSeparator10", 1, "-", ""},
      {&menus.HelpAbout, "mnuHelpAbout", 1, "&About Pitchcraft...", ""},
      {&menus.PopUp1, "mnuPopUp1", 0, "PopUp1", ""},
      {&menus.PopUp1PrintSetup, "mnuPopUp1PrintSetup", 1, "Page Setup...", "Setup margins, page size, etc."},
      {&menus.PopUp1Print, "mnuPopUp1Print", 1, "Print...", "Print the current drawing."},
      {&menus.Separator[11], "mnuSeparator11", 1, "-", ""},
      {&menus.PopUp1DXFSettings, "mnuPopUp1DXFSettings", 1, "DXF Settings...", "Set DXF options."},
      {&menus.PopUp1DXF, "mnuPopUp1DXF", 1, "Export DXF...", "Export the current drawing as a DXF file."},
      {&menus.Separator[12], "mnuSeparator12", 1, "-", ""},
      {&menus.PopUp1PlumbCut, "mnuPopUp1PlumbCut", 1, "Plumb Cut Fascia", "Select plumb cut fascia."},
      {&menus.PopUp1SquareCut, "mnuPopUp1SquareCut", 1, "Square Cut Fascia", "Select square cut fascia."},
      {&menus.Separator[13], "mnuSeparator13", 1, "-", ""},
      {&menus.PopUp1Ledger[0], "mnuPopUp1Ledger(0)", 1, "Ledger", "Include Ledger Board in calculations."},
      {&menus.PopUp1Ledger[1], "mnuPopUp1Ledger(1)", 1, "No Ledger", "Don't include Ledger Board in calculations."},
      {&menus.Separator[15], "mnuSeparator15", 1, "-", ""},
      {&menus.PopUp1LayoutCenter, "mnuPopUp1LayoutCenter", 1, "Layout Jacks O.C. from Center", "Layout jacks from center working out to wall corners."},
      {&menus.PopUp1LayoutCorner, "mnuPopUp1LayoutCorner", 1, "Layout Jacks O.C. from Wall Corners", "Layout jacks centered from outside wall corners working to center."},
      {&menus.PopUp1LayoutCornerFlush, "mnuPopUp1LayoutCornerFlush", 1, "Layout Jacks Flush from Wall Corners", "Layout jacks flush from outside wall corners working to center."},
      {&menus.Separator[18], "mnuSeparator18", 1, "-", ""},
      {&menus.PopUp1JackMeasurement, "mnuPopUp1JackMeasurement", 1, "Include Overhang in Jack Measurements", "Include overhang in jack rafter measurements."},
      {&menus.Separator[19], "mnuSeparator19", 1, "-", ""},
      {&menus.PopUp1OverhangsEqual, "mnuPopUp1OverhangsEqual", 1, "Make Overhangs Equal", "Adjust calculations to make overhangs equal."},
      {&menus.PopUp2, "mnuPopUp2", 0, "PopUp2", ""},
      {&menus.PopUp2PrintSetup, "mnuPopUp2PrintSetup", 1, "Page Setup...", "Setup margins, page size, etc."},
      {&menus.PopUp2Print, "mnuPopUp2Print", 1, "Print...", "Print the current drawing."},
      {&menus.Separator[22], "mnuSeparator22", 1, "-", ""},
      {&menus.PopUp2DXFSettings, "mnuPopUp2DXFSettings", 1, "DXF Settings...", "Set DXF options."},
      {&menus.PopUp2DXF, "mnuPopUp2DXF", 1, "Export DXF...", "Export the current drawing as a DXF file."},
      {&menus.Separator[23], "mnuSeparator23", 1, "-", ""},
      {&menus.PopUp2PlumbCut, "mnuPopUp2PlumbCut", 1, "Plumb Cut Fascia", "Select plumb cut fascia."},
      {&menus.PopUp2SquareCut, "mnuPopUp2SquareCut", 1, "Square Cut Fascia", "Select square cut fascia."},
      {&menus.PopUp2LevelCut, "mnuPopUp2LevelCut", 1, "Level Cut Fascia", "Select level cut fascia."},
      {&menus.Separator[24], "mnuSeparator24", 1, "-", ""},
      {&menus.PopUp2GambrelRegular, "mnuPopup2GambrelRegular", 1, "Regular Gambrel", "Calculate a regular gambrel roof (slopes are fixed)."},
      {&menus.PopUp2GambrelCustom, "mnuPopup2GambrelCustom", 1, "Custom Gambrel", "Calculate a custom gambrel roof."},
      {&menus.Separator[25], "mnuSeparator25", 1, "-", ""},
      {&menus.PopUp2GambrelPurlins, "mnuPopup2GambrelPurlins", 1, "Purlins", "Use purlins at joints (purlins are the same size as the ridge board)."},
      {&menus.PopUp2GambrelWallSupport, "mnuPopup2GambrelWallSupport", 1, "Wall Supported (Flush)", "Upper roof is supported on walls."},
      {&menus.PopUp2GambrelWallSupportRaised, "mnuPopup2GambrelWallSupportRaised", 1, "Wall Supported (Raised)", "Upper roof is supported on walls and is raised."},
      {&menus.Spin, "mnuSpin", 0, "Spin", ""},
      {&menus.SpinIncrement, "mnuSpinIncrement", 1, "Increment Amount", "Enter a new increment amount."},
      {&menus.Separator[14], "mnuSeparator14", 1, "-", ""},
      {&menus.SpinCancel, "mnuSpinCancel", 1, "Cancel", "Cancel this menu"},
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
  for (MenuItem* popup : {&PopUp1, &PopUp2, &Spin}) popup->Visible = false;
  for (MenuItem& recent : FileMRU) recent.Visible = false;
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
  return &holder == &PopUp1 || &holder == &PopUp2 || &holder == &Spin;
}

}  // namespace pitchcraft
