// Dutch hip: a gable whose end is a bay with square corners across the whole roof.
#include "roofs/dutch_hip.h"

#include "roofs/bay_dimensions.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr RowCaption kCaptions[] = {{11, "Main Run:"}, {20, "Dutch Run:"}, {18, "Dutch Hip:"}};
constexpr RoofPage kPages[] = {{"Design", {FigureKind::kDutchPlan, 2, Member::kBayCommon}},
                               {"Common", {FigureKind::kRafter, 1, Member::kCommon}},
                               {"Dutch Common", {FigureKind::kBayRafter, 2, Member::kBayCommon}},
                               {"Dutch Hip", {FigureKind::kBayRafter, 2, Member::kBayHip}},
                               {"Center Ledger", {FigureKind::kBayCenterLedger, 2, Member::kCenterLedger}}};
constexpr RoofHint kHints[] = {
    {"FtSpan(2)", "Enter the run of the DUTCH common rafter (do not subtract for the ledger board)"}};

// Two thirds of the main run: a Dutch run whose hips do not cross.
void ShortenDutchRun(Design& design) {
  Sheet& sheet = design.sheet;
  sheet.Span[2].SetValue(2 * sheet.Span[0].Value() / 3);
  sheet.Projection.SetValue(sheet.Span[2].Value());
}

// A refused run is shortened, and the end is solved once more for it, so that sheet and rafter are one.
void SolveEnd(Design& design, Reply& reply) {
  BaySolution solution = SolveBay(design, reply);
  if (solution == BaySolution::kHipsCross) {
    reply.Say(kHipsCrossText, "Dutch Hip Dimensions");
    ShortenDutchRun(design);
    solution = SolveBay(design, reply);
  }
  if (solution == BaySolution::kSolved) HandBayTo(design.Rafter2, design);
}

void CalculateEnd(Design& design, Reply& reply) {
  SolveEnd(design, reply);
  if (!design.Rafter2.HasBay()) return;
  design.Rafter2.CalculateBay();
  KeepRear(design);
}

class DutchHip final : public RoofType {
 public:
  using RoofType::RoofType;

  Rafter RecordOn(const Design& design, int page) const override {
    Rafter record = RoofType::RecordOn(design, page);
    if (FigureOn(design, page).Record == 2) record.CalculateBay();  // its texts are those of the member
    return record;
  }

  void SetUp(Design& design, Reply&) const override {
    design.sheet.Span[2].SetValue(2 * design.sheet.Span[0].Value() / 3);
  }

  void Start(Design& design, Reply& reply, bool) const override {
    design.Rafter1.RafterType = Member::kCommon;
    Recalculate(design, reply);
    Rafter& end = design.Rafter2;
    end.RafterType = Member::kBayCommon;
    Sheet& sheet = design.sheet;
    sheet.Projection.SetValue(sheet.Span[2].Value());
    sheet.BayAngle.SetValue(90);
    sheet.Back.SetValue(2 * design.Rafter1.Span);
    sheet.Face.SetValue(sheet.Back.Value());
    CopyFront(design);
    end.Heel = design.Rafter1.Heel;
    end.Seat = design.Rafter1.Seat;
    CalculateEnd(design, reply);
    NamePages(design, Pages(design));
  }

  void Recalculate(Design& design, Reply& reply) const override {
    design.Rafter1.Calculate();
    ShowFront(design);
    CopyFront(design);
    CopyLocks(design);
    design.Rafter2.Heel = design.Rafter1.CommonHeel;
    // The heel in both: the seat of the Dutch common follows from its heel, so what is here is only a start.
    design.Rafter2.Seat = design.Rafter1.CommonHeel;
    CalculateEnd(design, reply);
  }

  void TurnPage(Design& design, Reply&, int page) const override {
    const PageFigure figure = FigureOn(design, page);
    if (page > 0 && figure.Record == 2) design.Rafter2.RafterType = figure.As;
  }

  void RunEntered(Design& design, Reply& reply) const override {
    design.sheet.Face.SetValue(2 * design.sheet.Span[0].Value());
    design.sheet.Back.SetValue(design.sheet.Face.Value());
    Recalculate(design, reply);
  }

  void ExtraRunEntered(Design& design, Reply& reply) const override {
    design.sheet.Projection.SetValue(design.sheet.Span[2].Value());
    CalculateEnd(design, reply);
  }

 private:
  static void CopyFront(Design& design) {
    CopySlope(design);
    CopyLumber(design);
    CopyHipLumber(design);
    if (!design.DutchLedger) design.Rafter2.RidgeThickness = 0;
    design.Rafter2.Overhang = design.Rafter1.Overhang;
  }
};

}  // namespace

void ChooseDutchLedger(Design& design, bool ledger) {
  design.DutchLedger = ledger;
  design.sheet.Ledger.SetListIndex(ledger ? 0 : 1);
  design.Rafter2.RidgeThickness = ledger ? double{design.Rafter1.RidgeThickness} : 0.0;
}

const RoofType& DutchHipRoof() {
  static const DutchHip roof({Roof::kDutchHip,
                              "Dutch Hip",
                              "Dutch Hip",
                              370,
                              kPages,
                              {.tops = kDutchTops, .captions = kCaptions, .hipLumber = true},
                              kHints});
  return roof;
}

}  // namespace pitchcraft
