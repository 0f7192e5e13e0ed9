// Values that live only during a calculation are stored in 32 bits too, each under its own name in the rules:
// the runs of a bastard hip, the angles of a gambrel, the ratio of an octagon. Kept in 64 bits they would
// give other last digits.
#include <cmath>

#include "core/rafter.h"
#include "store_comparison.h"

namespace pitchcraft {
namespace {

constexpr double kDegrees = 57.295779513082;
constexpr double kRadians = 0.01745329252;

template <typename Action>
void ForManyRoofs(Member type, void (Rafter::*calculate)(), Action action) {
  for (int rise = 2; rise <= 18; ++rise) {
    for (int step = 0; step < 80; ++step) {
      Rafter rafter;
      rafter.RafterType = type;
      rafter.Slope = rise + step / 96.0;
      rafter.HipEndSlope = rise + 1 + step / 37.0;
      if (type == Member::kGambrelBottom) rafter.HipValSlope = rise / 3.0 + step / 96.0;
      rafter.Span = 100 + 2.3 * step;
      rafter.Overhang = 10.1;
      rafter.Thickness = 1.5;
      rafter.Depth = 7.25;
      rafter.RidgeThickness = 1.5;
      rafter.HipValThickness = 1.75;
      rafter.HipValDepth = 9.25;
      rafter.spacing = 16 + step / 7.0;
      rafter.Purlins = true;
      (rafter.*calculate)();
      action(rafter);
    }
  }
}

struct BastardRuns {
  explicit BastardRuns(const Rafter& r)
      : end(F(r.Slope / r.HipEndSlope * r.Span)),
        hip(std::sqrt(double{end} * end + r.Span * r.Span) / r.Span) {}
  float end;
  double hip;
};

TEST(LocalPrecision, HipRunForOneUnitOfABastardHip) {
  Comparison comparison("HipValSpan");
  ForManyRoofs(Member::kBastardHip, &Rafter::CalculateBastardHip, [&](const Rafter& r) {
    const double hip = BastardRuns(r).hip;
    comparison.Check(r.HipValSpan, r.Span * F(hip), F(r.Span * hip));
  });
}

TEST(LocalPrecision, RunToTheRaisedEndWall) {
  Comparison comparison("HipValSpan");
  ForManyRoofs(Member::kBastardHip, &Rafter::CalculateAdjustedBastardHip, [&](const Rafter& r) {
    const float whole = F(r.Span * F(BastardRuns(r).hip));
    const double toWall = 12 * r.HipEndDrop / r.HipValSlope;
    comparison.Check(r.HipValSpan, double{whole} - F(toWall), F(whole - toWall));
  });
}

TEST(LocalPrecision, JackOfABastardHip) {
  Comparison comparison("CommonDifference16");
  ForManyRoofs(Member::kBastardHip, &Rafter::CalculateBastardHip, [&](const Rafter& r) {
    const double run = 12 * r.Span / r.HipEndSpan;
    const float storedRun = F(run);
    const float storedRise = F(r.Slope * storedRun / 12);
    const float stored = F(std::sqrt(double{storedRun} * storedRun + double{storedRise} * storedRise));
    const double rise = r.Slope * run / 12;
    comparison.Check(r.CommonDifference16, double{stored} * 16 / 12,
                     F(std::sqrt(run * run + rise * rise) * 16 / 12));
  });
}

// An angle is stored as radians first and as degrees then.
TEST(LocalPrecision, AnglesOfAGambrel) {
  Comparison comparison("JointAngle");
  ForManyRoofs(Member::kGambrelBottom, &Rafter::CalculateGambrel, [&](const Rafter& r) {
    const auto joint = [](double own, double other) { return (((90 - own) + 90 + other) / 2) - (90 - own); };
    const float own = F(kDegrees * F(std::atan(r.Slope / 12)));
    const float other = F(kDegrees * F(std::atan(r.HipValSlope / 12)));
    const float once = F(kDegrees * std::atan(r.Slope / 12));
    const float otherOnce = F(kDegrees * std::atan(r.HipValSlope / 12));
    comparison.Check(r.JointAngle, joint(own, other), F(joint(once, otherOnce)));
  });
}

TEST(LocalPrecision, HalfPurlinOfAGambrel) {
  Comparison comparison("RidgeAllowance");
  ForManyRoofs(Member::kGambrelBottom, &Rafter::CalculateGambrel, [&](const Rafter& r) {
    const float own = F(kDegrees * F(std::atan(r.Slope / 12)));
    const float skew = F(own - r.JointAngle);
    const double half = r.RidgeThickness / 2 / std::cos(skew * kRadians);
    const double share = std::sin((90 - double{own}) * kRadians);
    comparison.Check(r.RidgeAllowance, F(half) * share, F(half * share));
  });
}

TEST(LocalPrecision, RatioOfAnOctagon) {
  Comparison comparison("HipValSlope");
  ForManyRoofs(Member::kOctagonHip, &Rafter::CalculateOctagon, [&](const Rafter& r) {
    const double ratio = F(r.Span / 0.923879532511) / r.Span;
    comparison.Check(r.HipValSlope, r.Slope / F(ratio), F(r.Slope / ratio));
  });
}

TEST(LocalPrecision, JackOfAnOctagon) {
  Comparison comparison("CommonDifference16");
  ForManyRoofs(Member::kOctagonJack, &Rafter::CalculateOctagon, [&](const Rafter& r) {
    const double run = r.spacing / std::tan(22.5 * kRadians);
    const auto length = [&r](double level) {
      const double rise = level * r.Slope / 12;
      return std::sqrt(level * level + rise * rise);
    };
    comparison.Check(r.CommonDifference16, double{F(length(F(run)))} * 16 / 12, F(length(run) * 16 / 12));
  });
}

}  // namespace
}  // namespace pitchcraft
