// One page, written row by row, with drawings on it.
#include "output/printer.h"

#include <gtest/gtest.h>

#include "core/run_time_error.h"
#include "drawing/arial_meter.h"
#include "drawing/text_trace.h"

namespace pitchcraft {
namespace {

class PrinterTest : public testing::Test {
 protected:
  PrinterTest() { page.ScaleHeight = -page.ScaleHeight; }
  static const TextOp& TextAt(const PrintedPage& printed, std::size_t layer, std::size_t place) {
    return std::get<TextOp>(printed.Layers.at(layer).Drawing.at(place));
  }

  ArialMeter meter;
  Printer page{kLetterPaper, meter};
};

TEST_F(PrinterTest, TheSheetIsThePaperLessItsMargins) {
  EXPECT_EQ(page.ScaleWidth, 12240 - 1440);
  EXPECT_EQ(page.ScaleHeight, -(15840 - 1440));
  EXPECT_EQ(page.ColorMode, 2);
  Paper black = kA4Paper;
  black.Color = false;
  const Printer other(black, meter);
  EXPECT_EQ(other.ColorMode, 1);
  EXPECT_EQ(other.ScaleHeight, 16838 - 1440);
}

TEST_F(PrinterTest, RowsGoDownThePageWhicheverWayYGrows) {
  page.FontSize = 9;
  EXPECT_NEAR(page.TextHeight(), -9 * 20 * 1.117, 1e-9);
  page.CurrentX = 100;
  page.CurrentY = -500;
  page.Print("first");
  EXPECT_EQ(page.CurrentX, 0);
  EXPECT_NEAR(page.CurrentY, -500 - 201.06, 1e-9);
  EXPECT_EQ(page.AboveBottom(1440), page.ScaleHeight + 1440);

  Printer down(kLetterPaper, meter);
  down.FontSize = 9;
  down.Print("first");
  EXPECT_NEAR(down.CurrentY, 201.06, 1e-9);
  EXPECT_EQ(down.AboveBottom(1440), down.ScaleHeight - 1440);
}

TEST_F(PrinterTest, ATextCarriesTheFontOfItsMoment) {
  page.FontBold = true;
  page.ForeColor = 0xFF;
  page.Print("bold");
  page.FontBold = false;
  page.FontItalic = true;
  page.FontSize = 12;
  page.Print("italic");
  page.Print("");
  const PrintedPage printed = page.EndDoc();
  ASSERT_EQ(printed.Layers.size(), 1U);
  ASSERT_EQ(printed.Layers[0].Drawing.size(), 2U) << "an empty row only moves on";
  EXPECT_TRUE(TextAt(printed, 0, 0).Bold);
  EXPECT_EQ(TextAt(printed, 0, 0).Color, 0xFF);
  EXPECT_TRUE(TextAt(printed, 0, 1).Italic);
  EXPECT_EQ(TextAt(printed, 0, 1).Height, 268);
  EXPECT_LT(TextAt(printed, 0, 1).At.Y, 0);
}

TEST_F(PrinterTest, TextIsAsWideAsItIsPainted) {
  page.FontSize = 10;
  EXPECT_NEAR(page.TextWidth("0000000000"), 10 * 200 * 1139 / 2048.0, 1e-6);
}

TEST_F(PrinterTest, ADrawingFillsItsAreaWithItsProportionsKept) {
  DrawingRecorder drawing(meter);
  drawing.Load({LineOp{{0, 0}, {200, 100}, {0, 0, 3}}}, 0, 0, 200, 100);
  page.Play(drawing, {0, -720, 8000, 6000});
  const PrintedPage printed = page.EndDoc();
  ASSERT_EQ(printed.Layers.size(), 1U);
  const CanvasMap& map = printed.Layers[0].Map;
  EXPECT_EQ(map.ScaleX, 40);
  EXPECT_EQ(map.ScaleY, -40) << "the drawing's y grows upward";
  EXPECT_EQ(map.OffsetX, 0);
  EXPECT_EQ(map.OffsetY, 720 + 1000 + 4000) << "centred in the height that is left over";
  EXPECT_EQ(std::get<LineOp>(printed.Layers[0].Drawing[0]).Pen.Width, 1)
      << "three half points at 40 twips a unit";
}

TEST_F(PrinterTest, RowsBehindADrawingKeepTheirOwnPlace) {
  DrawingRecorder drawing(meter);
  drawing.Load({LineOp{{0, 0}, {8000, 6000}, {}}}, 0, 0, 8000, 6000);
  page.Play(drawing, {500, 0, 8000, 6000});  // at a scale of 1, but elsewhere
  page.Print("row");
  page.Line(0, -100, 50, -100);
  const PrintedPage printed = page.EndDoc();
  ASSERT_EQ(printed.Layers.size(), 2U);
  EXPECT_EQ(printed.Layers[1].Map, (CanvasMap{1, -1, 0, 0}));
  EXPECT_EQ(printed.Layers[1].Drawing.size(), 2U);
}

TEST_F(PrinterTest, EndDocGivesThePageAwayOnce) {
  page.Print("row");
  EXPECT_EQ(page.EndDoc().Layers.size(), 1U);
  const PrintedPage next = page.EndDoc();
  EXPECT_TRUE(next.Layers.empty());
  EXPECT_EQ(next.Paper.Width, kLetterPaper.Width);
}

TEST_F(PrinterTest, ThePageIsPlayedInTheUnitsOfTheCanvas) {
  page.Line(0, 0, 1440, -720);
  TextTrace trace(meter);
  page.EndDoc().PlayOn(trace);
  EXPECT_NE(trace.Lines().find("1440"), std::string::npos) << trace.Lines();
  EXPECT_NE(trace.Lines().find("720"), std::string::npos);
  EXPECT_EQ(trace.Lines().find("-720"), std::string::npos) << "y grows downward on a canvas";
}

TEST_F(PrinterTest, MetaPrintFillsThePageWithAWindowOf1400By1600) {
  DrawingRecorder drawing(meter);
  try {
    page.PrintRecording(drawing);
    ADD_FAILURE() << "there is nothing to print";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Description(), "No metafile to print!");
  }
  drawing.Load({LineOp{{0, 0}, {1400, 1600}, {}}}, 0, 0, 1400, 1600);
  page.PrintRecording(drawing);
  EXPECT_NEAR(page.EndDoc().Layers.at(0).Map.ScaleX, 10800 / 1400.0, 1e-9);
}

}  // namespace
}  // namespace pitchcraft
