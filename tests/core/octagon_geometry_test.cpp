// The octagon against eight faces around a peak.
#include "geometry3d.h"
#include "random_roof.h"

namespace pitchcraft {
namespace {

using namespace geometry;  // NOLINT(google-build-using-namespace)

// The peak stands over the origin. The first side's middle lies on the x axis, its wall runs along y.
struct Octagon {
  explicit Octagon(const Rafter& rafter)
      : First(Side(rafter, 0)),
        Second(Side(rafter, 45)),
        Hip(Intersect(First, Second)),
        Corner(Intersect(Hip, AtHeight(0))),
        Peak(Intersect(Hip, Side(rafter, 90))) {}

  static Plane Side(const Rafter& rafter, double degrees) {
    const Vector outward{std::cos(Radians(degrees)), std::sin(Radians(degrees)), 0};
    return RoofFace(rafter.Span * outward, -1 * outward, Steepness(rafter));
  }

  Plane First;
  Plane Second;
  Line Hip;
  Vector Corner;
  Vector Peak;
};

void DrawOctagon(Rafter& rafter, Member type) {
  const RandomRoof roof(rafter);
  rafter.RafterType = type;
  rafter.CalculateOctagon();
}

RC_GTEST_PROP(OctagonGeometry, HipRunsFromCornerToPeak, ()) {
  Rafter rafter;
  DrawOctagon(rafter, Member::kOctagonHip);
  const Octagon octagon(rafter);
  const Vector tail = Intersect(octagon.Hip, AtX(rafter.Span + rafter.Overhang));
  Agree("HipValSpan", rafter.HipValSpan, PlanDistance(octagon.Corner, octagon.Peak));
  Agree("Rise", rafter.Rise, octagon.Peak.z);
  Agree("RiseWithOverhang", rafter.RiseWithOverhang, octagon.Peak.z - tail.z);
  Agree("Length1", rafter.Length1, Distance(octagon.Corner, octagon.Peak));
  Agree("Length2", rafter.Length2, Distance(tail, octagon.Peak));
  Agree("HipValSlope", rafter.HipValSlope / rafter.SlopeBase, SlopeOf(octagon.Hip));
  AgreeRounded("HipDegrees", rafter.HipDegrees, Degrees(std::atan(SlopeOf(octagon.Hip))));
  Agree("HipAngle1", rafter.HipAngle1, AngleBetween(InPlan(octagon.Hip.direction), {0, 1, 0}));
  Agree("HipAngle2", rafter.HipAngle2, AngleBetween(InPlan(octagon.Hip.direction), {1, 0, 0}));
  const Vector otherCorner{octagon.Corner.x, -octagon.Corner.y, 0};
  Agree("HipEndSpan", rafter.HipEndSpan, PlanDistance(octagon.Corner, otherCorner));
}

// The run to a corner alone gives the same octagon.
RC_GTEST_PROP(OctagonGeometry, EitherRunGivesTheOther, ()) {
  Rafter rafter;
  DrawOctagon(rafter, Member::kOctagonHip);
  const double span = rafter.Span;
  rafter.Span = 0;
  rafter.CalculateOctagon();
  Agree("Span", rafter.Span, span);
}

// The longest jack stands half a spacing beside the middle of its side and ends at the cheek of the hip.
RC_GTEST_PROP(OctagonGeometry, LongestJackEndsAtTheCheekOfTheHip, ()) {
  Rafter rafter;
  DrawOctagon(rafter, Member::kOctagonJack);
  const Octagon octagon(rafter);
  const Line edge = Intersect(octagon.First, AtY(rafter.spacing / 2));
  const Vector toJack{1, -1, 0};
  Vector square = Unit(Cross(InPlan(octagon.Hip.direction), {0, 0, 1}));
  if (Dot(square, toJack) < 0) square = -1 * square;
  const Plane cheek = Upright(rafter.HipValThickness / 2 * square, square);
  const Vector top = Intersect(edge, cheek);
  RC_PRE(rafter.AdjSpan > 0);  // a wide spacing on a small octagon leaves no room for a jack
  Agree("AdjSpan", rafter.AdjSpan, PlanDistance(Intersect(edge, AtX(rafter.Span)), top), rafter.Span);
  Agree("Length1", rafter.Length1, Distance(Intersect(edge, AtX(rafter.Span)), top),
        2 * rafter.Span + rafter.Rise);
  Agree("Length2", rafter.Length2, Distance(Intersect(edge, AtX(rafter.Span + rafter.Overhang)), top),
        2 * rafter.Span + rafter.RiseWithOverhang);
}

// CommonDifference is the step between neighbours at the spacing itself. The members for 16 and 24 take it
// for the step of one unit of run times the base, so they come out spacing / SlopeBase times the step at 16
// or 24.
RC_GTEST_PROP(OctagonGeometry, JacksGrowByTheDifference, ()) {
  Rafter rafter;
  DrawOctagon(rafter, Member::kOctagonJack);
  const Octagon octagon(rafter);
  const auto jackAt = [&](double fromMiddle) {
    const Line edge = Intersect(octagon.First, AtY(fromMiddle));
    return Distance(Intersect(edge, AtX(rafter.Span)), Intersect(edge, octagon.Second));
  };
  // Both within the half side, where the jacks end on this hip.
  const double step = (jackAt(0) - jackAt(octagon.Corner.y)) / octagon.Corner.y;
  Agree("CommonDifference", rafter.CommonDifference, step * rafter.spacing);
  const double repeated = rafter.spacing / rafter.SlopeBase;
  Agree("CommonDifference16", rafter.CommonDifference16, step * 16 * repeated);
  Agree("CommonDifference24", rafter.CommonDifference24, step * 24 * repeated);
}

// The drop goes by the slope of the sides where the hip's own would bring its edges into the faces: it is too
// great by the factor 1 / cos(22.5 degrees), about 8 in 100.
RC_GTEST_PROP(OctagonGeometry, DropIsALittleGreaterThanTheFacesNeed, ()) {
  Rafter rafter;
  DrawOctagon(rafter, Member::kOctagonHip);
  const Octagon octagon(rafter);
  const double needed = DropBeside(octagon.Hip, octagon.First, rafter.HipValThickness / 2, {1, -1, 0});
  Agree("HipDrop", rafter.HipDrop, needed / std::cos(Radians(22.5)));
}

RC_GTEST_PROP(OctagonGeometry, SeatEndsWhereItsUndersideMeetsThePlate, ()) {
  Rafter rafter;
  DrawOctagon(rafter, Member::kOctagonHip);
  const Octagon octagon(rafter);
  const Vector inward = Unit(-1 * octagon.Corner);
  const Plane top = RoofFace({0, 0, rafter.HipHeel}, inward, SlopeOf(octagon.Hip));
  const Plane underside = top.Moved(-rafter.HipValDepth);
  const Vector seatEnd = Intersect(Intersect(underside, Upright({}, Cross(inward, {0, 0, 1}))), AtHeight(0));
  Agree("HipValPlumbCut", rafter.HipValPlumbCut, top.HeightAt({}) - underside.HeightAt({}));
  Agree("HipValSeat", rafter.HipValSeat, Dot(seatEnd, inward),
        (rafter.HipValPlumbCut + rafter.Heel + rafter.HipDrop) / SlopeOf(octagon.Hip));
}

}  // namespace
}  // namespace pitchcraft
