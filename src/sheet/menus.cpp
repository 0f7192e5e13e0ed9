#include "sheet/menus.h"

namespace pitchcraft {
namespace {

using ItemOf = MenuItem& (*)(Menus&);

template <MenuItem Menus::*Item>
MenuItem& One(Menus& menus) {
  return menus.*Item;
}
template <auto Array, std::size_t Index>
MenuItem& OneOf(Menus& menus) {
  return (menus.*Array)[Index];
}

struct MenuRow {
  ItemOf item;
  const char* name;
  int level;
  const char* caption;
  const char* statusText;
};

// clang-format off
constexpr MenuRow kRows[] = {
      // item, name, level, caption, text of the status bar
      {One<&Menus::File>, "mnuFile", 0, "&File", ""},
      {One<&Menus::FileNew>, "mnuFileNew", 1, "&New", "Start a new project."},
      {One<&Menus::FileOpen>, "mnuFileOpen", 1, "&Open...", "Open an existing project."},
      {OneOf<&Menus::Separator, 1>, "mnuSeparator1", 1, "-", ""},
      {One<&Menus::FileSave>, "mnuFileSave", 1, "&Save", "Save the current project."},
      {One<&Menus::FileSaveAs>, "mnufileSaveAs", 1, "Save &As...", "Save and rename the current project."},
      {One<&Menus::FileProjectName>, "mnuFileProjectName", 1, "Project Name...", "Set the current project name."},
      {OneOf<&Menus::Separator, 2>, "mnuSeparator2", 1, "-", ""},
      {One<&Menus::FileExportMetafile>, "mnuFileExportMetafile", 1, "Export Metafile...", "Export the current drawing as a Windows metafile."},
      {One<&Menus::FileExportDXF>, "mnuFileExportDXF", 1, "Export DXF...", "Export the current drawing as a DXF file."},
      {One<&Menus::FileDXFSettings>, "mnuFileDXFSettings", 1, "DXF Settings...", "Set DXF options."},
      {OneOf<&Menus::Separator, 3>, "mnuSeparator3", 1, "-", ""},
      {One<&Menus::FilePageSetup>, "mnuFilePageSetup", 1, "Page Set&up...", "Setup margins, page size, etc."},
      {One<&Menus::FilePrint>, "mnuFilePrint", 1, "&Print...", "Print the current drawing."},
      {OneOf<&Menus::Separator, 4>, "mnuSeparator4", 1, "-", ""},
      {OneOf<&Menus::FileMRU, 0>, "mnuFileMRU(0)", 1, "", "Most recent files"},
      {OneOf<&Menus::FileMRU, 1>, "mnuFileMRU(1)", 1, "", "Most recent files"},
      {OneOf<&Menus::FileMRU, 2>, "mnuFileMRU(2)", 1, "", "Most recent files"},
      {OneOf<&Menus::FileMRU, 3>, "mnuFileMRU(3)", 1, "", "Most recent files"},
      {OneOf<&Menus::Separator, 5>, "mnuSeparator5", 1, "-", ""},
      {One<&Menus::FileExit>, "mnuFileExit", 1, "E&xit", "Exit Pitchcraft"},
      {One<&Menus::Settings>, "mnuSettings", 0, "&Settings", ""},
      {One<&Menus::SettingsHeelLocked>, "mnuSettingsHeelLocked", 1, "Heel Locked", "Lock or unlock the current heel height."},
      {One<&Menus::SettingsSeatLocked>, "mnuSettingsSeatLocked", 1, "Seat Locked", "Lock or unlock the current seat cut length."},
      {OneOf<&Menus::Separator, 6>, "mnuSeparator6", 1, "-", ""},
      {One<&Menus::SettingsPlumbCut>, "mnuSettingsPlumbCut", 1, "&Plumb Cut Fascia", "Select plumb cut fascia."},
      {One<&Menus::SettingsSquareCut>, "mnuSettingsSquareCut", 1, "&Square Cut Fascia", "Select square cut fascia."},
      {One<&Menus::SettingsLevelCut>, "mnuSettingsLevelCut", 1, "&Level Cut Fascia", "Select level cut fascia."},
      {OneOf<&Menus::Separator, 7>, "mnuSeparator7", 1, "-", ""},
      {One<&Menus::SettingsRiseOverRun>, "mnuSettingsRiseOverRun", 1, "Rise over Run", "Enter slope as Rise over Run"},
      {One<&Menus::SettingsDegrees>, "mnuSettingsDegrees", 1, "Degrees", "Enter slope as Degrees"},
      {OneOf<&Menus::Separator, 8>, "mnuSeparator8", 1, "-", ""},
      {One<&Menus::Imperial>, "mnuImperial", 1, "Imperial", "Use English measurements"},
      {One<&Menus::Metric>, "mnuMetric", 1, "Metric", "Use Metric measurements"},
      {OneOf<&Menus::Separator, 9>, "mnuSeparator9", 1, "-", ""},
      {One<&Menus::ViewOptions>, "mnuViewOptions", 1, "&Options...", "Configure Pitchcraft"},
      {One<&Menus::View>, "mnuView", 0, "&View", ""},
      {One<&Menus::ViewToolbar>, "mnuViewToolbar", 1, "&Toolbar", "Show or hide the toolbar."},
      {One<&Menus::ViewStatusBar>, "mnuViewStatusBar", 1, "Status &Bar", "Show or hide the status bar."},
      {One<&Menus::Tools>, "mnuTools", 0, "FtInch &Calculator", "FtInch Calculator"},
      {One<&Menus::Dutch>, "mnuDutch", 0, "&Dutch Hip", ""},
      {OneOf<&Menus::DutchLedger, 0>, "mnuDutchLedger(0)", 1, "Ledger", "Include Ledger Board in calculations."},
      {OneOf<&Menus::DutchLedger, 1>, "mnuDutchLedger(1)", 1, "No Ledger", "Don't include Ledger Board in calculations."},
      {One<&Menus::HipLayout>, "mnuHipLayout", 0, "&Hip Layout", ""},
      {One<&Menus::HipLayoutCenter>, "mnuHipLayoutCenter", 1, "Layout Jacks O.C. from Center", "Layout jacks from center working out to wall corners."},
      {One<&Menus::HipLayoutCorners>, "mnuHipLayoutCorners", 1, "Layout Jacks O.C. from Wall Corners", "Layout jacks centered from outside wall corners working to center."},
      {One<&Menus::HipLayoutCornersFlush>, "mnuHipLayoutCornersFlush", 1, "Layout Jacks Flush from Wall Corners", "Layout jacks flush from outside wall corners working to center."},
      {OneOf<&Menus::Separator, 16>, "mnuSeparator16", 1, "-", ""},
      {One<&Menus::HipLayoutJackMeasurement>, "mnuHipLayoutJackMeasurement", 1, "Include Overhang in Jack Measurements", "Include overhang in jack rafter measurements."},
      {OneOf<&Menus::Separator, 17>, "mnuSeparator17", 1, "-", ""},
      {One<&Menus::HipLayoutOverhangsEqual>, "mnuHipLayoutOverhangsEqual", 1, "Make Overhangs Equal", "Adjust calculations to make overhangs equal."},
      {One<&Menus::Gambrel>, "mnuGambrel", 0, "&Gambrel Settings", ""},
      {One<&Menus::GambrelRegular>, "mnuGambrelRegular", 1, "Regular Gambrel", "Calculate a regular gambrel roof (slopes are fixed)."},
      {One<&Menus::GambrelCustom>, "mnuGambrelCustom", 1, "Custom Gambrel", "Calculate a custom gambrel roof."},
      {OneOf<&Menus::Separator, 20>, "mnuSeparator20", 1, "-", ""},
      {One<&Menus::GambrelPurlins>, "mnuGambrelPurlins", 1, "Purlins", "Use purlins at joints (purlins are the same size as the ridge board)."},
      {One<&Menus::GambrelWallSupport>, "mnuGambrelWallSupport", 1, "Wall Supported (Flush)", "Upper roof is supported on walls."},
      {One<&Menus::GambrelWallSupportRaised>, "mnuGambrelWallSupportRaised", 1, "Wall Supported (Raised)", "Upper roof is supported on walls and is raised."},
      {OneOf<&Menus::Separator, 21>, "mnuSeparator21", 1, "-", ""},
      {One<&Menus::GambrelPlumb>, "mnuGambrelPlumb", 1, "Plumb Cut Fascia", "Select plumb cut fascia."},
      {One<&Menus::GambrelSquare>, "mnuGambrelSquare", 1, "Square Cut Fascia", "Select square cut fascia."},
      {One<&Menus::GambrelLevel>, "mnuGambrelLevel", 1, "Level Cut Fascia", "Select level cut fascia."},
      {One<&Menus::Help>, "mnuHelp", 0, "&Help", ""},
      {One<&Menus::Helpcontents>, "mnuHelpcontents", 1, "&Contents...", ""},
      {One<&Menus::HelpGlossary>, "mnuHelpGlossary", 1, "&Glossary...", ""},
      {One<&Menus::HelpSearch>, "mnuHelpSearch", 1, "&Search...", ""},
      {One<&Menus::HelpTips>, "mnuHelpTips", 1, "&Tip of the Day", ""},
      {OneOf<&Menus::Separator, 10>, "mnuSeparator10", 1, "-", ""},
      {One<&Menus::HelpAbout>, "mnuHelpAbout", 1, "&About Pitchcraft...", ""},
      {One<&Menus::PopUp1>, "mnuPopUp1", 0, "PopUp1", ""},
      {One<&Menus::PopUp1PrintSetup>, "mnuPopUp1PrintSetup", 1, "Page Setup...", "Setup margins, page size, etc."},
      {One<&Menus::PopUp1Print>, "mnuPopUp1Print", 1, "Print...", "Print the current drawing."},
      {OneOf<&Menus::Separator, 11>, "mnuSeparator11", 1, "-", ""},
      {One<&Menus::PopUp1DXFSettings>, "mnuPopUp1DXFSettings", 1, "DXF Settings...", "Set DXF options."},
      {One<&Menus::PopUp1DXF>, "mnuPopUp1DXF", 1, "Export DXF...", "Export the current drawing as a DXF file."},
      {OneOf<&Menus::Separator, 12>, "mnuSeparator12", 1, "-", ""},
      {One<&Menus::PopUp1PlumbCut>, "mnuPopUp1PlumbCut", 1, "Plumb Cut Fascia", "Select plumb cut fascia."},
      {One<&Menus::PopUp1SquareCut>, "mnuPopUp1SquareCut", 1, "Square Cut Fascia", "Select square cut fascia."},
      {OneOf<&Menus::Separator, 13>, "mnuSeparator13", 1, "-", ""},
      {OneOf<&Menus::PopUp1Ledger, 0>, "mnuPopUp1Ledger(0)", 1, "Ledger", "Include Ledger Board in calculations."},
      {OneOf<&Menus::PopUp1Ledger, 1>, "mnuPopUp1Ledger(1)", 1, "No Ledger", "Don't include Ledger Board in calculations."},
      {OneOf<&Menus::Separator, 15>, "mnuSeparator15", 1, "-", ""},
      {One<&Menus::PopUp1LayoutCenter>, "mnuPopUp1LayoutCenter", 1, "Layout Jacks O.C. from Center", "Layout jacks from center working out to wall corners."},
      {One<&Menus::PopUp1LayoutCorner>, "mnuPopUp1LayoutCorner", 1, "Layout Jacks O.C. from Wall Corners", "Layout jacks centered from outside wall corners working to center."},
      {One<&Menus::PopUp1LayoutCornerFlush>, "mnuPopUp1LayoutCornerFlush", 1, "Layout Jacks Flush from Wall Corners", "Layout jacks flush from outside wall corners working to center."},
      {OneOf<&Menus::Separator, 18>, "mnuSeparator18", 1, "-", ""},
      {One<&Menus::PopUp1JackMeasurement>, "mnuPopUp1JackMeasurement", 1, "Include Overhang in Jack Measurements", "Include overhang in jack rafter measurements."},
      {OneOf<&Menus::Separator, 19>, "mnuSeparator19", 1, "-", ""},
      {One<&Menus::PopUp1OverhangsEqual>, "mnuPopUp1OverhangsEqual", 1, "Make Overhangs Equal", "Adjust calculations to make overhangs equal."},
      {One<&Menus::PopUp2>, "mnuPopUp2", 0, "PopUp2", ""},
      {One<&Menus::PopUp2PrintSetup>, "mnuPopUp2PrintSetup", 1, "Page Setup...", "Setup margins, page size, etc."},
      {One<&Menus::PopUp2Print>, "mnuPopUp2Print", 1, "Print...", "Print the current drawing."},
      {OneOf<&Menus::Separator, 22>, "mnuSeparator22", 1, "-", ""},
      {One<&Menus::PopUp2DXFSettings>, "mnuPopUp2DXFSettings", 1, "DXF Settings...", "Set DXF options."},
      {One<&Menus::PopUp2DXF>, "mnuPopUp2DXF", 1, "Export DXF...", "Export the current drawing as a DXF file."},
      {OneOf<&Menus::Separator, 23>, "mnuSeparator23", 1, "-", ""},
      {One<&Menus::PopUp2PlumbCut>, "mnuPopUp2PlumbCut", 1, "Plumb Cut Fascia", "Select plumb cut fascia."},
      {One<&Menus::PopUp2SquareCut>, "mnuPopUp2SquareCut", 1, "Square Cut Fascia", "Select square cut fascia."},
      {One<&Menus::PopUp2LevelCut>, "mnuPopUp2LevelCut", 1, "Level Cut Fascia", "Select level cut fascia."},
      {OneOf<&Menus::Separator, 24>, "mnuSeparator24", 1, "-", ""},
      {One<&Menus::PopUp2GambrelRegular>, "mnuPopup2GambrelRegular", 1, "Regular Gambrel", "Calculate a regular gambrel roof (slopes are fixed)."},
      {One<&Menus::PopUp2GambrelCustom>, "mnuPopup2GambrelCustom", 1, "Custom Gambrel", "Calculate a custom gambrel roof."},
      {OneOf<&Menus::Separator, 25>, "mnuSeparator25", 1, "-", ""},
      {One<&Menus::PopUp2GambrelPurlins>, "mnuPopup2GambrelPurlins", 1, "Purlins", "Use purlins at joints (purlins are the same size as the ridge board)."},
      {One<&Menus::PopUp2GambrelWallSupport>, "mnuPopup2GambrelWallSupport", 1, "Wall Supported (Flush)", "Upper roof is supported on walls."},
      {One<&Menus::PopUp2GambrelWallSupportRaised>, "mnuPopup2GambrelWallSupportRaised", 1, "Wall Supported (Raised)", "Upper roof is supported on walls and is raised."},
      {One<&Menus::Spin>, "mnuSpin", 0, "Spin", ""},
      {One<&Menus::SpinIncrement>, "mnuSpinIncrement", 1, "Increment Amount", "Enter a new increment amount."},
      {OneOf<&Menus::Separator, 14>, "mnuSeparator14", 1, "-", ""},
      {One<&Menus::SpinCancel>, "mnuSpinCancel", 1, "Cancel", "Cancel this menu"},
};
// clang-format on

template <typename Item, typename MenusType>
std::vector<Item*> ItemsOf(MenusType& menus) {
  std::vector<Item*> items;
  items.reserve(std::size(kRows));
  // A row only finds its item; whether it may be written to is the caller's affair.
  for (const MenuRow& row : kRows) items.push_back(&row.item(const_cast<Menus&>(menus)));
  return items;
}

template <typename Item, typename MenusType>
Item* FindIn(MenusType& menus, std::string_view name) {
  for (const MenuRow& row : kRows) {
    if (row.name == name) return &row.item(const_cast<Menus&>(menus));
  }
  return nullptr;
}

template <typename Item, typename MenusType>
std::vector<Item*> UnderIn(MenusType& menus, const MenuItem& holder) {
  std::vector<Item*> found;
  bool inside = false;
  for (Item* item : menus.Items()) {
    if (item->Level == 0) inside = item == &holder;
    if (inside && item->Level > 0) found.push_back(item);
  }
  return found;
}

}  // namespace

Menus::Menus() {
  for (const MenuRow& row : kRows) {
    MenuItem& item = row.item(*this);
    item.Name = row.name;
    item.Caption = row.caption;
    item.StatusText = row.statusText;
    item.Level = row.level;
  }
  // The popups hang on hidden items of the bar.
  for (MenuItem* popup : {&PopUp1, &PopUp2, &Spin}) popup->Visible = false;
  for (MenuItem& recent : FileMRU) recent.Visible = false;
}

std::vector<MenuItem*> Menus::Items() { return ItemsOf<MenuItem>(*this); }
std::vector<const MenuItem*> Menus::Items() const { return ItemsOf<const MenuItem>(*this); }
MenuItem* Menus::Find(std::string_view name) { return FindIn<MenuItem>(*this, name); }
const MenuItem* Menus::Find(std::string_view name) const { return FindIn<const MenuItem>(*this, name); }
std::vector<MenuItem*> Menus::ItemsUnder(const MenuItem& holder) { return UnderIn<MenuItem>(*this, holder); }
std::vector<const MenuItem*> Menus::ItemsUnder(const MenuItem& holder) const {
  return UnderIn<const MenuItem>(*this, holder);
}

const MenuItem* Menus::HolderOf(const MenuItem& item) const {
  const MenuItem* holder = nullptr;
  for (const MenuItem* candidate : Items()) {
    if (candidate->Level == 0) holder = candidate;
    if (candidate == &item) break;
  }
  return holder == &item ? nullptr : holder;
}

bool Menus::IsPopup(const MenuItem& holder) const {
  return &holder == &PopUp1 || &holder == &PopUp2 || &holder == &Spin;
}

}  // namespace pitchcraft
