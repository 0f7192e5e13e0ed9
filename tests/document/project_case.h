// Roofs as a person enters them, for the tests of projects.
#pragma once

#include <string>
#include <vector>

#include "document/actions.h"

namespace pitchcraft {

/// One thing that a person does: a verb of the driver's scripts, a control, a text.
struct ProjectAction {
  const char* verb;
  const char* name;
  const char* text = "";
};

struct ProjectCase {
  const char* name;
  bool twoRafters;  ///< the roof is made of both
  std::vector<ProjectAction> actions;
};

inline void PrintTo(const ProjectCase& roof, std::ostream* stream) { *stream << roof.name; }

inline Refusal Perform(Actions& actions, const ProjectAction& action) {
  const std::string verb = action.verb;
  if (verb == "type") return actions.Type(action.name, action.text);
  if (verb == "pick") return actions.Pick(action.name, action.text);
  if (verb == "check") return actions.Check(action.name, std::string(action.text) == "on");
  if (verb == "click") return actions.Click(action.name);
  if (verb == "page") return actions.Page(action.name, std::stoi(action.text));
  return "no such verb";
}

/// Every roof type, with entries that differ from the defaults wherever a project keeps them.
inline std::vector<ProjectCase> ImperialRoofs() {
  return {
      {"Gable",
       false,
       {{"type", "LWSlope(0)", "6 | 12"},
        {"type", "FtSpan(0)", "13' 6\""},
        {"type", "FtOverhang(0)", "14 1/2"},
        {"type", "LWRafter(0)", "1.5 | 9.25"},
        {"type", "LWRidge", "0.75 | 11.25"},
        {"type", "LWFascia(0)", "0.75 | 7.25"}}},
      {"GableLocked",
       false,
       {{"type", "LWSlope(0)", "8 | 12"},
        {"check", "chkHeel(0)", "on"},
        {"type", "FtHeel(0)", "4 1/4"},
        {"click", "mnuSettingsSquareCut"}}},
      {"Shed",
       false,
       {{"pick", "cboType", "Common Shed"}, {"type", "LWSlope(0)", "3 | 12"}, {"type", "FtSpan(0)", "96"}}},
      {"DualSlope",
       true,
       {{"type", "LWSlope(0)", "6 | 12"},
        {"pick", "cboType", "Dual Slope"},
        {"type", "LWSlope(1)", "9 | 12"},
        {"type", "FtSpan(1)", "8'"},
        {"type", "FtOverhang(1)", "7"},
        {"type", "LWRafter(1)", "1.5 | 5.5"},
        {"type", "LWFascia(1)", "0.75 | 3.5"},
        {"check", "chkSeat(1)", "on"},
        {"type", "FtSeat(1)", "3 1/2"}}},
      {"Hip",
       false,
       {{"type", "LWSlope(0)", "5 | 12"},
        {"pick", "cboType", "Hip"},
        {"type", "FtSpan(0)", "12'"},
        {"type", "LWHipVal", "1.5 | 9.25"},
        {"page", "VSTab(0)", "3"},
        {"pick", "cboSpacing", "24\""},
        {"click", "mnuHipLayoutCenter"},
        {"click", "mnuHipLayoutJackMeasurement"},
        {"page", "VSTab(0)", "0"},
        {"type", "LWSlope(2)", "9 | 12"},
        {"click", "mnuHipLayoutOverhangsEqual"},
        {"type", "LWSlope(0)", "5 | 12"},
        {"pick", "cboType", "Common Gable"},
        {"pick", "cboType", "Hip"}}},
      {"BastardHip",
       false,
       {{"type", "LWSlope(0)", "6 | 12"},
        {"pick", "cboType", "Hip"},
        {"type", "LWSlope(2)", "9 | 12"},
        {"click", "mnuHipLayoutCenter"},
        {"click", "mnuHipLayoutJackMeasurement"},
        {"click", "mnuHipLayoutOverhangsEqual"}}},
      {"Valley", false, {{"pick", "cboType", "Valley"}, {"type", "LWSlope(0)", "7 | 12"}}},
      {"UnequalSpanValley",
       true,
       {{"pick", "cboType", "Unequal Span Valley"},
        {"type", "FtSpan(2)", "15'"},
        {"type", "LWSlope(0)", "7 | 12"}}},
      {"Bay",
       false,
       {{"pick", "cboType", "Bay Roof"},
        {"type", "FtProjection", "24"},
        {"type", "FtBack", "96"},
        {"type", "FtBayAngle", "45"},
        {"type", "LWSlope(0)", "8 | 12"}}},
      {"DutchHip",
       true,
       {{"type", "LWSlope(0)", "6 | 12"}, {"pick", "cboType", "Dutch Hip"}, {"type", "FtSpan(2)", "60"}}},
      {"BlindValley",
       false,
       {{"type", "LWSlope(0)", "6 | 12"},
        {"pick", "cboType", "Blind Valley"},
        {"type", "LWSlope(2)", "8 | 12"}}},
      {"Octagon",
       false,
       {{"pick", "cboType", "Octagon"}, {"type", "LWSlope(0)", "7 | 12"}, {"type", "FtSpan(0)", "10'"}}},
      {"GambrelRegular",
       true,
       {{"pick", "cboType", "Gambrel Roof"},
        {"type", "FtSpan(0)", "20'"},
        {"type", "LWRafter(0)", "1.5 | 5.5"},
        {"type", "LWRidge", "1.5 | 9.25"}}},
      {"GambrelCustom",
       true,
       {{"pick", "cboType", "Gambrel Roof"},
        {"click", "mnuGambrelCustom"},
        {"type", "FtSpan(0)", "24'"},
        {"type", "FtSpan(2)", "13'"},
        {"type", "LWSlope(0)", "6 | 12"},
        {"type", "LWSlope(2)", "20 | 12"},
        {"click", "mnuGambrelWallSupportRaised"},
        {"pick", "FTUpperFascia", "7 1/4\""},
        {"click", "mnuSettingsLevelCut"}}},
  };
}

inline std::vector<ProjectCase> MetricRoofs() {
  const std::vector<ProjectAction> slope{{"click", "mnuMetric"}, {"type", "LWSlope(0)", "450 | 1000"}};
  std::vector<ProjectCase> roofs{
      {"MetricGable", false, {{"type", "FtSpan(0)", "4250"}, {"type", "LWRidge", "45 | 240"}}},
      {"MetricShed", false, {{"pick", "cboType", "Common Shed"}, {"type", "FtOverhang(0)", "450"}}},
      {"MetricDualSlope",
       true,
       {{"pick", "cboType", "Dual Slope"},
        {"type", "LWSlope(1)", "800 | 1000"},
        {"type", "FtSpan(1)", "2400"}}},
      {"MetricHip",
       false,
       {{"pick", "cboType", "Hip"},
        {"page", "VSTab(0)", "3"},
        {"pick", "cboSpacing", "600 mm"},
        {"click", "mnuHipLayoutCenter"},
        {"click", "mnuHipLayoutJackMeasurement"},
        {"page", "VSTab(0)", "0"},
        {"type", "LWSlope(2)", "700 | 1000"},
        {"click", "mnuHipLayoutOverhangsEqual"},
        {"type", "LWSlope(0)", "450 | 1000"},
        {"pick", "cboType", "Hip"}}},
      {"MetricBastardHip",
       false,
       {{"pick", "cboType", "Hip"},
        {"type", "LWSlope(2)", "700 | 1000"},
        {"click", "mnuHipLayoutCenter"},
        {"click", "mnuHipLayoutJackMeasurement"},
        {"click", "mnuHipLayoutOverhangsEqual"}}},
      {"MetricValley", false, {{"pick", "cboType", "Valley"}}},
      {"MetricUnequalSpanValley",
       true,
       {{"pick", "cboType", "Unequal Span Valley"},
        {"type", "FtSpan(2)", "4500"},
        {"type", "LWSlope(0)", "500 | 1000"}}},
      {"MetricBay",
       false,
       {{"pick", "cboType", "Bay Roof"},
        {"type", "FtProjection", "600"},
        {"type", "FtBack", "2400"},
        {"type", "FtBayAngle", "45"},
        {"type", "LWSlope(0)", "600 | 1000"}}},
      {"MetricDutchHip", true, {{"pick", "cboType", "Dutch Hip"}, {"type", "FtSpan(2)", "1500"}}},
      {"MetricBlindValley",
       false,
       {{"pick", "cboType", "Blind Valley"}, {"type", "LWSlope(2)", "650 | 1000"}}},
      {"MetricOctagon", false, {{"pick", "cboType", "Octagon"}, {"type", "LWSlope(0)", "500 | 1000"}}},
      {"MetricGambrelRegular", true, {{"pick", "cboType", "Gambrel Roof"}, {"type", "FtSpan(0)", "6000"}}},
      {"MetricGambrelCustom",
       true,
       {{"pick", "cboType", "Gambrel Roof"},
        {"click", "mnuGambrelCustom"},
        {"type", "FtSpan(0)", "7200"},
        {"type", "FtSpan(2)", "4000"}}},
  };
  for (ProjectCase& roof : roofs) roof.actions.insert(roof.actions.begin(), slope.begin(), slope.end());
  return roofs;
}

inline std::vector<ProjectCase> AllProjectRoofs() {
  std::vector<ProjectCase> roofs = ImperialRoofs();
  for (ProjectCase& roof : MetricRoofs()) roofs.push_back(std::move(roof));
  return roofs;
}

}  // namespace pitchcraft
