// A roof type is picked: rows, captions and menus are rearranged, then the roof is calculated.
#pragma once

#include "roofs/roof_type.h"

namespace pitchcraft {

/// Leaves the present roof type and sets up the other one, on its design page. Calculates nothing but what
/// setting up needs.
void ArrangeRoof(Design& design, Reply& reply, const RoofType& type);
/// The same from the design page, and its first calculation.
void SwitchRoof(Design& design, Reply& reply, const RoofType& type);

/// Shows a page of the roof type, with what choosing it leaves behind.
void TurnPage(Design& design, Reply& reply, int page);

/// The text of the status bar for a control; empty where there is none.
const char* HintOf(const Design& design, std::string_view control);

}  // namespace pitchcraft
