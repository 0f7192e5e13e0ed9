#include "roofs/bay_dimensions.h"

#include <cmath>

#include "core/angles.h"
#include "design/questions.h"

namespace pitchcraft {
namespace {

void SetSolved(Design& design, MeasureControl& field, double value, int mode) {
  field.Calculated = true;
  field.ReadOnly = true;
  field.SetValue(Single(value));
  design.BayEditMode = mode;
}

// False where the dimensions are not complete.
bool SolveField(Design& design, Reply& reply) {
  Sheet& sheet = design.sheet;
  const Single p = sheet.Projection.Value();
  const Single f = sheet.Face.Value();
  const Single k = sheet.Back.Value();
  const Single w = sheet.BayAngle.Value();
  const Single t = std::tan(1.570796326795 - w * kRadiansPerDegree);
  if (p == 0) {
    if (f * k * w == 0) return false;
    if (w == 90) {
      reply.Say("Projection must be entered if bay angle = 90\u00BA");
      reply.GiveFocus(sheet.ResetBay);
      return false;
    }
    const Single half = (k - f) / 2;
    SetSolved(design, sheet.Projection, half / t, 1);
  } else if (f == 0) {
    if (k * w == 0) return false;
    const Single reach = p * t;
    SetSolved(design, sheet.Face, k - (reach + reach), 2);
  } else if (k == 0) {
    if (w == 0) return false;
    SetSolved(design, sheet.Back, (p * t + p * t) + f, 3);
  } else if (w == 0) {
    Single angle = 90;
    if (k != f) {
      angle = p / ((k - f) / 2);
      angle = std::atan(angle);
      angle = angle * kDegreesPerRadian;
    }
    SetSolved(design, sheet.BayAngle, angle, 4);
  }
  return true;
}

/// Plan length of the angled side.
Single SideOf(const Sheet& sheet) {
  const Single projection = sheet.Projection.Value();
  const Single angle = sheet.BayAngle.Value();
  if (angle == 90) return projection;
  const Single reach = projection * std::tan((90 - angle) * kRadiansPerDegree);
  return std::sqrt(reach * reach + projection * projection);
}

}  // namespace

BaySolution SolveBay(Design& design, Reply& reply) {
  if (!SolveField(design, reply)) return BaySolution::kIncomplete;
  const Sheet& sheet = design.sheet;
  const Single projection = sheet.Projection.Value();
  const Single face = sheet.Face.Value();
  const Single back = sheet.Back.Value();
  const Single angle = sheet.BayAngle.Value();
  if (projection * face * back * angle == 0) return BaySolution::kIncomplete;
  if (!(angle > 0) || angle > 90) {
    reply.Say("Bay Angle must be between 0 and 90 degrees.", "Bay dimensions");
    return BaySolution::kIncomplete;
  }
  const Single side = SideOf(sheet);
  return back < side + side ? BaySolution::kHipsCross : BaySolution::kSolved;
}

void HandBayTo(Rafter& rafter, const Design& design) {
  const Sheet& sheet = design.sheet;
  const int unitRun = UnitRun(design);
  const Single angle = sheet.BayAngle.Value();
  rafter.Back = sheet.Back.Value();
  rafter.Face = sheet.Face.Value();
  rafter.BayAngle = angle;
  rafter.Projection = sheet.Projection.Value();
  rafter.BaySide = SideOf(sheet);
  rafter.CenterLedgerSpan = rafter.Back;
  rafter.LedgerRunFactor = unitRun / std::sin(angle * kRadiansPerDegree);
  rafter.HipRunFactor = unitRun / std::sin((90 - angle / 2) * kRadiansPerDegree);
}

void ResetBay(Design& design, Reply& reply) {
  Sheet& sheet = design.sheet;
  for (MeasureControl* field : {&sheet.Face, &sheet.Back, &sheet.BayAngle, &sheet.Projection}) {
    field->ReadOnly = false;
    field->Calculated = false;
    field->SetText("");
  }
  design.BayEditMode = 0;
  reply.GiveFocus(sheet.Projection);
}

}  // namespace pitchcraft
