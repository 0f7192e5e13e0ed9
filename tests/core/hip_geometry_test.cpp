// Hips of equal slopes against the line in which the main face and the end face meet.
#include "geometry3d.h"
#include "random_roof.h"

namespace pitchcraft {
namespace {

using namespace geometry;  // NOLINT(google-build-using-namespace)

// The corner of the walls is the origin: the main wall runs along x, the end wall along y.
struct HipCorner {
  explicit HipCorner(const Rafter& rafter)
      : Main(RoofFace({}, {0, 1, 0}, Steepness(rafter))),
        End(RoofFace({}, {1, 0, 0}, Steepness(rafter))),
        Hip(Intersect(Main, End)) {}

  Plane Main;
  Plane End;
  Line Hip;
};

void CalculateHip(Rafter& rafter) {
  rafter.RafterType = Member::kHip;
  rafter.Calculate();
}

RC_GTEST_PROP(HipGeometry, LiesInBothFaces, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  CalculateHip(rafter);
  const HipCorner corner(rafter);
  Agree("HipValSlope", rafter.HipValSlope / rafter.SlopeBase, SlopeOf(corner.Hip));
  AgreeRounded("HipDegrees", rafter.HipDegrees, Degrees(std::atan(SlopeOf(corner.Hip))));
  Agree("HipAngle1", rafter.HipAngle1, AngleBetween(InPlan(corner.Hip.direction), {1, 0, 0}));
  Agree("HipAngle2", rafter.HipAngle2, AngleBetween(InPlan(corner.Hip.direction), {0, 1, 0}));
  const Vector ridgeEnd = Intersect(corner.Hip, AtY(rafter.Span));
  Agree("HipValSpan", rafter.HipValSpan, PlanDistance({}, ridgeEnd));
  const Vector tail = Intersect(corner.Hip, AtY(-rafter.Overhang));
  Agree("HipValOverhang", rafter.HipValOverhang, PlanDistance({}, tail), rafter.Span);
}

// With rafters and ridge of one thickness the hip is, to the last digit, the line from corner to the end
// common's cheek.
RC_GTEST_PROP(HipGeometry, RunsFromCornerToTheCheekOfTheEndCommon, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  rafter.RidgeThickness = rafter.Thickness;
  CalculateHip(rafter);
  const HipCorner corner(rafter);
  const Vector top = Intersect(corner.Hip, AtY(rafter.Span - rafter.Thickness / 2));
  const Vector tail = Intersect(corner.Hip, AtY(-rafter.Overhang));
  Agree("AdjHipSpan", rafter.AdjHipSpan, PlanDistance({}, top));
  Agree("Length1", rafter.Length1, Distance({}, top));
  Agree("Length2", rafter.Length2, Distance(tail, top));
}

// With a ridge of another thickness the run still ends at that cheek, but the rise is the one at the ridge
// board: the rise is too great by the slope over half the difference of the thicknesses.
RC_GTEST_PROP(HipGeometry, TakesItsRiseFromTheRidgeBoard, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  CalculateHip(rafter);
  const HipCorner corner(rafter);
  const Vector top = Intersect(corner.Hip, AtY(rafter.Span - rafter.Thickness / 2));
  const double excess = Steepness(rafter) * (rafter.Thickness - rafter.RidgeThickness) / 2;
  Agree("AdjHipSpan", rafter.AdjHipSpan, PlanDistance({}, top));
  Agree("Rise", rafter.Rise, top.z + excess);
  Agree("Length1", rafter.Length1, std::hypot(PlanDistance({}, top), top.z + excess));
}

RC_GTEST_PROP(HipGeometry, DropsUntilItsEdgesLieInTheFaces, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  CalculateHip(rafter);
  const HipCorner corner(rafter);
  const double cheek = rafter.HipValThickness / 2;
  Agree("HipDrop, main", rafter.HipDrop, DropBeside(corner.Hip, corner.Main, cheek, {1, -1, 0}));
  Agree("HipDrop, end", rafter.HipDrop, DropBeside(corner.Hip, corner.End, cheek, {-1, 1, 0}));
  Agree("HipHeel", rafter.HipHeel, rafter.Heel - rafter.HipDrop, rafter.Heel);
}

// The seat of the hip is level at the height of the common's, measured along the hip.
RC_GTEST_PROP(HipGeometry, SeatEndsWhereItsUndersideMeetsThePlate, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  CalculateHip(rafter);
  const HipCorner corner(rafter);
  const Line edge{{0, 0, rafter.HipHeel}, corner.Hip.direction};
  // The underside is the plane through that edge, level across it, moved down square to the hip.
  const Vector across = Cross(edge.direction, {0, 0, 1});
  Vector up = Cross(across, edge.direction);
  if (up.z < 0) up = -1 * up;
  const Plane underside = Plane(up, edge.origin).Moved(-rafter.HipValDepth);
  Agree("HipValPlumbCut", rafter.HipValPlumbCut, rafter.HipHeel - underside.HeightAt({}));
  const Vector seatEnd = Intersect(Intersect(underside, Upright({}, across)), AtHeight(0));
  const double seat = Dot(seatEnd, Unit(InPlan(edge.direction))) * (edge.direction.z > 0 ? 1 : -1);
  Agree("HipValSeat", rafter.HipValSeat, seat, (rafter.HipValPlumbCut + rafter.Heel) / SlopeOf(corner.Hip));
}

// Jacks stand square to the wall and end on the hip; each is longer than its neighbour by the difference.
RC_GTEST_PROP(HipGeometry, JacksGrowByTheDifference, ()) {
  Rafter rafter;
  RandomRoof roof(rafter);
  CalculateHip(rafter);
  const HipCorner corner(rafter);
  const auto jackAt = [&corner](double x) {
    const Line edge = Intersect(corner.Main, AtX(x));
    return Distance(Intersect(edge, AtY(0)), Intersect(edge, corner.End));
  };
  Agree("CommonDifference", rafter.CommonDifference, jackAt(21) - jackAt(20));
  Agree("CommonDifference16", rafter.CommonDifference16, jackAt(36) - jackAt(20));
  // The difference at 24 is that of two base runs: 24 inches, but 2000 millimetres.
  Agree("CommonDifference24", rafter.CommonDifference24, jackAt(20 + 2 * rafter.SlopeBase) - jackAt(20));
}

}  // namespace
}  // namespace pitchcraft
