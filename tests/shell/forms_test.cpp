// Each form comes up from its menu item, takes what a hand does, and closes.
#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>

#include "../support/golden.h"
#include "dialog_hand.h"
#include "shell/color_grid.h"
#include "shell/options_dialog.h"
#include "shell/qt_dialogs.h"
#include "shell/small_dialogs.h"
#include "shell/splash.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

template <typename Widget = QPushButton>
Widget& In(QWidget& dialog, const char* name) {
  auto* found = dialog.findChild<Widget*>(name);
  if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
  return *found;
}

void ClickIn(QWidget& dialog, const char* name) {
  QTest::mouseClick(&In<QAbstractButton>(dialog, name), Qt::LeftButton);
}

class FormWindow : public ::testing::Test, protected WindowHand {
 protected:
  FormWindow() : WindowHand(window_), window_({dialogs_, store_, folder_.filesystemPath()}) {
    dialogs_.SetOwner(&window_);
    dialogs_.OnApplied([this] { window_.ShowState(); });
    OpenForTest(window_);
  }
  /// Opens the form of a menu item; the action must close it.
  void With(const char* item, const std::function<void(QDialog&)>& action) {
    const Hand<QDialog> hand(action);
    Click(item);
  }
  /// An item of the bar, or of a popup, which has no action as long as it does not show.
  void Click(const std::string& item) {
    if (auto* action = window_.findChild<QAction*>(QString::fromStdString(item))) return action->trigger();
    ClickMenu(Document(), *Document().design.menus.Find(item));
  }

  struct Folder : QTemporaryDir {
    std::filesystem::path filesystemPath() const { return path().toStdString(); }
  };
  Folder folder_;
  QtDialogs dialogs_;
  MemoryStore store_;
  MainWindow window_;
};

TEST_F(FormWindow, IncrementTakesItsFieldWithEnter) {
  With("mnuSpinIncrement", [](QDialog& dialog) {
    auto& field = In<QLineEdit>(dialog, "FtIncrement");
    EXPECT_EQ(field.text(), "1/4\"");
    field.selectAll();
    QTest::keyClicks(&field, "1");
    QTest::keyClick(&field, Qt::Key_Return);
  });
  EXPECT_EQ(double{Document().preferences.Increment}, 1);
  With("mnuSpinIncrement", [](QDialog& dialog) {
    QTest::keyClicks(&In<QLineEdit>(dialog, "FtIncrement"), "7");
    ClickIn(dialog, "Command1(1)");
  });
  EXPECT_EQ(double{Document().preferences.Increment}, 1);
  Document().preferences.Increment = 0.3;
  With("mnuSpinIncrement", [](QDialog& dialog) { ClickIn(dialog, "Command1(0)"); });
  EXPECT_EQ(double{Document().preferences.Increment}, double{Single(0.3)})
      << "shown as a sixteenth, not rounded to one";
}

TEST_F(FormWindow, TipsGoRoundAndTheBoxIsStored) {
  WriteWhole(folder_.filesystemPath() / "TIPOFDAY.TXT", "<b>one</b>\ntwo\n");
  With("mnuHelpTips", [this](QDialog& dialog) {
    auto& text = In<QLabel>(dialog, "lblTipText");
    EXPECT_EQ(text.textFormat(), Qt::PlainText);
    const QString first = text.text();
    ClickIn(dialog, "cmdNextTip");
    EXPECT_NE(text.text(), first);
    ClickIn(dialog, "cmdNextTip");
    EXPECT_EQ(text.text(), first);
    In<QCheckBox>(dialog, "chkLoadTipsAtStartup").click();
    EXPECT_EQ(store_.Get("pitchcraft", "Options", "Show Tips at Startup"), "0");
    ClickIn(dialog, "cmdOK");
  });
}

TEST_F(FormWindow, DisclaimerComesAtTheStartAndStoresItsBoxAsItStands) {
  store_.Set("pitchcraft", "Options", "Show Tips at Startup", "0");
  {
    const Hand<QDialog> hand([this](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), "frmDisclaimer");
      auto& box = In<QCheckBox>(dialog, "Check1");
      EXPECT_FALSE(box.isChecked());
      box.click();
      EXPECT_EQ(store_.Get("Pitchcraft", "Settings", "ShowDisclaimer"), "1");
      box.click();
      EXPECT_EQ(store_.Get("Pitchcraft", "Settings", "ShowDisclaimer"), "0");
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    window_.ShowStartForms();
  }
  window_.ShowStartForms();
}

