#include "document/menu_actions.h"

#include <algorithm>

#include "design/questions.h"
#include "document/commands.h"
#include "document/files.h"
#include "document/forms.h"
#include "document/menu_forms.h"
#include "document/output_files.h"
#include "document/pages.h"
#include "document/print.h"
#include "document/side_programs.h"
#include "document/units.h"
#include "roofs/roof_types.h"
#include "roofs/switch_roof.h"

namespace pitchcraft {
namespace {

/// Work of the whole document: files, forms, the window. It reports its own errors.
using Work = void (*)(Document& document, int index);

/// An item runs a step on the design, or work of the document. Items of the popups are twins of those of the
/// bar.
struct MenuRow {
  std::string_view item;
  const char* title = nullptr;  ///< of the step's message
  Step step = nullptr;
  int index = 0;
  Work work = nullptr;
};

constexpr MenuRow Does(std::string_view item, Work work, int index = 0) {
  return {item, nullptr, nullptr, index, work};
}

constexpr const char* kCut = "mnuSettingsPlumbCut_Click";
constexpr const char* kLayout = "mnuHipLayout_Click";
constexpr const char* kGambrel = "mnuGambrelRegular_Click";
constexpr const char* kSupport = "mnuGambrelPurlins_Click";
constexpr const char* kLedger = "mnuDutchLedger_Click";
constexpr const char* kSlopes = "mnuSettingsRiseOverRun_Click";
constexpr int kPlumb = static_cast<int>(FasciaCut::kPlumb);
constexpr int kSquare = static_cast<int>(FasciaCut::kSquare);
constexpr int kLevel = static_cast<int>(FasciaCut::kLevel);
constexpr int kCenter = static_cast<int>(JackLayout::kCenter);
constexpr int kCorners = static_cast<int>(JackLayout::kCorners);
constexpr int kFlush = static_cast<int>(JackLayout::kCornersFlush);
constexpr int kRegular = static_cast<int>(GambrelKind::kRegular);
constexpr int kCustom = static_cast<int>(GambrelKind::kCustom);
constexpr int kPurlins = static_cast<int>(GambrelSupport::kPurlins);
constexpr int kWall = static_cast<int>(GambrelSupport::kWall);
constexpr int kRaised = static_cast<int>(GambrelSupport::kRaisedWall);

// clang-format off
constexpr MenuRow kRows[] = {
    Does("mnuFileNew", &NewProject),
    Does("mnuFileOpen", &OpenProjectByDialog),
    Does("mnuFileSave", &SaveProjectAgain),
    Does("mnufileSaveAs", &SaveProjectByDialog),
    Does("mnuFileProjectName", &NameProject),
    Does("mnuFileMRU(0)", &OpenRecentProject, 0),
    Does("mnuFileMRU(1)", &OpenRecentProject, 1),
    Does("mnuFileMRU(2)", &OpenRecentProject, 2),
    Does("mnuFileMRU(3)", &OpenRecentProject, 3),
    Does("mnuFileExportMetafile", &ExportMetafileByMenu),
    Does("mnuFileExportDXF", &ExportDxfByDialog),
    Does("mnuPopUp1DXF", &ExportDxfByDialog),
    Does("mnuPopUp2DXF", &ExportDxfByDialog),
    Does("mnuFilePageSetup", &SetUpPage),
    Does("mnuPopUp1PrintSetup", &SetUpPage),
    Does("mnuPopUp2PrintSetup", &SetUpPage),
    Does("mnuFilePrint", &PrintPageShown),
    Does("mnuPopUp1Print", &PrintPageShown),
    Does("mnuPopUp2Print", &PrintPageShown),
    Does("mnuFileExit", &AskToClose),
    {"mnuSettingsHeelLocked", "mnuSettingsHeelLocked_Click", &ToggleHeelLock},
    {"mnuSettingsSeatLocked", "mnuSettingsSeatLocked_Click", &ToggleSeatLock},
    {"mnuSettingsPlumbCut", kCut, &ChooseFasciaCut, kPlumb},
    {"mnuGambrelPlumb", kCut, &ChooseFasciaCut, kPlumb},
    {"mnuPopUp1PlumbCut", kCut, &ChooseFasciaCut, kPlumb},
    {"mnuPopUp2PlumbCut", kCut, &ChooseFasciaCut, kPlumb},
    {"mnuSettingsSquareCut", kCut, &ChooseFasciaCut, kSquare},
    {"mnuGambrelSquare", kCut, &ChooseFasciaCut, kSquare},
    {"mnuPopUp1SquareCut", kCut, &ChooseFasciaCut, kSquare},
    {"mnuPopUp2SquareCut", kCut, &ChooseFasciaCut, kSquare},
    {"mnuSettingsLevelCut", kCut, &ChooseFasciaCut, kLevel},
    {"mnuGambrelLevel", kCut, &ChooseFasciaCut, kLevel},
    {"mnuPopUp2LevelCut", kCut, &ChooseFasciaCut, kLevel},
    {"mnuSettingsRiseOverRun", kSlopes, &ChooseSlopeMode, 0},
    {"mnuSettingsDegrees", kSlopes, &ChooseSlopeMode, 1},
    Does("mnuImperial", &ToggleUnits),
    Does("mnuMetric", &ToggleUnits),
    Does("mnuViewToolbar", &ToggleToolBar),
    Does("mnuViewStatusBar", &ToggleStatusBar),
    Does("mnuTools", &OpenCalculator),
    Does("mnuHelpcontents", &ShowHelpContents),
    Does("mnuHelpGlossary", &ShowHelpGlossary),
    Does("mnuHelpSearch", &ShowHelpSearch),
    {"mnuHipLayoutCenter", kLayout, &ChooseHipLayout, kCenter},
    {"mnuPopUp1LayoutCenter", kLayout, &ChooseHipLayout, kCenter},
    {"mnuHipLayoutCorners", kLayout, &ChooseHipLayout, kCorners},
    {"mnuPopUp1LayoutCorner", kLayout, &ChooseHipLayout, kCorners},
    {"mnuHipLayoutCornersFlush", kLayout, &ChooseHipLayout, kFlush},
    {"mnuPopUp1LayoutCornerFlush", kLayout, &ChooseHipLayout, kFlush},
    {"mnuHipLayoutJackMeasurement", kLayout, &ToggleJackMeasurement},
    {"mnuPopUp1JackMeasurement", kLayout, &ToggleJackMeasurement},
    {"mnuHipLayoutOverhangsEqual", "mnuHipLayoutOverhangsEqual_Click", &ToggleOverhangsEqual},
    {"mnuPopUp1OverhangsEqual", "mnuHipLayoutOverhangsEqual_Click", &ToggleOverhangsEqual},
    {"mnuDutchLedger(0)", kLedger, &ChooseLedger, 0},
    {"mnuPopUp1Ledger(0)", kLedger, &ChooseLedger, 0},
    {"mnuDutchLedger(1)", kLedger, &ChooseLedger, 1},
    {"mnuPopUp1Ledger(1)", kLedger, &ChooseLedger, 1},
    {"mnuGambrelRegular", kGambrel, &ChooseGambrel, kRegular},
    {"mnuPopup2GambrelRegular", kGambrel, &ChooseGambrel, kRegular},
    {"mnuGambrelCustom", kGambrel, &ChooseGambrel, kCustom},
    {"mnuPopup2GambrelCustom", kGambrel, &ChooseGambrel, kCustom},
    {"mnuGambrelPurlins", kSupport, &ChooseSupport, kPurlins},
    {"mnuPopup2GambrelPurlins", kSupport, &ChooseSupport, kPurlins},
    {"mnuGambrelWallSupport", kSupport, &ChooseSupport, kWall},
    {"mnuPopup2GambrelWallSupport", kSupport, &ChooseSupport, kWall},
    {"mnuGambrelWallSupportRaised", kSupport, &ChooseSupport, kRaised},
    {"mnuPopup2GambrelWallSupportRaised", kSupport, &ChooseSupport, kRaised},
    Does("mnuFileDXFSettings", &ShowDxfSettings),
    Does("mnuPopUp1DXFSettings", &ShowDxfSettings),
    Does("mnuPopUp2DXFSettings", &ShowDxfSettings),
    Does("mnuViewOptions", &ShowOptions),
    Does("mnuHelpTips", &ShowTips),
    Does("mnuHelpAbout", &ShowAbout),
    Does("mnuSpinIncrement", &AskForIncrement),
    Does("mnuSpinCancel", &DoNothing),
};
// clang-format on

const MenuRow* RowOf(const MenuItem& item) {
  const auto* row = std::find_if(std::begin(kRows), std::end(kRows),
                                 [&](const MenuRow& candidate) { return candidate.item == item.Name; });
  return row == std::end(kRows) ? nullptr : row;
}

/// A tool button that does what a menu item does.
struct ToolRow {
  std::string_view key;
  std::string_view item;
};
constexpr ToolRow kTools[] = {
    {"New", "mnuFileNew"},
    {"Open", "mnuFileOpen"},
    {"Save", "mnuFileSave"},
    {"Print", "mnuFilePrint"},
    {"Plumb", "mnuSettingsPlumbCut"},
    {"Square", "mnuSettingsSquareCut"},
    {"Level", "mnuSettingsLevelCut"},
};

const MenuItem* TwinOf(const Menus& menus, std::string_view key) {
  for (const ToolRow& row : kTools) {
    if (row.key == key) return menus.Find(row.item);
  }
  return nullptr;
}

}  // namespace

bool ClickMenu(Document& document, const MenuItem& item) {
  const MenuRow* row = RowOf(item);
  if (row == nullptr) return false;
  if (row->step != nullptr) {
    document.Act(row->title, row->step, row->index);
  } else {
    row->work(document, row->index);
  }
  return true;
}

void DisableItemsWithoutAction(Design& design) {
  for (MenuItem* item : design.menus.Items()) {
    const bool holder = item->Level == 0 && !design.menus.ItemsUnder(*item).empty();
    if (!holder && !item->IsSeparator() && RowOf(*item) == nullptr) item->Enabled = false;
  }
}

bool IsToolButtonEnabled(const Document& document, const ToolButton& button) {
  const bool isCut = button.Key == "Plumb" || button.Key == "Square" || button.Key == "Level";
  const MenuItem* twin = TwinOf(document.design.menus, button.Key);
  return isCut || twin == nullptr || twin->Enabled;
}

void PressToolButton(Document& document, std::string_view key) {
  if (const MenuItem* twin = TwinOf(document.design.menus, key)) {
    ClickMenu(document, *twin);
    return;
  }
  const ToolButton* button = document.design.toolBar.Find(key);
  if (button == nullptr || button->RoofListIndex < 0) return;
  const int row = button->RoofListIndex;
  document.Act("tbToolBar_ButtonClick", [row](Design& design, Reply& reply) {
    design.sheet.RoofList.SetListIndex(row);
    if (RowShown(design) != 0) ShowRoof(design, 0);
    SwitchRoof(design, reply, *RoofTypes()[static_cast<std::size_t>(row)]);
  });
}

}  // namespace pitchcraft
