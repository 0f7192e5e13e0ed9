// The two rafters of a gambrel: the steep one from wall to break, the flat one from break to ridge.
#include <cmath>

#include "core/rafter.h"
#include "core/triangles.h"

namespace pitchcraft {
namespace {

using Type = Member;

// Unlocked, a gambrel rafter keeps half of its plumb depth above the seat: its steep foot has little wood to
// give.
constexpr double kGambrelHeelShare = 0.5;

// The angle is held in 32 bits as radians first and as degrees then.
Single AngleOf(double slope, double base) {
  const Single radians = std::atan(slope / base);
  return kDegreesPerRadian * radians;
}

// How far a point moves sideways along a line of an angle, in degrees from the plumb line.
Single PolarX(double degrees, Single distance) { return -(distance * SinDegrees(-degrees)); }

// The joint of two slopes: its bisector, the angle between own rafter and the bisector's normal, and half the
// purlin measured along the rafter.
struct Joint {
  Joint(Single own, Single steep, Single flat, double purlin)
      : Bisector((((90 - steep) + 90 + flat) / 2) - (90 - steep)),
        Skew(own - Bisector),
        HalfPurlin((purlin / 2) / CosDegrees(Skew)) {}

  Single Bisector;
  Single Skew;
  Single HalfPurlin;
};

}  // namespace

void Rafter::CalculateGambrel() {
  AdjFasciaHeight = FasciaHeight;
  let(PlumbCut) = PlumbDepth(Slope, Depth, SlopeBase);
  let(PlumbRun) = SlopeBase * PlumbCut / Slope;
  const bool onTop = RafterType == Type::kGambrelTop;
  if (RafterType == Type::kGambrelBottom) {
    LimitTo(AdjFasciaHeight, PlumbCut);
    CalculateGambrelBottomJoint();
  } else if (onTop) {
    CalculateGambrelTopJoint();
  }
  if (onTop && Heel >= 0) {
    Seat = SeatBelowHeel();  // the top rafter sits on the bottom one: its heel is given by the support, not
                             // by a lock
  } else {
    ApplyLocks(HeelLocked, SeatLocked, kGambrelHeelShare);
  }
  LimitHeel(kGambrelHeelShare, ZeroHeel::kClearsOverhang);
  LimitFasciaWithoutOverhang();
  CalculateGambrelRunsAndLengths();
  if (onTop && Purlins) TopCutAngle = std::abs(JointAngle - 90) + AngleOf(Slope, SlopeBase);
  let(Pitch) = PitchText(Slope);
}

void Rafter::CalculateGambrelBottomJoint() {
  if (Purlins) {
    const Single own = AngleOf(Slope, SlopeBase);
    const Joint joint(own, own, AngleOf(HipValSlope, SlopeBase), RidgeThickness);
    JointAngle = joint.Bisector;
    let(RidgeAllowance) = std::abs(PolarX(90 - own, joint.HalfPurlin));
    JointCutAngle = 90 - joint.Skew;
    JointCut = Depth / CosDegrees(90 - JointCutAngle);
  } else {
    let(RidgeAllowance) = 0;
    JointCutAngle = DegreesOf(SlopeBase / Slope);
    JointCut = PlumbCut;
  }
  JointOffset = 0;
}

void Rafter::CalculateGambrelTopJoint() {
  let(RidgeAllowance) = RidgeThickness / 2;
  JointCutAngle = DegreesOf(SlopeBase / Slope);
  if (Purlins) {
    const Single own = AngleOf(Slope, SlopeBase);
    const Joint joint(own, AngleOf(HipValSlope, SlopeBase), own, RidgeThickness);
    JointAngle = joint.Bisector;
    JointOffset = joint.HalfPurlin * CosDegrees(own);
    JointCut = Depth / CosDegrees(joint.Skew);
  } else if (Heel == 0) {
    // The underside rests flat on the bottom rafter's end: the cut is level.
    JointOffset = 0;
    TopCutAngle = 90 - JointCutAngle;
    JointCut = PlumbRun;
  } else if (Heel > 0) {
    JointOffset = 0;
    TopCutAngle = 90;
  }
}

void Rafter::CalculateGambrelRunsAndLengths() {
  AdjSpan = Span - RidgeAllowance - JointOffset;
  AdjSpanWithOverhang = AdjSpan + Overhang;
  RiseToSpan = RiseOver(Span);
  RiseToSpanWithOverhang = (Span + Overhang) * Slope / SlopeBase;
  Rise = RiseOver(AdjSpan);
  RiseWithOverhang = RiseOver(AdjSpanWithOverhang);
  let(CommonLength1) = Hypotenuse(Rise, AdjSpan);
  Length1 = CommonLength1;
  let(CommonLength2) = Hypotenuse(RiseWithOverhang, AdjSpanWithOverhang);
  let(Length2) = CommonLength2;
}

}  // namespace pitchcraft
