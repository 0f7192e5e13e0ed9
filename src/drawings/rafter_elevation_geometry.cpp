#include "drawings/rafter_elevation_geometry.h"

#include <algorithm>
#include <cmath>

#include "core/angles.h"
#include "core/run_time_error.h"

namespace pitchcraft {
namespace {

PointRecord Moved(PointRecord from, double dx, double dy) { return {from.X + dx, from.Y + dy}; }

double Degrees(double radians) { return radians * kDegreesPerRadian; }
double Radians(double degrees) { return degrees * kRadiansPerDegree; }

class ElevationBuilder {
 public:
  ElevationBuilder(const ElevationMember& member, bool squareCut, double scale, PointArray& pts)
      : member_(member), scale_(scale), pts_(pts) {
    // Without a tail there is nothing to cut square: the end is plumb on the wall line.
    geometry_.SquareCut = squareCut && member.Overhang > 0;
    geometry_.Kneewall = member.Kneewall > 0;
  }

  ElevationGeometry Build() {
    LayOutTopEdge();
    LayOutTail();
    LayOutWall();
    if (geometry_.Kneewall) LayOutKneewall();
    LayOutRidge();
    CheckPoints();
    ListStrokes();
    return geometry_;
  }

 private:
  void LayOutTopEdge();
  void LayOutTail();
  void CutPlumb();
  void CutCommonSquare();
  void CutAlongFasciaPlane();
  void ShortenHipTail(double cutFromPlumb);
  void EndTailAt(double angle, double length);
  void LayOutWall();
  void LayOutKneewall();
  void LayOutRidge();
  void CheckPoints() const;
  void ListStrokes();

