// Unequal span valley: a roof of one slope meets a wider one; the short valley butts the long one.
#include "roofs/bay_dimensions.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr RowCaption kCaptions[] = {
    {10, "Commn Slope:"}, {20, "Main Run:"}, {16, "Ridges:"}, {18, "Valleys:"}};
constexpr RoofPage kPages[] = {{"Design", {FigureKind::kUnequalSpanValley, 1, Member::kShortValley}},
                               {"Short Valley", {FigureKind::kRafter, 1, Member::kShortValley}},
                               {"Long Valley", {FigureKind::kRafter, 2, Member::kLongValley}}};

class UnequalSpanValley final : public RoofType {
 public:
  using RoofType::RoofType;

  // The same 24 in both unit systems: a start that shows two different runs, to be typed over.
  void SetUp(Design& design, Reply&) const override {
    design.sheet.Span[2].SetValue(design.sheet.Span[0].Value() + 24);
  }

  void Start(Design& design, Reply& reply, bool) const override {
    design.Rafter1.RafterType = Member::kShortValley;
    design.Rafter2.RafterType = Member::kLongValley;
    Recalculate(design, reply);
    NamePages(design, Pages(design));
  }

  void Recalculate(Design& design, Reply&) const override {
    design.Rafter1.Calculate();
    ShowFront(design);
    Rafter& longValley = design.Rafter2;
    CopySlope(design);
    longValley.Span = design.sheet.Span[2].Value();
    CopyLumber(design);
    CopyHipLumber(design);
    longValley.Overhang = design.Rafter1.Overhang;
    CopyLocks(design);
    longValley.Heel = design.Rafter1.CommonHeel;
    longValley.Seat = design.Rafter1.CommonSeat;
    longValley.Calculate();
    KeepRear(design);
  }

  // The run of the main roof waits for the next calculation.
  void ExtraRunEntered(Design& design, Reply& reply) const override {
    design.sheet.Projection.SetValue(design.sheet.Span[2].Value());
    if (SolveBay(design, reply) == BaySolution::kHipsCross) {
      reply.Say(kHipsCrossText, "Bay Dimensions");
      ResetBay(design, reply);
    }
    design.Rafter2.CalculateBay();
  }
};

}  // namespace

const RoofType& UnequalSpanValleyRoof() {
  static const UnequalSpanValley roof({Roof::kUnequalSpanValley,
                                       "Unequal Span Valley",
                                       "Unequal Span Valley",
                                       380,
                                       kPages,
                                       {.tops = kDutchTops, .captions = kCaptions, .hipLumber = true}});
  return roof;
}

}  // namespace pitchcraft
