// Gambrel: a steep roof below and a flat one above the break.
#include "roofs/gambrel.h"

#include <array>

#include "core/number_text.h"
#include "design/questions.h"
#include "roofs/gambrel_dimensions.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr int kLabelDrop = 30;
constexpr RowTops kTops{860,        1560, 1200, 1920, 2280, 2640,       3000, 3360, 3750, 4470, 4110,
                        kHiddenRow, 1230, 1590, 3780, 890,  kHiddenRow, 2640, 1200, 1560, 1920, 2280};
constexpr RowCaption kCaptions[] = {{10, "Upper Slope:"}, {20, "Lower Slope:"},  {11, "Upper Span:"},
                                    {12, "Lower Span:"},  {13, "Upper Height:"}, {14, "Lower Height:"},
                                    {17, "Rafters:"},     {0, "Overhang:"},      {6, "Heel:"},
                                    {21, "Seat:"}};
constexpr RoofPage kPages[] = {{"Design", {FigureKind::kGambrelPreview, 1, Member::kGambrelBottom}},
                               {"Gambrel Bottom", {FigureKind::kGambrelRafter, 1, Member::kGambrelBottom}},
                               {"Gambrel Top", {FigureKind::kGambrelRafter, 2, Member::kGambrelTop}}};

constexpr RoofHint kHints[] = {
    {"FtSpan(0)", "Enter the total span of the lower roof"},
    {"FtSpan(2)", "Enter the total span of the upper roof"},
    {"FtOverhang", "Enter the lower rafter overhang (do not include the fascia thickness)"},
    {"FtHeel", "Enter the lower rafter heel height (must be locked)"},
    {"FtSeat", "Enter the lower rafter seat cut dimension (must be locked)"},
    {"FtRidge(1)", "Enter the height above plate of the lower section (including heel height)."},
    {"FtRidge(0)", "Enter the rise of the upper roof."},
    {"LWRafter", "Enter the rafter size or select from the dropdown list"},
    {"LWRidge", "Enter the purlin/ridge board size or select from the dropdown list"},
    {"LWSlope(0)", "Enter the slope of the upper roof or select from the dropdown list"},
    {"LWSlope(2)", "Enter the slope of the lower roof or select from the dropdown list"}};
// A regular gambrel's slopes and upper measures are not to be entered.
constexpr RoofHint kRegularHints[] = {
    {"FtSpan(0)", kHints[0].Text},
    {"FtSpan(2)", "The upper span cannot be changed for a regular gambrel roof"},
    kHints[2],
    kHints[3],
    kHints[4],
    kHints[5],
    {"FtRidge(0)", "The upper height cannot be directly changed for a regular gambrel roof."},
    kHints[7],
    kHints[8],
    {"LWSlope(0)", "The upper slope cannot be changed for a regular gambrel roof"},
    {"LWSlope(2)", "The lower slope cannot be changed for a regular gambrel roof"}};

std::array<CheckControl*, 5> LocksOf(Sheet& sheet) {
  return {&sheet.UpperSlopeLock, &sheet.LowerSlopeLock, &sheet.UpperSpanLock, &sheet.UpperHeightLock,
          &sheet.LowerHeightLock};
}

void SetSupport(Design& design, GambrelSupport support) {
  design.Support = support;
  design.Rafter1.Purlins = design.Rafter2.Purlins = support == GambrelSupport::kPurlins;
  const bool raised = support == GambrelSupport::kRaisedWall;
  Sheet& sheet = design.sheet;
  sheet.UpperFasciaLabel.Visible = raised;
  sheet.UpperFascia.Visible = raised;
  if (raised) sheet.UpperFascia.SetListIndex(0);
  sheet.Label[22].Caption = support == GambrelSupport::kPurlins ? "Purlins:" : "Ridge:";
}

// The circle of a regular gambrel leaves no room for raised walls under its upper roof, and a custom one
// begins without.
void SetKind(Design& design, GambrelKind kind) {
  const bool regular = kind == GambrelKind::kRegular;
  Sheet& sheet = design.sheet;
  design.Gambrel = kind;
  sheet.UpperFasciaLabel.Visible = sheet.UpperFascia.Visible = false;
  for (const std::size_t index : {2, 4, 7}) sheet.Spin[index].Enabled = !regular;
  sheet.Spin[3].Enabled = true;
  for (const std::size_t row : {0, 2}) {
    sheet.Slope[row].Locked = regular;
    sheet.Degrees[row].Locked = regular;
  }
  for (CheckControl* box : LocksOf(sheet)) box->Visible = !regular;
  design.menus.GambrelWallSupportRaised.Enabled = design.menus.PopUp2GambrelWallSupportRaised.Enabled =
      !regular;
  if (design.Support == GambrelSupport::kRaisedWall) SetSupport(design, GambrelSupport::kPurlins);
}

class Gambrel final : public RoofType {
 public:
  using RoofType::RoofType;

  std::span<const RoofHint> Hints(const Design& design) const override {
    if (design.Gambrel == GambrelKind::kRegular) return kRegularHints;
    return kHints;
  }

  void LayOut(Design& design) const override {
    RoofType::LayOut(design);
    Sheet& sheet = design.sheet;
    const auto put = [&](std::size_t label, int top) {
      sheet.Label[label].Visible = true;
      sheet.Label[label].Enabled = true;
      sheet.Label[label].Top = top;
    };
    put(14, kTops.ridge1 + kLabelDrop);
    put(13, kTops.ridge0 + kLabelDrop);
    put(0, kTops.overhang + kLabelDrop);
    put(6, kTops.heel + kLabelDrop);
    put(21, kTops.seat);
    put(22, kTops.ridge + kLabelDrop);
    put(17, kTops.rafter + kLabelDrop);
    sheet.Label[16].Visible = false;
    sheet.Label[22].Caption = design.Support == GambrelSupport::kPurlins ? "Purlins:" : "Ridge:";
  }

