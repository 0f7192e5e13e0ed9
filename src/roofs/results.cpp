#include "roofs/results.h"

#include <cmath>

#include "core/angles.h"
#include "core/number_text.h"
#include "design/questions.h"

namespace pitchcraft {
namespace {

// The heel and the seat are those after the limits: this is how a person sees a clamped value.
void ShowRow(Design& design, std::size_t row, const Rafter& rafter) {
  Sheet& sheet = design.sheet;
  sheet.Slope[row].SetValues(rafter.Slope, UnitRun(design));
  ShowResult(sheet.Span[row], rafter.Span);
  ShowResult(sheet.Overhang[row], rafter.Overhang);
  ShowResult(sheet.Heel[row], rafter.CommonHeel);
  ShowResult(sheet.Seat[row], rafter.CommonSeat);
  sheet.Common[row].SetValues(rafter.Thickness, rafter.Depth);
  sheet.Fascia[row].SetValues(rafter.FasciaThickness, rafter.FasciaHeight);
}

}  // namespace

void ShowResult(MeasureControl& field, double value) {
  if (std::isfinite(value)) {
    field.SetText(PlainText(value));
  } else {
    field.SetValue(value);
  }
}

void ShowFront(Design& design) {
  design.Calculated1 = design.Rafter1;
  if (design.RoofType == Roof::kGambrel) {
    // The solver has written the other fields itself.
    design.sheet.Heel[0].SetValue(design.Rafter1.Heel);
    design.sheet.Seat[0].SetValue(design.Rafter1.Seat);
    if (design.Rafter1.RafterType == Member::kGambrelBottom)
      design.sheet.Overhang[0].SetValue(design.Rafter1.Overhang);
    return;
  }
  ShowRow(design, 0, design.Rafter1);
  design.sheet.Ridge.SetValues(design.Rafter1.RidgeThickness, design.Rafter1.RidgeDepth);
  design.sheet.HipOrValley.SetValues(design.Rafter1.HipValThickness, design.Rafter1.HipValDepth);
}

void KeepRear(Design& design) { design.Calculated2 = design.Rafter2; }

void ShowRear(Design& design) {
  KeepRear(design);
  ShowRow(design, 1, design.Rafter2);
}

void CopySlope(Design& design) {
  design.Rafter2.Slope = design.Rafter1.Slope;
  design.Rafter2.degrees = design.Rafter1.degrees;
}

void CopyLumber(Design& design) {
  const Rafter& from = design.Rafter1;
  Rafter& to = design.Rafter2;
  to.Depth = from.Depth;
  to.Thickness = from.Thickness;
  to.RidgeDepth = from.RidgeDepth;
  to.RidgeThickness = from.RidgeThickness;
  to.FasciaHeight = from.FasciaHeight;
  to.FasciaThickness = from.FasciaThickness;
}

void CopyHipLumber(Design& design) {
  design.Rafter2.HipValDepth = design.Rafter1.HipValDepth;
  design.Rafter2.HipValThickness = design.Rafter1.HipValThickness;
}

void CopyLocks(Design& design) {
  design.Rafter2.HeelLocked = design.Rafter1.HeelLocked;
  design.Rafter2.SeatLocked = design.Rafter1.SeatLocked;
}

double DegreesOfRow(const Design& design, std::size_t row) {
  return kDegreesPerRadian * std::atan(design.sheet.Slope[row].LeftValue() / UnitRun(design));
}

void CopySlopeRow(Design& design, std::size_t from, std::size_t to) {
  design.sheet.Slope[to].CopyPositionFrom(design.sheet.Slope[from]);
  design.sheet.Degrees[to].CopyPositionFrom(design.sheet.Degrees[from]);
}

void ShowSlopeRow(Design& design, std::size_t row) {
  design.sheet.Slope[row].Visible = !design.InDegrees;
  design.sheet.Degrees[row].Visible = design.InDegrees;
}

}  // namespace pitchcraft
