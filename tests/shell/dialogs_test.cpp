// The boxes that speak to the person, answered by a hand that waits for them.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include "dialog_hand.h"
#include "shell/qt_dialogs.h"

namespace pitchcraft {
namespace {

class DialogsTest : public testing::Test {
 protected:
  DialogsTest() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
  FileDialog Ask(bool saves) const {
    return {"Project",
            folder_.path().toStdString(),
            saves ? "Barn" : "",
            "pcf",
            "Rafter (*.pcf)|*.pcf|all files (*.*)|*.*",
            !saves,
            saves};
  }
  QTemporaryDir folder_;
  QtDialogs dialogs_;
};

TEST_F(DialogsTest, MessageShowsItsTextAsItIs) {
  QString text;
  const Hand<QMessageBox> hand([&](QMessageBox& box) {
    text = box.text();
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    box.accept();
  });
  dialogs_.MsgBox("Title", "<b>Overflow</b> - 6");
  EXPECT_EQ(text, "<b>Overflow</b> - 6");
}

TEST_F(DialogsTest, InputOffersANameAndTakesAnother) {
  const Hand<QInputDialog> hand([](QInputDialog& box) {
    EXPECT_EQ(box.textValue(), "Untitled");
    box.setTextValue("B\u00e4rn");
    box.accept();
  });
  EXPECT_EQ(dialogs_.Input({"New", "Name:", "Untitled"}), "B\xC3\xA4rn");
}

TEST_F(DialogsTest, InputThatIsCancelledIsNothing) {
  const Hand<QInputDialog> hand([](QInputDialog& box) { box.reject(); });
  EXPECT_EQ(dialogs_.Input({"New", "Name:", "Untitled"}), std::nullopt);
}

TEST_F(DialogsTest, SavingOffersTheNameAndAddsTheExtension) {
  const Hand<QFileDialog> hand([](QFileDialog& box) {
    EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(box.nameFilters(), QStringList({"Rafter (*.pcf)", "all files (*)"}));
    box.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
  });
  EXPECT_EQ(dialogs_.SaveFile(Ask(true)), folder_.filePath("Barn.pcf").toStdString());
}

TEST_F(DialogsTest, OpeningTakesAFileThatIsThere) {
  QFile file(folder_.filePath("Shed.pcf"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  const Hand<QFileDialog> hand([](QFileDialog& box) {
    EXPECT_EQ(box.fileMode(), QFileDialog::ExistingFile);
    box.selectFile("Shed.pcf");
    box.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
  });
  EXPECT_EQ(dialogs_.OpenFile(Ask(false)), folder_.filePath("Shed.pcf").toStdString());
}

TEST_F(DialogsTest, CancelIsNothing) {
  const Hand<QFileDialog> hand([](QFileDialog& box) { box.reject(); });
  EXPECT_EQ(dialogs_.OpenFile(Ask(false)), std::nullopt);
}

}  // namespace
}  // namespace pitchcraft
