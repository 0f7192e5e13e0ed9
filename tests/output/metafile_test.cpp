// The contents of a placeable metafile, byte by byte.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "metafile_reading.h"
#include "output/metafile_player.h"
#include "sample_recording.h"

namespace pitchcraft::testing {
namespace {

using ::testing::ElementsAre;

constexpr int kSetTextAlign = 0x012E;
constexpr int kSetTextColor = 0x0209;
constexpr int kWindowOrg = 0x020B;
constexpr int kWindowExt = 0x020C;
constexpr int kLineTo = 0x0213;
constexpr int kMoveTo = 0x0214;
constexpr int kPen = 0x02FA;
constexpr int kFont = 0x02FB;
constexpr int kBrush = 0x02FC;
constexpr int kPolygon = 0x0324;
constexpr int kTextOut = 0x0521;

MetafileFrame White(int left, int top, int width, int height, bool upward = true) {
  return {left, top, width, height, upward, 0xFFFFFF};
}

MetafileContent Play(const Recording& recording, const MetafileFrame& frame = White(0, 0, 100, 50)) {
  return MetafileContent(PlaceableMetafile(recording, frame));
}

TEST(Metafile, PlaceableHeader) {
  const MetafileContent content = Play(SampleRecording(), SampleFrame());
  EXPECT_EQ(content.Bytes.substr(0, 4), "\xD7\xCD\xC6\x9A");
  EXPECT_EQ(WordAt(content.Bytes, 4), 0);
  EXPECT_THAT((std::vector<int>{content.Edge(0), content.Edge(1), content.Edge(2), content.Edge(3)}),
              ElementsAre(-100, -100, 1340, 620));
  EXPECT_EQ(WordAt(content.Bytes, 14), 180) << "1440 units on 8 inches";
  EXPECT_EQ(LongAt(content.Bytes, 16), 0U);
  int sum = 0;
  for (std::size_t at = 0; at < kPlaceableBytes; at += 2) sum ^= WordAt(content.Bytes, at);
  EXPECT_EQ(sum, 0) << "the checksum is the XOR of the words before it";
}

TEST(Metafile, HeaderStatesSizesAndSlots) {
  for (const Recording& recording : {SampleRecording(), Recording()}) {
    const MetafileContent content = Play(recording, SampleFrame());
    const auto word = [&](std::size_t at) { return WordAt(content.Bytes, kPlaceableBytes + at); };
    EXPECT_EQ(word(0), 1);
    EXPECT_EQ(word(2), 9);
    EXPECT_EQ(word(4), 0x0300);
    EXPECT_EQ(LongAt(content.Bytes, kPlaceableBytes + 6) * 2, content.Bytes.size() - kPlaceableBytes);
    EXPECT_EQ(LongAt(content.Bytes, kPlaceableBytes + 12), content.Largest);
    ObjectTable table;
    for (const ReadRecord& record : content.Records) table.Play(record);
    EXPECT_EQ(word(10), static_cast<int>(table.Slots()));
    EXPECT_EQ(content.Records.back().Function, 0) << "the end is marked";
    EXPECT_EQ(content.Named(0).size(), 1U);
  }
}

TEST(Metafile, ObjectsAreMadeOnceAndDeletedWhenReplaced) {
  const DrawnPen red{0x0000FF, 0, 0};
  const DrawnPen blue{0xFF0000, 0, 0};
  Recording recording;
  for (int i = 0; i < 20; ++i) {
    recording.emplace_back(LineOp{{0, 0}, {i, 1}, red});
    recording.emplace_back(LineOp{{0, 0}, {i, 2}, red});
    recording.emplace_back(LineOp{{0, 0}, {i, 3}, blue});
  }
  ObjectTable table;
  for (const ReadRecord& record : Play(recording).Records) table.Play(record);
  EXPECT_EQ(table.Created, 40);
  EXPECT_EQ(table.Deleted, 39);
  EXPECT_EQ(table.Slots(), 2U);
}

TEST(Metafile, WindowUpwardAndDownward) {
  const MetafileContent up = Play({}, White(-10, -20, 300, 200));
  EXPECT_THAT(up.Only(0x0103), ElementsAre(8));
  EXPECT_THAT(up.Only(kWindowOrg), ElementsAre(180, -10));
  EXPECT_THAT(up.Only(kWindowExt), ElementsAre(-200, 300));
  EXPECT_THAT(up.Only(0x0102), ElementsAre(1)) << "texts do not wipe out what they stand on";
  const MetafileContent down = Play({}, White(-10, -20, 300, 200, false));
  EXPECT_THAT(down.Only(kWindowOrg), ElementsAre(-20, -10));
  EXPECT_THAT(down.Only(kWindowExt), ElementsAre(200, 300));
}

TEST(Metafile, AnEmptyFrameStillHasExtents) {
  const MetafileContent content = Play({}, White(5, 7, 0, 0));
  EXPECT_THAT(content.Only(kWindowExt), ElementsAre(-1, 1));
  EXPECT_EQ(WordAt(content.Bytes, 14), 1);
  EXPECT_EQ(content.Edge(2), 6);
}

TEST(Metafile, LinesGoOnWhereTheLastOneEnded) {
  const DrawnPen pen{0x102030, 2, 0};
  const MetafileContent content =
      Play({LineOp{{1, 2}, {3, 4}, pen}, LineOp{{3, 4}, {5, 6}, pen}, LineOp{{0, 0}, {7, 8}, pen}});
  ASSERT_EQ(content.Named(kMoveTo).size(), 2U);
  EXPECT_THAT(content.Named(kMoveTo)[0].Words, ElementsAre(2, 1));
  EXPECT_THAT(content.Named(kLineTo)[1].Words, ElementsAre(6, 5));
  EXPECT_THAT(content.Only(kPen), ElementsAre(2, 0, 0, 0x2030, 0x0010));
}

TEST(Metafile, ATextKeepsItsFlagsAndItsFace) {
  TextOp text{{11, 22}, "45º – €½木", 60, 0, 26, 0x102030, "Arial", true, true};
  const MetafileContent content = Play({text});
  const ReadRecord out = content.Named(kTextOut).at(0);
  EXPECT_EQ(out.Words[0], 9);
  EXPECT_EQ(out.Bytes.substr(2, 10), std::string("45\xBA \x96 \x80\xBD?\0", 10)) << "padded to a word";
  EXPECT_THAT((std::vector<int>(out.Words.end() - 2, out.Words.end())), ElementsAre(22, 11));
  EXPECT_THAT(content.Only(kSetTextAlign), ElementsAre(26));
  EXPECT_THAT(content.Only(kSetTextColor), ElementsAre(0x2030, 0x0010));
  const ReadRecord font = content.Named(kFont).at(0);
  EXPECT_THAT((std::vector<int>(font.Words.begin(), font.Words.begin() + 6)),
              ElementsAre(60, 0, 0, 0, 700, 1));
  EXPECT_EQ(font.Bytes.substr(18), std::string("Arial\0", 6));
}

TEST(Metafile, EscapementTurnsWithTheYAxis) {
  const auto escapement = [](double angle, bool upward) {
    const MetafileContent content =
        Play({SampleText({0, 0}, "turned", angle, 0)}, White(0, 0, 100, 100, upward));
    const std::vector<int> words = content.Only(kFont);
    EXPECT_EQ(words.at(2), words.at(3)) << "orientation alike";
    return words.at(2);
  };
  EXPECT_EQ(escapement(90, true), -900);
  EXPECT_EQ(escapement(90, false), 900);
  EXPECT_EQ(escapement(-26.56, true), 266);
  EXPECT_EQ(escapement(270, true), 900);
  EXPECT_EQ(escapement(3600 + 45, false), 450);
}

TEST(Metafile, NoTextIsWrittenEmptyOrWithoutHeight) {
  TextOp flat = SampleText({0, 0}, "flat", 0, 0);
  flat.Height = 0;
  EXPECT_TRUE(Play({flat, SampleText({0, 0}, "", 0, 0)}).Named(kTextOut).empty());
}

TEST(Metafile, FilledFigures) {
  const DrawnPen pen{0, 0, 3};
  const DrawnBrush hatch{0x0000FF, 2};
  const MetafileContent content =
      Play({FillOp{{{1, 2}, {3, 4}, {5, 7}}, {0x00FF00, 0}}, EllipseOp{{1, 2}, {11, 22}, pen, hatch},
            RectangleOp{{31, 2}, {1, 22}, 0, pen, hatch}, RectangleOp{{1, 2}, {11, 22}, 4, pen, hatch},
            FillOp{{{1, 2}, {3, 4}}, {0, 0}}});
  EXPECT_THAT(content.Only(kPolygon), ElementsAre(3, 1, 2, 3, 4, 5, 7)) << "two points are no area";
  EXPECT_THAT(content.Named(kPen)[0].Words[0], 5) << "a polygon has no outline";
  EXPECT_THAT(content.Named(kBrush)[1].Words, ElementsAre(2, 0x00FF, 0, 2));
  // Bottom, right, top, left as seen on the paper: y grows upward.
  EXPECT_THAT(content.Only(0x0418), ElementsAre(2, 11, 22, 1));
  EXPECT_THAT(content.Only(0x041B), ElementsAre(2, 31, 22, 1));
  EXPECT_THAT(content.Only(0x061C), ElementsAre(4, 4, 2, 11, 22, 1));
  EXPECT_THAT(content.Only(0x0106), ElementsAre(2)) << "filled by the winding rule";
}

TEST(Metafile, AnArcTurnsWithTheYAxis) {
  const ArcOp arc{{0, 0}, {20, 20}, {20, 10}, {10, 20}, {0, 0, 0}};
  EXPECT_THAT(Play({arc}).Only(0x0817), ElementsAre(20, 10, 10, 20, 0, 20, 20, 0));
  EXPECT_THAT(Play({arc}, White(0, 0, 100, 100, false)).Only(0x0817),
              ElementsAre(10, 20, 20, 10, 20, 20, 0, 0));
}

TEST(Metafile, ADarkDrawingGetsItsGround) {
  MetafileFrame frame = White(-10, -20, 300, 200);
  EXPECT_TRUE(Play({}, frame).Named(kPolygon).empty());
  frame.BackColor = 0x402010;
  const MetafileContent content = Play({}, frame);
  EXPECT_THAT(content.Only(kPolygon), ElementsAre(4, -10, -20, 290, -20, 290, 180, -10, 180));
  EXPECT_THAT(content.Only(kBrush), ElementsAre(0, 0x2010, 0x0040, 2));
  frame.BackColor = static_cast<DrawColor>(0x80000005U);
  EXPECT_TRUE(Play({}, frame).Named(kPolygon).empty()) << "the colour of a window is white";
}

TEST(Metafile, SystemColoursAreWrittenAsTheyLook) {
  const MetafileContent content = Play({LineOp{{0, 0}, {1, 1}, {static_cast<DrawColor>(0x80000008U), 0, 0}}});
  EXPECT_THAT(content.Only(kPen), ElementsAre(0, 0, 0, 0, 0));
}

TEST(Metafile, AHugeDrawingIsScaledAndNeverWrapped) {
  const std::int32_t far = 320000;
  const MetafileContent content =
      Play({LineOp{{-far, 0}, {far, far / 2}, {0, 0, 40}}, SampleText({far, 100000}, "far", 0, 0)},
           White(-far, 0, 2 * far, far));
  EXPECT_THAT(content.Only(kWindowExt), ElementsAre(-16000, 32000));
  EXPECT_EQ(content.Edge(0), -16000);
  EXPECT_EQ(content.Edge(2), 16000);
  EXPECT_THAT(content.Only(kMoveTo), ElementsAre(0, -16000));
  EXPECT_THAT(content.Only(kLineTo), ElementsAre(8000, 16000));
  EXPECT_EQ(content.Only(kPen)[1], 2);
  EXPECT_EQ(content.Only(kFont)[0], 3);
  EXPECT_EQ(WordAt(content.Bytes, 14), 4000);
}

TEST(Metafile, WhatReachesBeyondTheFrameIsNotWrapped) {
  const std::int32_t most = std::numeric_limits<std::int32_t>::max();
  const MetafileContent content =
      Play({LineOp{{0, 0}, {most, -most}, {0, 0, 0}}}, White(-most, -most, most, most));
  EXPECT_THAT(content.Only(kLineTo), ElementsAre(-32000, 32000));
  EXPECT_THAT(content.Only(kWindowOrg), ElementsAre(0, -32000));
}

}  // namespace
}  // namespace pitchcraft::testing
