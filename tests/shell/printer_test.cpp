// Printing from the window: the page setup, PDF files, a queue that is gone.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTest>

#include "core/run_time_error.h"
#include "dialog_hand.h"
#include "shell/qt_dialogs.h"
#include "shell/qt_printer.h"
#include "window_test.h"

namespace pitchcraft {
namespace {

class WindowPrinterTest : public ::testing::Test {
 protected:
  WindowPrinterTest() {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    printer_.SetSetup({});
    testing::OpenForTest(window_);
  }
  void Trigger(const char* item) { testing::WindowHand(window_).Trigger(item); }
  QString File(const char* name) const { return folder_.filePath(name); }
  static QByteArray ReadAll(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir folder_;
  RecordingDialogs messages_;
  QtDialogs dialogs_;
  QtPrinter printer_{dialogs_};
  MemoryStore store_;
  MainWindow window_{{messages_, store_, {}, &printer_}};
};

TEST_F(WindowPrinterTest, ASheetBecomesThePdfFileThatIsNamed) {
  QString offered;
  const Hand<QFileDialog> hand([&](QFileDialog& box) {
    offered = box.windowTitle();
    box.selectFile(File("sheet"));
    QMetaObject::invokeMethod(&box, "accept");
  });
  Trigger("mnuFilePrint");
  EXPECT_EQ(offered, "Print to PDF");
  EXPECT_TRUE(ReadAll(File("sheet.pdf")).startsWith("%PDF"));
  EXPECT_TRUE(messages_.messages.empty());
}

TEST_F(WindowPrinterTest, ACancelledFileDialogPrintsNothing) {
  const Hand<QFileDialog> hand([](QFileDialog& box) { box.reject(); });
  Trigger("mnuFilePrint");
  EXPECT_TRUE(messages_.messages.empty());
}

TEST_F(WindowPrinterTest, PageSetupKeepsWhatWasChosen) {
  const Hand<QDialog> hand([](QDialog& box) {
    auto* paper = box.findChild<QComboBox*>("Paper");
    ASSERT_NE(paper, nullptr);
    paper->setCurrentIndex(2);
    box.accept();
  });
  Trigger("mnuFilePageSetup");
  EXPECT_EQ(printer_.Setup().Paper, PageSetup::Size::kA4);
  EXPECT_EQ(printer_.NextPaper(false).Width, kA4Paper.Width) << "whatever the document's unit";
}

TEST_F(WindowPrinterTest, EscLeavesThePageSetupAsItWas) {
  const Hand<QDialog> hand([](QDialog& box) {
    box.findChild<QComboBox*>("Paper")->setCurrentIndex(2);
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  Trigger("mnuFilePageSetup");
  EXPECT_EQ(printer_.Setup().Paper, PageSetup::Size::kByUnits);
  EXPECT_EQ(printer_.NextPaper(false).Width, kLetterPaper.Width);
  EXPECT_EQ(printer_.NextPaper(true).Width, kA4Paper.Width);
}

TEST_F(WindowPrinterTest, APrinterThatIsGoneIsAMessage) {
  printer_.SetSetup({"no such queue", PageSetup::Size::kByUnits});
  Trigger("mnuFilePrint");
  ASSERT_EQ(messages_.messages.size(), 1U);
  EXPECT_EQ(messages_.messages[0].second, "Printer error - 482");
}

TEST_F(WindowPrinterTest, TodayIsTheDesktopsShortDate) { EXPECT_FALSE(printer_.Today().empty()); }

}  // namespace
}  // namespace pitchcraft
