// The small forms: increment, disclaimer, tips, about.
#include "document/forms.h"

#include <set>

#include "form_dialogs.h"
#include "project_test.h"

namespace pitchcraft {
namespace {

class FormsTest : public ProjectTest {
 protected:
  FormsTest() { Start(document); }
  void Click(const char* name) {
    const Refusal refusal = actions.Click(name);
    EXPECT_FALSE(refusal) << refusal.value_or("");
  }
  void Increment(const char* text, bool ok = true) {
    dialogs.On<IncrementForm>([=, this](IncrementForm& form) {
      offered = form.Increment.Text();
      form.Increment.SetText(text);
      form.Accepted = ok;
    });
    Click("mnuSpinIncrement");
  }
  std::string Tips(const std::string& bytes) { return Write("TIPOFDAY.TXT", bytes); }

  FormDialogs dialogs;
  MemoryStore store;
  Document document{{dialogs, store, folder}};
  Actions actions{document};
  std::string offered;
};

TEST_F(FormsTest, IncrementTakesWhatIsAboveNothing) {
  Increment("1/2\"");
  EXPECT_EQ(offered, "1/4\"");
  EXPECT_EQ(double{document.preferences.Increment}, 0.5);
  EXPECT_EQ(double{document.preferences.MetricIncrement}, 0.25) << "the other unit system has its own";
  const double before = document.design.sheet.Span[0].Value();
  EXPECT_FALSE(actions.Spin("Spin(0)", true));
  EXPECT_EQ(document.design.sheet.Span[0].Value(), before + 0.5);
}

TEST_F(FormsTest, IncrementsThatStepNowhereAreNotTaken) {
  for (const char* text : {"0", "", "-1", "x", "inf", "nan", "1e-60", "1e39", "1e300"}) {
    Increment(text);
    EXPECT_EQ(double{document.preferences.Increment}, 0.25) << text;
  }
  Increment("3", false);
  EXPECT_EQ(double{document.preferences.Increment}, 0.25) << "cancelled";
  Increment("1e30");
  EXPECT_EQ(double{document.preferences.Increment}, double{Single(1e30)}) << "large, but a number";
}

TEST_F(FormsTest, MetricHasAnIncrementOfItsOwn) {
  ToggleUnits(document);
  Increment("5 mm");
  EXPECT_EQ(offered, "0.25 mm");
  EXPECT_EQ(double{document.preferences.MetricIncrement}, 5);
  EXPECT_EQ(double{document.preferences.Increment}, 0.25);
}

TEST_F(FormsTest, DisclaimerStoresItsBoxAsItStands) {
  struct Row {
    const char* stored;
    bool ticked;
  };
  for (const Row& row : {Row{"1", false}, Row{"0", true}, Row{"2", true}}) {
    store.Set("Pitchcraft", "Settings", "ShowDisclaimer", row.stored);
    EXPECT_EQ(DisclaimerForm(store).Ticked(), row.ticked) << row.stored;
  }
  DisclaimerForm form(store);
  form.Click(true);
  EXPECT_EQ(store.Get("Pitchcraft", "Settings", "ShowDisclaimer"), "1");
  form.Click(false);
  EXPECT_EQ(store.Get("Pitchcraft", "Settings", "ShowDisclaimer"), "0");
}

TEST_F(FormsTest, StartShowsWhatIsNotSwitchedOff) {
  ShowStartForms(document);
  EXPECT_EQ(dialogs.names, (std::vector<std::string>{"frmDisclaimer", "frmTip"}));
  store.Set("Pitchcraft", "Settings", "ShowDisclaimer", "0");
  store.Set("pitchcraft", "Options", "Show Tips at Startup", "0");
  ShowStartForms(document);
  EXPECT_EQ(dialogs.names.size(), 2U);
  store.Set("Pitchcraft", "Settings", "ShowDisclaimer", "7");
  store.Set("pitchcraft", "Options", "Show Tips at Startup", "2");
  ShowStartForms(document);
  EXPECT_EQ(dialogs.names.back(), "frmDisclaimer");
  EXPECT_EQ(dialogs.names.size(), 3U);
}

TEST_F(FormsTest, EndOfTheSessionLeavesBothSettingsAlone) {
  DisclaimerForm(store).Click(false);
  TipForm(store, {folder}, 1).Click(false);
  Close(document);
  EXPECT_EQ(store.Get("Pitchcraft", "Settings", "ShowDisclaimer"), "0");
  EXPECT_EQ(store.Get("pitchcraft", "Options", "Show Tips at Startup"), "0");
}

TEST_F(FormsTest, TipsComeInTurnAndBeginAgain) {
  Tips("\xEF\xBB\xBFone\r\n\r\n  two  \nthree");
  std::set<std::string> first;
  for (unsigned seed = 0; seed < 64; ++seed) first.insert(TipForm(store, {folder}, seed).TipText());
  EXPECT_EQ(first, (std::set<std::string>{"one", "two", "three"})) << "any of them comes first";
  TipForm form(store, {folder}, 5);
  const std::string begin = form.TipText();
  std::set<std::string> seen;
  for (int i = 0; i < 3; ++i) {
    form.NextTip();
    seen.insert(form.TipText());
  }
  EXPECT_EQ(seen.size(), 3U);
  EXPECT_EQ(form.TipText(), begin);
}

TEST_F(FormsTest, TipsThatAreNotThere) {
  TipForm missing(store, {folder}, 1);
  missing.NextTip();
  EXPECT_EQ(
      missing.TipText(),
      "That the TIPOFDAY.TXT file was not found?\n\nCreate a text file named TIPOFDAY.TXT using NotePad "
      "with 1 tip per line. Then place it in the same directory as the application. ");
  std::filesystem::create_directories(folder / "TIPOFDAY.TXT");
  EXPECT_EQ(TipForm(store, {folder}, 1).TipText(), missing.TipText()) << "a folder is no file";
  std::filesystem::remove(folder / "TIPOFDAY.TXT");
  Tips("\n \n");
  TipForm empty(store, {folder}, 1);
  empty.NextTip();
  EXPECT_EQ(empty.TipText(), "");
}

TEST_F(FormsTest, TheProgramsFolderGoesBeforeTheDataThatCameWithIt) {
  std::filesystem::create_directories(folder / "data");
  pitchcraft::testing::WriteWhole(folder / "data" / "TIPOFDAY.TXT", "ours");
  EXPECT_EQ(TipForm(store, {folder, folder / "data"}, 1).TipText(), "ours");
  Tips("own");
  EXPECT_EQ(TipForm(store, {folder, folder / "data"}, 1).TipText(), "own");
}

TEST_F(FormsTest, TipBoxIsWrittenWhenClickedAndWhenTheFormCloses) {
  Click("mnuHelpTips");
  EXPECT_EQ(store.Get("pitchcraft", "Options", "Show Tips at Startup"), "1");
  dialogs.On<TipForm>([this](TipForm& form) {
    EXPECT_TRUE(form.ShowsAtStartup());
    form.Click(false);
    EXPECT_EQ(store.Get("pitchcraft", "Options", "Show Tips at Startup"), "0");
  });
  Click("mnuHelpTips");
  EXPECT_EQ(store.Get("pitchcraft", "Options", "Show Tips at Startup"), "0");
  EXPECT_FALSE(TipForm(store, {}, 1).ShowsAtStartup());
}

TEST_F(FormsTest, TheTipsOfTheProgramAreThere) {
  const TipForm form(store, {std::filesystem::path(PITCHCRAFT_SOURCE_DIR) / "data"}, 1);
  EXPECT_GE(form.TipCount(), 25U);
}

TEST_F(FormsTest, AboutTellsTheVersion) {
  std::string version;
  dialogs.On<AboutForm>([&](AboutForm& form) { version = form.Version; });
  Click("mnuHelpAbout");
  EXPECT_TRUE(version.starts_with("Version ")) << version;
}

}  // namespace
}  // namespace pitchcraft
