// Dimensions: the entity that a CAD program measures and the block that it draws.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "../support/number.h"
#include "dxf_reading.h"
#include "output/dxf_writer.h"
#include "sample_dxf.h"

namespace pitchcraft::testing {
namespace {

/// The first dimension of a file.
struct Found {
  explicit Found(const DxfWriter& writer) {
    const DxfContent content(writer.Bytes());
    Count = content.In("ENTITIES", "DIMENSION").size();
    if (Count == 0) return;
    Entity = content.In("ENTITIES", "DIMENSION")[0];
    Lines = content.In("BLOCKS", "LINE");
    Arrows = content.In("BLOCKS", "SOLID");
    Texts = content.In("BLOCKS", "TEXT");
  }
  bool HasLine(const std::string& from, const std::string& to) const {
    return std::any_of(Lines.begin(), Lines.end(),
                       [&](const DxfRecord& line) { return line.Place(10) == from && line.Place(11) == to; });
  }
  std::size_t Count = 0;
  DxfRecord Entity;
  std::vector<DxfRecord> Lines, Arrows, Texts;
};

/// Texts, arrows, extension and both tiers are 4 each.
DxfWriter Writer() {
  DxfWriter writer = SampleWriter();
  writer.LengthText = nullptr;
  return writer;
}

TEST(DxfDimension, HorizontalWithItsBlock) {
  DxfWriter writer = Writer();
  writer.DimHorizontal(10, 5, 110, 8, -20);
  const Found found(writer);
  EXPECT_EQ(found.Entity(70) + " " + found.Entity(50) + " " + found.Entity(1), "0 0.0 100");
  EXPECT_EQ(found.Entity.Place(13), "10.0, 5.0");
  EXPECT_EQ(found.Entity.Place(14), "110.0, 8.0");
  EXPECT_EQ(found.Entity.Place(10), "110.0, -20.0") << "on the line at the second extension line";
  EXPECT_EQ(found.Entity.Place(11), "60.0, -16.0") << "the middle of the text: gap and half a text above";
  EXPECT_EQ(found.Entity(2) + found.Entity(3) + found.Entity(8), "*D1STANDARDDIMENSIONS");
  EXPECT_TRUE(found.HasLine("10.0, 3.0", "10.0, -24.0")) << "starts 2 off the point, passes the line by 4";
  EXPECT_TRUE(found.HasLine("110.0, 6.0", "110.0, -24.0"));
  EXPECT_TRUE(found.HasLine("10.0, -20.0", "110.0, -20.0"));
  EXPECT_EQ(found.Lines.size(), 3U);
  ASSERT_EQ(found.Arrows.size(), 2U);
  EXPECT_EQ(found.Arrows[0].Place(10), "10.0, -20.0");
  EXPECT_EQ(found.Arrows[0](11) + " " + found.Arrows[1](11), "14.0 106.0") << "heads point outward";
  ASSERT_EQ(found.Texts.size(), 1U);
  EXPECT_EQ(found.Texts[0].Place(11), "60.0, -18.0");
  for (const auto& part : {found.Lines[0], found.Arrows[0], found.Texts[0]}) EXPECT_EQ(part(62), "12");
}

TEST(DxfDimension, VerticalIsReadFromTheRight) {
  DxfWriter writer = Writer();
  writer.DimVertical(0, 100, 0, 0, 30);
  const Found found(writer);
  EXPECT_EQ(found.Entity(70) + " " + found.Entity(50) + " " + found.Entity(1), "0 90.0 100");
  EXPECT_EQ(found.Entity.Place(10), "30.0, 0.0");
  EXPECT_EQ(found.Entity.Place(11), "26.0, 50.0");
  EXPECT_EQ(found.Texts[0](50), "90.0");
  EXPECT_TRUE(found.HasLine("2.0, 100.0", "34.0, 100.0"));
}

TEST(DxfDimension, AlignedLiesThroughTheThirdPoint) {
  DxfWriter writer = Writer();
  writer.DimAligned(0, 0, 80, 60, -30, 40);
  const Found found(writer);
  EXPECT_EQ(found.Entity(70) + " " + found.Entity(1), "1 100");
  EXPECT_NEAR(NumberIn(found.Entity(50)), 36.869898, 1e-5) << "readers measure along it";
  EXPECT_EQ(found.Entity.Place(10), "50.0, 100.0");
  EXPECT_NEAR(NumberIn(found.Texts[0](50)), 36.869898, 1e-5);
}

TEST(DxfDimension, AnAlignedTextIsNeverUpsideDown) {
  const std::vector<std::pair<DxfPoint, double>> cases = {{{-80, -60}, 36.869898}, {{-80, 60}, -36.869898},
                                                          {{80, -60}, -36.869898}, {{0, 80}, 90},
                                                          {{0, -80}, 90},          {{-80, 0}, 0}};
  for (const auto& [to, angle] : cases) {
    DxfWriter writer = Writer();
    writer.DimAligned(0, 0, to.X, to.Y, to.X + 10, to.Y + 30);
    const std::string written = Found(writer).Texts[0](50);
    EXPECT_NEAR(written == "-" ? 0 : NumberIn(written), angle, 1e-4) << to.X << ", " << to.Y;
  }
}

TEST(DxfDimension, AShortOneHasArrowsOutsideAndItsTextBeside) {
  DxfWriter writer = Writer();
  writer.DimHorizontal(0, 0, 3, 0, 10);
  const Found found(writer);
  EXPECT_TRUE(found.HasLine("-8.0, 10.0", "11.0, 10.0"));
  EXPECT_EQ(found.Arrows[0](11) + " " + found.Arrows[1](11), "-4.0 7.0");
  EXPECT_EQ(found.Entity(70), "128") << "the text has a place of its own";
  EXPECT_GT(NumberIn(found.Entity(11)), 5);
}

TEST(DxfDimension, TheTextGoesWhereItIsTold) {
  DxfWriter writer = Writer();
  writer.DimVertical(0, 0, 0, 100, 30, 17, 40);
  EXPECT_EQ(Found(writer).Entity.Place(11), "17.0, 40.0");
  EXPECT_EQ(Found(writer).Entity(70), "128");
  DxfWriter half = Writer();
  half.DimHorizontal(0, 0, 100, 0, 30, 20);
  EXPECT_EQ(Found(half).Entity.Place(11), "20.0, 34.0") << "only x is told";
}

TEST(DxfDimension, TextsComeFromTheFormatter) {
  DxfWriter writer = SampleWriter();
  writer.DimHorizontal(0, 0, 150, 0, 30);
  EXPECT_EQ(Found(writer).Entity(1), "12' 6\"");
  EXPECT_EQ(Found(writer).Texts[0](1), "12' 6\"");
  DxfWriter plain = Writer();
  plain.DimHorizontal(0, 0, 12.34567, 0, 30);
  EXPECT_EQ(Found(plain).Entity(1), "12.3457");
}

TEST(DxfDimension, ATextHeightOfZeroLeavesTheTextsOut) {
  DxfWriter writer = Writer();
  writer.DimTextHeight = 0;
  writer.DimHorizontal(0, 0, 100, 0, 30);
  const Found found(writer);
  EXPECT_EQ(found.Entity(1), " ") << "one blank, or a reader would write the measure";
  EXPECT_TRUE(found.Texts.empty());
  EXPECT_EQ(DxfContent(writer.Bytes()).Variable("$DIMTXT"), "4.0");
}

TEST(DxfDimension, WithoutArrowsThereAreNone) {
  DxfWriter writer = Writer();
  writer.DimArrowSize = 0;
  writer.DimHorizontal(0, 0, 100, 0, 30);
  EXPECT_TRUE(Found(writer).Arrows.empty());
}

TEST(DxfDimension, APointNearItsLineHasNoExtensionLine) {
  DxfWriter writer = Writer();
  writer.DimHorizontal(0, 0, 100, -30, -1.5);
  const Found found(writer);
  EXPECT_EQ(found.Lines.size(), 2U);
  EXPECT_TRUE(found.HasLine("100.0, -28.0", "100.0, 2.5")) << "from below, too";
}

TEST(DxfDimension, EqualPointsAreALengthOfZero) {
  DxfWriter writer = Writer();
  writer.DimAligned(5, 5, 5, 5, 5, 20);
  EXPECT_EQ(Found(writer).Entity(1), "0");
  EXPECT_EQ(Found(writer).Entity.Place(10), "5.0, 20.0");
}

TEST(DxfDimension, TiersMoveALineThatWouldLieOnTheObject) {
  DxfWriter writer = Writer();
  writer.DimOffset = 6;
  writer.DimIncrement = 10;
  writer.Line(0, 0, 100, 50);
  const auto lineAt = [](const DxfWriter& moved) { return Found(moved).Entity.Place(10); };
  DxfWriter right = writer;
  right.DimVertical(100, 0, 100, 50, 100);
  EXPECT_EQ(lineAt(right), "106.0, 50.0");
  DxfWriter left = writer;
  left.DimNextTier();
  left.DimVertical(0, 0, 0, 50, 0);
  EXPECT_EQ(lineAt(left), "-16.0, 50.0");
  DxfWriter below = writer;
  below.DimNextTier();
  below.DimFirstTier();
  below.DimAligned(0, 0, 100, 0, 50, 0);
  EXPECT_EQ(lineAt(below), "100.0, -6.0");
  DxfWriter told = writer;
  told.DimVertical(100, 0, 100, 50, 100, 103);
  EXPECT_EQ(lineAt(told), "100.0, 50.0") << "a text with a place of its own keeps the line where it is";
  DxfWriter beside = writer;
  beside.DimVertical(100, 0, 90, 50, 100);
  EXPECT_EQ(lineAt(beside), "100.0, 50.0") << "one of two points is no edge";
}

TEST(DxfDimension, TierDistanceGrowsByTheIncrement) {
  DxfWriter writer;
  writer.DimOffset = 3;
  writer.DimIncrement = 5;
  writer.DimNextTier();
  writer.DimNextTier();
  EXPECT_EQ(writer.DimTierDistance(), 13);
  writer.DimFirstTier();
  EXPECT_EQ(writer.DimTierDistance(), 3);
}

TEST(DxfDimension, EveryLayerInUseIsDeclared) {
  const DxfContent content(SampleDrawing().Bytes());
  for (const DxfRecord& record : content.All()) {
    if (record(8) != "-" && record.Type != "SECTION") {
      EXPECT_EQ(content.Entry("LAYER", record(8))(2), record(8)) << record.Type;
    }
  }
}

TEST(DxfDimension, EachHasABlockOfItsOwn) {
  const DxfContent content(SampleDrawing().Bytes());
  const auto blocks = content.Named("BLOCK");
  const auto dimensions = content.Named("DIMENSION");
  ASSERT_EQ(blocks.size(), dimensions.size());
  EXPECT_EQ(content.Named("ENDBLK").size(), blocks.size());
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    EXPECT_EQ(blocks[i](2), "*D" + std::to_string(i + 1));
    EXPECT_EQ(blocks[i](70), "1") << "a block without a name";
    EXPECT_EQ(dimensions[i](2), blocks[i](2));
  }
}

}  // namespace
}  // namespace pitchcraft::testing
