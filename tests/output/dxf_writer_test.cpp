// What each operation of the writer adds to the file.
#include "output/dxf_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale>

#include "../support/number.h"
#include "core/run_time_error.h"
#include "dxf_reading.h"
#include "sample_dxf.h"

namespace pitchcraft::testing {
namespace {

using ::testing::ElementsAre;

DxfContent Read(const DxfWriter& writer) { return DxfContent(writer.Bytes()); }
std::vector<DxfRecord> Texts(const DxfWriter& writer) { return Read(writer).In("ENTITIES", "TEXT"); }
std::vector<DxfRecord> Lines(const DxfWriter& writer) { return Read(writer).In("ENTITIES", "LINE"); }

std::vector<std::string> TypesOf(const std::vector<DxfRecord>& records) {
  std::vector<std::string> types;
  for (const DxfRecord& record : records) types.push_back(record.Type);
  return types;
}

TEST(DxfWriter, AnEmptyDrawingIsAWholeFile) {
  EXPECT_THAT(TypesOf(Read(DxfWriter()).All()),
              ElementsAre("SECTION", "ENDSEC",                                                  // header
                          "SECTION", "TABLE", "VPORT", "ENDTAB",                                // tables
                          "TABLE", "LTYPE", "LTYPE", "ENDTAB",                                  //
                          "TABLE", "LAYER", "LAYER", "ENDTAB",                                  //
                          "TABLE", "STYLE", "ENDTAB", "TABLE", "DIMSTYLE", "ENDTAB", "ENDSEC",  //
                          "SECTION", "ENDSEC",                                                  // blocks
                          "SECTION", "ENDSEC", "EOF"));                                         // entities
}

TEST(DxfWriter, SectionsComeInTheirOrderAndTablesCountTheirEntries) {
  const DxfContent content = Read(SampleDrawing());
  std::vector<std::string> sections;
  for (const DxfRecord& section : content.Named("SECTION")) sections.push_back(section(2));
  EXPECT_THAT(sections, ElementsAre("HEADER", "TABLES", "BLOCKS", "ENTITIES"));
  for (const DxfRecord& table : content.Named("TABLE")) {
    EXPECT_EQ(table(70), std::to_string(content.Named(table(2)).size())) << table(2);
  }
}

TEST(DxfWriter, HeaderNamesVersionUnitsAndScales) {
  DxfWriter writer = SampleDrawing();
  const DxfContent inches = Read(writer);
  EXPECT_EQ(inches.Variable("$ACADVER"), "AC1009");
  EXPECT_EQ(inches.Variable("$INSUNITS") + inches.Variable("$MEASUREMENT"), "10");
  EXPECT_EQ(inches.Variable("$LTSCALE"), "12.0");
  EXPECT_EQ(inches.Variable("$DIMSCALE") + " " + inches.Variable("$DIMLFAC"), "1.0 1.0");
  writer.Units = DxfUnits::kMillimetre;
  const DxfContent millimetres = Read(writer);
  EXPECT_EQ(millimetres.Variable("$INSUNITS") + millimetres.Variable("$MEASUREMENT"), "41");
  EXPECT_EQ(millimetres.Variable("$LTSCALE"), "300.0");
}

TEST(DxfWriter, HeaderAndDimensionStyleHoldTheMeasuresOfDimensions) {
  DxfWriter writer;
  writer.DimTextHeight = 3;
  writer.DimArrowSize = 5;
  writer.DimExtension = 7;
  writer.DimIncrement = 9;
  writer.DimColor = 30;
  const DxfContent content = Read(writer);
  const DxfRecord style = content.Entry("DIMSTYLE", "STANDARD");
  const std::vector<std::tuple<const char*, int, const char*>> measures = {
      {"$DIMTXT", 140, "3.0"}, {"$DIMASZ", 41, "5.0"},  {"$DIMEXE", 44, "7.0"},
      {"$DIMDLI", 43, "9.0"},  {"$DIMEXO", 42, "3.5"},  {"$DIMGAP", 147, "1.5"},
      {"$DIMCLRD", 176, "30"}, {"$DIMCLRE", 177, "30"}, {"$DIMCLRT", 178, "30"}};
  for (const auto& [name, code, value] : measures) {
    EXPECT_EQ(content.Variable(name), value) << name;
    EXPECT_EQ(style(code), value) << name;
  }
}

TEST(DxfWriter, ExtentsHoldLinesTextsAndDimensions) {
  DxfWriter writer = SampleWriter();
  writer.Line(-10, 5, 20, 8);
  writer.DimHorizontal(0, 5, 20, 5, -30);
  const DxfContent content = Read(writer);
  EXPECT_EQ(content.Variable("$EXTMIN"), "-10.0");
  EXPECT_EQ(content.Variable("$EXTMIN", 1), "-34.0") << "an extension line passes the dimension line by 4";
  EXPECT_EQ(content.Variable("$EXTMAX"), "20.0");
  EXPECT_EQ(content.Variable("$EXTMAX", 1), "8.0");
  writer.Text("on top", 0, 100, 6);
  EXPECT_EQ(Read(writer).Variable("$EXTMAX", 1), "106.0");
  writer.Text("turned", 50, 0, 6, 90);
  EXPECT_EQ(Read(writer).Variable("$EXTMAX"), "50.0") << "its letters stand left of its base line";
  writer.Text("farther", 60, 50, 6, -45);
  EXPECT_GT(NumberIn(Read(writer).Variable("$EXTMAX")), 60 + 7 * 4 * 0.7) << "both ends count";
  EXPECT_EQ(Read(SampleWriter()).Variable("$EXTMIN") + Read(SampleWriter()).Variable("$EXTMAX"), "0.00.0");
}

TEST(DxfWriter, ALineStandsOnItsLayerInItsColour) {
  DxfWriter writer;
  writer.Line(1.5, -2, 0.1, 1000000);
  writer.Color = 5;
  writer.Line(0, 0, 1, 1, "CENTER");
  writer.Color = 0;
  writer.Line(0, 0, 1, 1, "Wood & steel");
  const auto lines = Lines(writer);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0].Place(10), "1.5, -2.0");
  EXPECT_EQ(lines[0].Place(11), "0.1, 1000000.0");
  EXPECT_EQ(lines[0](8) + lines[0](62), "0-") << "the layer's colour";
  EXPECT_EQ(lines[1](8) + " " + lines[1](62), "CENTER 5");
  EXPECT_EQ(lines[2](8) + " " + lines[2](62), "WOOD___STEEL -") << "0 is no colour of a line";
  EXPECT_EQ(Read(writer).Entry("LAYER", "WOOD___STEEL")(6), "CONTINUOUS");
}

