#include "sheet/roof_types.h"

namespace pitchcraft {
namespace {

constexpr RoofTypeRow kRoofTypes[] = {
    // item                code                      tool button         help  pages
    {"Common Gable", roof::kGable, "Gable", 60, "Design|Rafter"},
    {"Common Shed", roof::kShed, "Shed", 60, "Design|Shed Rafter"},
    {"Dual Slope", roof::kDualSlope, "Dual", 80, "Design|Front Rafter|Rear Rafter"},
    {"Hip", roof::kHip, "Hip", 400, "Design|Common|Hip Rafter|Layout"},
    {"Valley", roof::kValley, "Valley", 70, "Design|Valley Rafter"},
    {"Unequal Span Valley", roof::kUnequalSpanValley, "Unequal Span Valley", 380,
     "Design|Short Valley|Long Valley"},
    {"Bay Roof", roof::kBay, "Bay", 90, "Design|Bay Common|Bay Hip|Bay Ledger|Center Ledger"},
    {"Dutch Hip", roof::kDutchHip, "Dutch Hip", 370, "Design|Common|Dutch Common|Dutch Hip|Center Ledger"},
    {"Blind Valley", roof::kBlindValley, "Blind Valley", 390, "Design|Jack Rafter|Valley Plate|Ridge"},
    {"Octagon", roof::kOctagon, "Octagon", 410, "Design|Octagon Hip|Longest Jack|Octagon Layout"},
    {"Gambrel Roof", roof::kGambrel, "Gambrel", 430, "Design|Gambrel Bottom|Gambrel Top"},
};

template <typename Test>
const RoofTypeRow* FirstRow(Test test) {
  for (const RoofTypeRow& row : kRoofTypes) {
    if (test(row)) return &row;
  }
  return nullptr;
}

}  // namespace

std::span<const RoofTypeRow> RoofTypes() { return kRoofTypes; }

const RoofTypeRow* RoofTypeByCode(int code) {
  return FirstRow([code](const RoofTypeRow& row) { return row.Code == code; });
}

const RoofTypeRow* RoofTypeByItem(std::string_view item) {
  return FirstRow([item](const RoofTypeRow& row) { return row.Item == item; });
}

int ListIndexOfRoof(int code) {
  const RoofTypeRow* row = RoofTypeByCode(code == roof::kBastardHip ? roof::kHip : code);
  return row == nullptr ? -1 : static_cast<int>(row - kRoofTypes);
}

}  // namespace pitchcraft
