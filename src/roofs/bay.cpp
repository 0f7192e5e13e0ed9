// Bay roof: common, hip and ledger rafter of a bay whose four dimensions are entered above the sheet.
#include "roofs/bay.h"

#include "design/questions.h"
#include "roofs/bay_dimensions.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr RowTops kTops{kHiddenRow, kHiddenRow, kHiddenRow, kHiddenRow, kHiddenRow, 840,
                        1200,       1560,       2040,       2370,       2700,       3030,
                        kHiddenRow, 870,        2070,       kHiddenRow, kHiddenRow, 840,
                        kHiddenRow, kHiddenRow, kHiddenRow, kHiddenRow};
constexpr RowCaption kCaptions[] = {{16, "Ledger:"}};
constexpr RoofPage kPages[] = {{"Design", {FigureKind::kBayPlan, 1, Member::kBayCommon}},
                               {"Bay Common", {FigureKind::kBayRafter, 1, Member::kBayCommon}},
                               {"Bay Hip", {FigureKind::kBayRafter, 1, Member::kBayHip}},
                               {"Bay Ledger", {FigureKind::kBayRafter, 1, Member::kBayLedger}},
                               {"Center Ledger", {FigureKind::kBayCenterLedger, 1, Member::kCenterLedger}}};

class Bay final : public RoofType {
 public:
  using RoofType::RoofType;

  // Before the dimensions are known the first page explains them and the others are blank.
  PageFigure FigureOn(const Design& design, int page) const override {
    PageFigure figure = RoofType::FigureOn(design, page);
    if (page == 0 && design.BayEditMode == 0) figure.Kind = FigureKind::kBayDiagram;
    figure.Empty = page > 0 && !BayIsComplete(design);
    return figure;
  }

  Rafter RecordOn(const Design& design, int page) const override {
    Rafter record = RoofType::RecordOn(design, page);
    record.CalculateBay();  // its texts are those of the member
    return record;
  }

  void SetUp(Design& design, Reply& reply) const override { ResetBay(design, reply); }

  // A bay is calculated only when its dimensions are complete.
  void Start(Design& design, Reply& reply, bool fromFile) const override {
    design.Rafter1.RafterType = Member::kBayCommon;
    NamePages(design, Pages(design));
    if (!fromFile) return;
    Recalculate(design, reply);
    design.BayEditMode = 1;
  }

  void Recalculate(Design& design, Reply&) const override {
    if (!design.Rafter1.HasBay()) return;
    design.Rafter1.CalculateBay();
    ShowFront(design);
  }

  void TurnPage(Design& design, Reply& reply, int page) const override {
    if (page == 0 || !BayIsComplete(design)) return;
    design.Rafter1.RafterType = RoofType::FigureOn(design, page).As;
    Recalculate(design, reply);
  }

  void RunEntered(Design&, Reply&) const override {}  // its run is the projection
};

}  // namespace

void BayDimensionEntered(Design& design, Reply& reply) {
  switch (SolveBay(design, reply)) {
    case BaySolution::kIncomplete: return;
    case BaySolution::kHipsCross: reply.Say(kHipsCrossText, "Bay Dimensions"); return ResetBay(design, reply);
    case BaySolution::kSolved: HandBayTo(design.Rafter1, design); return BayRoof().Recalculate(design, reply);
  }
}

const RoofType& BayRoof() {
  static const Bay roof(
      {Roof::kBay, "Bay Roof", "Bay", 90, kPages, {.tops = kTops, .captions = kCaptions, .hipLumber = true}});
  return roof;
}

}  // namespace pitchcraft
