// What a project file does not bring back.
#include "sheet/roof_types.h"
#include "storage/project_keys.h"

namespace pitchcraft {
namespace {

constexpr RoofSet kAnyHip{roof::kHip, roof::kBastardHip};
constexpr RoofSet kBoxOfDegrees{roof::kBay, roof::kOctagon};

// clang-format off
constexpr ProjectLoss kLosses[] = {
    // members, roofs, their names, why
    {"", RoofSet::All(), "all", "A number keeps seven digits."},
    {"", {roof::kBlindValley, roof::kGambrel}, "blind valley, gambrel", "Fields stored as text come back as they were shown: lengths to the nearest sixteenth or millimetre, slopes to the decimals shown. The spans that a custom gambrel calculates are rounded once in this way."},
    {"", RoofSet::All(), "all", "Only input is stored, so these are lost: the page, the increments, the locks of a custom gambrel, the distance to the last common, and the second rafter of a roof that needs only one."},
    {"OverhangsEqual", kAnyHip, "hip", "The layout choices of a hip are written only for information. Every hip opens with the layout from the center, without equal overhangs, and with jacks measured without the overhang. A hip with two slopes that had equal overhangs is recalculated without them."},
    {"HipEndDegrees", kBoxOfDegrees, "bay, octagon", "The angle of the end slope comes from the degrees box of row 2, which only a hip with two slopes shows."},
    {"degrees", RoofSet::All(), "all", "The angle of the slope comes from its degrees box. Until a slope is entered, that box has the first row of its list."},
    {"Kneewall", {roof::kHip, roof::kValley, roof::kBay, roof::kDutchHip, roof::kOctagon, roof::kUnequalSpanValley, roof::kBlindValley, roof::kBastardHip, roof::kGambrel}, "all others", "A kneewall is read only for a gable, a shed and a dual slope."},
    {"", {roof::kGable, roof::kShed, roof::kDualSlope}, "gable, shed, dual slope", "The box of the front kneewall follows the rear kneewall; the rear box opens unticked."},
    {"spacing", {roof::kGable, roof::kShed, roof::kDualSlope, roof::kDutchHip, roof::kUnequalSpanValley, roof::kBlindValley, roof::kGambrel}, "gable, shed, dual slope, Dutch hip, unequal span valley, blind valley, gambrel", "The spacing is stored for roofs whose jacks are laid out; the others open with the usual spacing."},
    {"RidgeThickness RidgeDepth", {roof::kDualSlope}, "dual slope", "The ridge of the second rafter is not stored: the rear rafter opens with the usual ridge board and is calculated with it."},
    {"RidgeThickness", {roof::kDutchHip}, "Dutch hip", "Whether there is a ledger belongs to the session, not to the project."},
    {"Span", {roof::kDutchHip}, "Dutch hip", "The span of the second rafter becomes the projection. The key Span2 is written but not read, so it changes when the project is saved again."},
    {"HipRise HipRiseWithOverhang HipEndRise HipEndRiseWithOverhang HipEndDrop HipEndOverhangExcess HipShift HipEndRidgeAllowance HipEndFasciaCut HipFasciaCut HipAngle1 HipAngle2 AdjHipEndSpan AdjHipEndSpanWithOverhang HipEndPlumbCut HipEndSeat HipEndHeel", kAnyHip, "hip", "Results that only the other kind of hip calculates are not restored."},
    {"HipEndSlope HipEndPitch HipEndCommonDifference HipEndCommonDifference16 HipEndCommonDifference24 CommonLength1 CommonLength2 HipEndLength1 HipEndLength2 CommonDifference CommonDifference16 CommonDifference24", {roof::kBay, roof::kOctagon}, "bay, octagon", "Results left over from an earlier roof, which this one does not calculate, are not restored."},
    {"JointAngle JointCut", {roof::kGambrel}, "gambrel", "The joint at the purlin is not restored for a roof on walls, which has none."},
};
// clang-format on

}  // namespace

std::span<const ProjectLoss> ProjectLosses() { return kLosses; }

bool ProjectLoss::Names(std::string_view member) const {
  std::string_view rest = Members;
  while (!rest.empty()) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    if (word == member) return true;
    rest.remove_prefix(word.size() == rest.size() ? word.size() : word.size() + 1);
  }
  return false;
}

}  // namespace pitchcraft
