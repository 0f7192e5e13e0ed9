// A rafter as a solid seen from the side, worked out from its measures alone: slopes, planes and cuts in
// double. The drawing is compared with it.
#pragma once

#include <algorithm>
#include <cmath>

#include "elevation_case.h"

namespace pitchcraft::testing {

/// Coordinates in inches (or millimetres): x from the end of the tail, y from the top edge there.
class Wood {
 public:
  explicit Wood(const ElevationCase& c) : square_(c.SquareCut) {
    const double base = c.Metric ? 1000 : 12;
    const double thickness = c.Metric ? 38 : 1.5;
    const double root2 = std::sqrt(2.0);
    const bool hip = c.Type == Member::kHip;
    const bool diagonal = hip || IsValley(c.Type);
    const double plan = diagonal ? root2 : 1;  // run of this member for one of common run
    const double common = c.Slope / base;      // tangent of the roof's slope
    tangent_ = common / plan;
    const double commonPlumb = c.Depth * std::hypot(1, common);
    plumb_ = (diagonal ? c.HipDepth : c.Depth) * std::hypot(1, tangent_);
    const double heel = c.Heel == kUnlocked ? commonPlumb * 2 / 3 : std::min(c.Heel, commonPlumb);
    overhang_ = heel == 0 ? 0 : c.Overhang * plan;
    // A hip is lowered until its edges lie in the roof planes.
    drop_ = hip ? thickness / 2 * tangent_ : 0;
    heel_ = std::max(heel - drop_, 0.0);
    double fascia = std::min(c.Fascia, commonPlumb);
    if (overhang_ == 0) fascia = std::min(fascia, heel);
    fascia_ = std::clamp(fascia - drop_, 0.0, plumb_);
    const double allowance = c.Type == Member::kShed ? thickness : thickness / 2;
    ridge_ = overhang_ + c.Run * plan - allowance * plan;
    commonTangent_ = common;
    plan_ = plan;
    const bool carries = c.RoofType == 0 || c.RoofType == 3 || c.RoofType == 4;
    kneewall_ = carries && !diagonal && c.Kneewall < c.Run - allowance ? c.Kneewall : 0;
  }

  double Top(double x) const { return x * tangent_; }
  double Underside(double x) const { return Top(x) - plumb_; }
  double Wall() const { return overhang_; }
  double Ridge() const { return ridge_; }
  double SeatLevel() const { return Top(overhang_) - heel_; }
  double KneewallX() const { return overhang_ + kneewall_; }
  double KneewallSeat() const { return Top(KneewallX()) - heel_; }
  double Plumb() const { return plumb_; }

  bool Holds(double x, double y) const {
    if (y > Top(x) || y < Underside(x) || x > ridge_) return false;
    if (x > overhang_ && y < SeatLevel()) return false;
    if (kneewall_ > 0 && x > KneewallX() && y < KneewallSeat()) return false;
    if (!square_ || overhang_ == 0) return x > 0 && (x > overhang_ || y > -fascia_);
    // The fascia plane is square to the roof plane and goes through the eave, where the roof planes end.
    const double acrossEave = x / plan_;
    return x > overhang_ || acrossEave + (y - drop_) * commonTangent_ > 0;
  }

 private:
  bool square_;
  double tangent_, commonTangent_, plan_;
  double plumb_, heel_, fascia_, overhang_, drop_, ridge_, kneewall_;
};

}  // namespace pitchcraft::testing
