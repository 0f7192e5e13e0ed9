#include "document/fields.h"

#include <algorithm>
#include <cmath>

#include "design/questions.h"
#include "document/calculate.h"
#include "roofs/bay.h"
#include "roofs/bay_dimensions.h"
#include "roofs/gambrel.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"
#include "roofs/switch_roof.h"

namespace pitchcraft {
namespace {

std::size_t RowOf(int index) { return static_cast<std::size_t>(index); }

Rafter& RecordOf(Design& design, int index) { return index == 0 ? design.Rafter1 : design.Rafter2; }

// Only the rear roof of a dual slope has a row of its own.
void RecalculateRear(Design& design) {
  design.Rafter2.Calculate();
  ShowRear(design);
}

void StorePair(Design& design, Reply& reply, int index, const PairControl& field, Single Rafter::*left,
               Single Rafter::*right, Lumber which) {
  Rafter& rafter = RecordOf(design, index);
  rafter.*left = field.LeftValue();
  rafter.*right = field.RightValue();
  if (index == 1) return RecalculateRear(design);
  RoofOf(design).LumberEntered(design, reply, which);
}

// They matter only while locked: an unlocked entry is overwritten by the next result.
void HeelOrSeatEntered(Design& design, Reply& reply, int index, bool isSeat) {
  const auto& locks = isSeat ? design.sheet.SeatLock : design.sheet.HeelLock;
  if (!locks[RowOf(index)].Ticked()) {
    if (design.RoofType == Roof::kGambrel) CalculateNow(design, reply);
    return;
  }
  if (isSeat) {
    SeatEdited(design, reply, index);
  } else {
    HeelEdited(design, reply, index);
  }
  if (index == 0) {
    CalculateNow(design, reply);
  } else if (isSeat) {
    RecalculateRear(design);  // a rear heel waits for the next calculation, a rear seat does not
  }
}

// A heel and a seat cannot both be locked: each follows from the other.
void LockClicked(Design& design, Reply& reply, int index, bool isSeat) {
  const std::size_t row = RowOf(index);
  Sheet& sheet = design.sheet;
  Rafter& rafter = RecordOf(design, index);
  const CheckControl& own = (isSeat ? sheet.SeatLock : sheet.HeelLock)[row];
  CheckControl& other = (isSeat ? sheet.HeelLock : sheet.SeatLock)[row];
  (isSeat ? rafter.SeatLocked : rafter.HeelLocked) = own.Ticked();
  design.LockRow = row;
  if (own.Ticked()) {
    other.Value = 0;
    (isSeat ? rafter.HeelLocked : rafter.SeatLocked) = false;
  } else if (index == 1) {
    RecalculateRear(design);
  } else if (design.RoofType != Roof::kGambrel) {
    CalculateNow(design, reply);
  }
  reply.GiveFocus((isSeat ? sheet.Seat : sheet.Heel)[row]);
}

}  // namespace

void RoofPicked(Design& design, Reply& reply, int) {
  const RoofType* type = RoofTypeByItem(design.sheet.RoofList.Text());
  if (type != nullptr) SwitchRoof(design, reply, *type);
}

void SpanEntered(Design& design, Reply& reply, int index) {
  const double value = design.sheet.Span[RowOf(index)].Value();
  if (value < 0) return;
  if (index == 0) {
    design.Rafter1.Span = value;
    RoofOf(design).RunEntered(design, reply);
  } else if (index == 1) {
    design.Rafter2.Span = value;
    RecalculateRear(design);
  } else {
    RoofOf(design).ExtraRunEntered(design, reply);
  }
}

void SpanConfirmed(Design& design, Reply& reply, int index) {
  if (design.sheet.Span[RowOf(index)].Value() > 0) SpanEntered(design, reply, index);
}

void OverhangEntered(Design& design, Reply& reply, int index) {
  const double value = design.sheet.Overhang[RowOf(index)].Value();
  if (value < 0) return;
  RecordOf(design, index).Overhang = value;
  if (index == 1) return RecalculateRear(design);
  RoofOf(design).OverhangEntered(design, reply);
}

void HeelEdited(Design& design, Reply&, int index) {
  const std::size_t row = RowOf(index);
  if (design.sheet.HeelLock[row].Ticked()) RecordOf(design, index).Heel = design.sheet.Heel[row].Value();
}

void SeatEdited(Design& design, Reply&, int index) {
  const std::size_t row = RowOf(index);
  if (design.sheet.SeatLock[row].Ticked()) RecordOf(design, index).Seat = design.sheet.Seat[row].Value();
}

void HeelEntered(Design& design, Reply& reply, int index) { HeelOrSeatEntered(design, reply, index, false); }
void SeatEntered(Design& design, Reply& reply, int index) { HeelOrSeatEntered(design, reply, index, true); }
void HeelLockClicked(Design& design, Reply& reply, int index) { LockClicked(design, reply, index, false); }
void SeatLockClicked(Design& design, Reply& reply, int index) { LockClicked(design, reply, index, true); }

bool TakeTick(Reply& reply, CheckControl& box, MeasureControl& field, LabelControl& label) {
  const bool on = box.Ticked();
  box.Caption = on ? "a" : "";  // the tick of the symbol font
  field.Enabled = on;
  field.Grayed = !on;
  label.Enabled = on;
  if (on) reply.GiveFocus(field);
  return on;
}

void KneewallClicked(Design& design, Reply& reply, int index) {
  const std::size_t row = RowOf(index);
  Sheet& sheet = design.sheet;
  const bool on = TakeTick(reply, sheet.HasKneewall[row], sheet.Kneewall[row], sheet.Label[row]);
  RecordOf(design, index).Kneewall = on ? sheet.Kneewall[row].Value() : 0;
  if (index == 1) {
    RecalculateRear(design);
  } else {
    CalculateNow(design, reply);
  }
  if (!on) FocusSlope(design, reply, RowShown(design));
}

void KneewallEntered(Design& design, Reply& reply, int index) {
  const double value = design.sheet.Kneewall[RowOf(index)].Value();
  if (!(value > 0)) return;
  RecordOf(design, index).Kneewall = value;
  if (index == 1) return RecalculateRear(design);
  CalculateNow(design, reply);
}

void LastCommonClicked(Design& design, Reply& reply, int) {
  Sheet& sheet = design.sheet;
  const bool on = TakeTick(reply, sheet.HasLastCommon, sheet.LastCommon, sheet.Label[23]);
  CalculateNow(design, reply);
  if (!on) FocusSlope(design, reply, IsUnequalHip(design) ? 2 : 0);
}

void LastCommonEntered(Design& design, Reply& reply, int) {
  MeasureControl& field = design.sheet.LastCommon;
  const Rafter& rafter = design.Rafter1;
  if (field.Value() < rafter.HipEndSpan) {
    field.SetValue(rafter.HipEndSpan);
  } else if (field.Value() > rafter.HipEndSpan + rafter.spacing) {
    // A value that nobody uses, left over from another roof, is put right without a word.
    if (design.sheet.HasLastCommon.Ticked()) {
      reply.Say("Distance to last common cannot be more than the hipend span plus the rafter spacing (" +
                design.sheet.Spacing.Text() + ")");
    }
    field.SetValue(rafter.HipEndSpan);
  }
}

void LastCommonConfirmed(Design& design, Reply& reply, int index) {
  LastCommonEntered(design, reply, index);
  FocusSlope(design, reply, 0);
}

void RidgeLengthEntered(Design& design, Reply& reply, int index) {
  RoofOf(design).RidgeLengthEntered(design, reply, RowOf(index));
}

// The guards look at the sizes that the rafter holds, not at the entry.

void FasciaEntered(Design& design, Reply& reply, int index) {
  const Rafter& rafter = RecordOf(design, index);
  if (rafter.FasciaHeight * rafter.FasciaThickness < 0) return;
  StorePair(design, reply, index, design.sheet.Fascia[RowOf(index)], &Rafter::FasciaThickness,
            &Rafter::FasciaHeight, Lumber::kFascia);
}

void CommonEntered(Design& design, Reply& reply, int index) {
  const Rafter& rafter = RecordOf(design, index);
  if (!(rafter.Depth * rafter.Thickness > 0)) return;
  StorePair(design, reply, index, design.sheet.Common[RowOf(index)], &Rafter::Thickness, &Rafter::Depth,
            Lumber::kRafter);
}

void HipOrValleyEntered(Design& design, Reply& reply, int) {
  if (!(design.Rafter1.HipValThickness * design.Rafter1.HipValDepth > 0)) return;
  StorePair(design, reply, 0, design.sheet.HipOrValley, &Rafter::HipValThickness, &Rafter::HipValDepth,
            Lumber::kHipOrValley);
}

void RidgeEntered(Design& design, Reply& reply, int) {
  if (design.Rafter1.RidgeThickness < 0 || design.Rafter1.RidgeDepth < 0) return;
  StorePair(design, reply, 0, design.sheet.Ridge, &Rafter::RidgeThickness, &Rafter::RidgeDepth,
            Lumber::kRidge);
}

void SpacingEntered(Design& design, Reply& reply, int) {
  const Single spacing = LengthFormat(design).ToValue(design.sheet.Spacing.Text());
  SetSpacing(design, spacing);
  // 16" and not 1' 4"
  if (!design.Metric) design.sheet.Spacing.SetText(InchesAlone(design).ToText(spacing));
  RoofOf(design).SpacingEntered(design, reply);
}

void UpperFasciaChosen(Design& design, Reply& reply, int) { UpperFasciaEntered(design, reply); }

void BayFieldEntered(Design& design, Reply& reply, int) { BayDimensionEntered(design, reply); }

void BayReset(Design& design, Reply& reply, int) { ResetBay(design, reply); }

void StepSpin(Design& design, Reply& reply, int index, double step) {
  struct Target {
    MeasureControl* field = nullptr;
    void (*commit)(Design&, Reply&, int) = nullptr;
    int index = 0;
  };
  Sheet& sheet = design.sheet;
  const auto span = [&](int i) { return Target{&sheet.Span[RowOf(i)], &SpanEntered, i}; };
  const auto overhang = [&](int i) { return Target{&sheet.Overhang[RowOf(i)], &OverhangEntered, i}; };
  const auto ridge = [&](int i) { return Target{&sheet.RidgeLength[RowOf(i)], &RidgeLengthEntered, i}; };
  const bool gambrel = design.RoofType == Roof::kGambrel;
  //                            Spin(0)   (1)           (2)      (3)       (4)       (5)      (6) (7)
  const Target usual[] = {span(0), overhang(0), span(2), ridge(0), ridge(1), span(1), overhang(1), {}};
  const Target onGambrel[] = {{}, overhang(0), span(2), span(0), ridge(0), {}, {}, ridge(1)};
  const Target& target = (gambrel ? onGambrel : usual)[index];
  if (target.field == nullptr) return;
  double value = target.field->Value();
  if (step > 0 || gambrel || value > 0) value += step;
  if (step < 0) value = std::max(value, 0.0);
  target.field->SetValue(value);
  target.commit(design, reply, target.index);
}

double LeastOverhang(const Design& design, std::size_t row) {
  if (design.Cut == FasciaCut::kSquare) return 0;
  const Rafter& rafter = row == 0 ? design.Rafter1 : design.Rafter2;
  // At slope 0 the angle is a plain 90, read as radians like the others: there is no fascia to speak of then.
  const double angle = rafter.Slope == 0 ? 90.0 : std::atan(UnitRun(design) / rafter.Slope);
  const double dx = std::abs(rafter.Depth * std::cos(-angle));
  return design.sheet.Overhang[row].Value() < dx ? dx : 0;
}

}  // namespace pitchcraft
