#include "document/slopes.h"

#include <cmath>

#include "core/angles.h"
#include "core/number_text.h"
#include "design/questions.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

// A percentage in either box becomes its rise; a rise over another run is brought to the run of the unit
// system.
void Normalize(Design& design, std::size_t row, bool readPercent) {
  PairControl& slope = design.sheet.Slope[row];
  const int unitRun = UnitRun(design);
  if (readPercent) {
    for (const std::string* text : {&slope.RightText(), &slope.LeftText()}) {
      if (text->find('%') == std::string::npos) continue;
      const Single percent = LeadingNumber(text->substr(0, text->size() - 1));
      return slope.SetValues((unitRun / 100.0) * percent, unitRun);
    }
  }
  if (slope.RightValue() != unitRun) {
    slope.SetValues(slope.LeftValue() * (unitRun / slope.RightValue()), unitRun);
  }
}

void ApplyMain(Design& design, Reply& reply, SlopeEntry how) {
  if (design.RoofType != Roof::kGambrel) {
    design.Rafter1.Slope = design.sheet.Slope[0].LeftValue();
    design.Rafter1.degrees = LeadingNumber(design.sheet.Degrees[0].Text());
  }
  RoofOf(design).SlopeEntered(design, reply, how);
}

void ApplyRear(Design& design, SlopeEntry how) {
  design.Rafter2.Slope = design.sheet.Slope[1].LeftValue();
  if (how != SlopeEntry::kPicked && how != SlopeEntry::kKey)
    design.Rafter2.degrees = LeadingNumber(design.sheet.Degrees[1].Text());
  design.Rafter2.Calculate();
  ShowRear(design);
}

void Apply(Design& design, Reply& reply, std::size_t row, SlopeEntry how) {
  if (row == 0) ApplyMain(design, reply, how);
  if (row == 1) ApplyRear(design, how);
  if (row == 2) RoofOf(design).SecondSlopeEntered(design, reply, how);
}

void TakeSlope(Design& design, Reply& reply, int index, SlopeEntry how) {
  const auto row = static_cast<std::size_t>(index);
  const bool left = how == SlopeEntry::kLeft;
  Normalize(design, row, !left);
  const double degrees = DegreesOfRow(design, row);
  design.sheet.Degrees[row].SetText(PlainText(left ? RoundTo(degrees, 2) : degrees));
  Apply(design, reply, row, how);
}

// A slope of 0 degrees is no roof: 45 stands in for it.
void TakeDegrees(Design& design, Reply& reply, int index, SlopeEntry how) {
  const auto row = static_cast<std::size_t>(index);
  ComboControl& box = design.sheet.Degrees[row];
  PairControl& slope = design.sheet.Slope[row];
  if (box.Locked) return;
  const int unitRun = UnitRun(design);
  const double degrees = LeadingNumber(box.Text());
  if (degrees != 0) slope.SetValues(unitRun * std::tan(degrees * kRadiansPerDegree), unitRun);
  if (degrees == 0 || slope.LeftValue() == 0 || slope.RightValue() == 0) {
    box.SetText("45");
    slope.SetValues(unitRun, unitRun);
  }
  Apply(design, reply, row, how);
}

bool IsLocked(const Design& design, int index) {
  return design.sheet.Slope[static_cast<std::size_t>(index)].Locked;
}

}  // namespace

void SlopePicked(Design& design, Reply& reply, int index) {
  if (!IsLocked(design, index)) TakeSlope(design, reply, index, SlopeEntry::kPicked);
}

void SlopeLeft(Design& design, Reply& reply, int index) {
  if (!IsLocked(design, index)) TakeSlope(design, reply, index, SlopeEntry::kLeft);
}

void SlopeConfirmed(Design& design, Reply& reply, int index) {
  TakeSlope(design, reply, index, SlopeEntry::kKey);
}

void DegreesPicked(Design& design, Reply& reply, int index) {
  TakeDegrees(design, reply, index, SlopeEntry::kDegreesPicked);
}

void DegreesLeft(Design& design, Reply& reply, int index) {
  TakeDegrees(design, reply, index, SlopeEntry::kDegreesLeft);
}

}  // namespace pitchcraft
