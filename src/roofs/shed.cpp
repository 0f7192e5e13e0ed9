// Common shed: one slope against a wall, whose rafter butts the whole ledger.
#include "roofs/one_rafter_roof.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr RoofPage kPages[] = {{"Design", {FigureKind::kRafter, 1, Member::kShed}},
                               {"Shed Rafter", {FigureKind::kRafter, 1, Member::kShed}}};
constexpr RowCaption kCaptions[] = {{16, "Ledger:"}};

}  // namespace

const RoofType& ShedRoof() {
  static const OneRafterRoof roof({Roof::kShed,
                                   "Common Shed",
                                   "Shed",
                                   60,
                                   kPages,
                                   {.tops = kGableTops, .captions = kCaptions, .kneewalls = 1}},
                                  Member::kShed);
  return roof;
}

}  // namespace pitchcraft
