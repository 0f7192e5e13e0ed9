// A bay or a Dutch hip end: common, hip at the angled corner, ledger rafter along the main wall, all at once.
#include "core/number_text.h"
#include "core/rafter.h"
#include "core/triangles.h"

namespace pitchcraft {
namespace {

using Type = Member;

}  // namespace

void Rafter::CalculateBay() {
  if (!HasBay()) return;
  AdjFasciaHeight = FasciaHeight;
  CalculateBaySlopes();
  CalculateBayAllowancesAndDrops();
  let(HipValOverhang) = Overhang * HipRunFactor / SlopeBase;
  let(LedgerOverhang) = Overhang * LedgerRunFactor / SlopeBase;
  CalculateBayHeel();
  CalculateBayHip();
  CalculateBayLedger();
  CalculateBayRuns();
  CalculateBayRisesAndLengths();
  CalculateBayJackDifferences();
  WriteBayTexts();
}

void Rafter::CalculateBaySlopes() {
  HipValSlope = SlopeBase * Slope / HipRunFactor;
  let(LedgerSlope) = SlopeBase * Slope / LedgerRunFactor;
  let(HipDegrees) = RoundedDegrees(HipValSlope);
  LedgerDegrees = RoundedDegrees(LedgerSlope);
}

void Rafter::CalculateBayAllowancesAndDrops() {
  // A bay's rafters butt the main wall or its ledger, so the whole board is in their way.
  let(RidgeAllowance) = RidgeThickness;
  let(HipRidgeAllowance) = RidgeThickness / CosDegrees(BayAngle / 2);
  let(LedgerRidgeAllowance) = RidgeThickness * TanDegrees(BayAngle / 2);
  CenterLedgerLength = CenterLedgerSpan + 2 * RidgeThickness * TanDegrees(BayAngle / 2);
  let(LedgerDrop) = RidgeThickness * TanDegrees(90 - BayAngle);
  let(LedgerDrop) = LedgerDrop * Slope / LedgerRunFactor;
  let(HipDrop) = (HipValThickness / 2) * TanDegrees(BayAngle / 2);
  let(HipDrop) = HipDrop * Slope / HipRunFactor;
}

void Rafter::CalculateBayHeel() {
  let(PlumbCut) = PlumbDepth(Slope, Depth, SlopeBase);
  // A bay takes any lock but 0 for a set one.
  ApplyLocks(HeelLocked.Stored() != 0, SeatLocked.Stored() != 0, kDefaultHeelShare);
  LimitHeel(kDefaultHeelShare, ZeroHeel::kTakesDefault);
  LimitTo(AdjFasciaHeight, PlumbCut);
  // A bay without an overhang closes its rafter ends down to the wall, however low the fascia: the fascia of
  // the common is its heel then, and those of hip and ledger, each less its drop, are their heels.
  if (Overhang == 0) AdjFasciaHeight = PlumbCut;
  LimitFasciaWithoutOverhang();
}

void Rafter::CalculateBayHip() {
  let(HipHeel) = Heel - HipDrop;
  HipFasciaHeight = AdjFasciaHeight - HipDrop;
  let(HipValPlumbCut) = PlumbDepth(Slope, HipValDepth, HipRunFactor);
  let(HipValSeat) = SeatBelow(HipValPlumbCut, HipHeel, HipValSlope);
  LimitTo(HipFasciaHeight, HipValPlumbCut);
}

void Rafter::CalculateBayLedger() {
  LedgerHeel = Heel - LedgerDrop;
  LedgerFasciaHeight = AdjFasciaHeight - LedgerDrop;
  let(LedgerPlumbCut) = PlumbDepth(Slope, RidgeDepth, LedgerRunFactor);  // it is cut from ridge lumber
  let(LedgerSeat) = SeatBelow(LedgerPlumbCut, LedgerHeel, LedgerSlope);
  LimitTo(LedgerFasciaHeight, LedgerPlumbCut);
}

void Rafter::CalculateBayRuns() {
  HipValSpan = Projection * HipRunFactor / SlopeBase;
  let(LedgerSpan) = Projection * LedgerRunFactor / SlopeBase;
  AdjSpan = Projection - RidgeAllowance;
  AdjHipSpan = HipValSpan - HipRidgeAllowance;
  let(AdjLedgerSpan) = LedgerSpan - LedgerRidgeAllowance;
  AdjSpanWithOverhang = AdjSpan + Overhang;
  AdjHipSpanWithOverhang = AdjHipSpan + HipValOverhang;
  AdjLedgerSpanWithOverhang = AdjLedgerSpan + LedgerOverhang;
}

void Rafter::CalculateBayRisesAndLengths() {
  Rise = RiseOver(AdjSpan);
  RiseWithOverhang = RiseOver(AdjSpanWithOverhang);
  HipRise = HipValSlope * AdjHipSpan / SlopeBase;
  HipRiseWithOverhang = HipValSlope * AdjHipSpanWithOverhang / SlopeBase;
  LedgerRise = LedgerSlope * AdjLedgerSpan / SlopeBase;
  LedgerRiseWithOverhang = LedgerSlope * AdjLedgerSpanWithOverhang / SlopeBase;
  Length1 = Hypotenuse(Rise, AdjSpan);
  let(Length2) = Hypotenuse(RiseWithOverhang, AdjSpanWithOverhang);
  let(HipLength1) = Hypotenuse(HipRise, AdjHipSpan);
  let(HipLength2) = Hypotenuse(HipRiseWithOverhang, AdjHipSpanWithOverhang);
  let(LedgerLength1) = Hypotenuse(LedgerRise, AdjLedgerSpan);
  let(LedgerLength2) = Hypotenuse(LedgerRiseWithOverhang, AdjLedgerSpanWithOverhang);
}

void Rafter::CalculateBayJackDifferences() {
  // A jack's length for SlopeBase of run. It is reckoned in inches in metric too, and stays so.
  const double length = std::sqrt(Slope * Slope + 144);
  const double hipCorner = TanDegrees(BayAngle / 2);
  let(HipCommonDifference16) = length * ((16 / hipCorner) / SlopeBase);
  let(HipCommonDifference24) = length * ((24 / hipCorner) / SlopeBase);
  if (BayAngle == 90) {  // jacks beside a square corner run along the ledger and never meet it
    let(LedgerCommonDifference16) = 0;
    let(LedgerCommonDifference24) = 0;
    return;
  }
  const double ledgerCorner = TanDegrees(90 - BayAngle);
  let(LedgerCommonDifference16) = length * ((16 / ledgerCorner) / SlopeBase);
  let(LedgerCommonDifference24) = length * ((24 / ledgerCorner) / SlopeBase);
}

// Each page of a bay shows its own two texts, all cut to the width of the slope that the page is about. The
// center ledger is level and has none.
void Rafter::WriteBayTexts() {
  const std::string slope = PlainText(WholeInMetric(Slope));
  const std::string hipSlope = PlainText(WholeInMetric(HipValSlope));
  if (RafterType == Type::kBayCommon) {
    let(HipPitch) = PerSlopeBase(CutText(hipSlope, HipValSlope));
    let(Pitch) = PerSlopeBase(SignedText(Slope));
  } else if (RafterType == Type::kBayHip) {
    let(Pitch) = PerSlopeBase(CutText(slope, HipValSlope));
    let(HipPitch) = PerSlopeBase(CutText(hipSlope, HipValSlope));
  } else if (RafterType == Type::kBayLedger) {
    let(Pitch) = PerSlopeBase(IsMetric() ? slope : CutText(slope, LedgerSlope));
    let(LedgerPitch) = PerSlopeBase(CutText(PlainText(LedgerSlope), LedgerSlope));
  }
}

}  // namespace pitchcraft
