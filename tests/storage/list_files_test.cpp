// Lists on disk.
#include "storage/list_files.h"

#include <gtest/gtest.h>

#include "../support/golden.h"
#include "core/run_time_error.h"
#include "storage/lists.h"

namespace pitchcraft {
namespace {

using Rows = std::vector<std::string>;

class ListFilesTest : public ::testing::Test {
 protected:
  ListFilesTest() {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    folder = std::filesystem::temp_directory_path() / ("pitchcraft-lists-" + std::string(info->name()));
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
  }
  ~ListFilesTest() override { std::filesystem::remove_all(folder); }
  std::optional<Rows> ReadRows(const std::string& text) {
    testing::WriteWhole(folder / "a.dat", text);
    return ReadListFile(folder / "a.dat");
  }

  std::filesystem::path folder;
};

TEST_F(ListFilesTest, RowsOfAFile) {
  EXPECT_EQ(ReadListFile(folder / "none.dat"), std::nullopt);
  EXPECT_EQ(ReadRows(""), Rows{});
  EXPECT_EQ(ReadRows("2x4|1.5|3.5\r\n2x6|1.5|5.5"), (Rows{"2x4|1.5|3.5", "2x6|1.5|5.5"}));
  EXPECT_EQ(ReadRows("\xEF\xBB\xBF 2x4|1.5|3.5 \n\n\n"), Rows{"2x4|1.5|3.5"});
  EXPECT_EQ(ReadRows("2x4|1.5|3.5, dry\n"), Rows{"2x4|1.5|3.5"}) << "a comma ends the row";
  EXPECT_EQ(ReadRows("2x4, dry|1.5|3.5\n"), Rows{}) << "what follows the comma is lost, bars too";
  EXPECT_EQ(ReadRows("LWRafter\\2x4|1.5|3.5\n"), Rows{"2x4|1.5|3.5"})
      << "what stands before a backslash is no row";
  EXPECT_EQ(ReadRows("a\\b\\2x4|1|2\n"), Rows{"b\\2x4|1|2"}) << "the first backslash counts";
  EXPECT_EQ(ReadRows("2x4\n\\\n,\n"), Rows{}) << "no bars, no row";
}

TEST_F(ListFilesTest, BinaryAndLargeFiles) {
  EXPECT_EQ(ReadRows(std::string(1000, '\0')), Rows{});
  std::filesystem::resize_file(folder / "a.dat", 100'000'000);
  EXPECT_THROW(ReadListFile(folder / "a.dat"), RunTimeError);
  EXPECT_THROW(ReadListFile(folder), RunTimeError) << "a folder";
}

TEST_F(ListFilesTest, AMissingListOfDegreesIsMade) {
  EXPECT_EQ(ReadDegreesFile(folder / kDegreesFile, DefaultDegreeRows()), DefaultDegreeRows());
  EXPECT_EQ(testing::ReadWhole(folder / kDegreesFile).substr(0, 6), "1\r\n2\r\n");
  testing::WriteWhole(folder / kDegreesFile, "22.5\nx\n\n45,5\n0\n");
  EXPECT_EQ(ReadDegreesFile(folder / kDegreesFile, DefaultDegreeRows()), (Rows{"22.5", "45", "0"}));
  EXPECT_THROW(ReadDegreesFile(folder / "none" / kDegreesFile, {}), RunTimeError);
}

TEST_F(ListFilesTest, RewritingKeepsTheOldList) {
  const std::filesystem::path file = folder / "Lumber.dat";
  RewriteListFile(file, {ListRow("2x4", "1.5", "3.5")});
  EXPECT_FALSE(std::filesystem::exists(folder / "Lumber.old")) << "there was none";
  RewriteListFile(file, {ListRow("2x6", "1.5", "5.5"), ListRow("2x8", "1.5", "7.25")});
  RewriteListFile(file, {ListRow("4x4", "3.5", "3.5")});
  EXPECT_EQ(testing::ReadWhole(file), "4x4|3.5|3.5\r\n");
  EXPECT_EQ(testing::ReadWhole(folder / "Lumber.old"), "2x6|1.5|5.5\r\n2x8|1.5|7.25\r\n");
}

TEST_F(ListFilesTest, ABackupThatCannotBeWrittenLeavesTheList) {
  const std::filesystem::path file = folder / "Slope.dat";
  testing::WriteWhole(file, "6/12|6|12\r\n");
  std::filesystem::create_directories(folder / "Slope.old");
  EXPECT_THROW(RewriteListFile(file, {}), RunTimeError);
  EXPECT_EQ(testing::ReadWhole(file), "6/12|6|12\r\n");
}

}  // namespace
}  // namespace pitchcraft
