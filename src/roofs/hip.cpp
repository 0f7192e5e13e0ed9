// Hip: plain while the end has the slope of the sides, else with a common, a hip and jacks of its own for the
// end.
#include "core/number_text.h"
#include "design/questions.h"
#include "roofs/hip_menus.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr RowTops kTops{860,  1200, kHiddenRow, kHiddenRow, kHiddenRow, 1560,      1920, 2280,
                        2760, 3090, 3420,       3750,       1230,       1590,      2790, 890,
                        1200, 1560, kHiddenRow, kHiddenRow, kHiddenRow, kHiddenRow};
constexpr RowCaption kCaptions[] = {{10, "Main Slope:"}, {20, "End Slope:"}};
constexpr RoofPage kPages[] = {{"Design", {FigureKind::kHipPlan, 1, Member::kHip}},
                               {"Common", {FigureKind::kRafter, 1, Member::kCommon}},
                               {"Hip Rafter", {FigureKind::kRafter, 1, Member::kHip}},
                               {"Layout", {FigureKind::kHipLayout, 1, Member::kHip}, true}};
constexpr RoofPage kUnequalPages[] = {
    {"Design", {FigureKind::kHipPlan, 1, Member::kBastardHip}},
    {"Common", {FigureKind::kBastardHipRafters, 1, Member::kCommon}},
    {"Hip End Common", {FigureKind::kBastardHipRafters, 1, Member::kHipEndCommon}},
    {"Hip Rafter", {FigureKind::kBastardHipRafters, 1, Member::kBastardHip}},
    {"Layout", {FigureKind::kHipLayout, 1, Member::kBastardHip}, true}};
constexpr RoofHint kHints[] = {
    {"FtSpan", "Enter the run of the MAIN ROOF COMMON rafter (don't subtract for the ridge board)"},
    {"LWSlope(0)", "Enter the slope of the MAIN roof or select from the dropdown list"},
    {"LWSlope(2)", "Enter the slope of the HIP END roof or select from the dropdown list"}};

class Hip final : public RoofType {
 public:
  using RoofType::RoofType;

  std::span<const RoofPage> Pages(const Design& design) const override {
    if (IsUnequalHip(design)) return kUnequalPages;
    return kPages;
  }

  void SetUp(Design& design, Reply&) const override {
    Menus& menus = design.menus;
    menus.HipLayout.Visible = true;
    menus.PopUp1JackMeasurement.Visible = true;
    menus.Separator[18].Visible = true;
    if (!design.Loading) CopySlopeRow(design, 0, 2);
    design.Rafter1.OverhangsEqual = design.OverhangsEqual;
  }

  // Picked, a hip begins with equal slopes; a project brings its own end.
  void Start(Design& design, Reply& reply, bool fromFile) const override {
    Rafter& rafter = design.Rafter1;
    if (!fromFile) rafter.HipEndSlope = rafter.Slope;
    if (IsUnequalHip(design)) {
      design.sheet.Degrees[2].SetText(PlainText(rafter.HipEndDegrees));
      Recalculate(design, reply);
      design.sheet.Slope[2].SetValues(rafter.HipEndSlope, UnitRun(design));
      ShowOverhangsEqualMenus(design.menus, true);
      ShowNaturalLastCommon(design);
    } else {
      Recalculate(design, reply);
      design.sheet.LastCommon.SetValue(rafter.HipEndSpan);
      if (fromFile) design.sheet.Slope[2].CopyPositionFrom(design.sheet.Slope[0]);
    }
    NamePages(design, Pages(design));
  }

