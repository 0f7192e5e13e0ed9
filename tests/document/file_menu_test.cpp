// New, open, save, the project's name and the recent files, as a person finds them in the File menu.
#include "answering_dialogs.h"
#include "project_test.h"

namespace pitchcraft {
namespace {

class FileMenuTest : public ProjectTest {
 protected:
  FileMenuTest() { Start(document); }
  void Click(const char* name, std::optional<std::string> answer = std::nullopt) {
    if (answer) dialogs.answers.push_back(answer);
    const Refusal refusal = actions.Click(name);
    EXPECT_FALSE(refusal) << refusal.value_or("");
  }

  AnsweringDialogs dialogs;
  MemoryStore store;
  Document document{{dialogs, store, {}}};
  Actions actions{document};
};

TEST_F(FileMenuTest, SaveAsksForANameOnce) {
  Click("mnuFileSave", PathOf("house.pcf"));
  EXPECT_EQ(document.project.File, PathOf("house.pcf"));
  EXPECT_EQ(document.window.Title,
            "Pitchcraft - [" + RecentFileList::ShortenedPath(PathOf("house.pcf"), 60) + "]");
  const std::string first = Read("house.pcf");
  EXPECT_FALSE(actions.Type("FtSpan(0)", "200"));
  Click("mnuFileSave");
  EXPECT_NE(Read("house.pcf"), first);
  EXPECT_EQ(dialogs.asked, std::vector<std::string>{"Save Project: Untitled"});
}

TEST_F(FileMenuTest, SaveWithoutAFileIsAnError) {
  Click("mnuFileSave");
  EXPECT_EQ(dialogs.messages, std::vector<std::string>{"Error writing to file, can't save rafter"});
}

TEST_F(FileMenuTest, ANameWithoutAnEndingGetsOne) {
  Click("mnufileSaveAs", PathOf("barn"));
  EXPECT_TRUE(std::filesystem::exists(PathOf("barn.pcf")));
  Click("mnuFileOpen", PathOf("barn"));
  EXPECT_EQ(document.project.File, PathOf("barn.pcf"));
  EXPECT_EQ(document.project.Name, "barn");
}

TEST_F(FileMenuTest, SaveAsLeavesOnlyTheKeysOfTheRoof) {
  EXPECT_FALSE(actions.Pick("cboType", "Gambrel Roof"));
  Click("mnufileSaveAs", PathOf("house.pcf"));
  EXPECT_NE(Read("house.pcf").find("GambrelType"), std::string::npos);
  EXPECT_FALSE(actions.Pick("cboType", "Common Gable"));
  Click("mnufileSaveAs", PathOf("house.pcf"));
  EXPECT_EQ(Read("house.pcf").find("GambrelType"), std::string::npos);
}

TEST_F(FileMenuTest, OpenCancelledChangesNothing) {
  Click("mnuFileOpen");
  EXPECT_EQ(document.project.File, "");
  EXPECT_TRUE(dialogs.messages.empty());
  Click("mnuFileOpen", PathOf("none.pcf"));
  EXPECT_EQ(document.project.Name, "Untitled");
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(FileMenuTest, NewKeepsTheValuesAndAsksForAName) {
  EXPECT_FALSE(actions.Type("FtSpan(0)", "200"));
  EXPECT_FALSE(actions.Pick("cboType", "Hip"));
  EXPECT_FALSE(actions.Page("VSTab(0)", 3));
  Click("mnuFileNew", "Barn");
  EXPECT_EQ(document.design.RoofType, Roof::kGable);
  EXPECT_EQ(PageShown(document.design), 0);
  EXPECT_EQ(double{document.design.Rafter1.Span}, 200);
  EXPECT_EQ(document.window.Title, "Pitchcraft - [Barn]");
  Click("mnuFileNew");
  EXPECT_EQ(document.project.Name, "Barn");
  EXPECT_EQ(dialogs.asked.back(), "New Project: Barn");
}

TEST_F(FileMenuTest, ProjectNameChangesTheTitle) {
  Click("mnuFileProjectName");
  EXPECT_EQ(document.window.Title, "Pitchcraft - [Untitled]");
  Click("mnuFileProjectName", "Shed at the lake");
  EXPECT_EQ(document.window.Title, "Pitchcraft - [Shed at the lake]");
}

TEST_F(FileMenuTest, RecentFilesOpenAgain) {
  EXPECT_TRUE(actions.Click("mnuFileMRU(0)")) << "hidden while there is none";
  EXPECT_FALSE(actions.Type("FtSpan(0)", "200"));
  Click("mnufileSaveAs", PathOf("ONE.pcf"));
  EXPECT_FALSE(actions.Type("FtSpan(0)", "300"));
  Click("mnufileSaveAs", PathOf("two.pcf"));
  Click("mnuFileMRU(1)");
  EXPECT_EQ(document.project.Name, "ONE");
  EXPECT_EQ(double{document.design.Rafter1.Span}, 200);
  Click("mnuFileMRU(1)");
  EXPECT_EQ(double{document.design.Rafter1.Span}, 300) << "the one opened moved to the first place";
}

TEST_F(FileMenuTest, ToolButtonsDoTheSame) {
  dialogs.answers.emplace_back(PathOf("house.pcf"));
  EXPECT_FALSE(actions.Press("Save"));
  dialogs.answers.emplace_back("Barn");
  EXPECT_FALSE(actions.Press("New"));
  dialogs.answers.emplace_back(PathOf("house.pcf"));
  EXPECT_FALSE(actions.Press("Open"));
  EXPECT_EQ(document.project.Name, "house");
}

TEST_F(FileMenuTest, AMetricProjectSwitchesTheSession) {
  Click("mnuMetric");
  Click("mnufileSaveAs", PathOf("metric.pcf"));
  Click("mnuMetric");
  EXPECT_EQ(UnitRun(document.design), 12);
  Click("mnuFileOpen", PathOf("metric.pcf"));
  EXPECT_EQ(UnitRun(document.design), 1000);
  Click("mnuFileOpen", PathOf("metric.pcf"));
  EXPECT_EQ(UnitRun(document.design), 1000) << "also where the units are the same";
}

TEST_F(FileMenuTest, SpacingOfAProjectReachesTheSession) {
  const std::string path = Write("hip.pcf", "[Settings]\r\nRafterType=1\r\nSpacing=24\"\r\n");
  Click("mnuFileOpen", path);
  EXPECT_EQ(double{document.design.Rafter1.spacing}, 24);
  EXPECT_EQ(double{document.design.Rafter1.spacing}, 24);
  EXPECT_EQ(double{document.design.Rafter2.spacing}, 24);
}

}  // namespace
}  // namespace pitchcraft
