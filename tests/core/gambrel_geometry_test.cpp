// The gambrel's joint against the plane that halves the angle of its two roof faces, and against its circle.
#include "geometry3d.h"
#include "random_roof.h"

namespace pitchcraft {
namespace {

using namespace geometry;  // NOLINT(google-build-using-namespace)

// The gable stands in the plane x = 0: y runs from the wall to the ridge. The break is a line along x.
struct Break {
  Break(double steep, double flat, double run)
      : Point{0, run, steep * run},
        Lower(RoofFace({}, {0, 1, 0}, steep)),
        Upper(RoofFace(Point, {0, 1, 0}, flat)),
        LowerEdge(Intersect(Lower, AtX(0))),
        UpperEdge(Intersect(Upper, AtX(0))) {
    // The roof seen from the break: down one slope, up the other. Square to the bisector is what lies between
    // both.
    const Vector up{0, 1, steep};
    const Vector on{0, 1, flat};
    Middle = Unit(Unit(up) + Unit(on));
  }

  Plane Bisector() const { return {Middle, Point}; }

  Vector Point;
  Plane Lower;
  Plane Upper;
  Line LowerEdge;
  Line UpperEdge;
  Vector Middle;  ///< square to the bisecting plane
};

struct GambrelPair {
  GambrelPair() {
    const RandomRoof roof(Bottom);
    Bottom.RafterType = Member::kGambrelBottom;
    Bottom.Slope = roof.Slope(13, 40);
    Bottom.HipValSlope = roof.Slope(2, 12);
    Bottom.Span = roof.Length(24, 100);
    Bottom.Purlins = true;
    Top.SetUnits(Bottom.Units());
    Top.RafterType = Member::kGambrelTop;
    Top.Slope = Bottom.HipValSlope;
    Top.HipValSlope = Bottom.Slope;
    Top.Span = roof.Length(24, 100);
    Top.Depth = Bottom.Depth;
    Top.RidgeThickness = Bottom.RidgeThickness;
    Top.Purlins = true;
  }

  Break Joint() const { return {Steepness(Bottom), Steepness(Top), Bottom.Span}; }

