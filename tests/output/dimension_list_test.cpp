// The flat list of recorded dimensions: how it is read, and when the writer writes it.
#include "output/dimension_list.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>

#include "../support/number.h"
#include "core/run_time_error.h"
#include "dxf_reading.h"
#include "output/dxf_writer.h"

namespace pitchcraft::testing {
namespace {

std::vector<DimensionValue> List(std::initializer_list<DimensionValue> values) { return values; }
DimensionValue N(double number) { return Single(number); }
DimensionValue T(const char* text) { return std::string(text); }

TEST(DimensionList, StrokesAndTexts) {
  const ListedDimensions read = ReadDimensionList(
      List({N(1), N(2), N(3), N(4), N(5), N(6), T("a"), N(0.5), T("C"), N(7), N(8), N(9), N(10)}));
  ASSERT_EQ(read.Strokes.size(), 2U);
  EXPECT_EQ(read.Strokes[0].Y2, 4);
  EXPECT_EQ(read.Strokes[1].X1, 7);
  ASSERT_EQ(read.Texts.size(), 1U);
  EXPECT_EQ(read.Texts[0].X, 5);
  EXPECT_EQ(read.Texts[0].Text, "a");
  EXPECT_EQ(read.Texts[0].Angle, 0.5);
  EXPECT_EQ(read.Texts[0].Align, 'C');
}

TEST(DimensionList, AMissingLetterIsLeft) {
  const ListedDimensions read =
      ReadDimensionList(List({N(5), N(6), T("a"), N(0.5), N(7), N(8), T("b"), N(1), N(1), N(2), N(3), N(4)}));
  ASSERT_EQ(read.Texts.size(), 2U);
  EXPECT_EQ(read.Texts[0].Align, 'L');
  EXPECT_EQ(read.Texts[1].Text, "b");
  EXPECT_EQ(read.Texts[1].X, 7);
  ASSERT_EQ(read.Strokes.size(), 1U);
  EXPECT_EQ(read.Strokes[0].Y2, 4);
}

TEST(DimensionList, ATextThatIsALetterIsAText) {
  const ListedDimensions read = ReadDimensionList(List({N(5), N(6), T("R"), N(0), T("R")}));
  ASSERT_EQ(read.Texts.size(), 1U);
  EXPECT_EQ(read.Texts[0].Text, "R");
  EXPECT_EQ(read.Texts[0].Align, 'R');
}

TEST(DimensionList, WhatIsBrokenIsLeftOut) {
  EXPECT_TRUE(ReadDimensionList(List({N(1), N(2), N(3)})).Strokes.empty());
  EXPECT_TRUE(ReadDimensionList(List({T("alone")})).Texts.empty());
  const ListedDimensions read = ReadDimensionList(List({N(1), T("half a place"), N(1), N(2), N(3), N(4)}));
  EXPECT_TRUE(read.Texts.empty());
  EXPECT_EQ(read.Strokes.size(), 1U);
}

RC_GTEST_PROP(DimensionList, AnyListIsRead, ()) {
  std::vector<DimensionValue> values;
  for (const int kind : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 6))) {
    values.push_back(kind < 4 ? N(kind) : kind == 4 ? T("text") : T("C"));
  }
  const ListedDimensions read = ReadDimensionList(values);
  RC_ASSERT(read.Strokes.size() * 4 + read.Texts.size() * 3 <= values.size());
}

DxfWriter WithList(bool flag) {
  DxfWriter writer;
  writer.DimTextHeight = 3;
  writer.DimColor = 12;
  writer.SetDimensionPoints(List({N(1), N(2), N(3), N(4), N(5), N(6), T("10'"), N(0.46364760900081), T("C")}),
                            flag);
  return writer;
}

TEST(DimensionList, IsWrittenAsLinesAndTexts) {
  const DxfContent content(WithList(false).Bytes());
  const auto lines = content.In("ENTITIES", "LINE");
  const auto texts = content.In("ENTITIES", "TEXT");
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0](8) + " " + lines[0](62), "DIMENSIONS 12");
  EXPECT_EQ(lines[0].Place(10) + " " + lines[0].Place(11), "1.0, 2.0 3.0, 4.0");
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0](1) + " " + texts[0](40) + " " + texts[0](72), "10' 3.0 1");
  EXPECT_EQ(texts[0].Place(11), "5.0, 6.0");
  EXPECT_NEAR(NumberIn(texts[0](50)), 26.565051, 1e-5);
  EXPECT_EQ(content.Entry("LAYER", "DIMENSIONS")(62), "12");
}

TEST(DimensionList, IsNotWrittenBesideDimensionsOfTheDrawing) {
  DxfWriter writer = WithList(false);
  writer.DimHorizontal(0, 0, 100, 0, 20);
  EXPECT_TRUE(DxfContent(writer.Bytes()).In("ENTITIES", "LINE").empty());
  DxfWriter always = WithList(true);
  always.DimHorizontal(0, 0, 100, 0, 20);
  EXPECT_EQ(DxfContent(always.Bytes()).In("ENTITIES", "LINE").size(), 1U);
}

TEST(DimensionList, HasNoTextsWithoutATextHeight) {
  DxfWriter writer = WithList(false);
  writer.DimTextHeight = 0;
  EXPECT_TRUE(DxfContent(writer.Bytes()).In("ENTITIES", "TEXT").empty());
  EXPECT_EQ(DxfContent(writer.Bytes()).In("ENTITIES", "LINE").size(), 1U);
}

TEST(DimensionList, AnInfinityInItIsAnOverflow) {
  DxfWriter writer;
  const double infinite = std::numeric_limits<double>::infinity();
  writer.SetDimensionPoints(List({N(1), N(2), N(3), N(infinite)}), false);
  EXPECT_THROW(writer.Bytes(), RunTimeError);
}

}  // namespace
}  // namespace pitchcraft::testing