TEST(DxfWriter, CentreLinesAreDashedInTheColourOfDimensions) {
  DxfWriter writer;
  writer.DimColor = 12;
  const DxfContent content = Read(writer);
  EXPECT_EQ(content.Entry("LAYER", "CENTER")(6), "CENTER");
  EXPECT_EQ(content.Entry("LAYER", "CENTER")(62), "12");
  EXPECT_EQ(content.Entry("LAYER", "0")(62), "7");
  const DxfRecord type = content.Entry("LTYPE", "CENTER");
  EXPECT_EQ(type(73) + " " + type(40) + " " + type(49), "4 2.0 1.25");
  writer.DimColor = 300;
  EXPECT_EQ(Read(writer).Entry("LAYER", "CENTER")(62), "7") << "no colour number";
}

TEST(DxfWriter, ATextHasHeightRotationAndAlignment) {
  DxfWriter writer;
  writer.TextHeight = 4;
  writer.Text("left", 10, 20);
  writer.TextAlign = "C";
  writer.Text("centre", 10, 20, 8);
  writer.TextAlign = "R";
  writer.Text("right", 10, 20, {}, -45);
  writer.TextAlign = "nonsense";
  writer.Text("left again", 10, 20);
  const auto texts = Texts(writer);
  ASSERT_EQ(texts.size(), 4U);
  EXPECT_EQ(texts[0](1) + " " + texts[0](40) + " " + texts[0].Place(10), "left 4.0 10.0, 20.0");
  EXPECT_EQ(texts[0](72) + texts[0](11) + texts[0](50), "---");
  EXPECT_EQ(texts[1](72) + " " + texts[1](40) + " " + texts[1].Place(11), "1 8.0 10.0, 20.0");
  EXPECT_LT(NumberIn(texts[1](10)), -3) << "six letters, about 30 wide, begin left of their middle";
  EXPECT_EQ(texts[1](20), "20.0");
  EXPECT_EQ(texts[2](72) + " " + texts[2](50) + " " + texts[2].Place(11), "2 -45.0 10.0, 20.0");
  EXPECT_LT(NumberIn(texts[2](10)), 7);
  EXPECT_GT(NumberIn(texts[2](20)), 23) << "it runs downward, so it begins above";
  EXPECT_EQ(texts[3](72), "-");
}

