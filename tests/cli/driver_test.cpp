// The driver from outside: arguments, exit statuses, files.
#include "driver_fixture.h"

namespace {

TEST_F(DriverTest, RunsAScriptFromAFileAndFromStandardInput) {
  Write("a.txt", "type LWSlope(0) 6 | 12\ndump Rafter1\n");
  const Result file = Run("run --data data a.txt");
  EXPECT_EQ(file.status, 0);
  EXPECT_EQ(nlohmann::json::parse(file.output)["Rafter1"]["Rise"], 71.625);
  EXPECT_EQ(Run("run --data data - < a.txt").output, file.output);
  EXPECT_EQ(Run("run --data data < a.txt").output, file.output);
}

TEST_F(DriverTest, SettingsStayInTheDataFolder) {
  Write("a.txt", "click mnuMetric\n");
  EXPECT_EQ(Run("run --data data a.txt").status, 0);
  Write("b.txt", "dump document\n");
  EXPECT_EQ(nlohmann::json::parse(Run("run --data data b.txt").output)["document"]["UnitRun"], 1000);
}

TEST_F(DriverTest, ExitStatusTellsWhatWentWrong) {
  EXPECT_EQ(Run("2>/dev/null").status, 2) << "no command";
  EXPECT_EQ(Run("igloo 2>/dev/null").status, 2) << "no such command";
  EXPECT_EQ(Run("run --data nowhere 2>/dev/null </dev/null").status, 2) << "no such folder";
  EXPECT_EQ(Run("run --data data missing.txt 2>/dev/null").status, 1) << "a script that is not there";
  EXPECT_EQ(Run("run --data data data 2>/dev/null").status, 1) << "a folder for a script";
  Write("bad.txt", "igloo\n");
  EXPECT_EQ(Run("run --data data bad.txt").status, 2) << "a line that is not understood";
  Write("format.txt", "picture x.igloo\n");
  EXPECT_EQ(Run("run --data data format.txt").status, 1) << "a format that is not known";
  EXPECT_EQ(Run("--help").status, 0);
  EXPECT_NE(Run("--version").output.find("pitchcraft-cli "), std::string::npos);
}

TEST_F(DriverTest, DiagnosticsAreOneLine) {
  const Result result = Run("run --data nowhere 2>&1 >/dev/null </dev/null");
  EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), 1) << result.output;
}

TEST_F(DriverTest, PicturesAreWritten) {
  Write("a.txt", "type LWSlope(0) 6 | 12\npicture a.svg\npicture a.png\npicture nowhere/a.png\n");
  const Result result = Run("run --data data a.txt");
  EXPECT_EQ(result.status, 1) << "the last folder does not exist";
  EXPECT_NE(Read("a.svg").find("<svg"), std::string::npos);
  EXPECT_EQ(Read("a.png").substr(1, 3), "PNG");
}

TEST_F(DriverTest, TheFirstRafterOfTheReadmeHoldsItsPromises) {
  const Result result = Run("run --data data '" PITCHCRAFT_SOURCE_DIR "/examples/first-rafter.txt'");
  EXPECT_EQ(result.status, 0);
  const auto rafter = nlohmann::json::parse(result.output)["Rafter1"];
  EXPECT_EQ(rafter["Rise"], 71.625);
  EXPECT_NEAR(rafter["Length1"].get<double>(), 160.158, 0.0005);
  EXPECT_NEAR(rafter["Length2"].get<double>(), 171.898, 0.0005);
  EXPECT_NEAR(rafter["PlumbCut"].get<double>(), 8.106, 0.0005);
  EXPECT_FALSE(Read("first-rafter.png").empty());
}

TEST_F(DriverTest, DialogsAreAnsweredAndTold) {
  Write("a.txt", "answer house.pcf\nclick mnuFileSave\nclick mnuFileOpen\nanswer Barn\nclick mnuFileNew\n");
  const Result result = Run("run --data data a.txt");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(
      result.output,
      "{\"event\":\"dialog\",\"kind\":\"save\",\"title\":\"Save Project\",\"name\":\"Untitled\","
      "\"answer\":\"house.pcf\"}\n"
      "{\"event\":\"dialog\",\"kind\":\"open\",\"title\":\"Open Project\",\"name\":\"\",\"answer\":null}\n"
      "{\"event\":\"dialog\",\"kind\":\"input\",\"title\":\"New Project\",\"name\":\"Untitled\","
      "\"answer\":\"Barn\"}\n");
}

