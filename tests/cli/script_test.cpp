#include "script_runner.h"

#include <gtest/gtest.h>

#include "session/script_line.h"

namespace pitchcraft {
namespace {

TEST(Script, BlankLinesAndCommentsAreSkipped) {
  const ScriptRun run = RunScript("\n   \n# type FtSpan(0) 1\n  # more\n\r\n");
  EXPECT_EQ(run.status, kDone);
  EXPECT_TRUE(run.events.empty());
}

TEST(Script, ADumpComesWhereItWasAskedFor) {
  const ScriptRun run =
      RunScript("type LWSlope(0) 6 | 12\ndump Rafter1\ntype FtSpan(0) 12' 6 1/2\"\ndump Rafter1 title");
  ASSERT_EQ(run.events.size(), 2U);
  EXPECT_EQ(run.events[0]["event"], "dump");
  EXPECT_EQ(run.events[0]["Rafter1"]["Rise"], 71.625);
  EXPECT_EQ(run.events[0]["Rafter1"]["Span"], 144.0);
  EXPECT_FALSE(run.events[0].contains("title"));
  EXPECT_EQ(run.events[1]["Rafter1"]["Span"], 150.5);
  EXPECT_EQ(run.events[1]["title"], "Pitchcraft - [Untitled]");
}

TEST(Script, TextIsTakenAsItStandsToTheEndOfTheLine) {
  const ScriptRun run = RunScript("edit FtSpan(0) 12' 6 1/2\"  \ndump sheet\nedit FtSpan(0)\ndump sheet");
  EXPECT_EQ(run.events[0]["sheet"]["FtSpan(0)"]["Text"], "12' 6 1/2\"  ");
  EXPECT_EQ(run.events[1]["sheet"]["FtSpan(0)"]["Text"], "");
}

struct BadLine {
  const char* name;
  const char* line;
};
const BadLine kBadLines[] = {
    {"no such verb", "tpye FtSpan(0) 12'"},
    {"no such control", "type FtSpam(0) 12'"},
    {"hidden control", "type FtSpan(2) 12'"},
    {"disabled control", "type FtKneewall(0) 12'"},
    {"no such row", "pick cboType Igloo"},
    {"neither on nor off", "check chkHeel(0) maybe"},
    {"neither up nor down", "spin Spin(0) left"},
    {"no such page", "page VSTab(0) 7"},
    {"page without a number", "page VSTab(0) x"},
    {"page with more than a number", "page VSTab(0) 1x"},
    {"no such button", "press Igloo"},
    {"mouse without a point", "mouse Picture1 left"},
    {"mouse on a hidden picture", "mouse Picture3 left 1 1"},
    {"mouse on no picture", "mouse cboType left 1 1"},
    {"size of nothing", "size 0 100"},
    {"size without a number", "size wide high"},
    {"dump of nothing known", "dump everything"},
    {"picture without a file", "picture"},
    {"unknown thing to point at", "hover Igloo"},
    {"type without a control", "type"},
};

TEST(Script, ALineThatIsNotUnderstoodIsAnErrorAndTheNextFollows) {
  for (const BadLine& row : kBadLines) {
    const ScriptRun run = RunScript("# first\n" + std::string(row.line) + "\ndump title\n");
    EXPECT_EQ(run.status, kNotUnderstood) << row.name;
    ASSERT_EQ(run.events.size(), 2U) << row.name;
    EXPECT_EQ(run.events[0]["event"], "error") << row.name;
    EXPECT_EQ(run.events[0]["line"], 2) << row.name;
    EXPECT_FALSE(run.events[0]["text"].get<std::string>().empty()) << row.name;
    EXPECT_EQ(run.events[1]["event"], "dump") << row.name;
  }
}

TEST(Script, AMessageIsAnEvent) {
  const ScriptRun run =
      RunScript("pick cboType Hip\ncheck chkLastCommon on\ntype FtLastCommon 20'\ndump sheet\n");
  ASSERT_EQ(run.events.size(), 2U);
  EXPECT_EQ(run.events[0]["event"], "message");
  EXPECT_EQ(run.events[0]["title"], "Pitchcraft");
  EXPECT_EQ(run.status, kDone) << "a message is no failure of the script";
}

TEST(Script, PicturesGoToTheirWriter) {
  const ScriptRun run = RunScript("picture a b.svg\npicture fails.png\n");
  EXPECT_EQ(run.pictures, (std::vector<std::string>{"a b.svg", "fails.png"}));
  EXPECT_EQ(run.status, kWorkFailed);
  ASSERT_EQ(run.events.size(), 1U);
  EXPECT_EQ(run.events[0]["text"], "no such folder");
}

TEST(Script, ExitEndsTheScript) {
  const ScriptRun run = RunScript("click mnuFileExit\ndump title\n");
  EXPECT_TRUE(run.events.empty());
}

TEST(Script, ActionsReachTheDocument) {
  const ScriptRun run = RunScript(
      "press Hip\npage VSTab(0) 3\ncheck chkHeel(0) on\nclick mnuMetric\nspin Spin(0) up\nhover FtSpan(0)\n"
      "size 20000 14000\nmouse Picture1 right 10 10\nanswer cancel\nanswer a.pcf\ndump\n");
  EXPECT_EQ(run.status, kDone);
  ASSERT_EQ(run.events.size(), 1U);
  const Json& dump = run.events[0];
  EXPECT_EQ(dump["document"]["UnitRun"], 1000);
  EXPECT_EQ(dump["sheet"]["FtSpan(0)"]["Value"], 3600.25);
  EXPECT_EQ(dump["status"], "Enter the run of the COMMON rafter (do not subtract for the ridge board)");
}

TEST(ScriptLine, WordsAreCutAtBlanks) {
  std::string_view line = "  type  FtSpan(0)   12' 6  ";
  EXPECT_EQ(TakeWord(line), "type");
  EXPECT_EQ(TakeWord(line), "FtSpan(0)");
  EXPECT_EQ(line, "12' 6  ");
  int number = 0;
  EXPECT_TRUE(ReadNumber("-12", number));
  EXPECT_EQ(number, -12);
  for (const char* text : {"", "1.5", "12a", "99999999999", " 1"})
    EXPECT_FALSE(ReadNumber(text, number)) << text;
}

}  // namespace
}  // namespace pitchcraft
