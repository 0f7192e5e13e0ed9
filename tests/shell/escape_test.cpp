// Esc closes every dialog, whatever was entered in it, and leaves all as it was.
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTableView>
#include <map>

#include "../support/golden.h"
#include "dialog_hand.h"
#include "shell/color_grid.h"
#include "whole_program.h"

namespace pitchcraft::testing {
namespace {

struct Dialog {
  const char* name;
  const char* object;  ///< what it is called within the program; the toolkit's own boxes have no name there
  std::function<void(WholeProgram&)> open;
  std::function<void(WholeProgram&, QDialog&)> fill;  ///< enters something
};

void PrintTo(const Dialog& dialog, std::ostream* stream) { *stream << dialog.name; }

std::function<void(WholeProgram&)> Item(const char* item) {
  return [item](WholeProgram& program) {
    if (auto* action = program.window.findChild<QAction*>(item)) return action->trigger();
    program.OpenFieldPopup("FtSpan(0)")->findChild<QAction*>(item)->trigger();
  };
}

template <typename Widget>
Widget& In(QDialog& dialog, const char* name) {
  auto* found = dialog.findChild<Widget*>(name);
  if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
  return *found;
}

/// A file of that name would be found in the folder that is looked at.
void FillName(WholeProgram& program, QDialog& dialog) {
  dialog.findChild<QLineEdit*>()->setText(QString::fromStdString(program.PathOf("another")));
}

void FillOptions(WholeProgram&, QDialog& dialog) {
  auto& grid = In<ColorGrid>(dialog, "grdColors(0)");
  grid.OpenList();
  auto& list = In<DropList>(dialog, "grdColors(1)");
  list.setCurrentRow(5);
  QTest::keyClick(&list, Qt::Key_Return);
  for (const char* box : {"chkSystemColors", "chkPrintAllBlack", "chkRotateFonts"}) {
    In<QCheckBox>(dialog, box).click();
  }
  In<QSlider>(dialog, "Slider1").setValue(7);
  for (const char* button : {"Command1(0)", "Command1(3)"}) In<QPushButton>(dialog, button).click();
  In<QTabWidget>(dialog, "tbsOptions").setCurrentIndex(0);
}

void FillDxf(WholeProgram&, QDialog& dialog) {
  auto& size = In<QLineEdit>(dialog, "ftDXFTextsize");
  size.selectAll();
  QTest::keyClicks(&size, "5");
}

const Dialog kDialogs[] = {
    {"NewProject", "", Item("mnuFileNew"), FillName},
    {"Open", "", Item("mnuFileOpen"), FillName},
    {"SaveAs", "", Item("mnufileSaveAs"), FillName},
    {"ProjectName", "", Item("mnuFileProjectName"), FillName},
    {"ExportDxf", "", Item("mnuFileExportDXF"), FillName},
    {"Print", "", Item("mnuFilePrint"), FillName},
    {"PageSetup", "PageSetup", Item("mnuFilePageSetup"),
     [](WholeProgram&, QDialog& dialog) { In<QComboBox>(dialog, "Paper").setCurrentIndex(2); }},
    {"DxfSettings", "frmOptions", Item("mnuFileDXFSettings"), FillDxf},
    {"Options", "frmOptions", Item("mnuViewOptions"), FillOptions},
    {"Increment", "frmIncrement", Item("mnuSpinIncrement"),
     [](WholeProgram&, QDialog& dialog) { QTest::keyClicks(&In<QLineEdit>(dialog, "FtIncrement"), "3"); }},
    {"Tip", "frmTip", Item("mnuHelpTips"),
     [](WholeProgram&, QDialog& dialog) { In<QPushButton>(dialog, "cmdNextTip").click(); }},
    {"About", "frmAbout", Item("mnuHelpAbout"),
     [](WholeProgram&, QDialog& dialog) { In<QPushButton>(dialog, "cmdSysInfo").click(); }},
    {"Disclaimer", "frmDisclaimer",
     [](WholeProgram& program) {
       program.store.Set("pitchcraft", "Options", "Show Tips at Startup", "0");
       program.window.ShowStartForms();
     },
     [](WholeProgram&, QDialog&) {}},
    {"Message", "",
     [](WholeProgram& program) {
       program.window.OpenProject(QString::fromStdString(program.PathOf("nowhere.pcf")));
     },
     [](WholeProgram&, QDialog&) {}},
};

/// All that a dialog could change: the document, the store, the printer, the files.
std::map<std::string, std::string> Everything(WholeProgram& program) {
  std::map<std::string, std::string> all;
  Document& document = program.Document();
  all["document"] = StateOf(document);
  for (const double value :
       {double{document.preferences.Increment}, double{document.preferences.MetricIncrement},
        double{document.preferences.DxfTextSize}, double{document.preferences.DxfMetricTextSize}}) {
    all["lengths"] += std::to_string(value) + " ";
  }
  for (const std::uint32_t value :
       {document.preferences.BackColor, document.preferences.LineColor, document.preferences.DimColor,
        document.preferences.TextColor, document.preferences.CtlBackColor, document.preferences.CtlForeColor,
        document.preferences.CtlCalcColor, document.preferences.DxfBackColor,
        static_cast<std::uint32_t>(document.preferences.LineWidth),
        static_cast<std::uint32_t>(document.preferences.DxfTextColor),
        static_cast<std::uint32_t>(document.preferences.DxfLineColor),
        static_cast<std::uint32_t>(document.preferences.DxfDimColor),
        static_cast<std::uint32_t>(document.PrintAllBlack),
        static_cast<std::uint32_t>(document.preferences.RotateFonts),
        static_cast<std::uint32_t>(document.preferences.UseSystemColors)}) {
    all["numbers"] += std::to_string(value) + " ";
  }
  all["project"] = document.project.Name + " " + document.project.File;
  all["paper"] = std::to_string(static_cast<int>(program.printer.Setup().Paper));
  program.store.ForEach([&](const std::string& application, const std::string& section,
                            const std::string& key, const std::string& text) {
    all["store"] += application + "." + section + "." + key + "=" + text + "\n";
  });
  for (const auto& file : std::filesystem::directory_iterator(program.folder.Path())) {
    all["file " + file.path().filename().string()] = ReadWhole(file.path());
  }
  return all;
}

class EscapeTest : public ::testing::TestWithParam<Dialog> {
 protected:
  EscapeTest() {
    // What the program writes by itself, when a tip was shown or a project was asked for, is there before.
    program_.store.Set("pitchcraft", "Options", "Show Tips at Startup", "1");
    WriteWhole(program_.PathOf("TIPOFDAY.TXT"), "one\r\ntwo\r\n");
  }
  WholeProgram program_;
};

TEST_P(EscapeTest, LeavesAllAsItWas) {
  const Dialog& row = GetParam();
  if (std::string(row.name) == "Disclaimer")
    program_.store.Set("pitchcraft", "Options", "Show Tips at Startup", "0");
  if (std::string(row.name) == "Message") program_.Document().project.File = program_.PathOf("nowhere.pcf");
  const auto before = Everything(program_);
  EXPECT_TRUE(before.contains("store") && before.contains("file TIPOFDAY.TXT"));
  {
    const Hand<QDialog> hand([&](QDialog& dialog) {
      if (*row.object != 0) {
        EXPECT_EQ(dialog.objectName(), row.object);
        EXPECT_FALSE(dialog.accessibleName().isEmpty());
      }
      row.fill(program_, dialog);
      QTest::keyClick(&dialog, Qt::Key_Escape);
      EXPECT_FALSE(dialog.isVisible());
    });
    row.open(program_);
  }
  const auto after = Everything(program_);
  for (const auto& [what, text] : before)
    EXPECT_EQ(after.contains(what) ? after.at(what) : "gone", text) << what;
  EXPECT_EQ(after.size(), before.size());
}

INSTANTIATE_TEST_SUITE_P(Dialogs, EscapeTest, ::testing::ValuesIn(kDialogs),
                         [](const auto& row) { return std::string(row.param.name); });

class EscapeTwice : public ::testing::Test {
 protected:
  /// Answers box after box with Esc until none is left, and keeps what they were.
  std::vector<std::string> EscapeFrom(const std::function<void()>& open) {
    std::vector<std::string> seen;
    qApp->setProperty("dialogIsExpected", true);
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, [&] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr) return;
      seen.emplace_back(dialog->metaObject()->className());
      // Not from here: this hand answers the next box while the first one waits for it.
      if (seen.size() == 1 && first_) return QTimer::singleShot(0, dialog, [=, this] { first_(*dialog); });
      QTest::keyClick(dialog, Qt::Key_Escape);
    });
    hand.start(1);
    open();
    qApp->setProperty("dialogIsExpected", false);
    return seen;
  }

  WholeProgram program_;
  std::function<void(QWidget&)> first_;
};

