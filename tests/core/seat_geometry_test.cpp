// Common and shed rafters against the roof face that they carry: lengths, rises, plumb cut, heel and seat.
#include "geometry3d.h"
#include "random_roof.h"

namespace pitchcraft {
namespace {

using namespace geometry;  // NOLINT(google-build-using-namespace)

// The middle of a common rafter's top edge: the front face in a vertical plane across the house.
Line TopEdge(const Plane& face) { return Intersect(face, AtX(40)); }

Plane FrontFace(const Rafter& rafter) { return RoofFace({0, 0, 0}, {0, 1, 0}, Steepness(rafter)); }

void MeasureCommon(const Rafter& rafter, double ridgeFace) {
  const Line edge = TopEdge(FrontFace(rafter));
  const Vector wall = Intersect(edge, AtY(0));
  const Vector top = Intersect(edge, AtY(ridgeFace));
  const Vector tail = Intersect(edge, AtY(-rafter.Overhang));
  Agree("Length1", rafter.Length1, Distance(wall, top));
  Agree("Length2", rafter.Length2, Distance(tail, top));
  Agree("Rise", rafter.Rise, top.z - wall.z);
  Agree("RiseWithOverhang", rafter.RiseWithOverhang, top.z - tail.z);
  Agree("AdjSpan", rafter.AdjSpan, PlanDistance(wall, top), rafter.Span);
  Agree("AdjSpanWithOverhang", rafter.AdjSpanWithOverhang, PlanDistance(tail, top));
}

RC_GTEST_PROP(CommonGeometry, RunsFromWallToTheFaceOfTheRidge, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  rafter.Calculate();
  // The rear face starts at the rear wall; the ridge line is where the two faces meet.
  const Plane rear = RoofFace({0, 2 * rafter.Span, 0}, {0, -1, 0}, Steepness(rafter));
  const Line ridge = Intersect(FrontFace(rafter), rear);
  MeasureCommon(rafter, ridge.origin.y - rafter.RidgeThickness / 2);
  Agree("CommonLength1", rafter.CommonLength1, rafter.Length1);
  Agree("KneewallRise", rafter.KneewallRise, FrontFace(rafter).HeightAt({0, rafter.Kneewall, 0}),
        rafter.Span);
}

RC_GTEST_PROP(CommonGeometry, ShedRunsToTheNearFaceOfABoardWithinTheSpan, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  rafter.RafterType = Member::kShed;
  rafter.Calculate();
  MeasureCommon(rafter, rafter.Span - rafter.RidgeThickness);
}

RC_GTEST_PROP(SeatGeometry, UndersideMeetsThePlateAtTheEndOfTheSeat, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  rafter.HeelLocked = true;
  rafter.Heel = roof.Length(1, 4);
  rafter.Calculate();
  // The top stands Heel above the plate at the wall; the underside lies Depth below it, square to the slope.
  const Plane top = RoofFace({0, 0, rafter.Heel}, {0, 1, 0}, Steepness(rafter));
  const Plane underside = top.Moved(-rafter.Depth);
  Agree("PlumbCut", rafter.PlumbCut, top.HeightAt({}) - underside.HeightAt({}));
  const Vector seatEnd = Intersect(Intersect(underside, AtX(0)), AtHeight(0));
  Agree("Seat", rafter.Seat, seatEnd.y, rafter.PlumbCut / Steepness(rafter));
}

RC_GTEST_PROP(SeatGeometry, ALockedSeatEndsWhereTheUndersideMeetsThePlate, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  rafter.SeatLocked = true;
  rafter.Seat = roof.Length(1, 4);
  rafter.Calculate();
  RC_PRE(rafter.CommonSeat == rafter.Seat && rafter.Seat >= 1);
  const Plane underside = RoofFace({0, rafter.Seat, 0}, {0, 1, 0}, Steepness(rafter));
  const Plane top = underside.Moved(rafter.Depth);
  const double heel = top.HeightAt({});
  // A seat too long leaves no heel; the default one takes its place.
  RC_PRE(heel > 0.001);
  Agree("Heel", rafter.Heel, heel, rafter.PlumbCut + rafter.Seat * Steepness(rafter));
}

RC_GTEST_PROP(SeatGeometry, DefaultHeelLeavesAThirdOfThePlumbCutBelow, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  rafter.Calculate();
  const Plane top = RoofFace({0, 0, rafter.Heel}, {0, 1, 0}, Steepness(rafter));
  const Plane underside = top.Moved(-rafter.Depth);
  Agree("wood below the plate", rafter.PlumbCut / 3, -underside.HeightAt({}), rafter.PlumbCut);
  Agree("Seat", rafter.Seat, Intersect(Intersect(underside, AtX(0)), AtHeight(0)).y,
        rafter.PlumbCut / Steepness(rafter));
}

}  // namespace
}  // namespace pitchcraft
