#include "core/rafter.h"

#include "core/number_text.h"
#include "core/triangles.h"

namespace pitchcraft {
namespace {

// The square root of two is not computed: these two runs of a 45-degree hip are the constants of the product,
// so that a hip comes out the same as in the rafter tables that they were taken from.
constexpr double kImperialHipRun = 16.970562;
constexpr double kMetricHipRun = 1414.2135;

}  // namespace

Rafter::Rafter() { SetUnits(0); }

void Rafter::SetUnits(int units) {
  units_ = units;
  let(SlopeBase) = IsMetric() ? 1000 : 12;
  let(HipRun) = IsMetric() ? kMetricHipRun : kImperialHipRun;
  let(HipFactor) = HipRun / SlopeBase;
}

Single Rafter::PlumbDepth(double slope, double depth, double run) {
  const Single rise = slope * depth / run;
  return Hypotenuse(depth, rise);
}

void Rafter::LimitTo(Single& height, double limit) {
  if (height > limit) height = limit;
}

double Rafter::RoundedDegrees(double slope) const { return RoundTo(DegreesOf(slope / SlopeBase), 2); }

void Rafter::ApplyLocks(bool heelLocked, bool seatLocked, double share) {
  if (heelLocked) {
    Seat = SeatBelowHeel();
  } else if (seatLocked) {
    Heel = PlumbCut - Seat * Slope / SlopeBase;
  } else {
    Heel = PlumbCut * share;
    Seat = SeatBelowHeel();
  }
}

void Rafter::LimitHeel(double share, ZeroHeel zeroHeel) {
  const bool clearsOverhang = zeroHeel == ZeroHeel::kClearsOverhang;
  if (Heel > PlumbCut) {
    Heel = PlumbCut;
    Seat = 0;
  } else if (clearsOverhang && Heel == 0) {
    Overhang = 0;
    Seat = SeatBelowHeel();
  } else if (Heel <= 0) {
    Heel = PlumbCut * share;
    Seat = SeatBelowHeel();
  }
  CommonHeel = Heel;
  CommonSeat = Seat;
}

void Rafter::LimitFasciaWithoutOverhang() {
  if (Overhang == 0) LimitTo(AdjFasciaHeight, Heel);
}

double Rafter::WholeInMetric(double slope) const { return IsMetric() ? RoundTo(slope, 0) : slope; }

std::string Rafter::PerSlopeBase(const std::string& text) const { return text + "/" + PlainText(SlopeBase); }

std::string Rafter::CutText(const std::string& text, double slope) {
  return text.substr(0, slope >= 10 ? 5 : 4);
}

std::string Rafter::PitchText(double slope) const { return PerSlopeBase(SignedText(WholeInMetric(slope))); }

std::string Rafter::HipPitchText() const {
  std::string text = " ";
  text += PerSlopeBase(CutText(PlainText(WholeInMetric(HipValSlope)), HipValSlope));
  return text;
}

}  // namespace pitchcraft
