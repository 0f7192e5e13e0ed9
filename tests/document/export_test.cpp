// DXF and metafile of the page shown, through the commands of the File menu.
#include <cmath>
#include <fstream>
#include <sstream>

#include "paper_test.h"
#include "support/golden.h"
#include "support/number.h"

namespace pitchcraft {
namespace {

/// One entity of a DXF file: its kind and the values by group code.
struct Entity {
  std::string Kind;
  std::vector<std::pair<int, std::string>> Values;

  std::string Text(int code) const {
    for (const auto& [group, value] : Values) {
      if (group == code) return value;
    }
    return "";
  }
  double Number(int code) const { return testing::NumberIn(Text(code)); }
};

std::vector<Entity> EntitiesOf(const std::string& text) {
  std::istringstream lines(text);
  std::vector<Entity> entities;
  std::string code;
  std::string value;
  bool inside = false;
  while (std::getline(lines, code) && std::getline(lines, value)) {
    while (!value.empty() && value.back() == '\r') value.pop_back();
    const int group = std::atoi(code.c_str());
    if (group == 2 && value == "ENTITIES") {
      inside = true;
      continue;
    }
    if (!inside) continue;
    if (group == 0) {
      if (value == "ENDSEC") break;
      entities.push_back({value, {}});
    } else if (!entities.empty()) {
      entities.back().Values.emplace_back(group, value);
    }
  }
  return entities;
}

class ExportTest : public PaperTest {
 protected:
  std::string File(const char* name) { return (folder.Path() / name).string(); }
  std::vector<Entity> Export(const char* name = "roof.dxf") {
    dialogs.answers.emplace_back(File(name));
    Click("mnuFileExportDXF");
    return EntitiesOf(pitchcraft::testing::ReadWhole(File(name)));
  }
  static int Count(const std::vector<Entity>& entities, const char* kind) {
    int count = 0;
    for (const Entity& entity : entities) count += entity.Kind == kind ? 1 : 0;
    return count;
  }
  static std::vector<std::string> TextsOf(const std::vector<Entity>& entities) {
    std::vector<std::string> texts;
    for (const Entity& entity : entities) {
      if (entity.Kind == "TEXT") texts.push_back(entity.Text(1));
    }
    return texts;
  }
  static bool Has(const std::vector<Entity>& entities, double x1, double y1, double x2, double y2) {
    const auto near = [](double a, double b) { return std::fabs(a - b) < 1e-3; };
    for (const Entity& e : entities) {
      if (e.Kind != "LINE") continue;
      const double a = e.Number(10), b = e.Number(20), c = e.Number(11), d = e.Number(21);
      if (near(a, x1) && near(b, y1) && near(c, x2) && near(d, y2)) return true;
      if (near(a, x2) && near(b, y2) && near(c, x1) && near(d, y1)) return true;
    }
    return false;
  }
  void Roof6In12() {
    Type("LWSlope(0)", "6 | 12");
    Type("FtSpan(0)", "10'");
    Type("FtOverhang(0)", "12\"");
    Page(1);
  }
};

TEST_F(ExportTest, ACommonStandsInTheFileInRealSize) {
  Roof6In12();
  const std::vector<Entity> entities = Export();
  // Adjusted run 10' less half the ridge: 119.25; the rises are half of the runs.
  EXPECT_TRUE(Has(entities, 131.25, 65.625, 12, 6)) << "top edge from the ridge to the wall";
  EXPECT_TRUE(Has(entities, 12, 6, 0, 0)) << "and on to the tail";
  EXPECT_TRUE(Has(entities, 0, 0, 0, -5.5)) << "a plumb cut as high as the fascia";
  const double plumb = 7.25 * std::sqrt(36.0 + 144) / 12;
  EXPECT_TRUE(Has(entities, 131.25, 65.625, 131.25, 65.625 - plumb)) << "the ridge cut";
  EXPECT_EQ(dialogs.messages, std::vector<std::string>{});
}

TEST_F(ExportTest, ItsDimensionsMeasureWhatTheyShow) {
  Roof6In12();
  const std::vector<Entity> entities = Export();
  EXPECT_EQ(Count(entities, "DIMENSION"), static_cast<int>(document.Board().Dimensions.size()));
  bool run = false;
  for (const Entity& e : entities) {
    if (e.Kind != "DIMENSION") continue;
    if (e.Text(1) == "9' 11 1/4\"") run = std::fabs(std::fabs(e.Number(13) - e.Number(14)) - 119.25) < 1e-3;
  }
  EXPECT_TRUE(run) << "the run is measured between its points";
}

TEST_F(ExportTest, LabelsLoseTheirDegreeSignAndTheBlockKeepsIt) {
  Roof6In12();
  const std::vector<std::string> texts = TextsOf(Export());
  ASSERT_GT(texts.size(), 4U);
  EXPECT_EQ(texts[0], "63.4");
  EXPECT_EQ(texts[1], "Gable Roof - Common Rafter");
  EXPECT_EQ(texts[2], "Slope = 6/12 (26.57%%d)");
  EXPECT_EQ(texts[3], "Run = 10' 0\"");
}

TEST_F(ExportTest, AHipCarriesItsBevelsAndCenterLines) {
  Pick("cboType", "Hip");
  Page(2);
  const std::vector<Entity> entities = Export();
  const std::vector<std::string> texts = TextsOf(entities);
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "45d bevels"),
            document.Board().Pts(18).X != document.Board().Pts(23).X ? 2 : 0);
  int center = 0;
  for (const Entity& e : entities) {
    if (e.Kind != "LINE" || e.Text(8) != "CENTER") continue;
    ++center;
    EXPECT_EQ(e.Text(62), "12") << "in the colour of the dimensions";
  }
  EXPECT_GE(center, 1);
  EXPECT_EQ(document.design.Rafter1.RafterType, Member::kHip);
}

