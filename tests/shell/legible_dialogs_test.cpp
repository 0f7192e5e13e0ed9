// All words of the dialogs, the lists and the other windows can be read, in the letters of any desktop.
#include <QDialog>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>

#include "../support/faces.h"
#include "../support/legible_words.h"
#include "dialog_hand.h"
#include "document/forms.h"
#include "shell/drop_list.h"
#include "shell/splash.h"
#include "whole_program.h"

namespace pitchcraft::testing {
namespace {

class LegibleDialogs : public ::testing::TestWithParam<Face>, WithFace {
 protected:
  LegibleDialogs() : WithFace(GetParam()) {}

  /// Opens a dialog, looks at its words as it comes up and after `more`, and closes it.
  void Look(const std::string& where, const std::function<void()>& open,
            const std::function<void(QDialog&)>& more = {}) {
    const Hand<QDialog> hand([&](QDialog& dialog) {
      QApplication::processEvents();
      ExpectWordsFit(dialog, where);
      if (more) more(dialog);
      const QSize screen = dialog.screen()->size();
      EXPECT_LE(dialog.width(), screen.width()) << where;
      EXPECT_LE(dialog.height(), screen.height()) << where;
      dialog.reject();
    });
    open();
  }
  void LookAtItem(const char* item, const std::function<void(QDialog&)>& more = {}) {
    Look(
        item, [&] { program_.Trigger(item); }, more);
  }

  WholeProgram program_;
};

TEST_P(LegibleDialogs, OptionsOnEveryPage) {
  LookAtItem("mnuViewOptions", [](QDialog& dialog) {
    auto& tabs = *dialog.findChild<QTabWidget*>("tbsOptions");
    for (int page = 0; page < tabs.count(); ++page) {
      tabs.setCurrentIndex(page);
      QApplication::processEvents();
      ExpectWordsFit(dialog, "options, page " + std::to_string(page));
    }
  });
}

TEST_P(LegibleDialogs, ColorsThatDropDown) {
  LookAtItem("mnuFileDXFSettings", [](QDialog& dialog) {
    for (auto* arrow : dialog.findChildren<QAbstractButton*>("cmdArrow")) {
      if (!arrow->isVisible()) continue;
      arrow->click();
      auto* list = qobject_cast<DropList*>(QApplication::activePopupWidget());
      ASSERT_NE(list, nullptr);
      ExpectWordsFit(*list, "colors");
      list->hide();
    }
  });
}

TEST_P(LegibleDialogs, TipsAndWhatThereIsToSayAboutTheProgram) {
  constexpr const char* kTips = "TIPOFDAY.TXT";
  std::filesystem::copy_file(std::filesystem::path(PITCHCRAFT_SOURCE_DIR) / "data" / kTips,
                             program_.PathOf(kTips));
  LookAtItem("mnuHelpTips", [](QDialog& dialog) {
    for (int tip = 0; tip < 40; ++tip) {
      dialog.findChild<QPushButton*>("cmdNextTip")->click();
      QApplication::processEvents();
      ExpectWordsFit(dialog, "tip " + std::to_string(tip));
    }
  });
  LookAtItem("mnuHelpAbout", [](QDialog& dialog) {
    dialog.findChild<QPushButton*>("cmdSysInfo")->click();
    QApplication::processEvents();
    ExpectWordsFit(dialog, "system information");
  });
  Look("disclaimer", [this] {
    DisclaimerForm form(program_.store);
    program_.dialogs.ShowForm(&form);
  });
}

TEST_P(LegibleDialogs, QuestionsAndMessages) {
  LookAtItem("mnuFilePageSetup");
  LookAtItem("mnuFileProjectName");
  Look("increment", [this] {
    IncrementForm form;
    program_.dialogs.ShowForm(&form);
  });
  Look("message", [this] { program_.dialogs.MsgBox("A title", "A message of some words."); });
}

TEST_P(LegibleDialogs, ListsOfTheFields) {
  program_.Press("Hip");
  program_.TurnTo(3);
  for (const char* field : {"cboSpacing.Text", "LWSlope(0).Left", "LWRafter(0).Left", "LWFascia(0).Left"}) {
    if (!program_.Box(field).isVisible()) program_.TurnTo(0);
    program_.Box(field).setFocus();
    WindowHand::Key(Qt::Key_F4);
    auto* list = qobject_cast<DropList*>(QApplication::activePopupWidget());
    ASSERT_NE(list, nullptr) << field;
    ExpectWordsFit(*list, field);
    list->hide();
  }
  auto& roofs = program_.Find<QComboBox>("cboType");
  roofs.showPopup();
  QApplication::processEvents();
  ExpectWordsFit(*roofs.view(), "roofs");
  roofs.hidePopup();
}

TEST_P(LegibleDialogs, HelpAndSplash) {
  program_.Trigger("mnuHelpcontents");
  QWidget* help = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "HelpWindow" && window->isVisible()) help = window;
  }
  ASSERT_NE(help, nullptr);
  ExpectWordsFit(*help, "help");
  help->findChild<QLineEdit*>("HelpSearch")->setText("rafter");
  QApplication::processEvents();
  ExpectWordsFit(*help, "search");
  help->close();
  qApp->setProperty("dialogIsExpected", true);
  Splash splash("10.20.30");
  splash.show();
  ExpectWordsFit(splash, "splash");
  splash.close();
  qApp->setProperty("dialogIsExpected", false);
}

INSTANTIATE_TEST_SUITE_P(Faces, LegibleDialogs, ::testing::ValuesIn(AllFaces()),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace pitchcraft::testing
