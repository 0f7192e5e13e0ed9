#include "item_rows.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTextBrowser>
#include <algorithm>

#include "../support/golden.h"
#include "dialog_hand.h"
#include "storage/settings.h"

namespace pitchcraft::testing {
namespace {

// --- Dialogs
// ------------------------------------------------------------------------------------------------------

void Name(QFileDialog& box, const std::string& path) {
  box.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
  const bool saves = box.acceptMode() == QFileDialog::AcceptSave;
  auto* buttons = box.findChild<QDialogButtonBox*>();
  QTest::mouseClick(buttons->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open), Qt::LeftButton);
}

void ClickIn(QWidget& dialog, const char* name) {
  QTest::mouseClick(dialog.findChild<QAbstractButton*>(name), Qt::LeftButton);
}

Deed ShowsOptions(int page) {
  return [page](WholeProgram&, const Pick& pick) {
    int shown = -1;
    const Hand<QDialog> hand([&](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), "frmOptions");
      shown = dialog.findChild<QTabWidget*>("tbsOptions")->currentIndex();
      ClickIn(dialog, "cmdCancel");
    });
    pick();
    EXPECT_EQ(shown, page);
  };
}

Deed ShowsForm(const char* name) {
  return [name](WholeProgram&, const Pick& pick) {
    const Hand<QDialog> hand([&](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), name);
      ClickIn(dialog, "cmdOK");
    });
    pick();
  };
}

Deed ShowsHelp(const char* page) {
  return [page](WholeProgram& program, const Pick& pick) {
    pick();
    ASSERT_NE(program.help.Window(), nullptr);
    EXPECT_TRUE(program.help.Window()->isVisible());
    EXPECT_EQ(program.help.Window()->findChild<QTextBrowser*>()->source().fileName(), page);
    program.help.Window()->close();
  };
}

// --- Files
// --------------------------------------------------------------------------------------------------------

void SavesAsAnotherProject(WholeProgram& program, const Pick& pick) {
  program.Document().project.File = program.PathOf("old.pcf");
  const Hand<QFileDialog> hand([&](QFileDialog& box) { Name(box, program.PathOf("barn")); });
  pick();
  EXPECT_TRUE(std::filesystem::exists(program.PathOf("barn.pcf")));
  EXPECT_FALSE(std::filesystem::exists(program.PathOf("old.pcf")));
  EXPECT_TRUE(program.window.windowTitle().endsWith("barn.pcf]"));
}

void NamesTheProject(WholeProgram& program, const Pick& pick) {
  const Hand<QInputDialog> hand([](QInputDialog& box) {
    QTest::keyClicks(box.findChild<QLineEdit*>(), "Barn");
    QTest::keyClick(&box, Qt::Key_Return);
  });
  pick();
  EXPECT_EQ(program.Document().project.Name, "Barn");
  EXPECT_EQ(program.window.windowTitle(), "Pitchcraft - [Barn]");
}

void ExportsAMetafile(WholeProgram& program, const Pick& pick) {
  pick();
  EXPECT_TRUE(ReadWhole(program.PathOf("export.wmf")).starts_with("\xD7\xCD\xC6\x9A"));
}

void ExportsDxf(WholeProgram& program, const Pick& pick) {
  const Hand<QFileDialog> hand([&](QFileDialog& box) { Name(box, program.PathOf("roof")); });
  pick();
  const std::string file = ReadWhole(program.PathOf("roof.dxf"));
  EXPECT_NE(file.find("SECTION"), std::string::npos);
  EXPECT_NE(file.find("EOF"), std::string::npos);
}

/// A page without a drawing has nothing to print or to export.
Deed Tells(const char* text) {
  return [text](WholeProgram& program, const Pick& pick) {
    EXPECT_FALSE(program.Document().HasFigure());
    const Hand<QMessageBox> hand([&](QMessageBox& box) {
      EXPECT_EQ(box.text(), text);
      QTest::keyClick(&box, Qt::Key_Return);
    });
    pick();
  };
}

