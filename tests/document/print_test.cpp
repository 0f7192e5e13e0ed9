// Sheets of paper: what they state, where it stands, in which colour, and what happens when they fail.
#include <algorithm>
#include <cmath>
#include <map>

#include "drawing/text_trace.h"
#include "paper_test.h"
#include "support/golden.h"

namespace pitchcraft {
namespace {

using Columns = std::vector<std::vector<std::string>>;

constexpr double kRowTwips = 207;  // a 9-point row: ascent and descent of Arial

class PrintTest : public PaperTest {
 protected:
  /// The rows under the title, column by column.
  static Columns ColumnsOf(const PrintedPage& sheet) {
    const std::vector<SheetText> rows = RowsOf(sheet);
    std::map<int, std::vector<std::string>> byColumn;
    for (std::size_t i = 4; i < rows.size(); ++i) {  // behind header and title
      byColumn[static_cast<int>(rows[i].X / (sheet.Paper.PrintableWidth() / 3 - 1))].push_back(rows[i].Text);
    }
    Columns columns;
    for (const auto& [place, texts] : byColumn) columns.push_back(texts);
    return columns;
  }
  static std::string TitleOf(const PrintedPage& sheet) {
    const std::vector<SheetText> rows = RowsOf(sheet);
    return rows.size() > 3 ? rows[3].Text : "";
  }

  void ExpectOnThePage(const PrintedPage& sheet) {
    const std::vector<SheetText> rows = RowsOf(sheet);
    const ArialMeter meter;
    for (const SheetText& row : rows) {
      const double width =
          meter.TextWidth(row.Text, {"Arial", double(row.Op.Height), row.Op.Bold, row.Op.Italic});
      EXPECT_GE(row.X, 0) << row.Text;
      EXPECT_LE(row.X + width, sheet.Paper.PrintableWidth() + 1) << row.Text;
      EXPECT_GE(row.Top, 0) << row.Text;
      EXPECT_LE(row.Top + row.Op.Height, sheet.Paper.PrintableHeight() + 1) << row.Text;
      for (const SheetText& other : rows) {
        if (&other == &row) continue;
        const double otherWidth =
            meter.TextWidth(other.Text, {"Arial", double(other.Op.Height), other.Op.Bold, other.Op.Italic});
        const bool apart = row.X + width <= other.X || other.X + otherWidth <= row.X ||
                           row.Top + row.Op.Height <= other.Top + 1 ||
                           other.Top + other.Op.Height <= row.Top + 1;
        EXPECT_TRUE(apart) << row.Text << " runs into " << other.Text;
      }
    }
  }

