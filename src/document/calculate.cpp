#include "document/calculate.h"

#include "roofs/roof_types.h"

namespace pitchcraft {

void CalculateNow(Design& design, Reply& reply, int) { RoofOf(design).Recalculate(design, reply); }

void SetSpacing(Design& design, Single spacing) {
  for (Rafter* record : {&design.Rafter1, &design.Rafter2, &design.Calculated1, &design.Calculated2}) {
    record->spacing = spacing;
  }
}

}  // namespace pitchcraft
