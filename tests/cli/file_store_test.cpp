#include "session/file_store.h"

#include <gtest/gtest.h>

#include <fstream>

namespace pitchcraft {
namespace {

class FileStoreTest : public testing::Test {
 protected:
  void SetUp() override {
    folder = std::filesystem::temp_directory_path() /
             ("pitchcraft-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
  }
  void TearDown() override { std::filesystem::remove_all(folder); }
  std::filesystem::path folder;
};

TEST_F(FileStoreTest, KeepsWhatWasSet) {
  {
    FileStore store(folder);
    store.Set("Pitchcraft", "Settings", "Units", "1");
    store.Set("Rafter", "MRU", "MRU1", "a \"b\" \\ \xC3\xA9");
    EXPECT_TRUE(store.Save());
  }
  FileStore again(folder);
  EXPECT_EQ(again.Get("Pitchcraft", "Settings", "Units"), "1");
  EXPECT_EQ(again.Get("Rafter", "MRU", "MRU1"), "a \"b\" \\ \xC3\xA9");
  EXPECT_FALSE(again.Get("Rafter", "Settings", "Units"));
}

TEST_F(FileStoreTest, RubbishCountsAsNothingStored) {
  for (const char* text : {"", "{", "[]", "{\"a\": 1}", "{\"a\": {\"b\": {\"c\": 5}}}", "\xFF\xFE"}) {
    std::ofstream(folder / "settings.json") << text;
    FileStore store(folder);
    EXPECT_FALSE(store.Get("a", "b", "c")) << text;
  }
}

TEST_F(FileStoreTest, AFolderThatIsGoneIsToldAndNothingIsLeft) {
  FileStore store(folder / "gone");
  store.Set("a", "b", "c", "d");
  EXPECT_FALSE(store.Save());
}

TEST_F(FileStoreTest, NothingSetWritesNothing) {
  EXPECT_TRUE(FileStore(folder).Save());
  EXPECT_TRUE(std::filesystem::is_empty(folder));
}

}  // namespace
}  // namespace pitchcraft
