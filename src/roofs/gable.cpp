// Common gable: two slopes alike, shown by one common rafter.
#include "roofs/one_rafter_roof.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr RoofPage kPages[] = {{"Design", {FigureKind::kRafter, 1, Member::kCommon}},
                               {"Rafter", {FigureKind::kRafter, 1, Member::kCommon}}};

}  // namespace

const RoofType& GableRoof() {
  static const OneRafterRoof roof(
      {Roof::kGable, "Common Gable", "Gable", 60, kPages, {.tops = kGableTops, .kneewalls = 1}},
      Member::kCommon);
  return roof;
}

}  // namespace pitchcraft