TEST_F(ExportTest, TheTextSizeIsThatOfTheUnitSystem) {
  document.preferences.DxfTextSize = 4;
  document.preferences.DxfMetricTextSize = 60;
  Roof6In12();
  for (const Entity& e : Export()) {
    if (e.Kind == "TEXT" && e.Text(1) == "63.4") {
      EXPECT_EQ(e.Number(40), 4);
    }
  }
  Click("mnuMetric");
  Page(1);
  int seen = 0;
  for (const Entity& e : Export()) {
    if (e.Kind == "TEXT" && e.Text(1).starts_with("Run = ")) {
      EXPECT_EQ(e.Number(40), 60);
      ++seen;
    }
  }
  EXPECT_EQ(seen, 1);
}

TEST_F(ExportTest, OtherDxfColorsChangeNothing) {
  Roof6In12();
  Export("a.dxf");
  document.preferences.DxfLineColor = 3;
  document.preferences.DxfTextColor = 4;
  document.preferences.DxfBackColor = 0x123456;
  document.preferences.DxfDimTextSize = 40;
  Export("b.dxf");
  EXPECT_EQ(pitchcraft::testing::ReadWhole(File("a.dxf")), pitchcraft::testing::ReadWhole(File("b.dxf")));
  document.preferences.DxfDimColor = 3;
  Export("c.dxf");
  EXPECT_NE(pitchcraft::testing::ReadWhole(File("a.dxf")), pitchcraft::testing::ReadWhole(File("c.dxf")));
}

TEST_F(ExportTest, TheFileBecomesTheDocumentsFile) {
  Export("house.dxf");
  EXPECT_EQ(document.project.File, File("house.dxf"));
  const std::size_t asked = dialogs.asked.size();
  Click("mnuFileSave");
  EXPECT_EQ(dialogs.asked.size(), asked) << "Save asks for no name";
  EXPECT_TRUE(pitchcraft::testing::ReadWhole(File("house.dxf")).starts_with("["))
      << "and puts the project into the file";
}

TEST_F(ExportTest, TheDialogOffersTheFolderAndAnExtension) {
  dialogs.answers.emplace_back(File("plain"));
  Click("mnuPopUp1DXF");
  EXPECT_EQ(dialogs.asked.back(), "Export DXF: ");
  EXPECT_TRUE(std::filesystem::exists(File("plain.dxf")));
}

TEST_F(ExportTest, ACancelledDialogDoesNothing) {
  dialogs.answers.emplace_back(std::nullopt);
  Click("mnuFileExportDXF");
  EXPECT_EQ(document.project.File, "");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ExportTest, AFileThatCannotBeWrittenIsTold) {
  std::filesystem::create_directory(File("folder.dxf"));
  dialogs.answers.emplace_back(File("folder.dxf"));
  Click("mnuFileExportDXF");
  dialogs.answers.emplace_back(File("nowhere/x.dxf"));
  Click("mnuFileExportDXF");
  EXPECT_EQ(dialogs.messages,
            (std::vector<std::string>{"Path/File access error - 75", "Path not found - 76"}));
}

TEST_F(ExportTest, AnInfiniteFigureLeavesTheOldFile) {
  Export("kept.dxf");
  const std::string before = pitchcraft::testing::ReadWhole(File("kept.dxf"));
  Type("FtSpan(0)", "1e30");
  dialogs.messages.clear();
  Export("kept.dxf");
  EXPECT_EQ(dialogs.messages, std::vector<std::string>{"Overflow - 6"});
  EXPECT_EQ(pitchcraft::testing::ReadWhole(File("kept.dxf")), before);
}

TEST_F(ExportTest, APageWithoutADxfFormSaysSo) {
  Pick("cboType", "Octagon");
  Click("mnuFileExportDXF");
  EXPECT_EQ(dialogs.messages, std::vector<std::string>{"This page cannot be exported yet."});
  EXPECT_TRUE(dialogs.asked.empty()) << "before a name is asked for";
}

TEST_F(ExportTest, TheMetafileHasOneNameInTheProgramsFolder) {
  Click("mnuFileExportMetafile");
  const std::string first = pitchcraft::testing::ReadWhole(File("export.wmf"));
  ASSERT_GT(first.size(), 40U);
  EXPECT_EQ(first.substr(0, 4), "\xD7\xCD\xC6\x9A");
  Type("FtSpan(0)", "20'");
  Click("mnuFileExportMetafile");
  EXPECT_NE(pitchcraft::testing::ReadWhole(File("export.wmf")), first) << "the newer one stays";
  EXPECT_TRUE(dialogs.asked.empty() && dialogs.messages.empty());
  std::filesystem::remove(File("export.wmf"));
  std::filesystem::create_directory(File("export.wmf"));
  Click("mnuFileExportMetafile");
  EXPECT_EQ(dialogs.messages, std::vector<std::string>{"Path/File access error - 75"});
}

TEST_F(ExportTest, FilesStayAsTheyWereLookedAt) {
  Roof6In12();
  Export("gable.dxf");
  pitchcraft::testing::ExpectGolden("document/golden/gable.dxf",
                                    pitchcraft::testing::ReadWhole(File("gable.dxf")));
}

}  // namespace
}  // namespace pitchcraft