TEST_F(DriverTest, CalcAndDrawOpenAProjectAndChangeNothing) {
  Write(
      "a.txt",
      "click mnuMetric\ntype LWSlope(0) 500 | 1000\nanswer house.pcf\nclick mnuFileSave\nclick mnuMetric\n");
  EXPECT_EQ(Run("run --data data a.txt").status, 0);
  const std::string settings = Read("data/settings.json");
  const Result calc = Run("calc --data data house.pcf");
  EXPECT_EQ(calc.status, 0);
  const auto dump = nlohmann::json::parse(calc.output);
  EXPECT_EQ(dump["Rafter1"]["Slope"], 500);
  EXPECT_EQ(dump["document"]["ProjectName"], "house");
  EXPECT_EQ(Run("draw --data data house.pcf --page 1 --out a.svg").status, 0);
  EXPECT_NE(Read("a.svg").find("<svg"), std::string::npos);
  EXPECT_EQ(Read("data/settings.json"), settings);
}

TEST_F(DriverTest, CalcAndDrawTellWhatWentWrong) {
  Write("house.pcf", "[Settings]\r\nSlope=6\r\n");
  EXPECT_EQ(Run("calc --data data none.pcf 2>/dev/null").status, 1);
  EXPECT_EQ(Run("calc --data data 2>/dev/null").status, 2);
  EXPECT_EQ(Run("draw --data data house.pcf --page 9 --out a.svg 2>/dev/null").status, 2);
  EXPECT_EQ(Run("draw --data data house.pcf --page 0 --out a.igloo 2>/dev/null").status, 1);
  EXPECT_EQ(Run("draw --data data house.pcf --page 0 --out no/a.svg 2>/dev/null").status, 1);
}

// Two sessions one after the other.
TEST_F(DriverTest, TheNextSessionFindsWhatTheLastOneLeft) {
  Write("a.txt",
        "size 12000 9000\nclick mnuSettingsDegrees\npick cboType Hip\nclick mnuHipLayoutCenter\n"
        "click mnuHipLayoutJackMeasurement\nanswer house.pcf\nclick mnuFileSave\n");
  EXPECT_EQ(Run("run --data data a.txt").status, 0);
  Write("b.txt", "dump menus\n");
  const auto menus = nlohmann::json::parse(Run("run --data data b.txt").output)["menus"];
  EXPECT_TRUE(menus["mnuSettingsDegrees"]["Checked"]);
  EXPECT_TRUE(menus["mnuHipLayoutCenter"]["Checked"]);
  EXPECT_FALSE(menus["mnuHipLayoutJackMeasurement"]["Checked"]);
  EXPECT_TRUE(menus["mnuFileMRU(0)"]["Visible"]);
  EXPECT_EQ(menus["mnuFileMRU(0)"]["Caption"], "&1 House.pcf");
  EXPECT_NE(Read("data/settings.json").find("\"MainWidth\": \"12000\""), std::string::npos);
}

TEST_F(DriverTest, RubbishInTheSettingsStartsTheProgram) {
  for (const char* rubbish :
       {"", "igloo", "[1,2]",
        "{\"Pitchcraft\":{\"Settings\":{\"Units\":\"x\",\"MainLeft\":\"1e99\","
        "\"WindowState\":\"-7\",\"Spacing\":\"\",\"HipLayout\":\"?\",\"Degrees\":\"yes\"}}}"}) {
    Write("data/settings.json", rubbish);
    Write("b.txt", "dump document\n");
    const Result result = Run("run --data data b.txt");
    EXPECT_EQ(result.status, 0) << rubbish;
    EXPECT_EQ(nlohmann::json::parse(result.output)["document"]["UnitRun"], 12);
  }
}

}  // namespace
