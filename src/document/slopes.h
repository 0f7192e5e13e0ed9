// Entries of a slope, as rise over run or as degrees. `index` is the row: 0 front, 1 rear, 2 the second slope
// of the front page.
#pragma once

#include "design/design.h"

namespace pitchcraft {

void SlopePicked(Design& design, Reply& reply, int index);     ///< from the list
void SlopeLeft(Design& design, Reply& reply, int index);       ///< the field was left
void SlopeConfirmed(Design& design, Reply& reply, int index);  ///< by Enter or Tab
void DegreesPicked(Design& design, Reply& reply, int index);   ///< from the list, or by Enter
void DegreesLeft(Design& design, Reply& reply, int index);

}  // namespace pitchcraft
