// Valleys against the line in which the faces of two wings meet over an inside corner.
#include "geometry3d.h"
#include "random_roof.h"

namespace pitchcraft {
namespace {

using namespace geometry;  // NOLINT(google-build-using-namespace)

// The inside corner is the origin. One wing's ridge runs along x at y = Span, the other's along y at x =
// Span.
Line ValleyLine(const Rafter& rafter) {
  return Intersect(RoofFace({}, {0, 1, 0}, Steepness(rafter)), RoofFace({}, {1, 0, 0}, Steepness(rafter)));
}

void CalculateAs(Rafter& rafter, Member type) {
  rafter.RafterType = type;
  rafter.Calculate();
}

RC_GTEST_PROP(ValleyGeometry, RunsFromCornerToTheFaceOfTheRidge, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  CalculateAs(rafter, *rc::gen::element(Member::kValley, Member::kLongValley));
  const Line valley = ValleyLine(rafter);
  const Vector top = Intersect(valley, AtY(rafter.Span - rafter.RidgeThickness / 2));
  const Vector tail = Intersect(valley, AtY(-rafter.Overhang));
  Agree("HipValSpan", rafter.HipValSpan, PlanDistance({}, Intersect(valley, AtY(rafter.Span))));
  Agree("AdjValSpan", rafter.AdjValSpan, PlanDistance({}, top));
  Agree("Length1", rafter.Length1, Distance({}, top));
  Agree("Length2", rafter.Length2, Distance(tail, top));
  Agree("Rise", rafter.Rise, top.z);
}

// The short valley ends at the cheek of the long one, which crosses it square in plan. Its rise is that of a
// common at the ridge board, so it departs from the height at that cheek by the slope over the difference of
// the two runs.
RC_GTEST_PROP(ValleyGeometry, ShortValleyButtsTheCheekOfTheLongOne, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  CalculateAs(rafter, Member::kShortValley);
  const Line valley = ValleyLine(rafter);
  const Vector meeting = Intersect(valley, AtY(rafter.Span));
  const Vector along = Unit(InPlan(valley.direction));
  const Vector cheek = meeting - (rafter.HipValThickness / 2) * (along.x > 0 ? along : -1 * along);
  const Vector top = Intersect(valley, Upright(cheek, along));
  const double excess =
      Steepness(rafter) * (rafter.HipValThickness / (2 * std::sqrt(2.0)) - rafter.RidgeThickness / 2);
  Agree("AdjValSpan", rafter.AdjValSpan, PlanDistance({}, top));
  Agree("Rise", rafter.Rise, top.z + excess);
  Agree("Length1", rafter.Length1, std::hypot(PlanDistance({}, top), top.z + excess));
}

// A valley bears on its middle line, so nothing is dropped: its seat starts from the common's heel.
RC_GTEST_PROP(ValleyGeometry, SeatEndsWhereItsUndersideMeetsThePlate, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  CalculateAs(rafter, Member::kValley);
  const double slope = SlopeOf(ValleyLine(rafter));
  const double plumb = rafter.HipValDepth / std::cos(std::atan(slope));
  RC_ASSERT(rafter.HipDrop == 0);
  Agree("HipValPlumbCut", rafter.HipValPlumbCut, plumb);
  Agree("HipValSeat", rafter.HipValSeat, (plumb - rafter.Heel) / slope, (plumb + rafter.Heel) / slope);
}

}  // namespace
}  // namespace pitchcraft
