// Every roof type with the same sizes in both unit systems, and the session of the driver that enters them.
// The window's hand performs the same lines.
#pragma once

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "roofs/roof_types.h"

namespace pitchcraft::testing {

/// A line of a script in both systems: a verb with its control, and what is entered. 5 inches are 127 mm, so
/// both are round.
struct MetricEntry {
  const char* action;
  const char* metric;
  const char* imperial;
};

struct MetricRoof {
  const char* name;
  const char* button;
  Roof code;
  bool twoRafters;  ///< the roof is made of both
  std::vector<MetricEntry> entries;
};

inline void PrintTo(const MetricRoof& roof, std::ostream* stream) { *stream << roof.name; }

inline const std::vector<MetricRoof>& MetricRoofs() {
  const MetricEntry slope{"enter LWSlope(0)", "500", "6"};
  const MetricEntry run{"enter FtSpan(0)", "3810", "150"};
  const MetricEntry overhang{"enter FtOverhang(0)", "38.1 cm", "15"};
  const MetricEntry fascia{"enter LWFascia(0)", "25.4 | 127", "1 | 5"};
  const MetricEntry ridge{"enter LWRidge", "50.8 | 254", "2 | 10"};
  const MetricEntry rafter{"enter LWRafter(0)", "50.8 | 254", "2 | 10"};
  const MetricEntry hip{"enter LWHipVal", "76.2 | 254", "3 | 10"};
  static const std::vector<MetricRoof> kRoofs{
      {"CommonGable",
       "Gable",
       Roof::kGable,
       false,
       {slope,
        run,
        overhang,
        fascia,
        ridge,
        rafter,
        {"check chkHeel(0)", "on", "on"},
        {"enter FtHeel(0)", "127", "5"}}},
      {"Hip",
       "Hip",
       Roof::kHip,
       false,
       {slope,
        run,
        overhang,
        fascia,
        ridge,
        rafter,
        hip,
        {"enter LWSlope(2)", "750", "9"},
        {"enter FtOverhang(0)", "254", "10"},
        {"click mnuHipLayoutOverhangsEqual", "", ""}}},
      {"Valley", "Valley", Roof::kValley, false, {slope, run, overhang, fascia, ridge, rafter, hip}},
      {"CommonShed", "Shed", Roof::kShed, false, {slope, run, overhang, fascia, ridge, rafter}},
      {"DualSlope",
       "Dual",
       Roof::kDualSlope,
       true,
       {slope,
        run,
        overhang,
        fascia,
        ridge,
        rafter,
        {"page VSTab(1)", "1", "1"},
        {"enter LWSlope(1)", "250", "3"},
        {"enter FtSpan(1)", "6.35 m", "250"},
        {"enter FtOverhang(1)", "254", "10"},
        {"enter LWFascia(1)", "25.4 | 127", "1 | 5"},
        {"enter LWRafter(1)", "50.8 | 203.2", "2 | 8"},
        {"page VSTab(1)", "0", "0"}}},
      {"BayRoof",
       "Bay",
       Roof::kBay,
       false,
       {{"enter FtProjection", "635", "25"},
        {"enter FtBack", "2540", "100"},
        {"enter FtBayAngle", "45", "45"},
        slope,
        overhang,
        fascia,
        ridge,
        rafter,
        hip}},
      {"DutchHip",
       "Dutch Hip",
       Roof::kDutchHip,
       true,
       {slope, run, {"enter FtSpan(2)", "1905", "75"}, overhang, fascia, ridge, rafter, hip}},
      {"Octagon",
       "Octagon",
       Roof::kOctagon,
       false,
       {slope, run, {"enter FtSpan(2)", "4445", "175"}, overhang, fascia, rafter, hip}},
      {"UnequalSpanValley",
       "Unequal Span Valley",
       Roof::kUnequalSpanValley,
       true,
       {run, {"enter FtSpan(2)", "5080", "200"}, overhang, fascia, ridge, rafter, hip, slope}},
      {"BlindValley",
       "Blind Valley",
       Roof::kBlindValley,
       false,
       {slope,
        run,
        {"enter LWSlope(2)", "750", "9"},
        {"enter FtRidge(0)", "3175", "125"},
        ridge,
        rafter,
        hip,
        run}},
      {"Gambrel",
       "Gambrel",
       Roof::kGambrel,
       true,
       {{"enter FtSpan(0)", "6350", "250"}, overhang, fascia, ridge, rafter}},
  };
  return kRoofs;
}

/// "CommonGable" as the name of a test.
template <typename Info>
std::string NameOfRoof(const Info& roof) {
  return roof.param.name;
}

/// The sizes of the roof, entered in the system of the session.
inline std::vector<std::string> EntryLines(const MetricRoof& roof, bool metric) {
  std::vector<std::string> lines;
  for (const MetricEntry& entry : roof.entries) {
    lines.push_back(std::string(entry.action) + " " + (metric ? entry.metric : entry.imperial));
  }
  return lines;
}

inline int PageCount(const MetricRoof& roof) {
  return static_cast<int>(RoofTypeByCode(roof.code)->About().Pages.size());
}

inline std::string PageLine(int page) { return "page VSTab(0) " + std::to_string(page); }

}  // namespace pitchcraft::testing
