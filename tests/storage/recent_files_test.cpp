// The last four files: captions, order, and what is stored.
#include "storage/recent_files.h"

#include <gtest/gtest.h>

namespace pitchcraft {
namespace {

class RecentFilesTest : public testing::Test {
 protected:
  RecentFilesTest() {
    for (std::size_t i = 0; i < RecentFileList::kPlaces; ++i) recent.Items[i] = &menus.FileMRU[i];
  }
  /// The letters at the end of the four captions, with blanks for empty ones.
  std::string Order() const {
    std::string order;
    for (const MenuItem& item : menus.FileMRU) order += item.Caption.empty() ? ' ' : item.Caption.back();
    return order;
  }
  /// The same for their paths.
  std::string Paths() const {
    std::string order;
    for (int i = 0; i < 4; ++i) order += recent.Selected(i).empty() ? ' ' : recent.Selected(i).back();
    return order;
  }

  Menus menus;
  MemoryStore store;
  RecentFileList recent{store};
};

TEST_F(RecentFilesTest, FilesMoveDownAndNoneStandsTwice) {
  struct Row {
    const char* added;
    const char* order;
  };
  for (const Row& row :
       {Row{"/x/A", "A   "}, Row{"/x/B", "BA  "}, Row{"/x/B", "BA  "}, Row{"/x/A", "AB  "},
        Row{"/x/C", "CAB "}, Row{"/x/B", "BCA "}, Row{"/x/D", "DBCA"}, Row{"/x/A", "ADBC"},
        Row{"/x/B", "BADC"}, Row{"/x/A", "ABDC"}, Row{"/x/E", "EABD"}, Row{"/x/C", "CEAB"}}) {
    recent.AddNewFile(row.added);
    EXPECT_EQ(Order(), row.order) << row.added;
    EXPECT_EQ(Paths(), row.order) << row.added;
  }
}

TEST_F(RecentFilesTest, CaptionsAreNumberedAndEmptyOnesHidden) {
  recent.AddNewFile("/roofs/my house.pcf");
  recent.AddNewFile("/roofs/BARN.PCF");
  EXPECT_EQ(menus.FileMRU[0].Caption, "&1 /Roofs/Barn.pcf");
  EXPECT_EQ(menus.FileMRU[1].Caption, "&2 /Roofs/My House.pcf");
  EXPECT_TRUE(menus.FileMRU[1].Visible);
  EXPECT_FALSE(menus.FileMRU[2].Visible);
  EXPECT_EQ(menus.FileMRU[2].Caption, "");
}

TEST_F(RecentFilesTest, OpensTheRealPath) {
  recent.AddNewFile("/roofs/BARN.PCF");
  EXPECT_EQ(recent.Selected(0), "/roofs/BARN.PCF");
  EXPECT_EQ(recent.Selected(1), "");
  EXPECT_EQ(recent.Selected(4), "");
  EXPECT_EQ(recent.Selected(-1), "");
  recent.AddNewFile("/roofs/barn.pcf");
  EXPECT_EQ(recent.Selected(0), "/roofs/barn.pcf") << "the same caption, another file";
  EXPECT_EQ(recent.Selected(1), "") << "nothing moves down for the same caption";
}

TEST_F(RecentFilesTest, TheNextSessionShowsThem) {
  recent.AddNewFile("/x/A");
  recent.AddNewFile("/x/B");
  EXPECT_EQ(store.Get("Rafter", "MRU", "MRU1"), "&1 /X/B");
  EXPECT_EQ(store.Get("Rafter", "MRU", "MRU1A"), "/x/B");
  Menus later;
  RecentFileList next(store);
  for (std::size_t i = 0; i < RecentFileList::kPlaces; ++i) next.Items[i] = &later.FileMRU[i];
  next.Load();
  EXPECT_EQ(later.FileMRU[1].Caption, "&2 /X/A");
  EXPECT_TRUE(later.FileMRU[1].Visible);
}

TEST_F(RecentFilesTest, RubbishInTheStoreIsShownAsItIs) {
  store.Set("Rafter", "MRU", "MRU1", "&");
  store.Set("Rafter", "MRU", "MRU3A", std::string(5000, 'x'));
  recent.Load();
  recent.AddNewFile("/x/A");
  recent.AddNewFile("/x/B");
  EXPECT_EQ(menus.FileMRU[0].Caption, "&1 /X/B");
}

TEST_F(RecentFilesTest, LengthsThatAreNoneAreIgnored) {
  recent.SetMenuLength(0);
  recent.SetMenuLength(-5);
  EXPECT_EQ(recent.MenuLength(), 60);
  recent.SetMenuLength(20);
  EXPECT_EQ(recent.MenuLength(), 20);
}

TEST_F(RecentFilesTest, WithoutProperCaseTheCaptionIsThePath) {
  recent.ProperCase = false;
  EXPECT_EQ(recent.InProperCase("c:\\MY roofs"), "c:\\MY roofs");
  recent.ProperCase = true;
  EXPECT_EQ(recent.InProperCase("c:\\MY roofs\\a.PCF"), "C:\\My Roofs\\A.pcf");
  EXPECT_EQ(recent.InProperCase("/\xC3\xBC"
                                "BER/M\xC3\x9CLLER"),
            "/\xC3\x9C"
            "ber/M\xC3\xBCller");
  EXPECT_EQ(recent.InProperCase("\xC3"), "\xC3") << "half a letter";
}

TEST(LongDirFixTest, ShortensBetweenFolders) {
  EXPECT_EQ(RecentFileList::ShortenedPath("C:\\roofs\\a.pcf", 60), "C:\\roofs\\a.pcf");
  EXPECT_EQ(RecentFileList::ShortenedPath("C:\\one\\two\\three\\four.pcf", 17), "C:\\...\\four.pcf");
  EXPECT_EQ(RecentFileList::ShortenedPath("C:\\one\\two\\three\\four.pcf", 23), "C:\\...\\three\\four.pcf");
  EXPECT_EQ(RecentFileList::ShortenedPath("/home/one/two/three/four.pcf", 16), "/ho.../four.pcf");
}

TEST(LongDirFixTest, ANameThatIsTooLongItselfShowsItsEnd) {
  const std::string fixed = RecentFileList::ShortenedPath("/a/" + std::string(100, 'x') + ".pcf", 20);
  EXPECT_TRUE(fixed.starts_with("/a/...x"));
  EXPECT_TRUE(fixed.ends_with(".pcf"));
  EXPECT_LE(fixed.size(), 22U);
}

TEST(LongDirFixTest, NoLengthAndNoPathEndsIt) {
  for (const int length : {-100, -1, 0, 1, 5, 6, 7}) {
    for (const char* path : {"", "a", "ab", "abcdefgh", "/a/b/c/d/e/f", "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9"}) {
      EXPECT_LE(RecentFileList::ShortenedPath(path, length).size(), std::string(path).size() + 3);
    }
  }
}

}  // namespace
}  // namespace pitchcraft