void SetsThePageUp(WholeProgram& program, const Pick& pick) {
  const Hand<QDialog> hand([](QDialog& box) {
    EXPECT_EQ(box.objectName(), "PageSetup");
    QTest::keyClick(box.findChild<QComboBox*>("Paper"), Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  pick();
  EXPECT_EQ(program.printer.Setup().Paper, PageSetup::Size::kA4);
}

/// Four projects are there, each with a run of its own; the one saved last stands first.
Deed OpensRecent(int place) {
  return [place](WholeProgram& program, const Pick& pick) {
    for (const int feet : {14, 13, 12, 11}) {
      program.Enter("FtSpan(0)", QString("%1'").arg(feet));
      const std::string file = program.PathOf("run" + std::to_string(feet) + ".pcf");
      EXPECT_TRUE(SaveProject(program.Document(), file));
    }
    program.Enter("FtSpan(0)", "8'");
    pick();
    EXPECT_EQ(program.Box("FtSpan(0)").Entry(), std::to_string(11 + place) + "' 0\"");
    EXPECT_EQ(program.Document().project.Name, "run" + std::to_string(11 + place));
  };
}

void Exits(WholeProgram& program, const Pick& pick) {
  program.Trigger("mnuSettingsDegrees");
  pick();
  QApplication::processEvents();
  EXPECT_FALSE(program.window.isVisible());
  EXPECT_EQ(ReadSettings(program.store).MainWidth, 1000 * 15);
}

// --- Checks
// -------------------------------------------------------------------------------------------------------

/// The window's own mark beside an item of the bar.
bool Ticked(WholeProgram& program, const char* item) { return program.Find<QAction>(item).isChecked(); }

Deed Locks(const char* box, const char* item) {
  return [=](WholeProgram& program, const Pick& pick) {
    EXPECT_FALSE(program.Find<QCheckBox>(box).isChecked());
    pick();
    EXPECT_TRUE(program.Find<QCheckBox>(box).isChecked());
    EXPECT_TRUE(Ticked(program, item));
    const bool heel = program.Document().design.Rafter1.HeelLocked;
    const bool seat = program.Document().design.Rafter1.SeatLocked;
    EXPECT_NE(heel, seat);
    EXPECT_EQ(heel, std::string(box) == "chkHeel(0)");
    pick();
    EXPECT_FALSE(program.Find<QCheckBox>(box).isChecked());
    EXPECT_FALSE(program.Document().design.Rafter1.HeelLocked ||
                 program.Document().design.Rafter1.SeatLocked);
  };
}

/// One of the cuts, picked after another one.
Deed Cuts(const char* key) {
  return [key](WholeProgram& program, const Pick& pick) {
    program.Press(std::string(key) == "Plumb" ? "Square" : "Plumb");
    const QImage before = program.Shown();
    pick();
    for (const char* other : {"Plumb", "Square", "Level"}) {
      const bool on = std::string(other) == key;
      EXPECT_EQ(program.Find<QToolButton>(other).isChecked(), on) << other;
      EXPECT_EQ(Ticked(program, ("mnuSettings" + std::string(other) + "Cut").c_str()), on) << other;
    }
    EXPECT_EQ(program.Find("LWFascia(0)").isEnabled(), std::string(key) == "Plumb");
    if (program.Document().design.RoofType != Roof::kGambrel) {
      EXPECT_NE(program.Shown(), before);
    }
  };
}

Deed TakesSlopes(bool riseOverRun) {
  return [riseOverRun](WholeProgram& program, const Pick& pick) {
    if (riseOverRun) program.Trigger("mnuSettingsDegrees");
    pick();
    EXPECT_EQ(program.Find("LWSlope(0)").isVisible(), riseOverRun);
    EXPECT_EQ(program.Find("cboDegrees(0)").isVisible(), !riseOverRun);
    EXPECT_EQ(Ticked(program, "mnuSettingsRiseOverRun"), riseOverRun);
    EXPECT_EQ(Ticked(program, "mnuSettingsDegrees"), !riseOverRun);
  };
}

Deed TakesUnits(bool metric) {
  return [metric](WholeProgram& program, const Pick& pick) {
    if (!metric) program.Trigger("mnuMetric");
    pick();
    EXPECT_EQ(!program.Document().design.Metric, !metric);
    EXPECT_EQ(program.Box("FtSpan(0)").Entry(), metric ? "3600 mm" : "12' 0\"");
    EXPECT_EQ(Ticked(program, "mnuMetric"), metric);
    EXPECT_EQ(Ticked(program, "mnuImperial"), !metric);
  };
}

Deed ShowsAndHides(const char* part, const char* item) {
  return [=](WholeProgram& program, const Pick& pick) {
    const int height = program.Find("Picture1").height();
    pick();
    EXPECT_FALSE(program.Find(part).isVisible());
    EXPECT_FALSE(Ticked(program, item));
    EXPECT_GT(program.Find("Picture1").height(), height) << "the drawing takes the room";
    pick();
    EXPECT_TRUE(program.Find(part).isVisible());
    EXPECT_EQ(program.Find("Picture1").height(), height);
  };
}

void CallsTheCalculator(WholeProgram& program, const Pick& pick) {
  pick();
  EXPECT_EQ(program.calculator.asked, std::vector<std::string>{"imperial"});
}

// --- Roofs
// --------------------------------------------------------------------------------------------------------

Deed HasLedger(bool with) {
  return [with](WholeProgram& program, const Pick& pick) {
    program.Trigger(with ? "mnuDutchLedger(1)" : "mnuDutchLedger(0)");
    pick();
    const double ridge = program.Document().design.Rafter1.RidgeThickness;
    EXPECT_GT(ridge, 0);
    EXPECT_EQ(double(program.Document().design.Rafter2.RidgeThickness), with ? ridge : 0);
    EXPECT_EQ(program.Find<QComboBox>("cboLedger").currentIndex(), with ? 0 : 1);
    EXPECT_EQ(Ticked(program, "mnuDutchLedger(0)"), with);
    EXPECT_EQ(Ticked(program, "mnuDutchLedger(1)"), !with);
  };
}

constexpr const char* kLayouts[] = {"mnuHipLayoutCenter", "mnuHipLayoutCorners", "mnuHipLayoutCornersFlush"};
constexpr int kLayoutPage = 3;

Deed LaysJacksOut(int which) {
  return [which](WholeProgram& program, const Pick& pick) {
    program.TurnTo(kLayoutPage);
    program.Trigger(kLayouts[(which + 1) % 3]);
    const QImage before = program.Shown();
    pick();
    for (int i = 0; i < 3; ++i) EXPECT_EQ(Ticked(program, kLayouts[i]), i == which) << kLayouts[i];
    EXPECT_NE(program.Shown(), before);
  };
}

void MeasuresJacksWithOverhang(WholeProgram& program, const Pick& pick) {
  program.TurnTo(kLayoutPage);
  const bool ticked = Ticked(program, "mnuHipLayoutJackMeasurement");
  const QImage before = program.Shown();
  pick();
  EXPECT_NE(Ticked(program, "mnuHipLayoutJackMeasurement"), ticked);
  EXPECT_NE(program.Shown(), before);
  pick();
  EXPECT_EQ(Ticked(program, "mnuHipLayoutJackMeasurement"), ticked);
  EXPECT_EQ(program.Shown(), before);
}

/// Only a hip with two slopes has overhangs that differ.
void MakesOverhangsEqual(WholeProgram& program, const Pick& pick) {
  program.Enter("LWSlope(2).Left", "9");
  const bool ticked = Ticked(program, "mnuHipLayoutOverhangsEqual");
  const QImage before = program.Shown();
  pick();
  EXPECT_NE(Ticked(program, "mnuHipLayoutOverhangsEqual"), ticked);
  EXPECT_NE(program.Shown(), before);
}

Deed IsGambrel(bool regular) {
  return [regular](WholeProgram& program, const Pick& pick) {
    if (regular) program.Trigger("mnuGambrelCustom");
    pick();
    EXPECT_EQ(Ticked(program, "mnuGambrelRegular"), regular);
    EXPECT_EQ(Ticked(program, "mnuGambrelCustom"), !regular);
    EXPECT_EQ(program.Box("LWSlope(0).Left").isReadOnly(), regular);
    EXPECT_EQ(program.Find<QAction>("mnuGambrelWallSupportRaised").isEnabled(), !regular);
  };
}

constexpr const char* kSupports[] = {"mnuGambrelPurlins", "mnuGambrelWallSupport",
                                     "mnuGambrelWallSupportRaised"};

Deed Supports(int which) {
  return [which](WholeProgram& program, const Pick& pick) {
    program.Trigger("mnuGambrelCustom");
    program.Trigger(kSupports[(which + 1) % 3]);
    pick();
    for (int i = 0; i < 3; ++i) EXPECT_EQ(Ticked(program, kSupports[i]), i == which) << kSupports[i];
    EXPECT_EQ(program.Document().design.Rafter1.Purlins, which == 0);
    EXPECT_EQ(program.Find("FTUpperFascia").isVisible(), which == 2);
  };
}

// --- The step of a field
// ------------------------------------------------------------------------------------------

void TakesAStep(WholeProgram& program, const Pick& pick) {
  const Hand<QDialog> hand([](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmIncrement");
    QTest::keyClicks(dialog.findChild<QLineEdit*>("FtIncrement"), "1 1/2");
    ClickIn(dialog, "Command1(0)");
  });
  pick();
  EXPECT_EQ(double{program.Document().preferences.Increment}, 1.5);
  program.ComeBack();
  program.Box("FtSpan(0)").setFocus();
  program.Key(Qt::Key_Up);
  EXPECT_EQ(double(program.Document().design.Rafter1.Span), 145.5);
}

void ChangesNothing(WholeProgram& program, const Pick& pick) {
  const std::string before = StateOf(program.Document());
  pick();
  EXPECT_EQ(StateOf(program.Document()), before);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

constexpr const char* kPlumb = "Select plumb cut fascia.";
constexpr const char* kSquare = "Select square cut fascia.";
constexpr const char* kLevel = "Select level cut fascia.";
constexpr const char* kCenter = "Layout jacks from center working out to wall corners.";
constexpr const char* kCorners = "Layout jacks centered from outside wall corners working to center.";
constexpr const char* kFlush = "Layout jacks flush from outside wall corners working to center.";
constexpr const char* kJacks = "Include overhang in jack rafter measurements.";
constexpr const char* kEqual = "Adjust calculations to make overhangs equal.";
constexpr const char* kLedger = "Include Ledger Board in calculations.";
constexpr const char* kNoLedger = "Don't include Ledger Board in calculations.";
constexpr const char* kRegular = "Calculate a regular gambrel roof (slopes are fixed).";
constexpr const char* kCustom = "Calculate a custom gambrel roof.";
constexpr const char* kPurlins = "Use purlins at joints (purlins are the same size as the ridge board).";
constexpr const char* kWalls = "Upper roof is supported on walls.";
constexpr const char* kRaised = "Upper roof is supported on walls and is raised.";
constexpr const char* kPageSetup = "Setup margins, page size, etc.";
constexpr const char* kPrint = "Print the current drawing.";
constexpr const char* kDxf = "Export the current drawing as a DXF file.";
constexpr const char* kDxfSettings = "Set DXF options.";
constexpr const char* kRecent = "Most recent files";

}  // namespace

// --- What tool buttons do as well
// ---------------------------------------------------------------------------------

void StartsAProject(WholeProgram& program, const Pick& pick) {
  program.Press("Shed");
  const Hand<QInputDialog> hand([](QInputDialog& box) {
    QTest::keyClicks(box.findChild<QLineEdit*>(), "Barn");
    QTest::keyClick(&box, Qt::Key_Return);
  });
  pick();
  EXPECT_EQ(program.Document().design.RoofType, Roof::kGable);
  EXPECT_EQ(program.window.windowTitle(), "Pitchcraft - [Barn]");
}

void OpensAProject(WholeProgram& program, const Pick& pick) {
  WriteWhole(program.PathOf("shed.pcf"), "[Settings]\r\nRafterType=3\r\nSlope=5\r\nSpan=150\r\n");
  const Hand<QFileDialog> hand([&](QFileDialog& box) { Name(box, program.PathOf("shed.pcf")); });
  pick();
  EXPECT_EQ(program.Document().design.RoofType, Roof::kShed);
  EXPECT_EQ(program.Box("FtSpan(0)").Entry(), "12' 6\"");
  EXPECT_TRUE(program.Find<QToolButton>("Shed").isChecked());
}

void SavesTheProject(WholeProgram& program, const Pick& pick) {
  {
    const Hand<QFileDialog> hand([&](QFileDialog& box) { Name(box, program.PathOf("barn")); });
    pick();
  }
  const std::string first = ReadWhole(program.PathOf("barn.pcf"));
  EXPECT_NE(first.find("Span=144"), std::string::npos) << first;
  program.Enter("FtSpan(0)", "9'");
  pick();  // into the same file, without asking
  EXPECT_NE(ReadWhole(program.PathOf("barn.pcf")).find("Span=108"), std::string::npos);
}

void PrintsTheSheet(WholeProgram& program, const Pick& pick) {
  const Hand<QFileDialog> hand([&](QFileDialog& box) { Name(box, program.PathOf("sheet")); });
  pick();
  EXPECT_TRUE(ReadWhole(program.PathOf("sheet.pdf")).starts_with("%PDF"));
}

// --- The table
// ----------------------------------------------------------------------------------------------------

const std::vector<ItemRow>& ItemRows() {
  static const std::vector<ItemRow> kRows{
      {"mnuFileNew", "Gable", "Start a new project.", StartsAProject},
      {"mnuFileOpen", "Gable", "Open an existing project.", OpensAProject},
      {"mnuFileSave", "Gable", "Save the current project.", SavesTheProject},
      {"mnufileSaveAs", "Gable", "Save and rename the current project.", SavesAsAnotherProject},
      {"mnuFileProjectName", "Gable", "Set the current project name.", NamesTheProject},
      {"mnuFileExportMetafile", "Gable", "Export the current drawing as a Windows metafile.",
       ExportsAMetafile},
      {"mnuFileExportDXF", "Gable", kDxf, ExportsDxf},
      {"mnuFileDXFSettings", "Gable", kDxfSettings, ShowsOptions(4)},
      {"mnuFilePageSetup", "Gable", kPageSetup, SetsThePageUp},
      {"mnuFilePrint", "Gable", kPrint, PrintsTheSheet},
      {"mnuFileMRU(0)", "Gable", kRecent, OpensRecent(0)},
      {"mnuFileMRU(1)", "Gable", kRecent, OpensRecent(1)},
      {"mnuFileMRU(2)", "Gable", kRecent, OpensRecent(2)},
      {"mnuFileMRU(3)", "Gable", kRecent, OpensRecent(3)},
      {"mnuFileExit", "Gable", "Exit Pitchcraft", Exits},
      {"mnuSettingsHeelLocked", "Gable", "Lock or unlock the current heel height.",
       Locks("chkHeel(0)", "mnuSettingsHeelLocked")},
      {"mnuSettingsSeatLocked", "Gable", "Lock or unlock the current seat cut length.",
       Locks("chkSeat(0)", "mnuSettingsSeatLocked")},
      {"mnuSettingsPlumbCut", "Gable", kPlumb, Cuts("Plumb")},
      {"mnuSettingsSquareCut", "Gable", kSquare, Cuts("Square")},
      {"mnuSettingsLevelCut", "Gambrel", kLevel, Cuts("Level")},
      {"mnuSettingsRiseOverRun", "Gable", "Enter slope as Rise over Run", TakesSlopes(true)},
      {"mnuSettingsDegrees", "Gable", "Enter slope as Degrees", TakesSlopes(false)},
      {"mnuImperial", "Gable", "Use English measurements", TakesUnits(false)},
      {"mnuMetric", "Gable", "Use Metric measurements", TakesUnits(true)},
      {"mnuViewOptions", "Gable", "Configure Pitchcraft", ShowsOptions(0)},
      {"mnuViewToolbar", "Gable", "Show or hide the toolbar.", ShowsAndHides("tbToolBar", "mnuViewToolbar")},
      {"mnuViewStatusBar", "Gable", "Show or hide the status bar.",
       ShowsAndHides("StatusBar", "mnuViewStatusBar")},
      {"mnuTools", "Gable", "FtInch Calculator", CallsTheCalculator},
      {"mnuDutchLedger(0)", "Dutch Hip", kLedger, HasLedger(true)},
      {"mnuDutchLedger(1)", "Dutch Hip", kNoLedger, HasLedger(false)},
      {"mnuHipLayoutCenter", "Hip", kCenter, LaysJacksOut(0)},
      {"mnuHipLayoutCorners", "Hip", kCorners, LaysJacksOut(1)},
      {"mnuHipLayoutCornersFlush", "Hip", kFlush, LaysJacksOut(2)},
      {"mnuHipLayoutJackMeasurement", "Hip", kJacks, MeasuresJacksWithOverhang},
      {"mnuHipLayoutOverhangsEqual", "Hip", kEqual, MakesOverhangsEqual},
      {"mnuGambrelRegular", "Gambrel", kRegular, IsGambrel(true)},
      {"mnuGambrelCustom", "Gambrel", kCustom, IsGambrel(false)},
      {"mnuGambrelPurlins", "Gambrel", kPurlins, Supports(0)},
      {"mnuGambrelWallSupport", "Gambrel", kWalls, Supports(1)},
      {"mnuGambrelWallSupportRaised", "Gambrel", kRaised, Supports(2)},
      {"mnuGambrelPlumb", "Gambrel", kPlumb, Cuts("Plumb")},
      {"mnuGambrelSquare", "Gambrel", kSquare, Cuts("Square")},
      {"mnuGambrelLevel", "Gambrel", kLevel, Cuts("Level")},
      {"mnuHelpcontents", "Gable", "", ShowsHelp("index.html")},
      {"mnuHelpGlossary", "Gable", "", ShowsHelp("glossary.html")},
      {"mnuHelpSearch", "Gable", "", ShowsHelp("index.html")},
      {"mnuHelpTips", "Gable", "", ShowsForm("frmTip")},
      {"mnuHelpAbout", "Gable", "", ShowsForm("frmAbout")},
      {"mnuPopUp1PrintSetup", "Gable", kPageSetup, SetsThePageUp},
      {"mnuPopUp1Print", "Gable", kPrint, PrintsTheSheet},
      {"mnuPopUp1DXFSettings", "Gable", kDxfSettings, ShowsOptions(4)},
      {"mnuPopUp1DXF", "Gable", kDxf, ExportsDxf},
      {"mnuPopUp1PlumbCut", "Gable", kPlumb, Cuts("Plumb")},
      {"mnuPopUp1SquareCut", "Gable", kSquare, Cuts("Square")},
      {"mnuPopUp1Ledger(0)", "Dutch Hip", kLedger, HasLedger(true)},
      {"mnuPopUp1Ledger(1)", "Dutch Hip", kNoLedger, HasLedger(false)},
      {"mnuPopUp1LayoutCenter", "Hip", kCenter, LaysJacksOut(0)},
      {"mnuPopUp1LayoutCorner", "Hip", kCorners, LaysJacksOut(1)},
      {"mnuPopUp1LayoutCornerFlush", "Hip", kFlush, LaysJacksOut(2)},
      {"mnuPopUp1JackMeasurement", "Hip", kJacks, MeasuresJacksWithOverhang},
      {"mnuPopUp1OverhangsEqual", "Hip", kEqual, MakesOverhangsEqual},
      {"mnuPopUp2PrintSetup", "Gambrel", kPageSetup, SetsThePageUp},
      {"mnuPopUp2Print", "Gambrel", kPrint, Tells("This page cannot be printed yet.")},
      {"mnuPopUp2DXFSettings", "Gambrel", kDxfSettings, ShowsOptions(4)},
      {"mnuPopUp2DXF", "Gambrel", kDxf, Tells("This page cannot be exported yet.")},
      {"mnuPopUp2PlumbCut", "Gambrel", kPlumb, Cuts("Plumb")},
      {"mnuPopUp2SquareCut", "Gambrel", kSquare, Cuts("Square")},
      {"mnuPopUp2LevelCut", "Gambrel", kLevel, Cuts("Level")},
      {"mnuPopup2GambrelRegular", "Gambrel", kRegular, IsGambrel(true)},
      {"mnuPopup2GambrelCustom", "Gambrel", kCustom, IsGambrel(false)},
      {"mnuPopup2GambrelPurlins", "Gambrel", kPurlins, Supports(0)},
      {"mnuPopup2GambrelWallSupport", "Gambrel", kWalls, Supports(1)},
      {"mnuPopup2GambrelWallSupportRaised", "Gambrel", kRaised, Supports(2)},
      {"mnuSpinIncrement", "Gable", "Enter a new increment amount.", TakesAStep},
      {"mnuSpinCancel", "Gable", "Cancel this menu", ChangesNothing},
  };
  return kRows;
}

std::vector<ItemRow> ItemRowsOf(bool popups) {
  const Menus menus;
  std::vector<ItemRow> rows;
  for (const ItemRow& row : ItemRows()) {
    const MenuItem* item = menus.Find(row.item);
    const MenuItem* holder = item == nullptr ? nullptr : menus.HolderOf(*item);
    if ((holder != nullptr && menus.IsPopup(*holder)) == popups) rows.push_back(row);
  }
  return rows;
}

std::string TestName(std::string item) {
  std::erase_if(item, [](char c) { return c == '(' || c == ')' || c == ' '; });
  return item;
}

void PrintTo(const ItemRow& row, std::ostream* stream) { *stream << row.item; }

}  // namespace pitchcraft::testing
