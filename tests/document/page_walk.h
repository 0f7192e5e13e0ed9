// A person who designs one roof: mostly sensible entries into the fields that the roof has, pages turned in
// between, now and then something absurd or another roof and back. Lines of a script, so that what went wrong
// can be played in the driver.
#pragma once

#include <array>
#include <random>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace pitchcraft {

class PageWalk {
 public:
  PageWalk(std::string roof, unsigned seed) : roof_(std::move(roof)), random_(seed) {}

  /// What the walk begins with: one in three designs in millimetres, one in four in degrees.
  std::vector<std::string> Start() {
    std::vector<std::string> lines;
    if (Below(3) == 0) lines.emplace_back("click mnuMetric");
    if (Below(4) == 0) lines.emplace_back("click mnuSettingsDegrees");
    lines.push_back("pick cboType " + roof_);
    lines.push_back(Slope());
    return lines;
  }

  std::string Step() {
    if (away_) {  // another roof was picked, or the units changed: back to the walk's own
      away_ = false;
      return "pick cboType " + roof_;
    }
    switch (Below(16)) {
      case 0:
      case 1:
      case 2: return "page VSTab(0) " + std::to_string(Below(5));
      case 3:
      case 4: return Slope();
      case 5:
      case 6:
      case 7: return Length();
      case 8: return Lumber();
      case 9: return Check();
      case 10:
      case 11: return Menu();
      case 12: return "spin Spin(" + std::to_string(Below(8)) + ")" + (Below(2) == 0 ? " up" : " down");
      case 13: return Spacing();
      case 14: return Bay();
      default: return Seldom();
    }
  }

 private:
  using Words = std::span<const char* const>;

  std::size_t Below(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
  }
  std::string Any(Words words) { return words[Below(words.size())]; }
  /// Mostly left, sometimes confirmed, seldom still being typed.
  std::string Entry(const std::string& field, const std::string& text) {
    const std::size_t how = Below(8);
    return (how == 0 ? "edit " : how < 3 ? "enter " : "type ") + field + ' ' + text;
  }

  std::string Slope() {
    static constexpr std::array kRises{"6", "9", "3.5", "12", "18", "4", "7 1/2"};
    static constexpr std::array kDegrees{"45", "45.0", "30", "30.0", "26.57", "22.5", "60"};
    static constexpr std::array kRows{"(0)", "(0)", "(1)", "(2)", "(2)"};
    const std::string row = Any(kRows);
    if (Below(2) == 0) return Entry("cboDegrees" + row, Any(kDegrees));
    return Entry("LWSlope" + row, Any(kRises) + " | 12");
  }

  std::string Length() {
    static constexpr std::array kRuns{"8'", "10'", "12'", "14'", "14' 6 1/2\"", "20'", "3600 mm", "4205 mm"};
    static constexpr std::array kOverhangs{"0",    "6\"",  "10 1/2\"", "12\"",
                                           "24\"", "30\"", "300 mm",   "455 mm"};
    static constexpr std::array kNotches{"0", "3\"", "3 1/2\"", "5 1/2\"", "8\"", "90 mm"};
    static constexpr std::array kKneewalls{"0", "2'", "4'", "6'", "1800 mm"};
    static constexpr std::array kRidges{"2'", "4'", "6'", "1500 mm"};
    static constexpr std::array kSpans{"FtSpan(0)", "FtSpan(0)", "FtSpan(1)", "FtSpan(2)", "FtLastCommon"};
    static constexpr std::array kTails{"FtOverhang(0)", "FtOverhang(0)", "FtOverhang(1)"};
    static constexpr std::array kSeats{"FtHeel(0)", "FtSeat(0)", "FtHeel(1)", "FtSeat(1)"};
    static constexpr std::array kWalls{"FtKneewall(0)", "FtKneewall(1)"};
    static constexpr std::array kHeights{"FtRidge(0)", "FtRidge(1)"};
    switch (Below(8)) {
      case 0:
      case 1:
      case 2: return Entry(Any(kSpans), Any(kRuns));
      case 3:
      case 4: return Entry(Any(kTails), Any(kOverhangs));
      case 5: return Entry(Any(kSeats), Any(kNotches));
      case 6: return Entry(Any(kWalls), Any(kKneewalls));
      default: return Entry(Any(kHeights), Any(kRidges));
    }
  }

