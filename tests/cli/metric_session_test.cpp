// A session in millimetres from start to end, for every roof: what is shown is metric, and the results are
// those of the same sizes in inches.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <set>

#include "../support/metric_roofs.h"
#include "../support/scratch_folder.h"
#include "script_runner.h"

namespace pitchcraft::testing {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kRunPerRun = 1000.0 / 12;
const std::string kDump = "dump title document sheet drawing Rafter1 Rafter2";

class MetricSession : public ::testing::TestWithParam<MetricRoof> {
 protected:
  void Add(const std::string& line) { script_ += line + "\n"; }
  void Add(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) Add(line);
  }
  /// The dumps of the script; nothing but dumps and the dialogs of files may come.
  std::vector<Json> Run() {
    const ScriptRun run = RunScript(script_);
    EXPECT_EQ(run.status, kDone);
    std::vector<Json> dumps;
    for (const Json& event : run.events) {
      if (event["event"] == "dump") {
        dumps.push_back(event);
      } else {
        EXPECT_EQ(event["event"], "dialog") << event;
      }
    }
    script_.clear();
    return dumps;
  }

  std::string script_;
};

bool EndsIn(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// The texts of the lengths that show, by control.
std::vector<std::pair<std::string, std::string>> LengthsShown(const Json& dump) {
  std::vector<std::pair<std::string, std::string>> texts;
  const bool bayStrip = dump["document"]["RoofType"] == Roof::kBay;
  const std::set<std::string> onBayStrip{"FtProjection", "FtFace", "FtBack"};
  for (const auto& [name, control] : dump["sheet"].items()) {
    const bool hidden = !control["Visible"].get<bool>() || (onBayStrip.contains(name) && !bayStrip);
    if (hidden || name.starts_with("LWSlope") || name == "FtBayAngle") continue;
    if (name.starts_with("Ft") || name == "cboSpacing") texts.emplace_back(name, control["Text"]);
    if (!name.starts_with("LW")) continue;
    texts.emplace_back(name + " left", control["LeftText"]);
    texts.emplace_back(name + " right", control["RightText"]);
  }
  return texts;
}

void ExpectMillimetres(const Json& dump) {
  EXPECT_EQ(dump["document"]["UnitRun"], 1000);
  EXPECT_EQ(dump["sheet"]["LWSlope(0)"]["RightText"], "1000");
  const auto texts = LengthsShown(dump);
  EXPECT_GT(texts.size(), 8U);
  for (const auto& [name, text] : texts) EXPECT_TRUE(EndsIn(text, " mm")) << name << " " << text;
  for (const Json& operation : dump["drawing"]["operations"]) {
    if (operation["op"] != "text") continue;
    const std::string text = operation["text"];
    EXPECT_EQ(text.find_first_of("'\""), std::string::npos) << "drawn: " << text;
  }
}

/// A project keeps seven digits of a number.
void ExpectSevenDigits(const Json& opened, const Json& entered, const char* member) {
  EXPECT_NEAR(opened.get<double>(), entered.get<double>(), 1e-6 * std::abs(entered.get<double>())) << member;
}

TEST_P(MetricSession, ShowsMillimetresOnEveryPageAndInTheOpenedProject) {
  const ScratchFolder folder;
  const std::string file = folder.PathOf("barn.pcf");
  const MetricRoof& roof = GetParam();
  Add(std::vector<std::string>{kDump, "press " + std::string(roof.button), "click mnuMetric", kDump,
                               "press " + std::string(roof.button)});
  Add(EntryLines(roof, true));
  for (int page = PageCount(roof) - 1; page >= 0; --page) Add({PageLine(page), kDump});
  Add({"answer " + file, "click mnufileSaveAs", "answer Shed", "click mnuFileNew", kDump, "answer " + file,
       "click mnuFileOpen", kDump, "click mnuImperial", kDump});
  const std::vector<Json> dumps = Run();
  const auto pages = static_cast<std::size_t>(PageCount(roof));
  ASSERT_EQ(dumps.size(), pages + 5);

  const Json& start = dumps[0];
  EXPECT_EQ(start["sheet"]["FtSpan(0)"]["Text"], "12' 0\"");
  ExpectMillimetres(dumps[1]);
  EXPECT_EQ(dumps[1]["document"]["RoofType"], Roof::kGable) << "another system begins with a gable";
  EXPECT_EQ(dumps[1]["sheet"]["FtSpan(0)"]["Text"], "3600 mm");
  for (std::size_t i = 0; i < pages; ++i) {
    const Json& dump = dumps[2 + i];
    SCOPED_TRACE("page " + dump["document"]["CurrentTab"].dump());
    EXPECT_EQ(dump["document"]["RoofType"], roof.code);
    EXPECT_EQ(dump["document"]["CurrentTab"], pages - 1 - i);
    ExpectMillimetres(dump);
  }

  const Json& entered = dumps[1 + pages];
  const Json& fresh = dumps[2 + pages];
  const Json& opened = dumps[3 + pages];
  const Json& imperial = dumps[4 + pages];
  EXPECT_EQ(fresh["document"]["RoofType"], Roof::kGable);
  EXPECT_EQ(fresh["title"], "Pitchcraft - [Shed]");
  ExpectMillimetres(fresh);
  EXPECT_EQ(opened["document"]["RoofType"], roof.code);
  EXPECT_EQ(opened["document"]["ProjectName"], "barn");
  ExpectMillimetres(opened);
  EXPECT_EQ(LengthsShown(opened), LengthsShown(entered));
  for (const char* member : {"Slope", "Span", "Overhang", "Rise", "Length1", "Length2", "PlumbCut"}) {
    ExpectSevenDigits(opened["Rafter1"][member], entered["Rafter1"][member], member);
  }
  // A project keeps no ridge of the second rafter, and of a Dutch hip no second span.
  for (const char* member : {"Slope", "Overhang", "Depth", "PlumbCut"}) {
    if (roof.twoRafters) ExpectSevenDigits(opened["Rafter2"][member], entered["Rafter2"][member], member);
  }
  EXPECT_EQ(imperial["document"]["UnitRun"], 12);
  EXPECT_EQ(imperial["document"]["RoofType"], Roof::kGable);
  EXPECT_EQ(LengthsShown(imperial), LengthsShown(start));
  for (const char* member : {"Units", "Slope", "Span", "Overhang", "Rise", "Length1", "Length2", "Heel"}) {
    EXPECT_EQ(imperial["Rafter1"][member], start["Rafter1"][member]) << member;
  }
}

/// What a member of the rafter does when the same roof is measured in millimetres.
double ScaleOf(const std::string& member) {
  static const std::set<std::string> kPerRun{"SlopeBase",   "HipRun",          "Slope",        "HipValSlope",
                                             "LedgerSlope", "LedgerRunFactor", "HipRunFactor", "HipEndSlope"};
  static const std::set<std::string> kSame{"HipFactor",
                                           "degrees",
                                           "RafterType",
                                           "TopBevelType",
                                           "BottomBevelType",
                                           "CommonDifference",
                                           "HipEndCommonDifference"};
  if (kPerRun.contains(member)) return kRunPerRun;
  const bool angle = member.find("Angle") != std::string::npos || member.find("Degrees") != std::string::npos;
  return angle || kSame.contains(member) ? 1 : kMillimetresPerInch;
}

/// What no entry of the session reaches, so that each system has its own: the jacks' differences hang on list
/// values of the spacing, and of a second rafter the angle box, a hip that it has not, and the span that a
/// Dutch hip does not use.
bool IsOfTheSystem(const MetricRoof& roof, bool second, const std::string& member) {
  if (member == "Units" || member.find("Difference") != std::string::npos) return true;
  if (!second) return false;
  const bool hip = roof.code == Roof::kDutchHip || roof.code == Roof::kUnequalSpanValley;
  if (member == "degrees" || member == "HipEndDegrees") return true;
  if (roof.code == Roof::kDutchHip && member == "Span") return true;
  return !hip && member.find("Hip") != std::string::npos;
}

/// Five digits of a Single that went through a whole calculation, and a length of nearly nothing.
double Tolerance(double value) { return std::max(2e-5 * std::abs(value), 2e-3); }

/// Gives how many members said something.
int ExpectScaled(const MetricRoof& roof, const char* which, const Json& inches, const Json& millimetres) {
  int compared = 0;
  const bool second = std::string(which) == "Rafter2";
  for (const auto& [member, value] : inches[which].items()) {
    if (!value.is_number() || IsOfTheSystem(roof, second, member)) continue;
    const Json& other = millimetres[which][member];
    EXPECT_TRUE(other.is_number()) << which << "." << member << " " << other;
    if (!other.is_number()) continue;
    const double expected = value.get<double>() * ScaleOf(member);
    EXPECT_NEAR(other.get<double>(), expected, Tolerance(expected)) << which << "." << member;
    compared += expected == 0 ? 0 : 1;
  }
  return compared;
}

TEST_P(MetricSession, GivesTheResultsOfTheSameSizesInInches) {
  const MetricRoof& roof = GetParam();
  const auto session = [&](bool metric) {
    if (metric) Add("click mnuMetric");
    // A valley shows most fields. What a roof does not show is alike from there on.
    Add("press Valley");
    Add(EntryLines(MetricRoofs()[2], metric));
    Add({"press Hip", PageLine(3), "pick cboSpacing 16\"", PageLine(0)});
    Add("press " + std::string(roof.button));
    Add(EntryLines(roof, metric));
    for (int page = PageCount(roof) - 1; page >= 0; --page) {
      Add({PageLine(page), "dump Rafter1 Rafter2 document"});
    }
    return Run();
  };
  const std::vector<Json> inches = session(false);
  const std::vector<Json> millimetres = session(true);
  ASSERT_EQ(inches.size(), millimetres.size());
  for (std::size_t i = 0; i < inches.size(); ++i) {
    SCOPED_TRACE("page " + inches[i]["document"]["CurrentTab"].dump());
    EXPECT_GT(ExpectScaled(roof, "Rafter1", inches[i], millimetres[i]), 25);
    const int second = roof.twoRafters ? ExpectScaled(roof, "Rafter2", inches[i], millimetres[i]) : 26;
    EXPECT_GT(second, 25);
  }
}

INSTANTIATE_TEST_SUITE_P(Roofs, MetricSession, ::testing::ValuesIn(MetricRoofs()),
                         NameOfRoof<::testing::TestParamInfo<MetricRoof>>);

}  // namespace
}  // namespace pitchcraft::testing
