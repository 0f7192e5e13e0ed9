// What a project file does not bring back.

#include "storage/project_keys.h"

namespace pitchcraft {
namespace {

constexpr RoofSet kAnyHip{Roof::kHip, Roof::kBastardHip};
constexpr RoofSet kBoxOfDegrees{Roof::kBay, Roof::kOctagon};

// clang-format off
constexpr ProjectLoss kLosses[] = {
    // members, roofs, their names, why
    {"", RoofSet::All(), "all", "A number keeps seven digits."},
    {"", {Roof::kBlindValley, Roof::kGambrel}, "blind valley, gambrel", "Fields kept as text come back as they were shown: lengths to the sixteenth or millimetre, slopes to the decimals shown. Spans that a custom gambrel derived are rounded so once."},
    {"", RoofSet::All(), "all", "What is no input is not kept: pages, increments, the locks of a custom gambrel's derived quantity, the distance to the last common, and the second rafter of a roof that has one."},
    {"OverhangsEqual", kAnyHip, "hip", "The layout choices of a hip are written for the reader; every hip opens with the layout from the center, overhangs not made equal, and jacks measured without overhang. A hip with two slopes and equal overhangs is calculated anew without."},
    {"HipEndDegrees", kBoxOfDegrees, "bay, octagon", "The angle of the end slope is taken from the box of degrees of row 2, which only a hip with two slopes shows."},
    {"degrees", RoofSet::All(), "all", "The angle of the slope is taken from its box of degrees. A slope that was never entered stands beside the first row of that list."},
    {"Kneewall", {Roof::kHip, Roof::kValley, Roof::kBay, Roof::kDutchHip, Roof::kOctagon, Roof::kUnequalSpanValley, Roof::kBlindValley, Roof::kBastardHip, Roof::kGambrel}, "all others", "A kneewall is read for gable, shed and dual slope alone."},
    {"", {Roof::kGable, Roof::kShed, Roof::kDualSlope}, "gable, shed, dual slope", "The box of the front kneewall follows the rear one; the rear box opens without its tick."},
    {"spacing", {Roof::kGable, Roof::kShed, Roof::kDualSlope, Roof::kDutchHip, Roof::kUnequalSpanValley, Roof::kBlindValley, Roof::kGambrel}, "gable, shed, dual slope, Dutch hip, unequal span valley, blind valley, gambrel", "The spacing is kept for roofs with jacks laid out; the others open with the usual one."},
    {"RidgeThickness RidgeDepth", {Roof::kDualSlope}, "dual slope", "The ridge of the second rafter is not kept: the rear rafter opens with the usual ridge board, and what depends on it is calculated with that."},
    {"RidgeThickness", {Roof::kDutchHip}, "Dutch hip", "Whether there is a ledger is the session's choice, not the project's."},
    {"Span", {Roof::kDutchHip}, "Dutch hip", "Span of the second rafter takes the projection. Key Span2 is written and not read, so that it changes when such a project is saved again."},
    {"HipRise HipRiseWithOverhang HipEndRise HipEndRiseWithOverhang HipEndDrop HipEndOverhangExcess HipShift HipEndRidgeAllowance HipEndFasciaCut HipFasciaCut HipAngle1 HipAngle2 AdjHipEndSpan AdjHipEndSpanWithOverhang HipEndPlumbCut HipEndSeat HipEndHeel", kAnyHip, "hip", "Results of the other kind of hip, which this one does not calculate, are not brought back."},
    {"HipEndSlope HipEndPitch HipEndCommonDifference HipEndCommonDifference16 HipEndCommonDifference24 CommonLength1 CommonLength2 HipEndLength1 HipEndLength2 CommonDifference CommonDifference16 CommonDifference24", {Roof::kBay, Roof::kOctagon}, "bay, octagon", "Results of an earlier roof, which this one does not calculate, are not brought back."},
    {"JointAngle JointCut", {Roof::kGambrel}, "gambrel", "The joint of a purlin, which a roof on walls does not have, is not brought back."},
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