  void Recalculate(Design& design, Reply&) const override {
    Rafter& rafter = design.Rafter1;
    if (IsUnequalHip(design)) {
      rafter.RafterType = Member::kBastardHip;
      // Each calculation uses the flag up.
      rafter.OverhangsEqual = design.OverhangsEqual;
      if (design.OverhangsEqual) {
        rafter.CalculateAdjustedBastardHip();
      } else {
        rafter.CalculateBastardHip();
      }
    } else {
      rafter.RafterType = Member::kHip;
      rafter.Calculate();
    }
    ShowFront(design);
    if (!design.Loading) design.sheet.Slope[2].SetValues(rafter.HipEndSlope, UnitRun(design));
  }

  void TurnPage(Design& design, Reply& reply, int page) const override {
    const bool unequal = IsUnequalHip(design);
    ShowHipLayoutMenus(design.menus, true);
    ShowOverhangsEqualMenus(design.menus, unequal);
    if (page == 0) FocusSlope(design, reply, unequal ? 2 : 0);
    const bool layout = static_cast<std::size_t>(page) + 1 == Pages(design).size();
    if (unequal && layout) Recalculate(design, reply);
  }

  void RunEntered(Design& design, Reply& reply) const override {
    TakeHeelAndRecalculate(design, reply);
    const Rafter& rafter = design.Rafter1;
    if (design.sheet.HasLastCommon.Ticked())
      design.sheet.LastCommon.SetValue((rafter.Slope / rafter.HipEndSlope) * rafter.Span);
  }

  // With equal slopes the overhang waits for the next calculation.
  void OverhangEntered(Design& design, Reply& reply) const override {
    if (IsUnequalHip(design)) TakeHeelAndRecalculate(design, reply);
  }

  // A new main slope brings the hip back to equal slopes; a different end is entered after it.
  void SlopeEntered(Design& design, Reply& reply, SlopeEntry how) const override {
    Sheet& sheet = design.sheet;
    ShowOverhangsEqualMenus(design.menus, false);
    if (how != SlopeEntry::kPicked) sheet.Slope[2].CopyPositionFrom(sheet.Slope[0]);
    sheet.Degrees[2].CopyPositionFrom(sheet.Degrees[0]);
    design.Rafter1.HipEndSlope = design.Rafter1.Slope;
    TakeHeelAndRecalculate(design, reply);
    NamePages(design, Pages(design));
  }

  void SecondSlopeEntered(Design& design, Reply& reply, SlopeEntry how) const override {
    Rafter& rafter = design.Rafter1;
    rafter.HipEndSlope = design.sheet.Slope[2].LeftValue();
    const bool setLastCommon = how != SlopeEntry::kPicked || design.sheet.HasLastCommon.Ticked();
    if (IsUnequalHip(design)) {
      if (how == SlopeEntry::kLeft) rafter.HipEndDegrees = RoundTo(DegreesOfRow(design, 2), 2);
      if (IsInDegrees(how)) rafter.HipEndDegrees = LeadingNumber(design.sheet.Degrees[2].Text());
      ShowOverhangsEqualMenus(design.menus, true);
      Recalculate(design, reply);
      if (setLastCommon) ShowNaturalLastCommon(design);
    } else {
      TakeHeelAndRecalculate(design, reply);
      if (setLastCommon) design.sheet.LastCommon.SetValue(rafter.Span);
    }
    NamePages(design, Pages(design));
  }

 private:
  // Where the ridge ends above the hip end.
  static void ShowNaturalLastCommon(Design& design) {
    const Rafter& rafter = design.Rafter1;
    design.sheet.LastCommon.SetValue((rafter.Slope / rafter.HipEndSlope) * rafter.Span -
                                     rafter.HipEndOverhangExcess);
  }
};

}  // namespace

const RoofType& HipRoof() {
  static const Hip roof(
      {.Code = Roof::kHip,
       .Item = "Hip",
       .ToolButton = "Hip",
       .HelpTopic = 400,
       .Pages = kPages,
       .Rows = {.tops = kTops, .captions = kCaptions, .hipLumber = true, .lastCommon = true},
       .Hints = kHints,
       .TakesHeelFromField = true});
  return roof;
}

}  // namespace pitchcraft
