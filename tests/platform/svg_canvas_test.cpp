// The text of a scalable picture.
#include "platform/svg_canvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "drawing/arial_meter.h"
#include "drawing/text_align.h"

namespace pitchcraft {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string Draw(const Recording& recording) {
  const ArialMeter meter;
  SvgCanvas canvas({1500, 750, false}, meter);
  canvas.Play(recording);
  return canvas.Document(0, "A <roof> & \"more\"");
}

TEST(SvgCanvas, DocumentHasTheSizeInPixels) {
  const std::string text = Draw({});
  EXPECT_THAT(text, HasSubstr(R"(width="100" height="50" viewBox="0 0 100 50")"));
  EXPECT_THAT(text, HasSubstr("<title>A &lt;roof&gt; &amp; &quot;more&quot;</title>"));
  EXPECT_THAT(text, HasSubstr(R"(fill="#000000")"));
}

TEST(SvgCanvas, LinesOfOnePenAreOnePath) {
  const DrawnPen pen{0x0000FF, 0, 0};
  const std::string text = Draw({LineOp{{1, 2}, {3, 4}, pen}, LineOp{{3, 4}, {5, 6}, pen},
                                 LineOp{{9, 9}, {8, 8}, pen}, LineOp{{0, 0}, {1, 0}, {0xFF0000, 2, 3}}});
  EXPECT_THAT(text, HasSubstr(R"(<path d="M1 2 3 4 5 6M9 9 8 8" stroke="#ff0000"/>)"));
  EXPECT_THAT(text, HasSubstr(R"(stroke="#0000ff" stroke-width="3" stroke-dasharray="5 3")"));
}

TEST(SvgCanvas, TextIsTextWithItsLength) {
  const std::string text =
      Draw({TextOp{{10, 20}, "6 < 7 & 8\"", 11170, 0, kAlignLeftBase, 0x00FFFF, "Arial", true, false},
            TextOp{{10, 20}, "up", 20, 90, kAlignLeftBase, 0, "Arial", false, true}});
  EXPECT_THAT(text, HasSubstr(R"(x="10" y="20" font-weight="bold" font-size="10000" textLength=)"));
  EXPECT_THAT(text, HasSubstr(R"(fill="#ffff00">6 &lt; 7 &amp; 8&quot;</text>)"));
  EXPECT_THAT(text, HasSubstr(R"-(transform="rotate(-90 10 20)")-"));
  EXPECT_THAT(text, HasSubstr(R"(font-style="italic")"));
}

TEST(SvgCanvas, FillsAndFigures) {
  const std::string text = Draw(
      {FillOp{{{0, 0}, {4, 0}, {4, 4}}, {0x123456, 0}}, FillOp{{{0, 0}, {4, 0}, {4, 4}}, {0x123456, 2}},
       EllipseOp{{0, 0}, {20, 10}, {0, 0, 0}, {0, 1}}, RectangleOp{{0, 0}, {20, 10}, 4, {0, 0, 0}, {0, 1}},
       ArcOp{{0, 0}, {20, 20}, {20, 10}, {10, 0}, {0, 0, 0}}});
  EXPECT_THAT(text, HasSubstr(R"(<path d="M0 0 4 0 4 4Z" fill="#563412"/>)"));
  EXPECT_THAT(text, HasSubstr(R"-(fill="url(#h1)")-"));
  EXPECT_THAT(text, HasSubstr(R"(<pattern id="h1")"));
  EXPECT_THAT(text, HasSubstr(R"(<ellipse cx="10" cy="5" rx="10" ry="5")"));
  EXPECT_THAT(text, HasSubstr(R"(rx="2" ry="2")"));
  // A quarter circle in two eighths: from due east over north-east to due north.
  EXPECT_THAT(text, HasSubstr(R"(<path d="M20 10A10 10 0 0 0 17.07 2.93A10 10 0 0 0 10 0")"));
}

TEST(SvgCanvas, ControlCharactersAreLeftOut) {
  const std::string text =
      Draw({TextOp{{0, 0}, "a\x01\x1f\nb", 20, 0, kAlignLeftBase, 0, "Arial", false, false}});
  EXPECT_THAT(text, HasSubstr(">ab</text>"));
  EXPECT_THAT(text, Not(HasSubstr("\x01")));
}

}  // namespace
}  // namespace pitchcraft
