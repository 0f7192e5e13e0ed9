// What the driver writes to files: drawings in every format, sheets of paper, and the events of a print job.
#include "driver_fixture.h"

namespace {

class DriverOutputTest : public DriverTest {
 protected:
  void SetUp() override {
    DriverTest::SetUp();
    Write("save.txt", "type LWSlope(0) 6 | 12\nanswer roof.pcf\nclick mnufileSaveAs\n");
    ASSERT_EQ(Run("run --data data save.txt").status, 0);
  }
  std::vector<nlohmann::json> Events(const std::string& script) {
    Write("script.txt", script);
    std::istringstream lines(Run("run --data data script.txt").output);
    std::vector<nlohmann::json> events;
    for (std::string line; std::getline(lines, line);) events.push_back(nlohmann::json::parse(line));
    return events;
  }
};

TEST_F(DriverOutputTest, DrawWritesEveryFormat) {
  const struct {
    const char* file;
    std::string begin;
  } kFormats[] = {
      {"a.dxf", "  0\r\nSECTION"}, {"a.wmf", "\xD7\xCD\xC6\x9A"}, {"a.svg", "<"}, {"a.png", "\x89PNG"},
      {"a.pdf", "%PDF"},           {"B.DXF", "  0\r\nSECTION"}};
  for (const auto& [file, begin] : kFormats) {
    const Result result = Run(std::string("draw --data data roof.pcf --page 1 --out ") + file);
    EXPECT_EQ(result.status, 0) << file << result.output;
    EXPECT_EQ(Read(file).substr(0, begin.size()), begin) << file;
  }
}

TEST_F(DriverOutputTest, DrawLeavesTheProjectAlone) {
  const std::string before = Read("roof.pcf");
  Run("draw --data data roof.pcf --page 1 --out a.dxf");
  EXPECT_EQ(Read("roof.pcf"), before);
}

TEST_F(DriverOutputTest, PrintWritesASheetWithItsFonts) {
  const Result result = Run("print --data data roof.pcf --page 1 --out sheet.pdf");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(nlohmann::json::parse(result.output),
            (nlohmann::json{{"event", "printed"}, {"file", "sheet.pdf"}}));
  const std::string pdf = Read("sheet.pdf");
  EXPECT_EQ(pdf.substr(0, 4), "%PDF");
  EXPECT_NE(pdf.find("/FontFile2"), std::string::npos) << "the fonts are in the file";
  EXPECT_NE(pdf.find("LiberationSans-Bold"), std::string::npos);
  EXPECT_NE(pdf.find("MediaBox [0 0 612"), std::string::npos) << "Letter in points";
}

TEST_F(DriverOutputTest, PrintThatFailsTellsSoAndKeepsTheOldFile) {
  Write("old.pdf", "old");
  EXPECT_EQ(Run("print --data data roof.pcf --page 9 --out old.pdf 2>/dev/null").status, 2) << "no such page";
  EXPECT_EQ(Run("print --data data nothing.pcf --page 1 --out old.pdf 2>/dev/null").status, 1);
  EXPECT_EQ(Run("print --data data roof.pcf --page 1 --out nowhere/x.pdf 2>/dev/null").status, 1);
  EXPECT_EQ(Run("print --data data roof.pcf --page 1 --out data 2>/dev/null").status, 1) << "a folder";
  EXPECT_EQ(Run("print --data data roof.pcf --page 1 2>/dev/null").status, 2) << "no file named";
  EXPECT_EQ(Read("old.pdf"), "old");
}

TEST_F(DriverOutputTest, ASheetGoesWhereTheScriptSays) {
  const auto events = Events(
      "click mnuFilePrint\n"
      "answer named.pdf\nclick mnuFilePrint\n"
      "answer cancel\nclick mnuFilePrint\n"
      "answer setup.pdf\nclick mnuFilePageSetup\nclick mnuFilePrint\n");
  ASSERT_EQ(events.size(), 4U);
  EXPECT_EQ(events[0], (nlohmann::json{{"event", "printed"}, {"file", "data/print.pdf"}}));
  EXPECT_EQ(events[1]["file"], "named.pdf");
  EXPECT_EQ(events[2]["kind"], "printer");
  EXPECT_EQ(events[2]["answer"], "setup.pdf");
  EXPECT_EQ(events[3]["file"], "setup.pdf");
  for (const char* file : {"data/print.pdf", "named.pdf", "setup.pdf"})
    EXPECT_EQ(Read(file).substr(0, 4), "%PDF") << file;
}

TEST_F(DriverOutputTest, ExportsAskAndAnswerInAScript) {
  const auto events = Events("answer out.dxf\nclick mnuFileExportDXF\nclick mnuFileExportMetafile\n");
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0]["title"], "Export DXF");
  EXPECT_EQ(events[0]["answer"], "out.dxf");
  EXPECT_FALSE(Read("out.dxf").empty());
  EXPECT_FALSE(Read("data/export.wmf").empty());
}

}  // namespace