  Rafter Bottom;
  Rafter Top;
};

RC_GTEST_PROP(GambrelGeometry, BottomRunsFromTheWallToTheFaceOfThePurlin, ()) {
  GambrelPair pair;
  pair.Bottom.CalculateGambrel();
  const Break joint = pair.Joint();
  const Plane nearFace = joint.Bisector().Moved(-pair.Bottom.RidgeThickness / 2);
  const Vector top = Intersect(joint.LowerEdge, nearFace);
  const Vector tail = Intersect(joint.LowerEdge, AtY(-pair.Bottom.Overhang));
  const double scale = Norm(joint.Point) + Norm(tail);
  Agree("RidgeAllowance", pair.Bottom.RidgeAllowance, joint.Point.y - top.y, scale);
  Agree("Rise", pair.Bottom.Rise, top.z, scale);
  Agree("Length1", pair.Bottom.Length1, Norm(top), scale);
  Agree("Length2", pair.Bottom.Length2, Distance(tail, top), scale);
  Agree("RiseToSpan", pair.Bottom.RiseToSpan, joint.Point.z, scale);
  Agree("RiseToSpanWithOverhang", pair.Bottom.RiseToSpanWithOverhang, joint.Point.z - tail.z, scale);
}

RC_GTEST_PROP(GambrelGeometry, TopRunsFromTheFaceOfThePurlinToTheRidge, ()) {
  GambrelPair pair;
  pair.Top.CalculateGambrel();
  const Break joint = pair.Joint();
  const Plane farFace = joint.Bisector().Moved(pair.Top.RidgeThickness / 2);
  const Vector foot = Intersect(joint.UpperEdge, farFace);
  const double ridge = joint.Point.y + pair.Top.Span;
  const Vector top = Intersect(joint.UpperEdge, AtY(ridge - pair.Top.RidgeThickness / 2));
  const double scale = pair.Top.Span + pair.Top.RiseToSpan;
  Agree("JointOffset", pair.Top.JointOffset, foot.y - joint.Point.y, scale);
  Agree("AdjSpan", pair.Top.AdjSpan, top.y - foot.y, scale);
  Agree("Rise", pair.Top.Rise, top.z - foot.z, scale);
  Agree("Length1", pair.Top.Length1, Distance(foot, top), scale);
  Agree("RiseToSpan", pair.Top.RiseToSpan, Intersect(joint.UpperEdge, AtY(ridge)).z - joint.Point.z, scale);
}

RC_GTEST_PROP(GambrelGeometry, BothAreCutAlongTheBisector, ()) {
  GambrelPair pair;
  pair.Bottom.CalculateGambrel();
  pair.Top.CalculateGambrel();
  const Break joint = pair.Joint();
  const Line cut = Intersect(joint.Bisector(), AtX(0));
  // The angle is that of the bisector's normal to the level, the same seen from both rafters.
  Agree("JointAngle, bottom", pair.Bottom.JointAngle, AngleBetween(joint.Middle, {0, 1, 0}), 90);
  Agree("JointAngle, top", pair.Top.JointAngle, AngleBetween(joint.Middle, {0, 1, 0}), 90);
  Agree("JointCutAngle", pair.Bottom.JointCutAngle, AngleBetween(cut.direction, joint.LowerEdge.direction),
        90);
  Agree("TopCutAngle", pair.Top.TopCutAngle, AngleBetween(cut.direction, joint.UpperEdge.direction), 90);
  const auto cutThrough = [&cut](const Plane& face, double depth) {
    return Distance(Intersect(cut, face), Intersect(cut, face.Moved(-depth)));
  };
  Agree("JointCut, bottom", pair.Bottom.JointCut, cutThrough(joint.Lower, pair.Bottom.Depth));
  Agree("JointCut, top", pair.Top.JointCut, cutThrough(joint.Upper, pair.Top.Depth));
}

// Without a purlin the bottom rafter is cut plumb at the break itself, and the top one rests on it with a
// level cut.
RC_GTEST_PROP(GambrelGeometry, WithoutAPurlinTheCutsArePlumbAndLevel, ()) {
  GambrelPair pair;
  pair.Bottom.Purlins = false;
  pair.Top.Purlins = false;
  pair.Bottom.CalculateGambrel();
  pair.Top.CalculateGambrel();
  const Break joint = pair.Joint();
  const Line plumb = Intersect(AtY(joint.Point.y), AtX(0));
  const Line level = Intersect(AtHeight(joint.Point.z), AtX(0));
  const Plane lowerBack = joint.Lower.Moved(-pair.Bottom.Depth);
  const Plane upperBack = joint.Upper.Moved(-pair.Top.Depth);
  Agree("JointCut, bottom", pair.Bottom.JointCut, Distance(joint.Point, Intersect(plumb, lowerBack)));
  Agree("JointCut, top", pair.Top.JointCut, Distance(joint.Point, Intersect(level, upperBack)));
  Agree("Seat", pair.Top.Seat, pair.Top.JointCut);
  Agree("JointCutAngle", pair.Bottom.JointCutAngle, AngleBetween(plumb.direction, joint.LowerEdge.direction),
        90);
  Agree("TopCutAngle", pair.Top.TopCutAngle, AngleBetween(level.direction, joint.UpperEdge.direction), 90);
  Agree("Length1", pair.Bottom.Length1, Norm(joint.Point));
}

// Two equal chords of a circle: the bisector of their joint points at the circle's centre.
RC_GTEST_PROP(GambrelGeometry, OnACircleTheBisectorMeetsTheCentre, ()) {
  const double chord = *rc::gen::inRange(30, 46);  // degrees of arc under each rafter
  const double radius = 200;
  Rafter bottom;
  bottom.RafterType = Member::kGambrelBottom;
  bottom.Depth = 7.25;
  bottom.Purlins = true;
  // Wall at the circle's left, break one arc up, top one more arc.
  const auto onCircle = [&](double arc) {
    return Vector{0, radius - radius * std::cos(Radians(arc)), radius * std::sin(Radians(arc))};
  };
  const Vector wall = onCircle(0);
  const Vector joint = onCircle(chord);
  const Vector top = onCircle(2 * chord);
  bottom.Span = joint.y - wall.y;
  bottom.Slope = 12 * (joint.z - wall.z) / (joint.y - wall.y);
  bottom.HipValSlope = 12 * (top.z - joint.z) / (top.y - joint.y);
  bottom.CalculateGambrel();
  const double angle = Radians(bottom.JointAngle);
  const Plane bisector({0, std::cos(angle), std::sin(angle)}, joint);
  const Vector centre{0, radius, 0};
  Agree("distance of the centre", Dot(bisector.normal, centre) - bisector.offset, 0, 10 * radius);
  Agree("RiseToSpan", bottom.RiseToSpan, joint.z, 10 * radius);
}

// Unlocked, the bottom rafter keeps half of its plumb cut, and the underside meets the plate at the seat's
// end.
RC_GTEST_PROP(GambrelGeometry, BottomSeatHasHalfOfThePlumbCutAboveIt, ()) {
  GambrelPair pair;
  pair.Bottom.CalculateGambrel();
  const double slope = Steepness(pair.Bottom);
  const Plane underside = RoofFace({0, 0, pair.Bottom.Heel}, {0, 1, 0}, slope).Moved(-pair.Bottom.Depth);
  Agree("wood below the plate", pair.Bottom.Heel, -underside.HeightAt({}));
  Agree("Seat", pair.Bottom.Seat, Intersect(Intersect(underside, AtX(0)), AtHeight(0)).y);
}

}  // namespace
}  // namespace pitchcraft
