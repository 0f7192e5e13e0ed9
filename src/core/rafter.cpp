#include "core/rafter.h"

#include <cmath>

#include "core/number_text.h"

namespace pitchcraft {
namespace {

// The square root of two is not computed: these two runs of a 45-degree hip are the constants of the product, so
// that a hip comes out the same as in the rafter tables that they were taken from.
constexpr double kImperialHipRun = 16.970562;
constexpr double kMetricHipRun = 1414.2135;

}  // namespace

CRafter::CRafter() { SetUnits(0); }

void CRafter::SetUnits(int units) {
  units_ = units;
  let(SlopeBase) = IsMetric() ? 1000 : 12;
  let(HipRun) = IsMetric() ? kMetricHipRun : kImperialHipRun;
  let(HipFactor) = HipRun / SlopeBase;
}

Single CRafter::PlumbDepth(double slope, double depth, double run) {
  const Single rise = slope * depth / run;
  return std::sqrt(depth * depth + rise * rise);
}

void CRafter::ApplyLocks(double share) {
  if (HeelLocked) {
    Seat = SeatBelowHeel();
  } else if (SeatLocked) {
    Heel = PlumbCut - Seat * Slope / SlopeBase;
  } else {
    Heel = PlumbCut * share;
    Seat = SeatBelowHeel();
  }
}

std::string CRafter::PitchText(double slope) const {
  return SignedText(IsMetric() ? RoundTo(slope, 0) : slope) + "/" + PlainText(SlopeBase);
}

std::string CRafter::HipPitchText() const {
  const std::string text = PlainText(IsMetric() ? RoundTo(HipValSlope, 0) : double{HipValSlope});
  // Two decimals of an ordinary hip slope; a longer number is cut, never rounded up past the saw.
  return " " + text.substr(0, HipValSlope >= 10 ? 5 : 4) + "/" + PlainText(SlopeBase);
}

}  // namespace pitchcraft
