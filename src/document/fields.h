// Entries of the sheet's fields and boxes: each brings what was typed into the design and calculates. `index`
// is that of the field.
#pragma once

#include "design/design.h"

namespace pitchcraft {

void SpanEntered(Design& design, Reply& reply, int index);
void SpanConfirmed(Design& design, Reply& reply, int index);  ///< by Enter, which takes no run of 0
void OverhangEntered(Design& design, Reply& reply, int index);
void HeelEdited(Design& design, Reply& reply, int index);
void SeatEdited(Design& design, Reply& reply, int index);
void HeelEntered(Design& design, Reply& reply, int index);
void SeatEntered(Design& design, Reply& reply, int index);
void KneewallEntered(Design& design, Reply& reply, int index);
void LastCommonEntered(Design& design, Reply& reply, int);
void LastCommonConfirmed(Design& design, Reply& reply, int);
void RidgeLengthEntered(Design& design, Reply& reply, int index);
void FasciaEntered(Design& design, Reply& reply, int index);
void CommonEntered(Design& design, Reply& reply, int index);
void RidgeEntered(Design& design, Reply& reply, int);
void HipOrValleyEntered(Design& design, Reply& reply, int);
void SpacingEntered(Design& design, Reply& reply, int);
void UpperFasciaChosen(Design& design, Reply& reply, int);
void BayFieldEntered(Design& design, Reply& reply, int);
void BayReset(Design& design, Reply& reply, int);

void HeelLockClicked(Design& design, Reply& reply, int index);
void SeatLockClicked(Design& design, Reply& reply, int index);
void KneewallClicked(Design& design, Reply& reply, int index);
void LastCommonClicked(Design& design, Reply& reply, int);

void RoofPicked(Design& design, Reply& reply, int);

/// One step of a spin button, by `step` up or down, and the commit of its field.
void StepSpin(Design& design, Reply& reply, int index, double step);

/// A box that switches a field on and off: its own mark, the field, its label, the focus. Gives whether it is
/// on.
bool TakeTick(Reply& reply, CheckControl& box, MeasureControl& field, LabelControl& label);

/// The shortest overhang that a plumb fascia needs where the one entered is shorter, else 0.
double LeastOverhang(const Design& design, std::size_t row);

}  // namespace pitchcraft
