// How often an action calculates and draws. The linker hands every call of a calculation to the counters
// below.
#include <gtest/gtest.h>

#include <fstream>

#include "document_test.h"
#include "support/random_walk.h"
#include "support/scratch_folder.h"

namespace {

long calculations = 0;
int depth = 0;

}  // namespace

#define COUNTED(symbol)                                         \
  extern "C" void __real_##symbol(pitchcraft::Rafter*);         \
  extern "C" void __wrap_##symbol(pitchcraft::Rafter* rafter) { \
    if (depth++ == 0) ++calculations;                           \
    __real_##symbol(rafter);                                    \
    --depth;                                                    \
  }
COUNTED(_ZN10pitchcraft6Rafter9CalculateEv)
COUNTED(_ZN10pitchcraft6Rafter19CalculateBastardHipEv)
COUNTED(_ZN10pitchcraft6Rafter27CalculateAdjustedBastardHipEv)
COUNTED(_ZN10pitchcraft6Rafter12CalculateBayEv)
COUNTED(_ZN10pitchcraft6Rafter16CalculateOctagonEv)

namespace pitchcraft {
namespace {

class CountingTest : public DocumentTest {};

TEST_F(CountingTest, TheCounterCounts) {
  const long before = calculations;
  rafter.Calculate();
  EXPECT_EQ(calculations, before + 1);
}

// What would be drawn twice is drawn for nothing, or of a roof that is still changing.
TEST_F(CountingTest, AtMostOneFigureAnAction) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    RandomWalk walk(document, seed);
    for (int step = 0; step < 200; ++step) {
      const long before = document.FigureCount();
      const std::string line = walk.Step();
      ASSERT_LE(document.FigureCount() - before, 1) << line << ", seed " << seed;
    }
  }
}

TEST_F(CountingTest, ACommitCalculatesEachRafterOnce) {
  struct Row {
    const char* roof;
    long calculations;
  };
  for (const Row& row :
       {Row{"Common Gable", 1}, Row{"Hip", 1}, Row{"Dual Slope", 2}, Row{"Unequal Span Valley", 2},
        Row{"Dutch Hip", 2}, Row{"Octagon", 1}, Row{"Gambrel Roof", 2}, Row{"Blind Valley", 1}}) {
    Pick("cboType", row.roof);
    const long before = calculations;
    const long figures = document.FigureCount();
    Type("FtSpan(0)", "14'");
    EXPECT_EQ(calculations - before, row.calculations) << row.roof;
    EXPECT_LE(document.FigureCount() - figures, 1) << row.roof;
  }
}

TEST_F(CountingTest, AProjectIsOpenedWithOneFigure) {
  testing::ScratchFolder folder;
  long most = 0;
  for (const RoofType* type : RoofTypes()) {
    const std::string item(type->About().Item);
    Pick("cboType", item.c_str());
    const std::string file = folder.PathOf("roof.pcf");
    ASSERT_TRUE(SaveProject(document, file));
    const long before = calculations;
    const long figures = document.FigureCount();
    ASSERT_TRUE(OpenProject(document, file));
    EXPECT_LE(document.FigureCount() - figures, 1) << item;
    most = std::max(most, calculations - before);
    RecordProperty("calculations_" + item.substr(0, 3), static_cast<int>(calculations - before));
  }
  RecordProperty("most", static_cast<int>(most));
  EXPECT_LE(most, 16);
}

}  // namespace
}  // namespace pitchcraft
