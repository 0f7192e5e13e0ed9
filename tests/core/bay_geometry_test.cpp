// Bays and Dutch hip ends against the planes of their front and their angled side.
#include "geometry3d.h"
#include "random_roof.h"

namespace pitchcraft {
namespace {

using namespace geometry;  // NOLINT(google-build-using-namespace)

// The main wall runs along x at y = 0, the bay stands out to y = Projection; x = 0 is the corner of the
// angled side at the main wall, the bay lies towards x > 0.
struct BayRoof {
  explicit BayRoof(const Rafter& rafter)
      : Angle(Radians(rafter.BayAngle)),
        FaceCorner{rafter.Projection * std::cos(Angle) / std::sin(Angle), rafter.Projection, 0},
        SideDirection(Unit(FaceCorner)),
        SideInward(Unit(Cross(SideDirection, {0, 0, 1}))),
        Front(RoofFace(FaceCorner, {0, -1, 0}, Steepness(rafter))),
        Side(RoofFace({}, SideInward, Steepness(rafter))),
        Hip(Intersect(Front, Side)),
        Apex(Intersect(Hip, AtY(0))) {}

  double Angle;
  Vector FaceCorner;
  Vector SideDirection;
  Vector SideInward;
  Plane Front;
  Plane Side;
  Line Hip;
  Vector Apex;  ///< where hip and ledger rafter meet at the main wall
};

void DrawBay(Rafter& rafter) {
  const RandomRoof roof(rafter);
  rafter.RafterType = Member::kBayCommon;
  const int degrees = *rc::gen::inRange(15, 91);
  rafter.BayAngle = degrees;
  rafter.HipRunFactor = rafter.SlopeBase / std::cos(Radians(degrees) / 2);
  rafter.LedgerRunFactor = rafter.SlopeBase / std::sin(Radians(degrees));
  rafter.Projection = roof.Length(24, 120);
  rafter.Face = roof.Length(24, 200);
  rafter.Back = rafter.Face + 2 * rafter.Projection * std::cos(Radians(degrees)) / std::sin(Radians(degrees));
  rafter.CenterLedgerSpan = rafter.Back;
  rafter.CalculateBay();
}

double Scale(const Rafter& rafter) {
  return rafter.LedgerSpan + rafter.LedgerOverhang + rafter.LedgerRise + rafter.RidgeThickness;
}

RC_GTEST_PROP(BayGeometry, CommonRunsFromTheFrontToTheLedger, ()) {
  Rafter rafter;
  DrawBay(rafter);
  const BayRoof bay(rafter);
  const Line edge = Intersect(bay.Front, AtX(bay.FaceCorner.x + 10));
  const Vector top = Intersect(edge, AtY(rafter.RidgeThickness));
  Agree("Length1", rafter.Length1, Distance(Intersect(edge, AtY(rafter.Projection)), top), Scale(rafter));
  Agree("Length2", rafter.Length2, Distance(Intersect(edge, AtY(rafter.Projection + rafter.Overhang)), top),
        Scale(rafter));
  Agree("Rise", rafter.Rise, top.z, Scale(rafter));
}

RC_GTEST_PROP(BayGeometry, HipRunsFromTheCornerToTheLedger, ()) {
  Rafter rafter;
  DrawBay(rafter);
  const BayRoof bay(rafter);
  const Vector top = Intersect(bay.Hip, AtY(rafter.RidgeThickness));
  const Vector tail = Intersect(bay.Hip, AtY(rafter.Projection + rafter.Overhang));
  Agree("HipValSpan", rafter.HipValSpan, PlanDistance(bay.FaceCorner, bay.Apex));
  Agree("HipRise", rafter.HipRise, top.z, Scale(rafter));
  Agree("HipRiseWithOverhang", rafter.HipRiseWithOverhang, top.z - tail.z, Scale(rafter));
  Agree("HipLength1", rafter.HipLength1, Distance(bay.FaceCorner, top), Scale(rafter));
  Agree("HipLength2", rafter.HipLength2, Distance(tail, top), Scale(rafter));
  Agree("HipValSlope", rafter.HipValSlope / rafter.SlopeBase, SlopeOf(bay.Hip));
  AgreeRounded("HipDegrees", rafter.HipDegrees, Degrees(std::atan(SlopeOf(bay.Hip))));
}

// The ledger rafter's near face stands one board before the main wall. On it the rafter starts over the line
// of the corner, lower than the plate's roof point by its drop, and ends on the hip.
RC_GTEST_PROP(BayGeometry, LedgerRafterRunsAlongTheMainWallToTheHip, ()) {
  Rafter rafter;
  DrawBay(rafter);
  const BayRoof bay(rafter);
  const Line edge = Intersect(bay.Side, AtY(rafter.RidgeThickness));
  const Vector foot = Intersect(edge, AtX(0));
  const Vector top = Intersect(edge, bay.Front);
  const Vector tail = Intersect(edge, AtX(-rafter.LedgerOverhang));
  const double scale = Scale(rafter);
  Agree("LedgerSpan", rafter.LedgerSpan, PlanDistance({}, bay.Apex));
  Agree("LedgerDrop", rafter.LedgerDrop, -foot.z, scale);
  Agree("AdjLedgerSpan", rafter.AdjLedgerSpan, PlanDistance(foot, top), scale);
  Agree("LedgerRise", rafter.LedgerRise, top.z - foot.z, scale);
  Agree("LedgerLength1", rafter.LedgerLength1, Distance(foot, top), scale);
  Agree("LedgerLength2", rafter.LedgerLength2, Distance(tail, top), scale);
  Agree("LedgerSlope", rafter.LedgerSlope / rafter.SlopeBase, SlopeOf(edge));
  AgreeRounded("LedgerDegrees", rafter.LedgerDegrees, Degrees(std::atan(SlopeOf(edge))));
  // The overhang of the side, square to it, seen along the main wall.
  const Plane eave = Upright(-rafter.Overhang * bay.SideInward, bay.SideInward);
  Agree("LedgerOverhang", rafter.LedgerOverhang, -Intersect(Intersect(bay.Side, AtY(0)), eave).x, scale);
}

// The center ledger is reckoned over the whole back of the bay. Between the hips, at its near face, there is
// less: by the run of a ledger rafter on either side.
RC_GTEST_PROP(BayGeometry, CenterLedgerCountsTheWholeBack, ()) {
  Rafter rafter;
  DrawBay(rafter);
  const BayRoof bay(rafter);
  const double betweenHips = rafter.Back - 2 * Intersect(bay.Hip, AtY(rafter.RidgeThickness)).x;
  Agree("CenterLedgerLength", rafter.CenterLedgerLength, betweenHips + 2 * PlanDistance({}, bay.Apex),
        rafter.Back + Scale(rafter));
}

RC_GTEST_PROP(BayGeometry, HipDropsUntilItsEdgesLieInTheFaces, ()) {
  Rafter rafter;
  DrawBay(rafter);
  const BayRoof bay(rafter);
  const double cheek = rafter.HipValThickness / 2;
  Agree("HipDrop, front", rafter.HipDrop, DropBeside(bay.Hip, bay.Front, cheek, {1, 1, 0}));
  Agree("HipDrop, side", rafter.HipDrop, DropBeside(bay.Hip, bay.Side, cheek, -1 * bay.SideInward));
}

RC_GTEST_PROP(BayGeometry, SeatsEndWhereTheUndersidesMeetThePlate, ()) {
  Rafter rafter;
  DrawBay(rafter);
  const BayRoof bay(rafter);
  const auto seatOf = [](double heel, double slope, double depth) {
    const Plane underside = RoofFace({0, 0, heel}, {1, 0, 0}, slope).Moved(-depth);
    return Intersect(Intersect(underside, AtY(0)), AtHeight(0)).x;
  };
  const double hip = SlopeOf(bay.Hip);
  Agree("HipValSeat", rafter.HipValSeat, seatOf(rafter.HipHeel, hip, rafter.HipValDepth),
        (rafter.HipValPlumbCut + rafter.Heel + rafter.HipDrop) / hip);
  const double ledger = SlopeOf(Intersect(bay.Side, AtY(0)));
  Agree("LedgerSeat", rafter.LedgerSeat, seatOf(rafter.LedgerHeel, ledger, rafter.RidgeDepth),
        (rafter.LedgerPlumbCut + rafter.Heel + rafter.LedgerDrop) / ledger);
}

// In inches the differences are those of the jacks. In millimetres they go by 144 where the square of the
// base run would stand: too short by the factor sqrt(Slope^2 + 144) / sqrt(Slope^2 + 1000^2).
RC_GTEST_PROP(BayGeometry, JacksGrowByTheDifference, ()) {
  Rafter rafter;
  DrawBay(rafter);
  const BayRoof bay(rafter);
  const double factor = std::hypot(rafter.Slope, 12) / std::hypot(rafter.Slope, rafter.SlopeBase);
  const auto frontJackAt = [&](double fromCorner) {
    const Line edge = Intersect(bay.Front, AtX(bay.FaceCorner.x + fromCorner));
    return Distance(Intersect(edge, AtY(rafter.Projection)), Intersect(edge, bay.Side));
  };
  Agree("HipCommonDifference16", rafter.HipCommonDifference16, factor * (frontJackAt(24) - frontJackAt(8)));
  Agree("HipCommonDifference24", rafter.HipCommonDifference24, factor * (frontJackAt(32) - frontJackAt(8)));
  if (rafter.BayAngle == 90) {
    RC_ASSERT(rafter.LedgerCommonDifference16 == 0);
    RC_ASSERT(rafter.LedgerCommonDifference24 == 0);
    return;
  }
  // Jacks of the side stand square to it and run up to the ledger at the main wall.
  const auto sideJackAt = [&](double fromWall) {
    const Vector foot = fromWall * bay.SideDirection;
    const Line edge = Intersect(bay.Side, Upright(foot, bay.SideDirection));
    return Distance(foot, Intersect(edge, AtY(0)));
  };
  const double near90 = 1 / std::cos(bay.Angle);
  Agree("LedgerCommonDifference16", rafter.LedgerCommonDifference16,
        factor * (sideJackAt(24) - sideJackAt(8)), rafter.LedgerCommonDifference16 * near90);
  Agree("LedgerCommonDifference24", rafter.LedgerCommonDifference24,
        factor * (sideJackAt(32) - sideJackAt(8)), rafter.LedgerCommonDifference24 * near90);
}

}  // namespace
}  // namespace pitchcraft
