// The lists of the fields as a program's folder holds them.
#include "project_test.h"

namespace pitchcraft {
namespace {

class ListsOfFieldsTest : public ProjectTest {
 protected:
  void Begin() { Start(document); }

  NullSurroundings around;
  Document document{{around.dialogs, around.store, folder}};
  Sheet& sheet = document.design.sheet;
};

TEST_F(ListsOfFieldsTest, AFirstStartMakesTheDegreesAlone) {
  Begin();
  EXPECT_TRUE(std::filesystem::exists(folder / "Degrees.dat"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);
  EXPECT_EQ(sheet.Common[0].List().size(), 15U);
  EXPECT_EQ(sheet.Slope[0].List().size(), 60U);
  EXPECT_TRUE(sheet.Slope[2].List().empty());
  EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(ListsOfFieldsTest, FilesReplaceTheUsualRows) {
  Write("Lumber.dat", "4x4|3.5|3.5\r\nbroken\r\none|2\r\n6x6|5.5|5.5, heavy\r\n");
  Write("Slope.dat", "steep\\18/12|18|12\r\n");
  Write("Degrees.dat", "22.5\r\n45\r\n");
  Begin();
  for (const PairControl* field : {&sheet.Common[0], &sheet.Common[1], &sheet.Ridge, &sheet.Fascia[0],
                                   &sheet.Fascia[1], &sheet.HipOrValley}) {
    ASSERT_EQ(field->List().size(), 2U) << field->Name;
    EXPECT_EQ(field->List()[1].Caption, "6x6");
  }
  for (const PairControl& field : sheet.Slope) EXPECT_EQ(field.List().size(), 1U);
  EXPECT_EQ(sheet.Degrees[2].List(), (std::vector<std::string>{"22.5", "45"}));
  EXPECT_EQ(double{document.design.Rafter1.Depth}, 7.25) << "the list changes no size";
}

TEST_F(ListsOfFieldsTest, MetricHasFilesOfItsOwn) {
  Write("Lumber.dat", "4x4|3.5|3.5\r\n");
  Write("LumberM.dat", "38x184|38|184\r\n");
  Write("SlopeM.dat", "500/1000|500|1000\r\n");
  Begin();
  ToggleUnits(document);
  ASSERT_EQ(sheet.Common[0].List().size(), 1U);
  EXPECT_EQ(sheet.Common[0].List()[0].Right, 184);
  EXPECT_EQ(sheet.Common[0].ListIndex(), 0) << "the rafter has the size of that row";
  EXPECT_EQ(sheet.Slope[1].List().size(), 1U);
}

TEST_F(ListsOfFieldsTest, EmptyFilesLeaveTheListsEmpty) {
  for (const char* name : {"Lumber.dat", "Slope.dat", "Degrees.dat"}) Write(name, "");
  Begin();
  EXPECT_TRUE(sheet.Common[0].List().empty());
  EXPECT_TRUE(sheet.Slope[0].List().empty());
  EXPECT_TRUE(sheet.Degrees[0].List().empty());
  EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(ListsOfFieldsTest, AFolderInTheWayIsToldAndTheProgramStarts) {
  std::filesystem::create_directories(folder / "Lumber.dat");
  std::filesystem::create_directories(folder / "Degrees.dat");
  Begin();
  ASSERT_FALSE(around.dialogs.messages.empty());
  EXPECT_EQ(around.dialogs.messages[0].second, "Path/File access error - 75");
  EXPECT_EQ(sheet.Degrees[0].List().size(), 80U);
  EXPECT_GT(double{document.design.Rafter1.Length1}, 0);
}

TEST_F(ListsOfFieldsTest, AHundredThousandRows) {
  std::string rows;
  for (int i = 1; i <= 100'000; ++i) rows += std::to_string(i) + "x|1.5|" + std::to_string(i) + "\r\n";
  Write("Lumber.dat", rows);
  Begin();
  ASSERT_EQ(sheet.Common[0].List().size(), 100'000U);
  sheet.Common[0].SetListIndex(11);
  document.Act("LWRafter_Commit", &CommonEntered);
  EXPECT_EQ(double{document.design.Rafter1.Depth}, 12);
}

}  // namespace
}  // namespace pitchcraft
