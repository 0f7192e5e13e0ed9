#include "document/units.h"

#include "core/number_text.h"
#include "design/questions.h"
#include "document/commands.h"
#include "document/fields.h"
#include "document/lists.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"
#include "roofs/switch_roof.h"

namespace pitchcraft {
namespace {

/// What a session in one unit system begins with. Lengths are inches or millimetres.
struct UnitDefaults {
  double slope, span, overhang, thickness, depth, fasciaHeight;
};
constexpr UnitDefaults kImperialDefaults{1, 144, 10.5, 1.5, 7.25, 5.5};
constexpr UnitDefaults kMetricDefaults{100, 3600, 300, 38, 184, 140};

std::vector<std::string> UpperFasciaItems(bool metric) {
  if (!metric) return {"3 1/2\"", "5 1/2\"", "7 1/4\"", "9 1/2\"", "11 1/4\""};
  return {"70", "89", "90", "135", "140", "180", "184", "235", "240", "280", "286"};
}

std::vector<std::string> SpacingItems(bool metric) {
  if (!metric) return {"12\"", "16\"", "19.2\"", "24\"", "48\""};
  return {"12\"", "400 mm", "16\"", "450 mm", "600 mm", "24\"", "1200 mm", "48\"", "2400 mm"};
}

// A heel, seat or kneewall of the other system is discarded, and with it its lock.
void ClearLocksAndKneewalls(Design& design, Reply& reply) {
  Sheet& sheet = design.sheet;
  for (std::size_t row = 0; row < 2; ++row) {
    sheet.HeelLock[row].Value = 0;
    sheet.SeatLock[row].Value = 0;
    sheet.HasKneewall[row].Value = 0;
    TakeTick(reply, sheet.HasKneewall[row], sheet.Kneewall[row], sheet.Label[row]);
    sheet.Kneewall[row].SetValue(0);
  }
  for (Rafter* rafter : {&design.Rafter1, &design.Rafter2}) {
    rafter->HeelLocked = false;
    rafter->SeatLocked = false;
    rafter->Kneewall = 0;
  }
}

void FormatFields(Design& design) {
  const MeasureConverter lengths = LengthFormat(design);
  design.sheet.ForEachMeasure([&](auto& field) {
    const bool plain = field.Format.Units == kPlainNumber;  // slopes and the bay angle are no lengths
    field.Format = lengths;
    if (plain) field.Format.Units = kPlainNumber;
  });
}

void TakeDefaults(Design& design) {
  const UnitDefaults& defaults = design.Metric ? kMetricDefaults : kImperialDefaults;
  for (Rafter* rafter : {&design.Rafter1, &design.Rafter2}) {
    rafter->SetUnits(design.Metric ? 1 : 0);
    rafter->Slope = defaults.slope;
    rafter->Span = defaults.span;
    if (!design.Metric) rafter->HipValSpan = defaults.span;
    rafter->Overhang = defaults.overhang;
    rafter->Thickness = rafter->FasciaThickness = rafter->RidgeThickness = rafter->HipValThickness =
        defaults.thickness;
    rafter->Depth = rafter->RidgeDepth = rafter->HipValDepth = defaults.depth;
    rafter->FasciaHeight = defaults.fasciaHeight;
    rafter->Kneewall = 0;
  }
  design.sheet.Span[2].SetValue(defaults.span);
  design.sheet.UpperFascia.SetList(UpperFasciaItems(design.Metric));
  design.sheet.Spacing.SetList(SpacingItems(design.Metric));
}

}  // namespace

void SwitchUnits(Document& document, Reply& reply, bool metric) {
  Design& design = document.design;
  Sheet& sheet = design.sheet;
  design.Metric = metric;
  FormatFields(design);
  ClearLocksAndKneewalls(design, reply);
  sheet.RoofList.SetListIndex(0);
  ArrangeRoof(design, reply, GableRoof());
  TakeDefaults(design);
  FillLists(document);
  sheet.Tabs[1].Page = 0;
  design.LockRow = 0;
  for (PairControl& slope : sheet.Slope) slope.SetListIndex(0);
  for (ComboControl& degrees : sheet.Degrees) degrees.SetListIndex(0);
  design.Rafter1.degrees = design.Rafter2.degrees = RoundTo(DegreesOfRow(design, 0), 2);
  sheet.Spacing.SetListIndex(1);
  SpacingEntered(design, reply, 0);
  GableRoof().Start(design, reply, false);
}

void ToggleUnits(Document& document, int) {
  Reply reply;
  document.Guard("mnuImperial_Click", [&] { SwitchUnits(document, reply, !document.design.Metric); });
  document.TakeReply(reply);
  document.Refresh();
}

}  // namespace pitchcraft