TEST(DxfWriter, NoTextIsWrittenEmptyOrWithoutHeight) {
  DxfWriter writer;
  writer.Text("", 0, 0);
  writer.Text("flat", 0, 0, 0);
  writer.Text("below", 0, 0, -2);
  writer.TextHeight = 0;
  writer.Text("flat, too", 0, 0);
  writer.Text("seen", 0, 0, 1);
  ASSERT_EQ(Texts(writer).size(), 1U);
  EXPECT_EQ(Texts(writer)[0](1), "seen");
  EXPECT_EQ(Read(writer).Variable("$TEXTSIZE"), "2.0") << "a height of 0 stands nowhere";
}

TEST(DxfWriter, WhatIsNoNumberIsRefusedAndLeavesTheRest) {
  constexpr double kInfinite = std::numeric_limits<double>::infinity();
  DxfWriter writer;
  writer.Line(0, 0, 1, 1);
  const std::string before = writer.Bytes();
  EXPECT_THROW(writer.Line(0, kInfinite, 1, 1), RunTimeError);
  EXPECT_THROW(writer.Line(0, 0, 1e39, 1), RunTimeError) << "none as a Single";
  EXPECT_THROW(writer.Text("x", std::nan(""), 0), RunTimeError);
  EXPECT_THROW(writer.Text("x", 0, 0, kInfinite), RunTimeError);
  EXPECT_THROW(writer.DimAligned(0, 0, 1, 1, -kInfinite, 0), RunTimeError);
  EXPECT_THROW(writer.DimVertical(0, 0, 1, 1, std::nan("")), RunTimeError);
  EXPECT_THROW(writer.DimHorizontal(0, 0, 1, 1, 0, kInfinite), RunTimeError);
  EXPECT_EQ(writer.Bytes(), before);
  writer.DimArrowSize = kInfinite;
  try {
    writer.Bytes();
    FAIL() << "an infinite size";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Message(), "Overflow - 6");
  }
}

TEST(DxfWriter, FarAwayAndTinyNumbersStayPlain) {
  DxfWriter writer;
  writer.Line(3e38, -3e38, 1e-12, -0.0);
  EXPECT_EQ(Lines(writer)[0](10).substr(0, 3), "300");
  EXPECT_EQ(Lines(writer)[0].Place(11), "0.0, 0.0");
  EXPECT_EQ(writer.Bytes().find("e+"), std::string::npos);
}

TEST(DxfWriter, TheFileIsAsciiWhateverIsTyped) {
  DxfWriter writer;
  writer.LengthText = [](double) { return "zwölf Fuß\n½"; };
  writer.Text("Dachsparren º 木 \xFF", 0, 0);
  writer.DimHorizontal(0, 0, 12, 0, 4);
  for (const char c : writer.Bytes()) {
    ASSERT_TRUE((c >= ' ' && c < 0x7F) || c == '\r' || c == '\n') << static_cast<int>(c);
  }
  EXPECT_EQ(Read(writer).In("ENTITIES", "DIMENSION").size(), 1U);
}

/// Must hold when both the C++ and the C library write a comma.
TEST(DxfWriter, ACommaLocaleChangesNothing) {
  const std::string before = SampleDrawing().Bytes();
  const char* old = std::setlocale(LC_ALL, nullptr);
  const std::string kept = old == nullptr ? "C" : old;
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "tools/comma_locale.sh makes it";
  const std::locale global = std::locale::global(std::locale("de_DE.UTF-8"));
  const std::string during = SampleDrawing().Bytes();
  std::locale::global(global);
  std::setlocale(LC_ALL, kept.c_str());
  EXPECT_EQ(during, before);
}

}  // namespace
}  // namespace pitchcraft::testing