  void Expect6In12() {
    Type("LWSlope(0)", "6 | 12");
    Type("FtSpan(0)", "14' 6 1/2\"");
    Type("FtOverhang(0)", "12\"");
  }
};

TEST_F(PrintTest, AGableStatesWhatItIsCutBy) {
  Expect6In12();
  Page(1);
  const PrintedPage& sheet = Print();
  EXPECT_EQ(TitleOf(sheet), "Gable Roof - Common Rafter");
  // Plumb depth 7.25 sqrt(6^2 + 12^2) / 12 = 8.1057; two thirds above the seat, one third below.
  EXPECT_EQ(ColumnsOf(sheet), (Columns{{"Slope = 6/12 (26.57\u00BA)", "Run = 14' 6 1/2\"",
                                        "Overhang = 1' 0\"", "Heel = 5 3/8\"", "Seat = 5 3/8\""},
                                       {"Common = 1 1/2\" x 7 1/4\"", "Ridge = 1 1/2\" x 7 1/4\""},
                                       {"Ridge Allowance = 3/4\"", "Adjusted Run = 14' 5 3/4\""}}));
  EXPECT_EQ(printer.names.back(), "Untitled");
}

TEST_F(PrintTest, AKneewallAndASquareFasciaAddTheirRows) {
  Expect6In12();
  Check("chkKneewall(0)", true);
  Type("FtKneewall(0)", "6'");
  Click("mnuSettingsSquareCut");
  const Columns columns = ColumnsOf(Print());
  ASSERT_EQ(columns.size(), 3U);
  EXPECT_EQ(columns[1].back(), "Fascia = 1 1/2\" x 5 1/2\"");
  EXPECT_EQ(columns[2][2], "Kneewall Location = 6' 0\"");
  EXPECT_EQ(columns[2][3], "Kneewall Height Above Plate = 3' 0\"");
}

TEST_F(PrintTest, AShedHasNoRidgeAllowance) {
  Pick("cboType", "Common Shed");
  Expect6In12();
  const PrintedPage& sheet = Print();
  EXPECT_EQ(TitleOf(sheet), "Shed Roof - Rafter");
  const Columns columns = ColumnsOf(sheet);
  ASSERT_EQ(columns.size(), 3U);
  EXPECT_EQ(columns[2].size(), 1U);
  EXPECT_TRUE(columns[2][0].starts_with("Adjusted Run = "));
}

TEST_F(PrintTest, AHipStatesBothRaftersInTheirColumns) {
  Pick("cboType", "Hip");
  Type("LWSlope(0)", "6 | 12");
  Type("LWSlope(2)", "6 | 12");
  Type("FtSpan(0)", "10'");
  Page(2);
  const PrintedPage& sheet = Print();
  EXPECT_EQ(TitleOf(sheet), "Hip Roof - Hip Rafter");
  const Columns columns = ColumnsOf(sheet);
  ASSERT_EQ(columns.size(), 3U);
  EXPECT_EQ(columns[0][0], "Common Slope = 6/12 (26.57\u00BA)");
  EXPECT_EQ(columns[0][1], "Common Run = 10' 0\"");
  // atan(6 / 16.97), and 120 sqrt(2) of run.
  EXPECT_EQ(columns[1][0], "Hip Slope = 4.24/12 (19.47\u00BA)");
  EXPECT_EQ(columns[1][1], "Hip Run = 14' 1 11/16\"");
  // 16 sqrt(1 + 1/4) and 24 sqrt(1 + 1/4) of slope length.
  EXPECT_EQ(columns[2].at(columns[2].size() - 2), "CommonDiff 16\" = 1' 5 7/8\"");
  EXPECT_EQ(columns[2].back(), "CommonDiff 24\" = 2' 2 13/16\"");
  ExpectOnThePage(sheet);
}

TEST_F(PrintTest, AHipsCommonPrintsAsACommonAndKeepsItsType) {
  Pick("cboType", "Hip");
  Page(1);
  EXPECT_EQ(TitleOf(Print()), "Hip Roof - Common Rafter");
  EXPECT_EQ(document.design.Rafter1.RafterType, Member::kHip);
}

TEST_F(PrintTest, ValleysAreNamedByTheirKind) {
  Pick("cboType", "Valley");
  EXPECT_EQ(TitleOf(Print()), "Valley - Valley Rafter");
  Pick("cboType", "Unequal Span Valley");
  Page(1);
  EXPECT_EQ(ColumnsOf(Print()).at(1).at(1).substr(0, 19), "Short Valley Run = ");
  Page(2);
  EXPECT_EQ(ColumnsOf(Print()).at(1).at(1).substr(0, 18), "Long Valley Run = ");
}

TEST_F(PrintTest, ADualSlopesRearRafterStatesTheRearFields) {
  Pick("cboType", "Dual Slope");
  Type("FtSpan(1)", "7'");
  Page(2);
  const PrintedPage& sheet = Print();
  EXPECT_EQ(TitleOf(sheet), "Dual Slope Roof - Rear Rafter");
  EXPECT_EQ(ColumnsOf(sheet).at(0).at(1), "Run = " + document.design.sheet.Span[1].Text());
}

TEST_F(PrintTest, AMetricSheetIsMetricOnItsPaper) {
  Click("mnuMetric");
  Type("FtSpan(0)", "4200");
  const PrintedPage& sheet = Print();
  EXPECT_EQ(sheet.Paper.Width, kA4Paper.Width);
  EXPECT_EQ(ColumnsOf(sheet).at(0).at(1), "Run = 4200 mm");
  for (const SheetText& row : RowsOf(sheet)) {
    EXPECT_EQ(row.Text.find('"'), std::string::npos) << row.Text;
  }
  Click("mnuImperial");
  EXPECT_EQ(Print().Paper.Width, kLetterPaper.Width);
}

TEST_F(PrintTest, TheSheetIsLaidOutInTwips) {
  Expect6In12();
  const PrintedPage& sheet = Print();
  const std::vector<SheetText> rows = RowsOf(sheet);
  ASSERT_GT(rows.size(), 5U);
  const double width = sheet.Paper.PrintableWidth();
  const double height = sheet.Paper.PrintableHeight();
  EXPECT_EQ(rows[0].Text, "Pitchcraft from Tamarack Benchworks");
  EXPECT_EQ(rows[0].X, 0);
  EXPECT_EQ(rows[1].Text, "Untitled");
  EXPECT_EQ(rows[2].Text, "11/21/26");
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(rows[i].Top, 0);
    EXPECT_TRUE(rows[i].Op.Bold && rows[i].Op.Italic);
  }
  EXPECT_EQ(rows[3].Top, height - 1440) << "the title stands an inch above the bottom";
  EXPECT_EQ(rows[4].X, 0);
  EXPECT_NEAR(rows[5].Top - rows[4].Top, kRowTwips * 0.97, 7) << "rows are one text height apart";
  EXPECT_TRUE(rows[4].Op.Bold && !rows[4].Op.Italic);
  const auto columnAt = [&](double x) {
    return std::any_of(rows.begin(), rows.end(),
                       [x](const SheetText& row) { return std::fabs(row.X - x) < 1; });
  };
  EXPECT_TRUE(columnAt(width / 3) && columnAt(width / 1.5));
  const PageLayer& figure = FigureOf(sheet);
  EXPECT_LT(figure.Map.ScaleY, 0) << "the drawing's y grows upward";
  ExpectOnThePage(sheet);
}

TEST_F(PrintTest, LongNamesAndManyRowsStayOnThePage) {
  document.project.Name = std::string(300, 'W');
  Pick("cboType", "Hip");
  Click("mnuSettingsSquareCut");
  Type("FtSpan(0)", "123456789'");
  Page(2);
  if (document.Board().Recorder.Operations().empty()) Type("FtSpan(0)", "1234'");
  ExpectOnThePage(Print());
  document.project.Name = "H\u00F6he \u201CS\u00FCd\u201D";
  const PrintedPage& sheet = Print();
  EXPECT_EQ(RowsOf(sheet)[1].Text, document.project.Name);
}

std::vector<DrawColor> ColorsOf(const Recording& drawing, bool texts) {
  std::vector<DrawColor> colors;
  for (const DrawOp& operation : drawing) {
    if (const auto* text = std::get_if<TextOp>(&operation); texts && text != nullptr)
      colors.push_back(text->Color);
    if (const auto* line = std::get_if<LineOp>(&operation); !texts && line != nullptr)
      colors.push_back(line->Pen.Color);
  }
  std::sort(colors.begin(), colors.end());
  colors.erase(std::unique(colors.begin(), colors.end()), colors.end());
  return colors;
}

TEST_F(PrintTest, ColorsSuitThePaper) {
  constexpr DrawColor kRed = 0xFF;
  constexpr DrawColor kYellow = 0xFFFF;
  const PageLayer& figure = FigureOf(Print());
  EXPECT_EQ(ColorsOf(figure.Drawing, false), (std::vector<DrawColor>{0, kRed}))
      << "white lines come out black";
  EXPECT_EQ(ColorsOf(figure.Drawing, true), std::vector<DrawColor>{kYellow});
  document.preferences.LineColor = 0xFF0000;
  EXPECT_EQ(ColorsOf(FigureOf(Print()).Drawing, false), (std::vector<DrawColor>{kRed, 0xFF0000}));
  document.PrintAllBlack = true;
  EXPECT_EQ(ColorsOf(FigureOf(Print()).Drawing, false), std::vector<DrawColor>{0});
  document.PrintAllBlack = false;
  printer.color = false;
  EXPECT_EQ(ColorsOf(FigureOf(Print()).Drawing, true), std::vector<DrawColor>{0});
  EXPECT_EQ(document.preferences.DimColor, 0xFFU) << "the screen keeps its colours";
}

TEST_F(PrintTest, TheLineWeightIsOfThePaper) {
  const auto widest = [&](int weight) {
    document.preferences.LineWidth = weight;
    const PageLayer& figure = FigureOf(Print());
    double width = 0;
    for (const DrawOp& operation : figure.Drawing) {
      if (const auto* line = std::get_if<LineOp>(&operation))
        width = std::max(width, line->Pen.Width * std::fabs(figure.Map.ScaleX));
    }
    return width;
  };
  Expect6In12();
  EXPECT_NEAR(widest(4), 40, 6) << "four half points";
  EXPECT_NEAR(widest(8), 80, 6);
  Type("FtSpan(0)", "60'");
  EXPECT_NEAR(widest(8), 80, 6) << "whatever the size of the roof";
}

TEST_F(PrintTest, TurnedFontsTurnTheDimensionsTheOtherWay) {
  const auto angles = [&] {
    std::vector<double> all;
    for (const DrawOp& operation : FigureOf(Print()).Drawing) {
      if (const auto* text = std::get_if<TextOp>(&operation)) all.push_back(text->Angle);
    }
    return all;
  };
  Expect6In12();
  const std::vector<double> usual = angles();
  document.preferences.RotateFonts = true;
  std::vector<double> turned = angles();
  ASSERT_EQ(turned.size(), usual.size());
  int changed = 0;
  for (std::size_t i = 0; i < usual.size(); ++i) {
    EXPECT_NEAR(std::fabs(turned[i]), std::fabs(usual[i]), 1e-6);
    changed += turned[i] != usual[i] ? 1 : 0;
  }
  EXPECT_GT(changed, 0);
}

TEST_F(PrintTest, TheScreenKeepsItsDrawing) {
  Expect6In12();
  Page(1);
  const Recording before = document.Board().Recorder.Operations();
  const std::size_t dimensions = document.Board().DimensionPoints.size();
  Print();
  EXPECT_EQ(document.Board().Recorder.Operations(), before);
  EXPECT_EQ(document.Board().DimensionPoints.size(), dimensions);
  EXPECT_TRUE(!document.design.Metric);
}

TEST_F(PrintTest, APrinterThatIsGoneIsTold) {
  printer.broken = true;
  Click("mnuFilePrint");
  EXPECT_EQ(dialogs.messages, std::vector<std::string>{"Printer error - 482"});
  printer.broken = false;
  Print();
}

TEST_F(PrintTest, AnInfiniteFigureIsToldAndNothingIsSent) {
  Type("FtSpan(0)", "1e30");
  dialogs.messages.clear();
  Click("mnuFilePrint");
  EXPECT_EQ(dialogs.messages, std::vector<std::string>{"Overflow - 6"});
  EXPECT_TRUE(printer.sheets.empty());
}

TEST_F(PrintTest, APageWithoutASheetSaysSo) {
  Pick("cboType", "Octagon");
  Click("mnuFilePrint");
  EXPECT_EQ(dialogs.messages, std::vector<std::string>{"This page cannot be printed yet."});
}

TEST_F(PrintTest, PageSetupAndPopupsReachThePrinter) {
  Click("mnuFilePageSetup");
  Click("mnuPopUp1PrintSetup");
  Click("mnuPopUp1Print");
  EXPECT_EQ(printer.setups, 2);
  EXPECT_EQ(printer.sheets.size(), 1U);
  EXPECT_FALSE(actions.Press("Print"));
  EXPECT_EQ(printer.sheets.size(), 2U);
}

TEST_F(PrintTest, WithoutAPrinterAMessageSaysSo) {
  Document lonely({dialogs, store, folder.Path()});
  Start(lonely);
  SetUpPage(lonely);
  PrintPageShown(lonely);
  EXPECT_EQ(dialogs.messages, std::vector<std::string>{"There is no printer."});
}

std::string TraceOf(const PrintedPage& sheet) {
  const ArialMeter meter;
  TextTrace trace(meter);
  sheet.PlayOn(trace);
  return trace.Lines();
}

TEST_F(PrintTest, SheetsStayAsTheyWereLookedAt) {
  Expect6In12();
  Check("chkKneewall(0)", true);
  Type("FtKneewall(0)", "6'");
  pitchcraft::testing::ExpectGolden("document/golden/sheet-gable.trace", TraceOf(Print()));
  Click("mnuMetric");
  Pick("cboType", "Hip");
  Type("LWSlope(0)", "500 | 1000");
  Type("LWSlope(2)", "500 | 1000");
  Page(2);
  pitchcraft::testing::ExpectGolden("document/golden/sheet-hip-metric.trace", TraceOf(Print()));
}

}  // namespace
}  // namespace pitchcraft
