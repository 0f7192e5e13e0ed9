// Files that are no projects, disks that take none, and what is written and read in general.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

#include "project_test.h"

namespace pitchcraft {
namespace {

constexpr const char* kCannotRead = "Error reading file, can't load rafter";
constexpr const char* kInvalidName = "Invalid file name, can't load rafter";
constexpr const char* kNoRoof = "Not a valid roof type.";
constexpr const char* kCannotWrite = "Error writing to file, can't save rafter";

class RefusalTest : public ProjectTest {
 protected:
  void ExpectRefused(const std::string& path, const char* message) {
    around().clear();
    EXPECT_FALSE(LoadProject(session.document, path));
    ASSERT_EQ(around().size(), 1U);
    EXPECT_EQ(around()[0].first, "Load Rafter");
    EXPECT_EQ(around()[0].second, message);
    EXPECT_EQ(session.document.design.Loading, 0);
    EXPECT_EQ(session.document.window.Title, "Pitchcraft - [Untitled]");
    EXPECT_TRUE(session.document.design.menus.FileMRU[0].Caption.empty());
  }
  std::vector<std::pair<std::string, std::string>>& around() { return session.around.dialogs.messages; }

  ProjectSession session;
};

TEST_F(RefusalTest, FilesThatAreNoProjects) {
  ExpectRefused(PathOf("missing.pcf"), kInvalidName);
  ExpectRefused("", kInvalidName);
  ExpectRefused(folder.string(), kInvalidName);
  ExpectRefused(Write("empty.pcf", ""), kCannotRead);
  ExpectRefused(Write("prose.pcf", "Dear reader,\r\nRafterType=0\r\n"), kCannotRead);
  ExpectRefused(Write("nothing.pcf", "[Settings]\r\nRafterType=\r\n"), kCannotRead);
  for (const char* type : {"7", "14", "-1", "1.5", "99999999999", "1e30"}) {
    ExpectRefused(Write("type.pcf", "[Settings]\r\nRafterType=" + std::string(type) + "\r\n"), kNoRoof);
  }
}

TEST_F(RefusalTest, BinaryFiles) {
  std::mt19937 random(7);  // NOLINT: the same bytes on every run
  std::string bytes(200000, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  ExpectRefused(Write("binary.pcf", bytes), kCannotRead);
  ExpectRefused(Write("zeros.pcf", std::string(5000, '\0')), kCannotRead);
}

TEST_F(RefusalTest, AHundredMegabytes) {
  const std::string path = Write("large.pcf", "[Settings]\r\nRafterType=0\r\n");
  std::filesystem::resize_file(path, 100'000'000);
  ExpectRefused(path, kCannotRead);
}

TEST_F(RefusalTest, UnitsAreAppliedBeforeARoofIsRefused) {
  ExpectRefused(Write("metric.pcf", "[Settings]\r\nUnits=1\r\nRafterType=7\r\n"), kNoRoof);
  EXPECT_TRUE(session.document.design.Metric) << "a refused file leaves the sheet as far as it got";
}

TEST_F(RefusalTest, OldCodeOfTheBayIsRead) {
  ASSERT_TRUE(LoadProject(session.document, Write("bay.pcf", "[Settings]\r\nRafterType=6\r\n")));
  EXPECT_EQ(session.document.design.RoofType, Roof::kBay);
  EXPECT_EQ(session.document.design.sheet.Face.Value(), 48);
}

TEST_F(RefusalTest, MissingKeysTakeTheirDefaults) {
  ASSERT_TRUE(LoadProject(session.document, Write("short.pcf", "[Settings]\r\nSlope=7\r\n")));
  EXPECT_EQ(session.document.design.RoofType, Roof::kGable);
  EXPECT_EQ(double{session.document.design.Rafter1.Slope}, 7);
  EXPECT_EQ(double{session.document.design.Rafter1.Span}, 144);
  EXPECT_EQ(double{session.document.design.Rafter1.Depth}, 5.5);
}

TEST_F(RefusalTest, EveryFormThatTheReaderTakes) {
  const std::string forms[] = {
      "[Settings]\nRafterType=3\nSlope=5\n",
      "\xEF\xBB\xBF[Settings]\r\nRafterType=3\r\nSlope=5",
      "; a word before\r\n[Other]\r\nRafterType=9\r\n[ SETTINGS ]\r\n  slope  =  \"5\"  "
      "\r\nRAFTERTYPE='3'\r\n",
      "[settings]\rSlope=5\rSlope=9\rRafterType=3\r[Other]\rSlope=1\r",
  };
  for (const std::string& form : forms) {
    SCOPED_TRACE(form);
    ProjectSession own;
    ASSERT_TRUE(LoadProject(own.document, Write("form.pcf", form)));
    EXPECT_EQ(own.document.design.RoofType, Roof::kShed);
    EXPECT_EQ(double{own.document.design.Rafter1.Slope}, 5);
  }
}

// A file that was cut anywhere is opened with defaults for what is missing, or refused; nothing else happens.
TEST_F(RefusalTest, AFileCutAnywhere) {
  for (const ProjectCase& roof : AllProjectRoofs()) {
    ProjectSession writer;
    writer.Enter(roof);
    ASSERT_TRUE(SaveProject(writer.document, PathOf("whole.pcf")));
    const std::string whole = Read("whole.pcf");
    ProjectSession reader;
    for (std::size_t length = 0; length < whole.size(); length += 7) {
      reader.around.dialogs.messages.clear();
      const bool loaded = LoadProject(reader.document, Write("cut.pcf", whole.substr(0, length)));
      EXPECT_EQ(reader.document.design.Loading, 0);
      // One that is opened may tell that its hips would cross, with the defaults in it.
      EXPECT_TRUE(loaded || reader.around.dialogs.messages.size() == 1) << roof.name << " cut at " << length;
    }
  }
}

TEST_F(RefusalTest, PathsThatTakeNoFile) {
  std::filesystem::create_directories(folder / "folder.pcf");
  for (const std::string& path :
       {std::string(), PathOf("folder.pcf"), PathOf("no/such/house.pcf"), std::string("/proc/house.pcf"),
        std::string("/dev/null/house.pcf"), PathOf(std::string(300, 'x'))}) {
    around().clear();
    EXPECT_FALSE(SaveProject(session.document, path)) << path;
    ASSERT_EQ(around().size(), 1U);
    EXPECT_EQ(around()[0], std::make_pair(std::string("Save Rafter"), std::string(kCannotWrite)));
  }
}

// Runs the step in a process whose files cannot grow past the limit.
template <typename Step>
int WithDiskOf(rlim_t bytes, Step step) {
  const pid_t child = fork();
  if (child == 0) {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
    _exit(step());
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(RefusalTest, AFullDiskLeavesTheOldFile) {
  const std::string path = PathOf("house.pcf");
  ASSERT_TRUE(SaveProject(session.document, path));
  const std::string old = Read("house.pcf");
  session.Enter({"Other", false, {{"type", "FtSpan(0)", "200"}}});
  for (const rlim_t disk : {0U, 1U, 100U, 400U}) {
    const int result = WithDiskOf(disk, [&] {
      const bool saved = SaveProject(session.document, path);
      return !saved && session.LastMessage() == kCannotWrite ? 0 : 1;
    });
    EXPECT_EQ(result, 0) << "a disk of " << disk << " bytes";
    EXPECT_EQ(Read("house.pcf"), old);
  }
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1)
      << "nothing half written stays";
}

// A process that saves two projects in turn is killed again and again.
TEST_F(RefusalTest, AKillLeavesTheOldFileOrTheNewOne) {
  const std::string path = PathOf("house.pcf");
  ProjectSession other;
  other.Enter({"Other", false, {{"pick", "cboType", "Hip"}, {"type", "FtSpan(0)", "200"}}});
  ASSERT_TRUE(SaveProject(other.document, path));
  const std::string hip = Read("house.pcf");
  ASSERT_TRUE(SaveProject(session.document, path));
  const std::string gable = Read("house.pcf");
  ASSERT_NE(gable, hip);
  std::mt19937 random(11);  // NOLINT: the same moments on every run
  int hips = 0;
  constexpr int kKills = 200;
  for (int i = 0; i < kKills; ++i) {
    const pid_t child = fork();
    if (child == 0) {
      for (;;) {
        SaveProject(other.document, path);
        SaveProject(session.document, path);
      }
    }
    usleep(random() % 4000);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::string now = Read("house.pcf");
    ASSERT_TRUE(now == gable || now == hip) << "after kill " << i << ": [" << now << "]";
    hips += now == hip ? 1 : 0;
  }
  EXPECT_GT(hips, 0) << "no kill came between";
  EXPECT_LT(hips, kKills) << "no kill came between";
}

TEST_F(RefusalTest, ALinkStaysALinkAndRightsStay) {
  const std::string path = PathOf("house.pcf");
  ASSERT_TRUE(SaveProject(session.document, path));
  std::filesystem::permissions(path,
                               std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  std::filesystem::create_symlink(path, folder / "link.pcf");
  ASSERT_TRUE(SaveProject(session.document, PathOf("link.pcf")));
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.pcf"));
  EXPECT_EQ(std::filesystem::status(path).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

}  // namespace
}  // namespace pitchcraft
