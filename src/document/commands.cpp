#include "document/commands.h"

#include "design/questions.h"
#include "document/calculate.h"
#include "document/fields.h"
#include "roofs/dutch_hip.h"
#include "roofs/gambrel.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"

namespace pitchcraft {

void SetSlopeMode(Design& design, bool inDegrees) {
  design.InDegrees = inDegrees;
  ShowSlopeRow(design, 0);
  for (const std::size_t row : {1, 2}) {
    if (design.sheet.Slope[row].Visible || design.sheet.Degrees[row].Visible) ShowSlopeRow(design, row);
  }
}

void ChooseSlopeMode(Design& design, Reply&, int inDegrees) { SetSlopeMode(design, inDegrees != 0); }

// Square and level cuts take the fascia height from the rafter, so the field shows none to enter; what it
// showed is kept for the way back.
void ChooseFasciaCut(Design& design, Reply& reply, int cut) {
  const bool wasPlumb = design.Cut == FasciaCut::kPlumb;
  design.Cut = static_cast<FasciaCut>(cut);
  const bool plumb = design.Cut == FasciaCut::kPlumb;
  for (std::size_t row = 0; row < 2; ++row) {
    PairControl& fascia = design.sheet.Fascia[row];
    std::string& kept = design.KeptFasciaHeight[row];
    if (wasPlumb && !plumb) kept = fascia.RightText();
    if (!wasPlumb && plumb && !kept.empty()) fascia.SetRightText(kept);
    fascia.Enabled = plumb;
  }
  if (design.RoofType == Roof::kGambrel) CalculateNow(design, reply);
}

void ChooseHipLayout(Design& design, Reply&, int layout) { design.Layout = static_cast<JackLayout>(layout); }

void ToggleJackMeasurement(Design& design, Reply&, int) {
  design.JacksWithOverhang = !design.JacksWithOverhang;
}

void ToggleOverhangsEqual(Design& design, Reply& reply, int) {
  design.OverhangsEqual = !design.OverhangsEqual;
  CalculateNow(design, reply);
  // The moved end wall may leave the last common where it cannot be.
  if (OnDesignPage(design)) LastCommonEntered(design, reply, 0);
}

void ChooseLedger(Design& design, Reply& reply, int row) {
  if (design.RoofType != Roof::kDutchHip || (row != 0 && row != 1)) return;
  ChooseDutchLedger(design, row == 0);
  CalculateNow(design, reply);
}

void LedgerPicked(Design& design, Reply& reply, int) {
  ChooseLedger(design, reply, design.sheet.Ledger.ListIndex());
}

void ChooseGambrel(Design& design, Reply& reply, int kind) {
  ChooseGambrelKind(design, reply, static_cast<GambrelKind>(kind));
}

void ChooseSupport(Design& design, Reply& reply, int support) {
  ChooseGambrelSupport(design, reply, static_cast<GambrelSupport>(support));
}

void ToggleHeelLock(Design& design, Reply& reply, int) {
  const bool shown = design.sheet.HeelLock[design.LockRow].Ticked();
  const std::size_t row = RowShown(design);
  design.sheet.HeelLock[row].Value = shown ? 0 : 1;
  HeelLockClicked(design, reply, static_cast<int>(row));
}

void ToggleSeatLock(Design& design, Reply& reply, int) {
  const bool shown = design.sheet.SeatLock[design.LockRow].Ticked();
  const std::size_t row = RowShown(design);
  design.sheet.SeatLock[row].Value = shown ? 0 : 1;
  SeatLockClicked(design, reply, static_cast<int>(row));
}

void ClickGambrelLock(Design& design, Reply&, int which) {
  GambrelLockClicked(design, static_cast<std::size_t>(which));
}

}  // namespace pitchcraft
