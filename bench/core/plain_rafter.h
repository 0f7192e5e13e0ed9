// What the core's benchmark compares with: the same formulas, written out over a struct of floats.
#pragma once

#include <string>

namespace pitchcraft::bench {

struct PlainRafter {
  int type = 0;
  double base = 12;
  double hipRun = 16.970562;
  double hipFactor = 16.970562 / 12;
  // Inputs.
  float slope, span, overhang, thickness, depth, fascia, ridge, ridgeDepth, hipThickness, hipDepth, spacing,
      kneewall, degrees, endSlope, back, face, projection, bayAngle, hipRunFactor, ledgerRunFactor;
  float heel, seat;
  bool heelLocked, seatLocked, overhangsEqual, purlins;
  // Results.
  float excess, endDrop, shift, adjFascia, endSpan, endOverhang, hipSlope, hipOverhang, hipDegrees,
      endDegrees, angle1, angle2, plumb, hipPlumb, endPlumb, hipAllowance, valAllowance, allowance,
      commonHeel, commonSeat, drop, hipHeel, hipSeat, endHeel, endSeat, hipFasciaCut, endFasciaCut,
      endAllowance, hipSpan, ledgerSpan, adjSpan, adjHipSpan, adjValSpan, adjEndSpan, adjSpanO, adjHipSpanO,
      adjValSpanO, adjEndSpanO, rise, riseO, hipRise, hipRiseO, endRise, endRiseO, kneewallRise, common1,
      common2, end1, end2, length1, length2, difference, difference16, difference24, endDifference,
      endDifference16, endDifference24, bottomBevel, topBevel, plumbRun, jointAngle, jointCutAngle, jointCut,
      jointOffset, topCutAngle, riseToSpan, riseToSpanO, ledgerSlope, ledgerDegrees, ledgerAllowance,
      centerLength, ledgerDrop, ledgerOverhang, hipFascia, ledgerHeel, ledgerFascia, ledgerPlumb, ledgerSeat,
      adjLedgerSpan, adjLedgerSpanO, ledgerRise, ledgerRiseO, hip1, hip2, ledger1, ledger2, hipDifference16,
      hipDifference24, ledgerDifference16, ledgerDifference24;
  int bottomBevelType, topBevelType;
  std::string pitch, hipPitch, endPitch, ledgerPitch;
};

void PlainCalculate(PlainRafter& r);
void PlainBastardHip(PlainRafter& r);
void PlainGambrel(PlainRafter& r);
void PlainBay(PlainRafter& r);
void PlainOctagon(PlainRafter& r);

}  // namespace pitchcraft::bench
