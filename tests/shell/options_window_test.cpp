// The lists of the options under mouse and keyboard: kept by Apply, backed up, brought back.
#include <QDialog>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>

#include "../support/golden.h"
#include "dialog_hand.h"
#include "whole_program.h"

namespace pitchcraft::testing {
namespace {

constexpr int kSlopes = 0;
constexpr int kLumber = 1;

class OptionsWindow : public ::testing::Test {
 protected:
  void With(const std::function<void(QDialog&)>& action) {
    const Hand<QDialog> hand([&](QDialog& dialog) {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));  // a cell takes the focus, and its loss for its end
      QApplication::processEvents();
      action(dialog);
    });
    program_.Trigger("mnuViewOptions");
  }
  static void Click(QDialog& dialog, const std::string& name) {
    auto* button = dialog.findChild<QPushButton*>(QString::fromStdString(name));
    ASSERT_NE(button, nullptr) << name;
    ASSERT_TRUE(button->isVisible()) << name;
    QTest::mouseClick(button, Qt::LeftButton);
  }
  static QTableView& Table(QDialog& dialog, int list) {
    auto* tabs = dialog.findChild<QTabWidget*>("tbsOptions");
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(1 + list).center());
    return *dialog.findChild<QTableView*>(QString("grdList(%1)").arg(list));
  }
  /// That of the cell that is open; one that was closed may still be there without the focus.
  static QLineEdit* Editor() { return qobject_cast<QLineEdit*>(QApplication::focusWidget()); }
  /// A double click opens the cell, Enter ends it.
  static void TypeInto(QTableView& table, int row, int column, const char* text) {
    const QPoint place = table.visualRect(table.model()->index(row, column)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place);
    auto* editor = Editor();
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();  // the cell takes it afterwards
  }
  std::string File(const char* name) const { return ReadWhole(program_.PathOf(name)); }
  bool Has(const char* name) const { return std::filesystem::exists(program_.PathOf(name)); }
  std::string FirstLumber() { return program_.Document().design.sheet.Common[0].List()[0].Caption; }

  WholeProgram program_;
};

TEST_F(OptionsWindow, ApplyKeepsAndCancelForgetsWhatCameAfter) {
  With([this](QDialog& dialog) {
    QTableView& table = Table(dialog, kLumber);
    TypeInto(table, 0, 0, "first");
    Click(dialog, "cmdApply");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(FirstLumber(), "first") << "behind the open form";
    TypeInto(table, 0, 0, "second");
    Click(dialog, "cmdCancel");
  });
  EXPECT_EQ(FirstLumber(), "first");
  EXPECT_TRUE(File("Lumber.dat").starts_with("first|"));
}

TEST_F(OptionsWindow, OkTakesACellThatIsStillOpen) {
  With([](QDialog& dialog) {
    QTableView& table = Table(dialog, kLumber);
    table.setCurrentIndex(table.model()->index(0, 0));
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_F2);
    auto* editor = Editor();
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, "open");
    Click(dialog, "cmdOK");
  });
  EXPECT_EQ(FirstLumber(), "open");
}

TEST_F(OptionsWindow, EscInACellLeavesTheFormOpen) {
  With([](QDialog& dialog) {
    QTableView& table = Table(dialog, kLumber);
    const QString before = table.model()->index(0, 0).data().toString();
    table.edit(table.model()->index(0, 0));
    auto* editor = Editor();
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, "xyz");
    QTest::keyClick(editor, Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(table.model()->index(0, 0).data().toString(), before);
    Click(dialog, "cmdOK");
  });
  EXPECT_FALSE(Has("Lumber.dat")) << "nothing changed";
}

TEST_F(OptionsWindow, TheListBeforeTheLastChangeIsBackedUpAndComesBack) {
  const std::string usual = FirstLumber();
  for (const char* name : {"one", "two"}) {
    With([&](QDialog& dialog) {
      TypeInto(Table(dialog, kLumber), 0, 0, name);
      Click(dialog, "cmdOK");
    });
  }
  EXPECT_TRUE(File("Lumber.dat").starts_with("two|"));
  EXPECT_TRUE(File("Lumber.old").starts_with("one|"));
  EXPECT_FALSE(Has("Slope.dat") || Has("Slope.old")) << "a list that was not changed";
  std::filesystem::rename(program_.PathOf("Lumber.old"), program_.PathOf("Lumber.dat"));
  With([](QDialog& dialog) {
    EXPECT_EQ(Table(dialog, kLumber).model()->index(0, 0).data().toString(), "one");
    Click(dialog, "cmdOK");
  });
  EXPECT_EQ(FirstLumber(), "one");
  std::filesystem::remove(program_.PathOf("Lumber.dat"));
  With([](QDialog& dialog) { Click(dialog, "cmdOK"); });
  EXPECT_EQ(FirstLumber(), usual) << "without a file the usual rows";
}

TEST_F(OptionsWindow, SlopesGainAndLoseARow) {
  const std::size_t rows = program_.Document().design.sheet.Slope[0].List().size();
  With([&](QDialog& dialog) {
    QTableView& table = Table(dialog, kSlopes);
    Click(dialog, "Command1(0)");
    EXPECT_EQ(table.model()->rowCount(), int(rows) + 1);
    const int row = table.currentIndex().row();
    EXPECT_EQ(table.model()->index(row, 2).data().toString(), "12");
    auto* editor = Editor();
    ASSERT_NE(editor, nullptr) << "it stands on the new row";
    QTest::keyClicks(editor, "steep");
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    TypeInto(table, row, 1, "20");
    Click(dialog, "cmdApply");
    EXPECT_EQ(program_.Document().design.sheet.Slope[0].List().size(), rows + 1);
    table.setCurrentIndex(table.model()->index(row, 0));
    Click(dialog, "Command1(1)");
    Click(dialog, "cmdOK");
  });
  EXPECT_EQ(program_.Document().design.sheet.Slope[0].List().size(), rows);
  EXPECT_NE(File("Slope.old").find("steep|20|12"), std::string::npos);
  EXPECT_EQ(File("Slope.dat").find("steep"), std::string::npos);
}

TEST_F(OptionsWindow, MetricListsAreFilesOfTheirOwn) {
  program_.Trigger("mnuMetric");
  With([](QDialog& dialog) {
    TypeInto(Table(dialog, kLumber), 0, 0, "beam");
    TypeInto(Table(dialog, kSlopes), 0, 0, "flat");
    Click(dialog, "cmdOK");
  });
  EXPECT_TRUE(File("LumberM.dat").starts_with("beam|"));
  EXPECT_TRUE(File("SlopeM.dat").starts_with("flat|"));
  EXPECT_FALSE(Has("Lumber.dat") || Has("Slope.dat"));
  EXPECT_EQ(FirstLumber(), "beam");
  program_.Trigger("mnuImperial");
  EXPECT_NE(FirstLumber(), "beam");
}

}  // namespace
}  // namespace pitchcraft::testing
