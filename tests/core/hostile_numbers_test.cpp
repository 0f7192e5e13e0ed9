// What no carpenter types and a script may: every calculation ends, raises its event, and recovers with the
// next sensible numbers.
#include <limits>

#include "core/rafter_members.h"
#include "random_roof.h"

namespace pitchcraft {
namespace {

using Procedure = void (Rafter::*)();

constexpr Procedure kProcedures[] = {
    &Rafter::Calculate,        &Rafter::CalculateBastardHip, &Rafter::CalculateAdjustedBastardHip,
    &Rafter::CalculateGambrel, &Rafter::CalculateBay,        &Rafter::CalculateOctagon};

constexpr Single Rafter::*kInputs[] = {&Rafter::Slope,       &Rafter::Span,
                                       &Rafter::Overhang,    &Rafter::Thickness,
                                       &Rafter::Depth,       &Rafter::FasciaHeight,
                                       &Rafter::Kneewall,    &Rafter::RidgeThickness,
                                       &Rafter::RidgeDepth,  &Rafter::HipValThickness,
                                       &Rafter::HipValDepth, &Rafter::spacing,
                                       &Rafter::HipEndSlope, &Rafter::HipValSlope,
                                       &Rafter::HipValSpan,  &Rafter::Heel,
                                       &Rafter::Seat,        &Rafter::Back,
                                       &Rafter::Face,        &Rafter::Projection,
                                       &Rafter::BayAngle,    &Rafter::LedgerRunFactor,
                                       &Rafter::HipRunFactor};

double HostileNumber() {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  return *rc::gen::element(0.0, -0.0, 1.0, -7.25, 90.0, 1e-30, 1e30, -1e30, 3.4e38, 1e-45, kInfinity,
                           -kInfinity, std::numeric_limits<double>::quiet_NaN());
}

void FillHostile(Rafter& rafter) {
  rafter.SetUnits(*rc::gen::inRange(0, 2));
  for (const auto input : kInputs) rafter.*input = HostileNumber();
  rafter.RafterType = static_cast<Member>(*rc::gen::inRange(-1, 22));
  rafter.HeelLocked = Flag::FromInteger(*rc::gen::element<std::int16_t>(-1, 0, 1));
  rafter.SeatLocked = Flag::FromInteger(*rc::gen::element<std::int16_t>(-1, 0, 1));
  rafter.Purlins = *rc::gen::arbitrary<bool>();
  rafter.OverhangsEqual = *rc::gen::arbitrary<bool>();
}

// A what-if is a copy, and so is what is undone: it holds the results, and both go on alike.
RC_GTEST_PROP(HostileNumbers, ACopyIsTheSameRecord, ()) {
  Rafter rafter;
  FillHostile(rafter);
  const Procedure procedure =
      *rc::gen::elementOf(std::vector<Procedure>(std::begin(kProcedures), std::end(kProcedures)));
  (rafter.*procedure)();
  Rafter copy = rafter;
  Rafter assigned;
  assigned = rafter;
  const auto same = [&](const Rafter& other) {
    for (const RafterMember& member : RafterMembers()) {
      const MemberValue one = member.Read(rafter);
      const MemberValue two = member.Read(other);
      const bool nan = one != one && two != two;
      RC_ASSERT(one == two || nan);
    }
  };
  same(copy);
  same(assigned);
  (rafter.*procedure)();
  (copy.*procedure)();
  same(copy);
}

// Nothing of a hopeless roof sticks: with sensible inputs again, the same record gives what a fresh one
// gives.
RC_GTEST_PROP(HostileNumbers, TheNextSensibleRoofIsPlainAgain, ()) {
  Rafter worn;
  FillHostile(worn);
  worn.Calculate();
  Rafter fresh;
  for (Rafter* rafter : {&worn, &fresh}) {
    rafter->SetUnits(0);
    for (const auto input : kInputs) rafter->*input = 8;
    rafter->Span = 144;
    rafter->HeelLocked = false;
    rafter->SeatLocked = false;
    rafter->RafterType = Member::kHip;
    rafter->Calculate();
  }
  RC_ASSERT(worn.Length1 == fresh.Length1);
  RC_ASSERT(worn.Length2 == fresh.Length2);
  RC_ASSERT(worn.Heel == fresh.Heel);
  RC_ASSERT(worn.Seat == fresh.Seat);
  RC_ASSERT(worn.HipValSeat == fresh.HipValSeat);
  RC_ASSERT(worn.AdjFasciaHeight == fresh.AdjFasciaHeight);
  RC_ASSERT(worn.CommonDifference24 == fresh.CommonDifference24);
}

}  // namespace
}  // namespace pitchcraft