  const ElevationMember& member_;
  double scale_;
  PointArray& pts_;
  ElevationGeometry geometry_;
  bool reachesWall_ = false;  // the soffit or the square cut ends on the wall line
  bool notched_ = false;
};

void ElevationBuilder::LayOutTopEdge() {
  const double tailRise = member_.RiseWithOverhang - member_.Rise;
  pts_(0) = {member_.RunWithOverhang * scale_, member_.RiseWithOverhang * scale_};
  pts_(1) = Moved(pts_(0), -member_.Run * scale_, -member_.Rise * scale_);
  pts_(2) = Moved(pts_(1), -member_.Overhang * scale_, -tailRise * scale_);
  geometry_.FirstTail = pts_(2);
  geometry_.PlumbAngle = Degrees(std::atan(member_.UnitRun / member_.Slope));
}

void ElevationBuilder::LayOutTail() {
  if (!geometry_.SquareCut) return CutPlumb();
  if (member_.SetsFascia()) return CutCommonSquare();
  CutAlongFasciaPlane();
}

/// A plumb cut as high as the fascia, then level along the soffit to the underside, but no further than the
/// wall.
void ElevationBuilder::CutPlumb() {
  pts_(3) = Moved(pts_(2), 0, -member_.Fascia * scale_);
  double soffit = member_.UnitRun * (member_.PlumbCut - member_.Fascia) / member_.Slope;
  // Also true where the underside is level like the soffit and the division gives no number.
  reachesWall_ = !(soffit >= 0 && soffit < member_.Overhang);
  if (reachesWall_) soffit = member_.Overhang;
  pts_(4) = Moved(pts_(3), soffit * scale_, 0);
}

void ElevationBuilder::CutCommonSquare() {
  const double angle = std::atan(member_.UnitRun / member_.Slope);
  geometry_.TailAngle = 90;
  EndTailAt(angle, member_.Depth);
}

/// The fascia is square to the main commons and keeps that tilt all around the roof. Its plane meets the
/// plane of a hip or valley in a line that is flatter than the common's own cut, by the square root of two in
/// plan. The tail is cut along that line to the underside.
void ElevationBuilder::CutAlongFasciaPlane() {
  const double a = std::atan(member_.CommonUnitRun / member_.CommonSlope);
  const PointRecord cut = DraftingBoard::AngleDistance(-a, member_.CommonDepth);
  const double across = member_.FasciaFactor * std::fabs(cut.X);
  const Single e = Degrees(std::atan2(across, std::fabs(cut.Y)));  // between cut and plumb line
  const Single g = 180 - geometry_.PlumbAngle - e;                 // between cut and top edge
  geometry_.TailAngle = g;
  if (member_.Family == ElevationFamily::kHip) ShortenHipTail(e);
  EndTailAt(Radians(90 - e), member_.Depth / std::cos(Radians(90 - g)));
}

/// A hip's top edge is below the roof planes by its drop. The fascia plane starts where the roof planes meet,
/// so it reaches the top edge further up: by how much follows from the triangle of drop, top edge and cut.
void ElevationBuilder::ShortenHipTail(double cutFromPlumb) {
  const double allowance = member_.Drop * std::sin(Radians(geometry_.PlumbAngle)) *
                           std::sin(Radians(cutFromPlumb)) / std::sin(Radians(geometry_.TailAngle));
  const double left = std::max(0.0, 1 - allowance / member_.Overhang);
  pts_(2) = {pts_(1).X + (pts_(2).X - pts_(1).X) * left, pts_(1).Y + (pts_(2).Y - pts_(1).Y) * left};
}

/// One cut of `length` at `angle` radians below level. A cut that would run past the wall ends there, and the
/// rest of the tail is plumb on the wall line.
void ElevationBuilder::EndTailAt(double angle, double length) {
  const double overhang = pts_(1).X - pts_(2).X;
  const PointRecord cut = DraftingBoard::AngleDistance(-angle, length * scale_);
  reachesWall_ = cut.X > overhang;
  pts_(3) = reachesWall_ ? PointRecord{pts_(1).X, pts_(2).Y - overhang * std::tan(angle)}
                         : Moved(pts_(2), cut.X, cut.Y);
  pts_(4) = pts_(3);
}

void ElevationBuilder::LayOutWall() {
  pts_(5) = Moved(pts_(1), 0, -member_.Heel * scale_);
  pts_(6) = Moved(pts_(5), 0, -(member_.PlumbCut - member_.Heel) * scale_);
  pts_(7) = {std::min(pts_(5).X + member_.Seat * scale_, double{pts_(0).X}), pts_(5).Y};
  notched_ = member_.Heel < member_.PlumbCut && member_.Seat > 0;
  geometry_.FootInWood = !reachesWall_;
  if (geometry_.FootInWood || !notched_) {
    geometry_.WallFoot = 6;
  } else {
    geometry_.WallFoot = pts_(4).Y < pts_(5).Y ? 4 : 5;
  }
}

void ElevationBuilder::LayOutKneewall() {
  const double run = member_.Run - member_.Kneewall;
  const double rise = member_.Rise - member_.KneewallRise;
  pts_(27) = Moved(pts_(0), -run * scale_, -rise * scale_);
  pts_(28) = Moved(pts_(27), 0, -member_.Heel * scale_);
  pts_(29) = {std::min(pts_(28).X + member_.Seat * scale_, double{pts_(0).X}), pts_(28).Y};
  pts_(30) = Moved(pts_(28), 0, -(member_.PlumbCut - member_.Heel) * scale_);
  // The kneewall is so close that it is over the seat: the two notches join like stairs.
  if (pts_(30).X < pts_(7).X) pts_(7).X = pts_(30).X;
  if (notched_ && pts_(30).Y < pts_(7).Y) pts_(30).Y = pts_(7).Y;
}

/// Plumb down to the underside, or to a seat that was cut off at the ridge.
void ElevationBuilder::LayOutRidge() {
  const Single top = pts_(0).Y;
  const bool cutOff = geometry_.Kneewall && pts_(29).X >= pts_(0).X;
  const Single seat = cutOff ? pts_(29).Y : pts_(5).Y;
  pts_(8) = {pts_(0).X, top - std::min(member_.PlumbCut * scale_, top - seat)};
}

void ElevationBuilder::CheckPoints() const {
  for (const auto& [first, last] : {std::pair{0, 8}, std::pair{27, 30}}) {
    for (int index = first; index <= last; ++index) {
      ToLong(pts_(index).X);
      ToLong(pts_(index).Y);
    }
  }
}

void ElevationBuilder::ListStrokes() {
  geometry_.Add(2, 3);
  if (!geometry_.SquareCut) geometry_.Add(3, 4);
  if (geometry_.FootInWood) geometry_.Add(4, 6);
  if (notched_) {
    geometry_.Add(geometry_.FootInWood ? 6 : 4, 5);
    geometry_.Add(5, 7);
  } else if (!geometry_.FootInWood) {
    geometry_.Add(4, 6);
  }
  const int underside = notched_ ? 7 : 6;
  if (geometry_.Kneewall) {
    geometry_.Add(underside, 30);
    geometry_.Add(30, 28);
    geometry_.Add(28, 29);
    geometry_.Add(29, 8);
  } else {
    geometry_.Add(underside, 8);
  }
  geometry_.Add(0, 8);
}

}  // namespace

ElevationGeometry LayOutElevation(const ElevationMember& member, bool squareCut, double scale,
                                  PointArray& pts) {
  return ElevationBuilder(member, squareCut, scale, pts).Build();
}

}  // namespace pitchcraft
