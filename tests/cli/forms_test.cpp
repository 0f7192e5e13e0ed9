// Forms that a script brings up.
#include <gtest/gtest.h>

#include "script_runner.h"

namespace pitchcraft {
namespace {

TEST(ScriptForms, IncrementTakesTheReplyAsItsField) {
  const ScriptRun run = RunScript("answer 1/2\"\nclick mnuSpinIncrement\ndump document");
  ASSERT_EQ(run.events.size(), 2U);
  EXPECT_EQ(run.events[0], Json::parse(R"({"event":"dialog","kind":"frmIncrement","title":"Increment Amount",
    "name":"1/4\"","answer":"1/2\""})"));
  EXPECT_EQ(run.events[1]["document"]["Increment"], 0.5);
  EXPECT_EQ(run.status, kDone);
}

TEST(ScriptForms, IncrementWithoutAReplyIsCancelled) {
  for (const char* reply : {"", "answer cancel\n", "answer 0\n", "answer -1\n", "answer\n"}) {
    const ScriptRun run = RunScript(std::string(reply) + "click mnuSpinIncrement\ndump document");
    ASSERT_EQ(run.events.size(), 2U) << reply;
    EXPECT_EQ(run.events[1]["document"]["Increment"], 0.25) << reply;
  }
}

TEST(ScriptForms, AFormWithoutAFieldTakesOneReplyAndCloses) {
  struct Row {
    const char* item;
    const char* kind;
  };
  for (const Row& row : {Row{"mnuViewOptions", "frmOptions"}, Row{"mnuFileDXFSettings", "frmOptions"},
                         Row{"mnuPopUp1DXFSettings", "frmOptions"}, Row{"mnuPopUp2DXFSettings", "frmOptions"},
                         Row{"mnuHelpTips", "frmTip"}, Row{"mnuHelpAbout", "frmAbout"}}) {
    const std::string click = "click " + std::string(row.item);
    const ScriptRun run = RunScript("answer ok\nanswer 3\n" + click + "\nclick mnuSpinIncrement\n" + click);
    ASSERT_EQ(run.events.size(), 3U) << row.item;
    EXPECT_EQ(run.events[0]["event"], "dialog") << row.item;
    EXPECT_EQ(run.events[0]["kind"], row.kind) << row.item;
    EXPECT_EQ(run.events[0]["answer"], "ok") << row.item;
    EXPECT_EQ(run.events[1]["answer"], "3") << "the second reply is the next form's";
    EXPECT_TRUE(run.events[2]["answer"].is_null()) << row.item;
    EXPECT_EQ(run.status, kDone) << row.item;
  }
}

TEST(ScriptForms, OptionsThatNobodyChangedChangeNothing) {
  const std::string dumps = "dump document sheet drawing Rafter1\n";
  const ScriptRun run =
      RunScript("type LWSlope(0) 6 | 12\n" + dumps + "answer ok\nclick mnuViewOptions\n" + dumps);
  ASSERT_EQ(run.events.size(), 3U);
  EXPECT_EQ(run.events[0], run.events[2]);
}

TEST(ScriptForms, AStartHasNoForms) { EXPECT_TRUE(RunScript("").events.empty()); }

}  // namespace
}  // namespace pitchcraft
