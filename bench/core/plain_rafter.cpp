#include "plain_rafter.h"

#include <cmath>

#include "core/number_text.h"

namespace pitchcraft::bench {
namespace {

using D = double;

constexpr D kDegrees = 57.295779513082;
constexpr D kRadians = 0.01745329252;

float F(D value) { return static_cast<float>(value); }

float Length(D a, D b) { return F(std::sqrt(a * a + b * b)); }

float Plumb(D slope, D depth, D run) {
  const float rise = F(slope * depth / run);
  return F(std::sqrt(depth * depth + D{rise} * rise));
}

std::string Text(D slope) { return SignedText(slope) + "/" + PlainText(12); }

std::string HipText(D slope) {
  std::string text = " ";
  text += PlainText(slope).substr(0, slope >= 10 ? 5 : 4) + "/" + PlainText(12);
  return text;
}

void HeelAndSeat(PlainRafter& r, D share, bool zeroClears) {
  if (r.heelLocked) {
    r.seat = F((D{r.plumb} - r.heel) * r.base / r.slope);
  } else if (r.seatLocked) {
    r.heel = F(r.plumb - D{r.seat} * r.slope / r.base);
  } else {
    r.heel = F(r.plumb * share);
    r.seat = F((D{r.plumb} - r.heel) * r.base / r.slope);
  }
  if (r.heel > r.plumb) {
    r.heel = r.plumb;
    r.seat = 0;
  } else if (zeroClears && r.heel == 0) {
    r.overhang = 0;
    r.seat = F((D{r.plumb} - r.heel) * r.base / r.slope);
  } else if (r.heel <= 0) {
    r.heel = F(r.plumb * share);
    r.seat = F((D{r.plumb} - r.heel) * r.base / r.slope);
  }
  r.commonHeel = r.heel;
  r.commonSeat = r.seat;
  if (r.overhang == 0 && r.adjFascia > r.heel) r.adjFascia = r.heel;
}

}  // namespace

void PlainCalculate(PlainRafter& r) {
  const bool valley = r.type == 2 || r.type == 14 || r.type == 15;
  r.excess = r.endDrop = r.shift = 0;
  r.adjFascia = r.fascia;
  r.endSpan = r.span;
  r.endSlope = r.slope;
  r.endOverhang = r.overhang;
  r.hipSlope = F(r.slope / r.hipFactor);
  r.hipOverhang = F(r.overhang * r.hipFactor);
  r.hipDegrees = F(RoundTo(kDegrees * std::atan(r.hipSlope / r.base), 2));
  r.endDegrees = r.degrees;
  r.angle1 = r.angle2 = 45;
  r.plumb = Plumb(r.slope, r.depth, r.base);
  r.hipPlumb = Plumb(r.slope, r.hipDepth, r.hipRun);
  if (r.adjFascia > r.plumb) r.adjFascia = r.plumb;
  if ((r.type == 1 || valley) && r.adjFascia > r.hipPlumb) r.adjFascia = r.plumb;
  r.hipAllowance = F(std::sqrt(D{r.thickness} * r.thickness + D{r.thickness} * r.thickness) / 2);
  if (r.type == 2 || r.type == 14) {
    r.valAllowance = F(std::sqrt(D{r.ridge} * r.ridge + D{r.ridge} * r.ridge) / 2);
  } else {
    r.valAllowance = r.type == 15 ? r.hipThickness / 2 : 0;
  }
  r.allowance = r.type == 3 ? r.ridge : r.ridge / 2;
  HeelAndSeat(r, 0.6666667, true);
  r.drop = 0;
  if (r.type == 1) {
    r.drop = F((D{r.hipThickness} / 2) * std::tan(45 * kRadians));
    r.drop = F(D{r.drop} * r.slope / r.hipRun);
    r.hipHeel = F(D{r.commonHeel} - r.drop);
    r.adjFascia = F(D{r.adjFascia} - r.drop);
    r.hipSeat = F((D{r.hipPlumb} - r.hipHeel) * r.base / r.slope * r.hipFactor);
  } else if (valley) {
    r.hipSeat = F((D{r.hipPlumb} - r.heel) * r.base / r.slope * r.hipFactor);
  }
  r.hipSpan = F(r.span * r.hipFactor);
  r.ledgerSpan = 0;
  r.adjSpan = F(D{r.span} - r.allowance);
  r.adjHipSpan = F(D{r.hipSpan} - r.hipAllowance);
  r.adjValSpan = F(D{r.hipSpan} - r.valAllowance);
  r.adjSpanO = F(D{r.adjSpan} + r.overhang);
  r.adjHipSpanO = F(D{r.adjHipSpan} + r.hipOverhang);
  r.adjValSpanO = F(D{r.adjValSpan} + r.hipOverhang);
  r.rise = F(D{r.slope} * r.adjSpan / r.base);
  r.riseO = F(D{r.slope} * r.adjSpanO / r.base);
  r.kneewallRise = F(D{r.slope} * r.kneewall / r.base);
  r.common1 = r.end1 = Length(r.rise, r.adjSpan);
  r.common2 = r.end2 = Length(r.riseO, r.adjSpanO);
  if (r.type == 0 || r.type == 3) {
    r.length1 = r.common1;
    r.length2 = r.common2;
  } else if (r.type == 1) {
    r.length1 = Length(r.rise, r.adjHipSpan);
    r.length2 = Length(r.riseO, r.adjHipSpanO);
  } else if (valley) {
    r.length1 = Length(r.rise, r.adjValSpan);
    r.length2 = Length(r.riseO, r.adjValSpanO);
  }
  const float d = F(std::sqrt(D{r.slope} * r.slope + (r.base == 12 ? 144 : 1000000)));
  r.difference = r.endDifference = F(d / r.base);
  r.difference16 = r.endDifference16 = F(D{d} * 16 / r.base);
  r.difference24 = r.endDifference24 = F(D{d} + d);
  if (r.type == 0 || r.type == 3 || r.type == 1 || valley) {
    r.bottomBevelType = r.topBevelType = 0;
    r.bottomBevel = r.type == 1 || valley ? 45 : 0;
    r.topBevel = r.type == 1 || (valley && r.type != 15) ? 45 : 0;
  }
  r.pitch = Text(r.slope);
  r.endPitch = r.pitch;
  r.hipPitch = HipText(r.hipSlope);
}

void PlainBastardHip(PlainRafter& r) {
  r.excess = r.shift = 0;
  r.overhangsEqual = true;
  r.adjFascia = r.fascia;
  const float e = F(D{r.slope} / r.endSlope * r.span);
  const float m = F(std::sqrt(D{e} * e + D{r.span} * r.span) / r.span);
  r.plumb = Plumb(r.slope, r.depth, r.base);
  r.allowance = r.ridge / 2;
  r.adjSpan = F(D{r.span} - r.allowance);
  r.adjSpanO = F(D{r.adjSpan} + r.overhang);
  r.endOverhang = F(D{r.slope} / r.endSlope * r.overhang);
  r.endSpan = e;
  r.endAllowance = F(D{r.slope} / r.endSlope * r.allowance);
  r.adjEndSpan = F(D{r.endSpan} - r.endAllowance);
  r.adjEndSpanO = F(D{r.adjEndSpan} + r.endOverhang);
  r.endPlumb = Plumb(r.endSlope, r.depth, r.base);
  r.hipSlope = F(D{r.slope} / m);
  r.hipDegrees = F(RoundTo(kDegrees * std::atan(r.hipSlope / r.base), 2));
  r.hipOverhang = F(D{r.overhang} * m);
  r.hipSpan = F(D{r.span} * m);
  r.hipPlumb = Plumb(r.hipSlope, r.hipDepth, r.base);
  const D across = D{r.thickness} * r.endSpan / r.span;
  r.hipAllowance = F(std::sqrt(across * across + D{r.thickness} * r.thickness) / 2);
  r.adjHipSpan = F(D{r.hipSpan} - r.hipAllowance);
  r.adjHipSpanO = F(D{r.adjHipSpan} + r.hipOverhang);
  r.angle1 = F(kDegrees * std::atan(D{r.span} / r.endSpan));
  r.angle2 = F(90 - D{r.angle1});
  if (r.adjFascia > r.plumb) r.adjFascia = r.plumb;
  r.endFasciaCut = r.adjFascia > r.hipPlumb ? r.hipPlumb : r.adjFascia;
  HeelAndSeat(r, 0.6666667, false);
  r.endHeel = r.commonHeel;
  r.endSeat = F((D{r.endPlumb} - r.endHeel) * r.base / r.endSlope);
  r.drop = F((D{r.hipThickness} / 2) / std::sin(r.angle1 * kRadians));
  r.drop = F(D{r.drop} * r.endSlope / r.base);
  r.hipHeel = F(D{r.heel} - r.drop);
  r.hipSeat = F((D{r.hipPlumb} - r.hipHeel) * r.base / r.hipSlope);
  r.hipFasciaCut = F(D{r.adjFascia} - r.drop);
  r.rise = r.hipRise = r.endRise = F(D{r.slope} * r.adjSpan / r.base);
  r.riseO = r.hipRiseO = r.endRiseO = F(D{r.slope} * r.adjSpanO / r.base);
  r.common1 = Length(r.rise, r.adjSpan);
  r.end1 = Length(r.rise, r.adjEndSpan);
  r.common2 = Length(r.riseO, r.adjSpanO);
  r.end2 = Length(r.riseO, r.adjEndSpanO);
  r.length1 = Length(r.hipRise, r.adjHipSpan);
  r.length2 = Length(r.hipRiseO, r.adjHipSpanO);
  float a = F(r.base * r.endSpan / r.span);
  float d = Length(F(D{r.endSlope} * a / r.base), a);
  r.endDifference16 = F(D{d} * 16 / r.base);
  r.endDifference24 = F(D{d} + d);
  r.endDifference = F(d / r.base);
  a = F(r.base * r.span / r.endSpan);
  d = Length(F(D{r.slope} * a / r.base), a);
  r.difference16 = F(D{d} * 16 / r.base);
  r.difference24 = F(D{d} + d);
  r.difference = F(d / r.base);
  r.pitch = Text(r.slope);
  r.hipPitch = HipText(r.hipSlope);
  r.endPitch = Text(r.endSlope);
}

void PlainGambrel(PlainRafter& r) {
  r.adjFascia = r.fascia;
  r.plumb = Plumb(r.slope, r.depth, r.base);
  r.plumbRun = F(r.base * r.plumb / r.slope);
  if (r.adjFascia > r.plumb) r.adjFascia = r.plumb;
  const float own = F(kDegrees * F(std::atan(r.slope / r.base)));
  const float other = F(kDegrees * F(std::atan(r.hipSlope / r.base)));
  r.jointAngle = F((((90 - D{own}) + 90 + other) / 2) - (90 - D{own}));
  const float p = F(D{own} - r.jointAngle);
  const float q = F((D{r.ridge} / 2) / std::cos(p * kRadians));
  const float x = F(-(q * std::sin(-(90 - D{own}) * kRadians)));
  r.allowance = std::abs(x);
  r.jointCutAngle = F(90 - D{p});
  r.jointCut = F(r.depth / std::cos((90 - D{r.jointCutAngle}) * kRadians));
  r.jointOffset = 0;
  HeelAndSeat(r, 0.5, true);
  r.adjSpan = F(D{r.span} - r.allowance - r.jointOffset);
  r.adjSpanO = F(D{r.adjSpan} + r.overhang);
  r.riseToSpan = F(D{r.slope} * r.span / r.base);
  r.riseToSpanO = F((D{r.span} + r.overhang) * r.slope / r.base);
  r.rise = F(D{r.slope} * r.adjSpan / r.base);
  r.riseO = F(D{r.slope} * r.adjSpanO / r.base);
  r.common1 = r.length1 = Length(r.rise, r.adjSpan);
  r.common2 = r.length2 = Length(r.riseO, r.adjSpanO);
  r.pitch = Text(r.slope);
}

void PlainBay(PlainRafter& r) {
  if (D{r.projection} * r.face * r.back * r.bayAngle == 0) return;
  const D half = D{r.bayAngle} / 2 * kRadians;
  const D rest = (90 - D{r.bayAngle}) * kRadians;
  r.adjFascia = r.fascia;
  r.hipSlope = F(r.base * r.slope / r.hipRunFactor);
  r.ledgerSlope = F(r.base * r.slope / r.ledgerRunFactor);
  r.hipDegrees = F(RoundTo(kDegrees * std::atan(r.hipSlope / r.base), 2));
  r.ledgerDegrees = F(RoundTo(kDegrees * std::atan(r.ledgerSlope / r.base), 2));
  r.allowance = r.ridge;
  r.hipAllowance = F(r.ridge / std::cos(half));
  r.ledgerAllowance = F(r.ridge * std::tan(half));
  r.centerLength = F(r.back + 2 * D{r.ridge} * std::tan(half));
  r.ledgerDrop = F(r.ridge * std::tan(rest));
  r.ledgerDrop = F(D{r.ledgerDrop} * r.slope / r.ledgerRunFactor);
  r.drop = F((D{r.hipThickness} / 2) * std::tan(half));
  r.drop = F(D{r.drop} * r.slope / r.hipRunFactor);
  r.hipOverhang = F(D{r.overhang} * r.hipRunFactor / r.base);
  r.ledgerOverhang = F(D{r.overhang} * r.ledgerRunFactor / r.base);
  r.plumb = Plumb(r.slope, r.depth, r.base);
  HeelAndSeat(r, 0.6666667, false);
  if (r.adjFascia > r.plumb) r.adjFascia = r.plumb;
  r.hipHeel = F(D{r.heel} - r.drop);
  r.hipFascia = F(D{r.adjFascia} - r.drop);
  r.hipPlumb = Plumb(r.slope, r.hipDepth, r.hipRunFactor);
  r.hipSeat = F((D{r.hipPlumb} - r.hipHeel) * r.base / r.hipSlope);
  if (r.hipFascia > r.hipPlumb) r.hipFascia = r.hipPlumb;
  r.ledgerHeel = F(D{r.heel} - r.ledgerDrop);
  r.ledgerFascia = F(D{r.adjFascia} - r.ledgerDrop);
  r.ledgerPlumb = Plumb(r.slope, r.ridgeDepth, r.ledgerRunFactor);
  r.ledgerSeat = F((D{r.ledgerPlumb} - r.ledgerHeel) * r.base / r.ledgerSlope);
  if (r.ledgerFascia > r.ledgerPlumb) r.ledgerFascia = r.ledgerPlumb;
  r.hipSpan = F(D{r.projection} * r.hipRunFactor / r.base);
  r.ledgerSpan = F(D{r.projection} * r.ledgerRunFactor / r.base);
  r.adjSpan = F(D{r.projection} - r.allowance);
  r.adjHipSpan = F(D{r.hipSpan} - r.hipAllowance);
  r.adjLedgerSpan = F(D{r.ledgerSpan} - r.ledgerAllowance);
  r.adjSpanO = F(D{r.adjSpan} + r.overhang);
  r.adjHipSpanO = F(D{r.adjHipSpan} + r.hipOverhang);
  r.adjLedgerSpanO = F(D{r.adjLedgerSpan} + r.ledgerOverhang);
  r.rise = F(D{r.slope} * r.adjSpan / r.base);
  r.riseO = F(D{r.slope} * r.adjSpanO / r.base);
  r.hipRise = F(D{r.hipSlope} * r.adjHipSpan / r.base);
  r.hipRiseO = F(D{r.hipSlope} * r.adjHipSpanO / r.base);
  r.ledgerRise = F(D{r.ledgerSlope} * r.adjLedgerSpan / r.base);
  r.ledgerRiseO = F(D{r.ledgerSlope} * r.adjLedgerSpanO / r.base);
  r.length1 = Length(r.rise, r.adjSpan);
  r.length2 = Length(r.riseO, r.adjSpanO);
  r.hip1 = Length(r.hipRise, r.adjHipSpan);
  r.hip2 = Length(r.hipRiseO, r.adjHipSpanO);
  r.ledger1 = Length(r.ledgerRise, r.adjLedgerSpan);
  r.ledger2 = Length(r.ledgerRiseO, r.adjLedgerSpanO);
  const D length = std::sqrt(D{r.slope} * r.slope + 144);
  r.hipDifference16 = F(length * ((16 / std::tan(half)) / r.base));
  r.hipDifference24 = F(length * ((24 / std::tan(half)) / r.base));
  r.ledgerDifference16 = F(length * ((16 / std::tan(rest)) / r.base));
  r.ledgerDifference24 = F(length * ((24 / std::tan(rest)) / r.base));
  r.hipPitch = PlainText(r.hipSlope).substr(0, r.hipSlope >= 10 ? 5 : 4) + "/" + PlainText(12);
  r.pitch = Text(r.slope);
}

void PlainOctagon(PlainRafter& r) {
  const D tangent = std::tan(22.5 * kRadians);
  r.adjFascia = r.fascia;
  if (r.span == 0) {
    r.span = F(r.hipSpan * 0.923879532511);
  } else if (r.hipSpan == 0) {
    r.hipSpan = F(r.span / 0.923879532511);
  }
  r.endSpan = F(r.span * tangent + r.span * tangent);
  const float m = F(D{r.hipSpan} / r.span);
  r.plumb = Plumb(r.slope, r.depth, r.base);
  r.allowance = 0;
  r.adjSpan = F(r.span - (D{r.spacing} / 2) / tangent - (D{r.hipThickness} / 2) / std::cos(67.5 * kRadians));
  r.adjSpanO = F(D{r.adjSpan} + r.overhang);
  r.hipSlope = F(D{r.slope} / m);
  r.hipDegrees = F(RoundTo(kDegrees * std::atan(r.hipSlope / r.base), 2));
  r.hipOverhang = F(D{r.overhang} * m);
  r.hipSpan = F(D{r.span} * m);
  r.hipPlumb = Plumb(r.hipSlope, r.hipDepth, r.base);
  r.hipAllowance = 0;
  r.adjHipSpan = r.hipSpan;
  r.adjHipSpanO = F(D{r.adjHipSpan} + r.hipOverhang);
  r.angle1 = 67.5;
  r.angle2 = 22.5;
  if (r.adjFascia > r.plumb) r.adjFascia = r.plumb;
  r.endFasciaCut = r.adjFascia > r.hipPlumb ? r.hipPlumb : r.adjFascia;
  HeelAndSeat(r, 0.6666667, false);
  r.drop = F((D{r.hipThickness} / 2) * std::tan(r.angle2 * kRadians));
  r.drop = F(D{r.drop} * r.slope / r.base);
  r.hipHeel = F(D{r.heel} - r.drop);
  r.hipSeat = F((D{r.hipPlumb} - r.hipHeel) * r.base / r.hipSlope);
  r.hipFasciaCut = F(D{r.adjFascia} - r.drop);
  r.rise = F(D{r.slope} * r.span / r.base);
  r.riseO = F((D{r.span} + r.overhang) * r.slope / r.base);
  r.length1 = Length(r.rise, r.adjHipSpan);
  r.length2 = Length(r.riseO, r.adjHipSpanO);
  const float run = F(r.spacing / tangent);
  const float d = Length(run * D{r.slope} / r.base, run);
  r.difference16 = F(D{d} * 16 / r.base);
  r.difference24 = F(D{d} * 24 / r.base);
  r.difference = d;
  r.pitch = Text(r.slope);
  r.hipPitch = HipText(r.hipSlope);
}

}  // namespace pitchcraft::bench
