// Octagon: regular, entered by its common run or by its hip run.
#include "roofs/results.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr RowTops kTops{kHiddenRow, 840,        1200, kHiddenRow, kHiddenRow, 1560,      1920, 2280,
                        2760,       kHiddenRow, 3090, 3420,       870,        1590,      2790, 1230,
                        840,        1560,       1200, kHiddenRow, kHiddenRow, kHiddenRow};
constexpr RowCaption kCaptions[] = {{20, "Hip Run:"}, {16, "Jacks:"}, {17, "Hips:"}};
constexpr RoofPage kPages[] = {
    {"Design", {FigureKind::kOctagonPlan, 1, Member::kOctagonHip}},
    {"Octagon Hip", {FigureKind::kOctagonRafter, 1, Member::kOctagonHip}},
    {"Longest Jack", {FigureKind::kOctagonRafter, 1, Member::kOctagonJack}, true},
    {"Octagon Layout", {FigureKind::kOctagonLayout, 1, Member::kOctagonJack}, true}};
constexpr RoofHint kHints[] = {
    {"FtSpan(2)", "Enter the run of the octagon HIP rafter (do not subtract for the ridge)"},
    {"FtSpan", "Enter the run of the octagon COMMON rafter (do not subtract for the ridge)"},
    {"LWRafter", "Enter the octagon COMMON rafter size or select from the dropdown list"},
    {"LWHipVal", "Enter the octagon HIP rafter size or select from the dropdown list"}};

class Octagon final : public RoofType {
 public:
  using RoofType::RoofType;

  Rafter RecordOn(const Design& design, int page) const override {
    Rafter record = RoofType::RecordOn(design, page);
    record.CalculateOctagon();  // hip and jack have rises of their own
    return record;
  }

  void SetUp(Design& design, Reply&) const override {
    design.Rafter1.RafterType = Member::kOctagonHip;
    design.sheet.Span[2].SetValue(design.sheet.Span[0].Value());
  }

  void Start(Design& design, Reply& reply, bool) const override {
    NamePages(design, Pages(design));
    design.Rafter1.RafterType = Member::kOctagonHip;
    RunEntered(design, reply);
  }

  void Recalculate(Design& design, Reply&) const override {
    design.Rafter1.CalculateOctagon();
    ShowFront(design);
    ShowResult(design.sheet.Span[2], design.Rafter1.HipValSpan);
  }

  void TurnPage(Design& design, Reply& reply, int page) const override {
    design.Rafter1.RafterType = page < 2 ? Member::kOctagonHip : Member::kOctagonJack;
    if (page == 0) return FocusSlope(design, reply, 0);
    Recalculate(design, reply);
    design.Rafter1.RafterType = Member::kOctagonJack;
  }

  // Of the two runs one is given and the other follows.
  void RunEntered(Design& design, Reply& reply) const override {
    design.Rafter1.HipValSpan = 0;
    Recalculate(design, reply);
  }
  void ExtraRunEntered(Design& design, Reply& reply) const override {
    design.Rafter1.Span = 0;
    design.Rafter1.HipValSpan = design.sheet.Span[2].Value();
    Recalculate(design, reply);
  }
  void SpacingEntered(Design& design, Reply& reply) const override { Recalculate(design, reply); }
};

}  // namespace

const RoofType& OctagonRoof() {
  static const Octagon roof(
      {.Code = Roof::kOctagon,
       .Item = "Octagon",
       .ToolButton = "Octagon",
       .HelpTopic = 410,
       .Pages = kPages,
       .Rows = {.tops = kTops, .captions = kCaptions, .hipLumber = true, .hipLumberIsNamed = false},
       .Hints = kHints,
       .TakesHeelFromField = true});
  return roof;
}

}  // namespace pitchcraft