  std::string Lumber() {
    static constexpr std::array kFields{"LWRafter(0)", "LWRafter(1)", "LWRidge",
                                        "LWHipVal",    "LWFascia(0)", "LWFascia(1)"};
    static constexpr std::array kSizes{"1 1/2\" | 5 1/2\"", "1 1/2\" | 7 1/4\"", "1 1/2\" | 11 1/4\"",
                                       "3 1/2\" | 9 1/4\"", "38 mm | 184 mm",    "1 3/4\" | 14\""};
    return Entry(Any(kFields), Any(kSizes));
  }

  std::string Check() {
    static constexpr std::array kBoxes{"chkHeel(0)",     "chkSeat(0)",     "chkHeel(1)",    "chkSeat(1)",
                                       "chkKneewall(0)", "chkKneewall(1)", "chkLastCommon", "chkLastCommon",
                                       "chkUpperSlope",  "chkUpperSpan"};
    return "check " + Any(kBoxes) + (Below(3) == 0 ? " off" : " on");
  }

  std::string Menu() {
    static constexpr std::array kItems{
        "mnuSettingsHeelLocked",    "mnuSettingsSeatLocked",       "mnuSettingsPlumbCut",
        "mnuSettingsSquareCut",     "mnuSettingsLevelCut",         "mnuSettingsRiseOverRun",
        "mnuSettingsDegrees",       "mnuHipLayoutCenter",          "mnuHipLayoutCorners",
        "mnuHipLayoutCornersFlush", "mnuHipLayoutJackMeasurement", "mnuHipLayoutOverhangsEqual",
        "mnuDutchLedger(0)",        "mnuDutchLedger(1)",           "mnuGambrelRegular",
        "mnuGambrelCustom",         "mnuGambrelPurlins",           "mnuGambrelWallSupport"};
    return "click " + Any(kItems);
  }

  std::string Spacing() {
    static constexpr std::array kSpacings{"16\"", "24\"", "12\"", "19.2\"", "400 mm", "600 mm"};
    return Entry("cboSpacing", Any(kSpacings));
  }

  std::string Bay() {
    static constexpr std::array kFields{"FtProjection", "FtFace", "FtBack", "FtBayAngle"};
    static constexpr std::array kSizes{"3'", "4'", "10'", "45", "60", "1200 mm", "0"};
    if (Below(4) == 0) return "page VSTab(1) " + std::to_string(Below(2));
    return Entry(Any(kFields), Any(kSizes));
  }

  std::string Seldom() {
    static constexpr std::array kRoofs{
        "Common Gable", "Dual Slope",   "Hip",          "Valley",      "Bay Roof",           "Dutch Hip",
        "Octagon",      "Gambrel Roof", "Blind Valley", "Common Shed", "Unequal Span Valley"};
    static constexpr std::array kButtons{"Plumb", "Square", "Hip", "Gable"};
    static constexpr std::array kFields{"FtSpan(0)", "FtOverhang(0)", "FtHeel(0)", "LWSlope(0)",
                                        "cboSpacing"};
    static constexpr std::array kAbsurd{"1e30", "letters", "-3", "0.001", "1000000", ""};
    switch (Below(8)) {
      case 0: away_ = true; return "pick cboType " + Any(kRoofs);
      case 1: away_ = true; return "press " + Any(kButtons);
      case 2: away_ = true; return "click mnuMetric";
      case 3: return "type " + Any(kFields) + ' ' + Any(kAbsurd);
      default:
        return "size " + std::to_string(6000 + Below(20000)) + ' ' + std::to_string(5000 + Below(12000));
    }
  }

  std::string roof_;
  std::mt19937 random_;
  bool away_ = false;
};

}  // namespace pitchcraft
