// Valley between two roofs of one slope and one span.
#include "roofs/one_rafter_roof.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr RoofPage kPages[] = {{"Design", {FigureKind::kRafter, 1, Member::kValley}},
                               {"Valley Rafter", {FigureKind::kRafter, 1, Member::kValley}}};
constexpr RowCaption kCaptions[] = {{10, "Commn Slope:"}};

}  // namespace

const RoofType& ValleyRoof() {
  static const OneRafterRoof roof({Roof::kValley,
                                   "Valley",
                                   "Valley",
                                   70,
                                   kPages,
                                   {.tops = kGableTops, .captions = kCaptions, .hipLumber = true}},
                                  Member::kValley);
  return roof;
}

}  // namespace pitchcraft
