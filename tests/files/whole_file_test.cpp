#include "files/whole_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "../support/scratch_folder.h"

namespace pitchcraft::testing {
namespace {

class WholeFile : public ::testing::Test {
 protected:
  std::filesystem::path Path(const char* name = "roof.pcf") const { return folder_.Path() / name; }
  std::size_t Files() const {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path()))
      count += entry.exists() ? 1 : 0;
    return count;
  }

  ScratchFolder folder_;
};

TEST_F(WholeFile, ComesBackByteForByte) {
  const std::string bytes("a\0b\r\n\xFF", 6);
  ASSERT_TRUE(WriteWholeFile(Path(), bytes));
  EXPECT_EQ(ReadWholeFile(Path(), 100), bytes);
  EXPECT_EQ(Files(), 1U) << "no file is left beside it";
}

TEST_F(WholeFile, ReplacesAndKeepsTheRights) {
  ASSERT_TRUE(WriteWholeFile(Path(), "old"));
  ASSERT_EQ(chmod(Path().c_str(), 0600), 0);
  ASSERT_TRUE(WriteWholeFile(Path(), "new"));
  EXPECT_EQ(ReadWholeFile(Path(), 100), "new");
  struct stat status {};
  ASSERT_EQ(stat(Path().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(WholeFile, IsRefusedWhereItCannotStand) {
  EXPECT_FALSE(WriteWholeFile(Path("missing/roof.pcf"), "x"));
  EXPECT_FALSE(WriteWholeFile(folder_.Path(), "x"));
  EXPECT_EQ(Files(), 0U);
}

TEST_F(WholeFile, ReadsNothingThatIsTooLargeOrNoFile) {
  ASSERT_TRUE(WriteWholeFile(Path(), "12345"));
  EXPECT_EQ(ReadWholeFile(Path(), 5), "12345");
  EXPECT_EQ(ReadWholeFile(Path(), 4), std::nullopt);
  EXPECT_EQ(ReadWholeFile(Path("none"), 100), std::nullopt);
  EXPECT_EQ(ReadWholeFile(folder_.Path(), 100), std::nullopt);
}

}  // namespace
}  // namespace pitchcraft::testing