// It is written in any case, and a project without a file cannot be.
TEST_F(EscapeTwice, FromSavingEndsInAMessage) {
  const auto seen = EscapeFrom([&] { program_.Trigger("mnuFileSave"); });
  EXPECT_EQ(seen, (std::vector<std::string>{"QFileDialog", "QMessageBox"}));
  EXPECT_EQ(program_.Document().project.File, "");
  for (const auto& file : std::filesystem::directory_iterator(program_.folder.Path())) {
    EXPECT_EQ(file.path().filename(), "Degrees.dat");
  }
}

TEST_F(EscapeTwice, FromReplacingAFileKeepsIt) {
  WriteWhole(program_.PathOf("barn.pcf"), "old");
  first_ = [&](QWidget& dialog) {
    auto& box = dynamic_cast<QFileDialog&>(dialog);
    box.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(program_.PathOf("barn.pcf")));
    box.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
  };
  const auto seen = EscapeFrom([&] { program_.Trigger("mnufileSaveAs"); });
  EXPECT_EQ(seen, (std::vector<std::string>{"QFileDialog", "QMessageBox", "QFileDialog"}));
  EXPECT_EQ(ReadWhole(program_.PathOf("barn.pcf")), "old");
  EXPECT_EQ(program_.window.windowTitle(), "Pitchcraft - [Untitled]");
}

}  // namespace
}  // namespace pitchcraft::testing