  // A fresh gambrel is always regular.
  void SetUp(Design& design, Reply&) const override {
    CopySlopeRow(design, 0, 2);
    design.Rafter1.Purlins = design.Rafter2.Purlins = design.Support == GambrelSupport::kPurlins;
    design.SavedGableSpan = design.sheet.Span[0].Value();
    design.SavedGableSlope = design.sheet.Slope[0].LeftValue();
    SetKind(design, GambrelKind::kRegular);
    SolveGambrel(design, GambrelChange::kOther);
  }

  void Start(Design& design, Reply& reply, bool fromFile) const override {
    NamePages(design, Pages(design));
    TakeMembers(design);
    CopyLumber(design);
    design.Rafter2.Overhang = design.sheet.Overhang[0].Value();
    Recalculate(design, reply);
    if (!fromFile) return;
    // Its results do not touch the lumber fields, which show what was typed.
    const Rafter& bottom = design.Rafter1;
    design.sheet.Common[0].SetValues(bottom.Thickness, bottom.Depth);
    design.sheet.Ridge.SetValues(bottom.RidgeThickness, bottom.RidgeDepth);
    design.sheet.Fascia[0].SetValues(bottom.FasciaThickness, bottom.FasciaHeight);
  }

  void Recalculate(Design& design, Reply&) const override { SolveGambrel(design, GambrelChange::kOther); }

  void TurnPage(Design& design, Reply& reply, int page) const override {
    if (page > 0) return;
    TakeMembers(design);
    Recalculate(design, reply);
    reply.GiveFocus(design.sheet.Span[0]);
  }

  void RunEntered(Design& design, Reply&) const override { SolveGambrel(design, GambrelChange::kLowerSpan); }
  void ExtraRunEntered(Design& design, Reply&) const override {
    SolveGambrel(design, GambrelChange::kUpperSpan);
  }
  void SlopeEntered(Design& design, Reply&, SlopeEntry) const override {
    SolveGambrel(design, GambrelChange::kUpperSlope);
  }
  void SecondSlopeEntered(Design& design, Reply&, SlopeEntry) const override {
    SolveGambrel(design, GambrelChange::kLowerSlope);
  }
  void RidgeLengthEntered(Design& design, Reply&, std::size_t index) const override {
    SolveGambrel(design, index == 0 ? GambrelChange::kUpperHeight : GambrelChange::kLowerHeight);
  }

  // Both rafters are of one lumber.
  void LumberEntered(Design& design, Reply& reply, Lumber) const override {
    CopyLumber(design);
    Recalculate(design, reply);
  }

 private:
  static void TakeMembers(Design& design) {
    design.Rafter1.RafterType = Member::kGambrelBottom;
    design.Rafter2.RafterType = Member::kGambrelTop;
  }
};

}  // namespace

// Choices of its menus belong to a gambrel alone.
void ChooseGambrelKind(Design& design, Reply& reply, GambrelKind kind) {
  if (design.RoofType != Roof::kGambrel) return;
  SetKind(design, kind);
  GambrelRoof().Recalculate(design, reply);
}

void ChooseGambrelSupport(Design& design, Reply& reply, GambrelSupport support) {
  if (design.RoofType != Roof::kGambrel) return;
  SetSupport(design, support);
  GambrelRoof().Recalculate(design, reply);
}

void UpperFasciaEntered(Design& design, Reply& reply) {
  ComboControl& field = design.sheet.UpperFascia;
  const double height = LengthFormat(design).ToValue(field.Text());
  const double depth = design.Rafter1.Depth;
  if (!design.Metric) {
    field.SetText(InchesAlone(design).ToText(height > depth ? depth : height));
  } else if (height > depth) {
    field.SetText(PlainText(depth));
  }
  GambrelRoof().Recalculate(design, reply);
}

void GambrelLockClicked(Design& design, std::size_t which) {
  const auto locks = LocksOf(design.sheet);
  const CheckControl* clicked = locks[which];
  const int others = clicked->Ticked() ? 0 : 1;
  for (CheckControl* box : locks) {
    if (box != clicked) box->Value = others;
  }
}

void LeaveGambrel(Design& design) {
  Sheet& sheet = design.sheet;
  if (design.SavedGableSpan > 0) {
    design.Rafter1.Span = design.SavedGableSpan;
    design.Rafter1.Slope = design.SavedGableSlope;
    sheet.Slope[0].SetValues(design.Rafter1.Slope, UnitRun(design));
    sheet.Degrees[0].SetText(PlainText(DegreesOfRow(design, 0)));
    design.Rafter1.degrees = LeadingNumber(sheet.Degrees[0].Text());
    sheet.Span[0].SetValue(design.Rafter1.Span);
    design.SavedGableSpan = 0;
    design.SavedGableSlope = 0;
  }
  // Only a gambrel offers a level cut.
  if (design.Cut == FasciaCut::kLevel) {
    design.Cut = FasciaCut::kPlumb;
    sheet.Fascia[0].Enabled = true;
  }
  for (CheckControl* box : LocksOf(sheet)) {
    box->Visible = false;
    box->Value = 0;
  }
  sheet.UpperFasciaLabel.Visible = false;
  sheet.UpperFascia.Visible = false;
}

const RoofType& GambrelRoof() {
  static const Gambrel roof(
      {Roof::kGambrel, "Gambrel Roof", "Gambrel", 430, kPages, {.tops = kTops, .captions = kCaptions}});
  return roof;
}

}  // namespace pitchcraft
