// The Settings, Hip Layout, Dutch Hip and Gambrel menus: each changes one choice of the design.
#pragma once

#include "design/design.h"

namespace pitchcraft {

/// Of slope and degrees rows 1 and 2 follow only while one of their two boxes shows, so that a row not in use
/// stays hidden.
void SetSlopeMode(Design& design, bool inDegrees);
// Commands of menu items, tool buttons and boxes. The index says which of several it is.
void ChooseSlopeMode(Design& design, Reply& reply, int inDegrees);
void ChooseFasciaCut(Design& design, Reply& reply, int cut);     ///< a FasciaCut
void ChooseHipLayout(Design& design, Reply& reply, int layout);  ///< a JackLayout
void ToggleJackMeasurement(Design& design, Reply& reply, int = 0);
void ToggleOverhangsEqual(Design& design, Reply& reply, int = 0);
void ChooseLedger(Design& design, Reply& reply, int row);  ///< 0 with a ledger, 1 without
void LedgerPicked(Design& design, Reply& reply, int = 0);
void ChooseGambrel(Design& design, Reply& reply, int kind);     ///< a GambrelKind
void ChooseSupport(Design& design, Reply& reply, int support);  ///< a GambrelSupport
void ToggleHeelLock(Design& design, Reply& reply, int = 0);     ///< of the row that is shown
void ToggleSeatLock(Design& design, Reply& reply, int = 0);
void ClickGambrelLock(Design& design, Reply& reply, int which);

}  // namespace pitchcraft
