// Dual slope: front and rear roof of their own slopes and runs, each with a row of fields.
#include "core/number_text.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr RoofPage kPages[] = {{"Design", {FigureKind::kSaltbox, 1, Member::kCommon}},
                               {"Front Rafter", {FigureKind::kRafter, 1, Member::kCommon}},
                               {"Rear Rafter", {FigureKind::kRafter, 2, Member::kCommon}}};
constexpr RoofHint kHints[] = {
    {"LWSlope(0)", "Enter the slope of the FRONT roof or select from the dropdown list"},
    {"LWSlope(1)", "Enter the slope of the REAR roof or select from the dropdown list"}};

class DualSlope final : public RoofType {
 public:
  using RoofType::RoofType;

  // Picked from the list, the rear roof begins as a copy of the front; from a project it keeps its own
  // values.
  void Start(Design& design, Reply& reply, bool fromFile) const override {
    design.Rafter1.RafterType = Member::kCommon;
    design.Rafter2.RafterType = Member::kCommon;
    if (!fromFile) {
      Sheet& sheet = design.sheet;
      sheet.Slope[1].SetListIndex(0);
      sheet.Degrees[1].SetListIndex(0);
      CopySlope(design);
      sheet.Degrees[1].SetText(PlainText(design.Rafter2.degrees));
      design.Rafter2.Span = design.Rafter1.Span;
      CopyLumber(design);
      design.Rafter2.Overhang = design.Rafter1.Overhang;
      CopyLocks(design);
      // Once before the front rafter and once after it: a locked heel of 0 takes the overhang away only for
      // the second.
      design.Rafter2.Calculate();
    }
    Recalculate(design, reply);
    NamePages(design, Pages(design));
  }

  void Recalculate(Design& design, Reply&) const override {
    design.Rafter1.Calculate();
    ShowFront(design);
    design.Rafter2.Calculate();
    ShowRear(design);
  }

  void LumberEntered(Design& design, Reply& reply, Lumber which) const override {
    // One ridge board carries both roofs.
    if (which == Lumber::kRidge) design.Rafter2.RidgeThickness = design.Rafter1.RidgeThickness;
    Recalculate(design, reply);
  }
};

}  // namespace

const RoofType& DualSlopeRoof() {
  static const DualSlope roof({Roof::kDualSlope,
                               "Dual Slope",
                               "Dual",
                               80,
                               kPages,
                               {.tops = kGableTops, .kneewalls = 2, .rearPage = true},
                               kHints});
  return roof;
}

}  // namespace pitchcraft
