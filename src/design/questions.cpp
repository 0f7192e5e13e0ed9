#include "design/questions.h"

namespace pitchcraft {

int UnitRun(const Design& design) { return design.Metric ? 1000 : 12; }

double UnitHipRun(const Design& design) { return design.Metric ? 1414.2135 : 16.970562; }

double DrawScale(const Design& design) { return design.Metric ? 1.0 : 10.0; }

MeasureConverter LengthFormat(const Design& design) {
  MeasureConverter format;
  format.Units = design.Metric ? kMillimetres : kFeetAndInches;
  format.BaseUnits = design.Metric ? kBaseMillimetres : kBaseInches;
  format.DecimalPlaces = design.Metric ? 0 : 4;
  format.Imperial = !design.Metric;
  return format;
}

MeasureConverter InchesAlone(const Design& design) {
  MeasureConverter format = LengthFormat(design);
  if (!design.Metric) format.Units = kInchesAlone;
  return format;
}

bool IsUnequalHip(const Design& design) {
  return design.RoofType == Roof::kHip && design.Rafter1.HipEndSlope != design.Rafter1.Slope;
}

Roof RoofKind(const Design& design) { return IsUnequalHip(design) ? Roof::kBastardHip : design.RoofType; }

int PageShown(const Design& design) { return design.sheet.Tabs[0].Page; }

std::size_t RowShown(const Design& design) { return static_cast<std::size_t>(design.sheet.Tabs[1].Page); }

bool BayIsComplete(const Design& design) {
  const Sheet& sheet = design.sheet;
  return sheet.Face.Value() * sheet.Back.Value() * sheet.BayAngle.Value() * sheet.Projection.Value() != 0;
}

std::vector<std::string> Waiting(const Design& design) {
  std::vector<std::string> names;
  // A bay without its dimensions is not calculated at all.
  if (design.RoofType == Roof::kBay && !BayIsComplete(design)) return names;
  const Sheet& sheet = design.sheet;
  const auto waits = [&](const Control& field, double entered, double calculated) {
    if (field.Visible && Single(entered) != Single(calculated)) names.push_back(field.Name);
  };
  // The second run of unequal spans is taken from its field when the valleys are calculated.
  if (design.RoofType == Roof::kUnequalSpanValley)
    waits(sheet.Span[2], sheet.Span[2].Value(), design.Calculated2.Span);
  const Rafter* const entered[] = {&design.Rafter1, &design.Rafter2};
  const Rafter* const calculated[] = {&design.Calculated1, &design.Calculated2};
  const std::size_t rows = design.RoofType == Roof::kDualSlope ? 2 : 1;
  for (std::size_t row = 0; row < rows; ++row) {
    waits(sheet.Overhang[row], entered[row]->Overhang, calculated[row]->Overhang);
    if (sheet.HeelLock[row].Ticked()) waits(sheet.Heel[row], entered[row]->Heel, calculated[row]->Heel);
    if (sheet.SeatLock[row].Ticked()) waits(sheet.Seat[row], entered[row]->Seat, calculated[row]->Seat);
  }
  return names;
}

bool TakesEntry(const Design& design, const Control& control) {
  const Sheet& sheet = design.sheet;
  for (std::size_t row = 0; row < 2; ++row) {
    if (&control == &sheet.Heel[row]) return sheet.HeelLock[row].Ticked();
    if (&control == &sheet.Seat[row]) return sheet.SeatLock[row].Ticked();
  }
  for (std::size_t row = 0; row < 3; ++row) {
    if (&control == &sheet.Slope[row]) return !sheet.Slope[row].Locked;
    if (&control == &sheet.Degrees[row]) return !sheet.Degrees[row].Locked;
  }
  for (const MeasureControl* field : {&sheet.Projection, &sheet.Face, &sheet.Back, &sheet.BayAngle}) {
    if (&control == field) return !field->ReadOnly;
  }
  const bool regular = design.RoofType == Roof::kGambrel && design.Gambrel == GambrelKind::kRegular;
  const bool derived =
      &control == &sheet.Span[2] || &control == &sheet.RidgeLength[0] || &control == &sheet.RidgeLength[1];
  return !(regular && derived);
}

}  // namespace pitchcraft
