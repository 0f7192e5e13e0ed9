// A roof that is calculated and shown as one rafter: gable, shed, valley.
#pragma once

#include "roofs/roof_type.h"

namespace pitchcraft {

class OneRafterRoof final : public RoofType {
 public:
  OneRafterRoof(const Facts& facts, Member member) : RoofType(facts), member_(member) {}
  void Start(Design& design, Reply& reply, bool fromFile) const override;
  void Recalculate(Design& design, Reply& reply) const override;

 private:
  Member member_;
};

}  // namespace pitchcraft