// A desktop that tiles its windows gives them their size while the forms of the start are open.
TEST_F(FormWindow, TheWindowFollowsItsSizeUnderAnOpenForm) {
  const int before = Document().Layout().picture1.Width;
  const int width = window_.width() + 200;
  With("mnuHelpTips", [&](QDialog& dialog) {
    window_.resize(width, window_.height());
    QApplication::processEvents();
    EXPECT_EQ(Find("tbToolBar").width(), width);
    EXPECT_EQ(Find("Picture1").width() * 15, before + 200 * 15);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_EQ(Document().Layout().picture1.Width, before + 200 * 15) << "drawn for the new size";
}

TEST_F(FormWindow, AboutShowsTheSystem) {
  With("mnuHelpAbout", [](QDialog& dialog) {
    EXPECT_TRUE(In<QLabel>(dialog, "lblVersion").text().startsWith("Version "));
    auto& info = In<QPlainTextEdit>(dialog, "txtSysInfo");
    EXPECT_FALSE(info.isVisible());
    ClickIn(dialog, "cmdSysInfo");
    EXPECT_TRUE(info.isVisible());
    ClickIn(dialog, "cmdOK");
  });
}

TEST_F(FormWindow, OptionsHaveFivePagesAndOpenWhereTheyWereAskedFor) {
  const auto pageOf = [this](const char* item) {
    int page = -1;
    With(item, [&](QDialog& dialog) {
      auto& tabs = In<QTabWidget>(dialog, "tbsOptions");
      EXPECT_EQ(tabs.count(), 5);
      EXPECT_EQ(tabs.tabText(4), "DXF Settings");
      page = tabs.currentIndex();
      dialog.reject();
    });
    return page;
  };
  EXPECT_EQ(pageOf("mnuViewOptions"), 0);
  EXPECT_EQ(pageOf("mnuFileDXFSettings"), 4);
}

TEST_F(FormWindow, ColorIsChosenByKeysAndAppliedBehindTheOpenForm) {
  With("mnuViewOptions", [this](QDialog& dialog) {
    auto& grid = In<ColorGrid>(dialog, "grdColors(0)");
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_Space);
    auto& list = In<DropList>(grid, "grdColors(1)");
    EXPECT_TRUE(list.isVisible());
    EXPECT_EQ(list.currentItem()->text(), "Black") << "begins at the present color";
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(grid.item(0, 1)->text(), "Dark gray");
    EXPECT_EQ(In<QLineEdit>(dialog, "txtControlText").palette().color(QPalette::Base), QColor(64, 64, 64));
    EXPECT_EQ(Document().preferences.CtlBackColor, 0U) << "a copy, until it is applied";
    ClickIn(dialog, "cmdApply");
    EXPECT_EQ(Document().preferences.CtlBackColor, 0x404040U);
    EXPECT_EQ(Box("FtSpan(0)").palette().color(QPalette::Base), QColor(64, 64, 64)) << "the window follows";
    dialog.reject();
  });
}

TEST_F(FormWindow, ArrowOpensTheListOfItsRow) {
  With("mnuFileDXFSettings", [](QDialog& dialog) {
    auto& grid = In<ColorGrid>(dialog, "grdColors(2)");
    grid.setCurrentCell(kDxfDim, 1);
    ClickIn(grid, "cmdArrow");
    auto& list = In<DropList>(grid, "grdColors(1)");
    EXPECT_EQ(list.currentRow(), 12);
    QTest::keyClick(&list, Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible()) << "Esc closes the list alone";
    grid.OpenList();
    list.setCurrentRow(3);
    QTest::keyClick(&list, Qt::Key_Return);
    auto& size = In<QLineEdit>(dialog, "ftDXFTextsize");
    size.selectAll();
    QTest::keyClicks(&size, "4 1/2");
    ClickIn(dialog, "cmdOK");
  });
  EXPECT_EQ(Document().preferences.DxfDimColor, 3);
  EXPECT_EQ(double{Document().preferences.DxfTextSize}, 4.5);
}

TEST_F(FormWindow, BoxesAndTheSliderCountWithOkAndNotWithCancel) {
  const auto change = [this](const char* button) {
    With("mnuViewOptions", [button](QDialog& dialog) {
      In<QTabWidget>(dialog, "tbsOptions").setCurrentIndex(3);
      In<QCheckBox>(dialog, "chkPrintAllBlack").click();
      In<QCheckBox>(dialog, "chkRotateFonts").click();
      In<QCheckBox>(dialog, "chkSystemColors").click();
      In<QSlider>(dialog, "Slider1").setValue(6);
      ClickIn(dialog, button);
    });
  };
  change("cmdCancel");
  EXPECT_FALSE(Document().PrintAllBlack || Document().preferences.RotateFonts ||
               Document().preferences.UseSystemColors);
  EXPECT_EQ(Document().preferences.LineWidth, 1);
  change("cmdOK");
  EXPECT_TRUE(Document().PrintAllBlack && Document().preferences.RotateFonts &&
              Document().preferences.UseSystemColors);
  EXPECT_EQ(Document().preferences.LineWidth, 6);
}

TEST_F(FormWindow, ListsAreEditedInTheirCells) {
  With("mnuViewOptions", [this](QDialog& dialog) {
    In<QTabWidget>(dialog, "tbsOptions").setCurrentIndex(2);
    auto& table = In<QTableView>(dialog, "grdList(1)");
    QWidget& page = *table.parentWidget();
    EXPECT_EQ(table.model()->rowCount(), 15);
    table.setCurrentIndex(table.model()->index(0, 0));
    ClickIn(page, "Command1(2)");
    EXPECT_EQ(table.currentIndex().row(), 1) << "below the current row";
    auto& editor = In<QLineEdit>(table, "txtEdit(1)");
    QTest::keyClicks(&editor, "3x5");
    // Still open when OK is clicked.
    table.setCurrentIndex(table.model()->index(1, 1));
    table.model()->setData(table.model()->index(1, 1), "2.5");
    table.model()->setData(table.model()->index(1, 2), "4.5");
    table.setCurrentIndex(table.model()->index(0, 0));
    ClickIn(page, "Command1(3)");
    EXPECT_EQ(table.model()->rowCount(), 15);
    ClickIn(dialog, "cmdOK");
  });
  const auto& rows = Document().design.sheet.Common[0].List();
  ASSERT_EQ(rows.size(), 15U);
  EXPECT_EQ(rows[0].Caption, "3x5");
  EXPECT_EQ(rows[0].Right, 4.5);
  EXPECT_TRUE(ReadWhole(folder_.filesystemPath() / "Lumber.dat").starts_with("3x5|2.5|4.5\r\n1x6|"));
}

TEST_F(FormWindow, ATextsizeOfNothingIsToldOverTheForm) {
  With("mnuFileDXFSettings", [](QDialog& dialog) {
    auto& size = In<QLineEdit>(dialog, "ftDXFTextsize");
    size.selectAll();
    QTest::keyClicks(&size, "0");
    {
      bool told = false;
      QTimer answer;
      QObject::connect(&answer, &QTimer::timeout, [&] {
        QWidget* box = QApplication::activeModalWidget();
        if (box == nullptr || box == &dialog) return;
        told = true;
        box->close();
      });
      answer.start(1);
      ClickIn(dialog, "cmdApply");
      EXPECT_TRUE(told);
    }
    EXPECT_EQ(size.text(), "2\"");
    dialog.reject();
  });
  EXPECT_EQ(double{Document().preferences.DxfTextSize}, 2);
}

TEST(Splash, ClosesByEscapeByAClickAndByItself) {
  qApp->setProperty("dialogIsExpected", true);
  for (const int way : {0, 1, 2}) {
    Splash splash("1.2.3");
    splash.show();
    EXPECT_EQ(In<QLabel>(splash, "lblVersion").text(), "Version 1.2.3");
    if (way == 0) QTest::keyClick(&splash, Qt::Key_Escape);
    if (way == 1) QTest::mouseClick(&splash, Qt::LeftButton);
    splash.Wait();
    EXPECT_FALSE(splash.isVisible()) << way;
  }
  qApp->setProperty("dialogIsExpected", false);
}

}  // namespace
}  // namespace pitchcraft::testing
