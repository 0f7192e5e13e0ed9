// Blind valley: an addition whose roof is framed on the deck of the main roof.
#include "core/number_text.h"
#include "design/questions.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr RowTops kTops{860,        1200,       kHiddenRow, 1560, 1920, kHiddenRow, kHiddenRow, kHiddenRow,
                        kHiddenRow, 2730,       3060,       3390, 870,  1230,       2430,       kHiddenRow,
                        1200,       kHiddenRow, kHiddenRow, 1560, 1920, kHiddenRow};
constexpr RowCaption kCaptions[] = {{10, "Addtn Slope:"},  {11, "Main Slope:"},   {12, "Addtn Span:"},
                                    {13, "Thrtcl Ridge:"}, {14, "Actual Ridge:"}, {17, "Jacks:"},
                                    {18, "Val Plates:"}};
constexpr RoofPage kPages[] = {{"Design", {FigureKind::kBlindValley, 1, Member::kCommon}},
                               {"Jack Rafter", {FigureKind::kBlindValley, 1, Member::kCommon}},
                               {"Valley Plate", {FigureKind::kBlindValley, 1, Member::kCommon}},
                               {"Ridge", {FigureKind::kBlindValley, 1, Member::kCommon}}};
constexpr RoofHint kHints[] = {
    {"FtSpan", "Enter the total span of the blind valley"},
    {"LWRafter", "Enter the jack rafter size or select from the dropdown list"},
    {"LWHipVal", "Enter the valley plate size or select from the dropdown list"},
    {"LWSlope(0)", "Enter the slope of the ADDITION roof or select from the dropdown list"},
    {"LWSlope(2)", "Enter the slope of the MAIN roof or select from the dropdown list"}};

// Rise of the addition's roof over half its span, measured to the ridge line.
double TheoreticalRise(const Design& design) {
  return (design.Rafter1.Span / 2 * design.Rafter1.Slope) / UnitRun(design);
}

// The same measured to the faces of the ridge board.
double ActualRise(const Design& design) {
  const Rafter& rafter = design.Rafter1;
  return ((rafter.Span - rafter.RidgeThickness) * rafter.Slope / 2) / UnitRun(design);
}

void FillBlindValleyRidges(Design& design) {
  const int unitRun = UnitRun(design);
  const double mainSlope = design.sheet.Slope[2].LeftValue();
  const Single theoreticalRise = TheoreticalRise(design);
  const Single actualRise = ActualRise(design);
  design.sheet.RidgeLength[0].SetValue(unitRun * theoreticalRise / mainSlope);
  design.sheet.RidgeLength[1].SetValue(unitRun * actualRise / mainSlope);
}

class BlindValley final : public RoofType {
 public:
  using RoofType::RoofType;

  void SetUp(Design& design, Reply&) const override {
    CopySlopeRow(design, 0, 2);
    FillBlindValleyRidges(design);
  }

  void Start(Design& design, Reply& reply, bool fromFile) const override {
    NamePages(design, Pages(design));
    design.Rafter1.RafterType = Member::kCommon;
    Recalculate(design, reply);
    if (fromFile) FillBlindValleyRidges(design);
  }

  void Recalculate(Design& design, Reply&) const override {
    design.Rafter1.Calculate();
    ShowFront(design);
  }

  void TurnPage(Design&, Reply&, int) const override {}

  void RunEntered(Design& design, Reply& reply) const override { RecalculateWithRidges(design, reply); }
  void SlopeEntered(Design& design, Reply& reply, SlopeEntry) const override {
    RecalculateWithRidges(design, reply);
  }
  void SecondSlopeEntered(Design& design, Reply& reply, SlopeEntry) const override {
    RecalculateWithRidges(design, reply);
  }

  void RidgeLengthEntered(Design& design, Reply&, std::size_t index) const override {
    Sheet& sheet = design.sheet;
    const double given = sheet.RidgeLength[index].Value();
    if (given == 0) return;
    const int unitRun = UnitRun(design);
    const Single theoreticalRise = TheoreticalRise(design);
    const Single actualRise = ActualRise(design);
    const Single mainSlope = unitRun * (index == 0 ? theoreticalRise : actualRise) / given;
    if (index == 0) {
      sheet.RidgeLength[1].SetValue(unitRun * actualRise / mainSlope);
    } else {
      sheet.RidgeLength[0].SetValue(unitRun * theoreticalRise / mainSlope);
    }
    sheet.Slope[2].SetValues(mainSlope, unitRun);
    sheet.Degrees[2].SetText(PlainText(RoundTo(DegreesOfRow(design, 2), 2)));
  }

 private:
  void RecalculateWithRidges(Design& design, Reply& reply) const {
    Recalculate(design, reply);
    FillBlindValleyRidges(design);
  }
};

}  // namespace

const RoofType& BlindValleyRoof() {
  static const BlindValley roof({.Code = Roof::kBlindValley,
                                 .Item = "Blind Valley",
                                 .ToolButton = "Blind Valley",
                                 .HelpTopic = 390,
                                 .Pages = kPages,
                                 .Rows = {.tops = kTops, .captions = kCaptions, .hipLumber = true},
                                 .Hints = kHints,
                                 .HasFasciaCuts = false});
  return roof;
}

}  // namespace pitchcraft
