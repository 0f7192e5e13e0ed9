#include "roofs/one_rafter_roof.h"

#include "roofs/results.h"

namespace pitchcraft {

void OneRafterRoof::Start(Design& design, Reply& reply, bool) const {
  design.Rafter1.RafterType = member_;
  Recalculate(design, reply);
  NamePages(design, Pages(design));
}

void OneRafterRoof::Recalculate(Design& design, Reply&) const {
  design.Rafter1.Calculate();
  ShowFront(design);
}

}  // namespace pitchcraft
