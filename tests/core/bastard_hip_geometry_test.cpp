// Hip roofs with an end of another slope against the planes of their two faces. Where a rule of the product
// departs from the wood in space, the property says by how much.
#include "geometry3d.h"
#include "random_roof.h"

namespace pitchcraft {
namespace {

using namespace geometry;  // NOLINT(google-build-using-namespace)

// The corner over which the hip passes is the origin; the ridge runs along x at y = Span.
struct BastardCorner {
  explicit BastardCorner(const Rafter& rafter)
      : EndSteepness(rafter.HipEndSlope / rafter.SlopeBase),
        Main(RoofFace({}, {0, 1, 0}, Steepness(rafter))),
        End(RoofFace({}, {1, 0, 0}, EndSteepness)),
        Hip(Intersect(Main, End)),
        RidgeEnd(Intersect(Hip, AtY(rafter.Span))),
        MainEave(Intersect(Main, AtY(-rafter.Overhang))) {}

  /// The eaves meet at one height: where the end face comes down to that of the main roof.
  double NaturalEndOverhang() const {
    return -Intersect(Intersect(End, AtY(0)), AtHeight(MainEave.origin.z)).x;
  }

  double EndSteepness;
  Plane Main;
  Plane End;
  Line Hip;
  Vector RidgeEnd;
  Line MainEave;
};

void DrawBastardHip(Rafter& rafter) {
  const RandomRoof roof(rafter);
  rafter.RafterType = Member::kBastardHip;
  rafter.Slope = roof.Slope(3, 18);
  rafter.HipEndSlope = roof.Slope(3, 18);
}

RC_GTEST_PROP(BastardHipGeometry, HipLiesInBothFaces, ()) {
  Rafter rafter;
  DrawBastardHip(rafter);
  rafter.CalculateBastardHip();
  const BastardCorner corner(rafter);
  Agree("HipEndSpan", rafter.HipEndSpan, corner.RidgeEnd.x);
  Agree("HipValSpan", rafter.HipValSpan, PlanDistance({}, corner.RidgeEnd));
  Agree("HipValSlope", rafter.HipValSlope / rafter.SlopeBase, SlopeOf(corner.Hip));
  AgreeRounded("HipDegrees", rafter.HipDegrees, Degrees(std::atan(SlopeOf(corner.Hip))));
  Agree("HipAngle1", rafter.HipAngle1, AngleBetween(InPlan(corner.Hip.direction), {1, 0, 0}));
  Agree("HipAngle2", rafter.HipAngle2, AngleBetween(InPlan(corner.Hip.direction), {0, 1, 0}));
  Agree("HipEndOverhang", rafter.HipEndOverhang, corner.NaturalEndOverhang(), rafter.HipEndSpan);
  const Vector tail = Intersect(corner.Hip, AtY(-rafter.Overhang));
  Agree("HipValOverhang", rafter.HipValOverhang, PlanDistance({}, tail), rafter.HipValSpan);
}

RC_GTEST_PROP(BastardHipGeometry, CommonsEndAtOneHeight, ()) {
  Rafter rafter;
  DrawBastardHip(rafter);
  rafter.CalculateBastardHip();
  const BastardCorner corner(rafter);
  const Line main = Intersect(corner.Main, AtX(corner.RidgeEnd.x + 100));
  const Vector mainTop = Intersect(main, AtY(rafter.Span - rafter.RidgeThickness / 2));
  Agree("CommonLength1", rafter.CommonLength1, Distance(Intersect(main, AtY(0)), mainTop));
  Agree("CommonLength2", rafter.CommonLength2, Distance(Intersect(main, AtY(-rafter.Overhang)), mainTop));
  // The end common stands in the middle of the house and stops as high as the main commons do at the ridge
  // board.
  const Line end = Intersect(corner.End, AtY(rafter.Span));
  const Vector endTop = Intersect(end, AtHeight(mainTop.z));
  Agree("HipEndRise", rafter.HipEndRise, endTop.z);
  Agree("AdjHipEndSpan", rafter.AdjHipEndSpan, endTop.x);
  Agree("HipEndLength1", rafter.HipEndLength1, Distance(Intersect(end, AtX(0)), endTop));
  Agree("HipEndLength2", rafter.HipEndLength2, Distance(Intersect(end, AtX(-rafter.HipEndOverhang)), endTop));
}

// As on a hip of equal slopes: the run ends at the cheek of the end common, the rise is the one at the ridge
// board.
RC_GTEST_PROP(BastardHipGeometry, HipRunsToTheCheekOfTheEndCommon, ()) {
  Rafter rafter;
  DrawBastardHip(rafter);
  rafter.CalculateBastardHip();
  const BastardCorner corner(rafter);
  const Vector top = Intersect(corner.Hip, AtY(rafter.Span - rafter.Thickness / 2));
  const double excess = Steepness(rafter) * (rafter.Thickness - rafter.RidgeThickness) / 2;
  Agree("AdjHipSpan", rafter.AdjHipSpan, PlanDistance({}, top));
  Agree("HipRise", rafter.HipRise, top.z + excess, rafter.Rise);
  Agree("Length1", rafter.Length1, std::hypot(PlanDistance({}, top), top.z + excess));
  Agree("Length2", rafter.Length2,
        std::hypot(PlanDistance(Intersect(corner.Hip, AtY(-rafter.Overhang)), top),
                   top.z + excess - corner.MainEave.origin.z));
}

// The drop is taken along the main wall, over the length that the half hip covers there. In space the end
// face lies lower beside the hip by that drop times the square of the sine of HipAngle1 only, and the main
// face by it times the square of the cosine: at 45 degrees the product's drop is twice the one that brings
// the edges into the faces.
RC_GTEST_PROP(BastardHipGeometry, DropGoesByTheLengthAlongTheMainWall, ()) {
  Rafter rafter;
  DrawBastardHip(rafter);
  rafter.CalculateBastardHip();
  const BastardCorner corner(rafter);
  const double cheek = rafter.HipValThickness / 2;
  const double endDrop = DropBeside(corner.Hip, corner.End, cheek, {-1, 1, 0});
  const double mainDrop = DropBeside(corner.Hip, corner.Main, cheek, {1, -1, 0});
  const double angle = Radians(AngleBetween(InPlan(corner.Hip.direction), {1, 0, 0}));
  Agree("HipDrop over the end", rafter.HipDrop, endDrop / std::pow(std::sin(angle), 2));
  Agree("HipDrop over the main", rafter.HipDrop, mainDrop / std::pow(std::cos(angle), 2));
}

RC_GTEST_PROP(BastardHipGeometry, SeatsEndWhereTheUndersidesMeetThePlate, ()) {
  Rafter rafter;
  DrawBastardHip(rafter);
  rafter.CalculateBastardHip();
  const BastardCorner corner(rafter);
  const Plane endTop = RoofFace({0, 0, rafter.CommonHeel}, {1, 0, 0}, corner.EndSteepness);
  const Plane endUnderside = endTop.Moved(-rafter.Depth);
  Agree("HipEndPlumbCut", rafter.HipEndPlumbCut, endTop.HeightAt({}) - endUnderside.HeightAt({}));
  Agree("HipEndSeat", rafter.HipEndSeat, Intersect(Intersect(endUnderside, AtY(0)), AtHeight(0)).x,
        (rafter.HipEndPlumbCut + rafter.Heel) / corner.EndSteepness);
  const Plane hipTop = RoofFace({0, 0, rafter.HipHeel}, InPlan(corner.RidgeEnd), SlopeOf(corner.Hip));
  const Plane hipUnderside = hipTop.Moved(-rafter.HipValDepth);
  const Plane alongHip = Upright({}, Cross(corner.Hip.direction, {0, 0, 1}));
  const Vector seatEnd = Intersect(Intersect(hipUnderside, alongHip), AtHeight(0));
  Agree("HipValPlumbCut", rafter.HipValPlumbCut, hipTop.HeightAt({}) - hipUnderside.HeightAt({}));
  Agree("HipValSeat", rafter.HipValSeat, Dot(seatEnd, Unit(InPlan(corner.RidgeEnd))),
        (rafter.HipValPlumbCut + rafter.Heel + rafter.HipDrop) / SlopeOf(corner.Hip));
}

RC_GTEST_PROP(BastardHipGeometry, JacksOfEachFaceGrowByTheirDifference, ()) {
  Rafter rafter;
  DrawBastardHip(rafter);
  if (*rc::gen::arbitrary<bool>()) {
    rafter.CalculateBastardHip();
  } else {
    rafter.CalculateAdjustedBastardHip();
  }
  const BastardCorner corner(rafter);
  const auto mainJackAt = [&corner](double x) {
    const Line edge = Intersect(corner.Main, AtX(x));
    return Distance(Intersect(edge, AtY(0)), Intersect(edge, corner.End));
  };
  const auto endJackAt = [&corner](double y) {
    const Line edge = Intersect(corner.End, AtY(y));
    return Distance(Intersect(edge, AtX(0)), Intersect(edge, corner.Main));
  };
  // The difference at 24 is that of two base runs along the wall: 24 inches, but 2000 millimetres.
  const double two = 2 * rafter.SlopeBase;
  Agree("CommonDifference", rafter.CommonDifference, mainJackAt(21) - mainJackAt(20));
  Agree("CommonDifference16", rafter.CommonDifference16, mainJackAt(36) - mainJackAt(20));
  Agree("CommonDifference24", rafter.CommonDifference24, mainJackAt(20 + two) - mainJackAt(20));
  Agree("HipEndCommonDifference", rafter.HipEndCommonDifference, endJackAt(21) - endJackAt(20));
  Agree("HipEndCommonDifference16", rafter.HipEndCommonDifference16, endJackAt(36) - endJackAt(20));
  Agree("HipEndCommonDifference24", rafter.HipEndCommonDifference24, endJackAt(20 + two) - endJackAt(20));
}

// One overhang all round: the faces stay, the end wall moves along x until its overhang is that of the sides.

void CalculateEqualOverhangs(Rafter& rafter) {
  DrawBastardHip(rafter);
  rafter.OverhangsEqual = true;
  rafter.CalculateBastardHip();
}

double EndWall(const Rafter& rafter, const BastardCorner& corner) {
  return rafter.Overhang - corner.NaturalEndOverhang();
}

RC_GTEST_PROP(EqualOverhangGeometry, EndWallMovesUnderItsFace, ()) {
  Rafter rafter;
  CalculateEqualOverhangs(rafter);
  const BastardCorner corner(rafter);
  const double wall = EndWall(rafter, corner);
  const double scale = rafter.Span + rafter.HipEndSpan;
  const double plate = corner.End.HeightAt({wall, 0, 0});
  Agree("HipEndOverhangExcess", rafter.HipEndOverhangExcess, wall, scale);
  Agree("HipEndDrop", rafter.HipEndDrop, plate, scale);
  Agree("HipEndSpan", rafter.HipEndSpan, corner.RidgeEnd.x - wall, scale);
  Agree("HipEndOverhang", rafter.HipEndOverhang, rafter.Overhang, scale);
  Agree("HipAngle1", rafter.HipAngle1, AngleBetween(InPlan(corner.Hip.direction), {1, 0, 0}));
  // Where the hip line passes beside the new corner of the walls: across the end wall if that moved in, along
  // the main wall if it moved out.
  const Vector overEndWall = Intersect(corner.Hip, AtX(wall));
  Agree("HipShift", rafter.HipShift, rafter.HipEndSlope > rafter.Slope ? overEndWall.y : wall, scale);
}

RC_GTEST_PROP(EqualOverhangGeometry, EndCommonRunsFromTheMovedWall, ()) {
  Rafter rafter;
  CalculateEqualOverhangs(rafter);
  const BastardCorner corner(rafter);
  const double wall = EndWall(rafter, corner);
  const Line end = Intersect(corner.End, AtY(rafter.Span));
  const Vector foot = Intersect(end, AtX(wall));
  const Vector top = Intersect(end, AtHeight(rafter.Rise));
  const double scale = Distance(top, {}) + rafter.Overhang;
  rafter.RafterType = Member::kHipEndCommon;
  rafter.CalculateAdjustedBastardHip();
  Agree("HipEndRise", rafter.HipEndRise, top.z - foot.z, scale);
  Agree("Length1", rafter.Length1, Distance(foot, top), scale);
  Agree("Length2", rafter.Length2, Distance(Intersect(end, AtX(wall - rafter.Overhang)), top), scale);
  // HipEndLength1 stands beside them as the length at the main rise: over the same run, but without the drop
  // of the wall.
  Agree("HipEndLength1", rafter.HipEndLength1, std::hypot(top.x - foot.x, top.z), scale);
}

// The hip runs from over the outer one of the two walls to the cheek of the main common (not, as without
// equal overhangs, of the end common). Its rise is that of the commons at the ridge board, which departs from
// the height at that cheek by the main slope over the difference of the two distances from the ridge line.
RC_GTEST_PROP(EqualOverhangGeometry, HipRunsToTheCheekOfTheMainCommon, ()) {
  Rafter rafter;
  CalculateEqualOverhangs(rafter);
  RC_PRE(rafter.AdjHipSpan > 0);  // a wide eave on a narrow house can move the end wall past the ridge
  const BastardCorner corner(rafter);
  const bool steeperEnd = rafter.HipEndSlope > rafter.Slope;
  const Vector foot = steeperEnd ? Intersect(corner.Hip, AtX(EndWall(rafter, corner))) : Vector{};
  const Vector tail = Intersect(corner.Hip, AtY(-rafter.Overhang));
  const Vector top = Intersect(corner.Hip, AtX(corner.RidgeEnd.x - rafter.Thickness / 2));
  const double fromRidge = rafter.Thickness / 2 * rafter.HipEndSlope / rafter.Slope;
  const double excess = Steepness(rafter) * (fromRidge - rafter.RidgeThickness / 2);
  const double scale = PlanDistance({}, corner.RidgeEnd) + rafter.Rise + 3 * PlanDistance({}, tail);
  Agree("HipValSpan", rafter.HipValSpan, PlanDistance(foot, corner.RidgeEnd), scale);
  Agree("AdjHipSpan", rafter.AdjHipSpan, PlanDistance(foot, top), scale);
  Agree("HipValOverhang", rafter.HipValOverhang, PlanDistance(foot, tail), scale);
  Agree("HipRise", rafter.HipRise, top.z - foot.z + excess, scale);
  Agree("HipRiseWithOverhang", rafter.HipRiseWithOverhang, top.z - tail.z + excess, scale);
  Agree("Length1", rafter.Length1, std::hypot(PlanDistance(foot, top), top.z - foot.z + excess), scale);
  Agree("Length2", rafter.Length2, std::hypot(PlanDistance(tail, top), top.z - tail.z + excess), scale);
}

}  // namespace
}  // namespace pitchcraft
