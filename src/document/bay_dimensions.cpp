// Back, face, projection and angle of a bay: any three give the fourth.
#include <cmath>

#include "core/angles.h"
#include "document/document.h"

namespace pitchcraft {
namespace {

constexpr const char* kHipsCross = "Not possible... Hip rafters will cross!";

}  // namespace

void Document::FtBay_Commit(int) { CalculateBayDimensions(); }

void Document::CalculateBayDimensions() {
  Try("CalculateBayDimensions", [&] {
    if (!SolveBayField()) return;
    const Single projection = sheet.Projection.Value();
    const Single face = sheet.Face.Value();
    const Single back = sheet.Back.Value();
    const Single angle = sheet.BayAngle.Value();
    if (projection * face * back * angle == 0) return;
    if (!(angle > 0) || angle > 90) {
      return MsgBox("Bay Angle must be between 0 and 90 degrees.", "Bay dimensions");
    }
    Single side = projection;
    if (angle != 90) {
      const Single reach = projection * std::tan((90 - angle) * kRadiansPerDegree);
      side = std::sqrt(reach * reach + projection * projection);
    }
    if (back < side + side) return RefuseCrossingHips();
    HandBayToRafter(RoofType == roof::kDutchHip ? Rafter2 : Rafter1, side);
  });
}

// Fills the first field that reads 0 from the three others. False where the dimensions are not complete.
bool Document::SolveBayField() {
  const Single p = sheet.Projection.Value();
  const Single f = sheet.Face.Value();
  const Single k = sheet.Back.Value();
  const Single w = sheet.BayAngle.Value();
  const Single t = std::tan(1.570796326795 - w * kRadiansPerDegree);
  if (p == 0) {
    if (f * k * w == 0) return false;
    if (w == 90) {
      MsgBox("Projection must be entered if bay angle = 90\u00BA");
      Focus(sheet.ResetBay);
      return false;
    }
    const Single half = (k - f) / 2;
    SetBayField(sheet.Projection, half / t, 1);
  } else if (f == 0) {
    if (k * w == 0) return false;
    const Single reach = p * t;
    SetBayField(sheet.Face, k - (reach + reach), 2);
  } else if (k == 0) {
    if (w == 0) return false;
    SetBayField(sheet.Back, (p * t + p * t) + f, 3);
  } else if (w == 0) {
    Single angle = 90;
    if (k != f) {
      angle = p / ((k - f) / 2);
      angle = std::atan(angle);
      angle = angle * kDegreesPerRadian;
    }
    SetBayField(sheet.BayAngle, angle, 4);
  }
  return true;
}

void Document::SetBayField(MeasureControl& field, double value, int mode) {
  field.ForeColor = CtlCalcColor;
  field.Calculated = true;
  field.ReadOnly = true;
  field.SetValue(Single(value));
  BayEditMode = mode;
}

// The hips would meet before the ridge.
void Document::RefuseCrossingHips() {
  if (RoofType == roof::kDutchHip) {
    MsgBox(kHipsCross, "Dutch Hip Dimensions");
    sheet.Span[2].SetValue((sheet.Span[0].Value() + sheet.Span[0].Value()) / 3);
    sheet.Projection.SetValue(sheet.Span[2].Value());
  } else {
    MsgBox(kHipsCross, "Bay Dimensions");
    Command1_Click();
  }
}

void Document::HandBayToRafter(Rafter& rafter, double side) {
  // The solver is called for other roof types too; only a bay and a Dutch hip have a rafter that carries one.
  if (RoofType != roof::kBay && RoofType != roof::kDutchHip) return;
  const Single angle = sheet.BayAngle.Value();
  rafter.Back = sheet.Back.Value();
  rafter.Face = sheet.Face.Value();
  rafter.BayAngle = angle;
  rafter.Projection = sheet.Projection.Value();
  rafter.BaySide = side;
  rafter.CenterLedgerSpan = rafter.Back;
  rafter.LedgerRunFactor = UnitRun / std::sin(angle * kRadiansPerDegree);
  rafter.HipRunFactor = UnitRun / std::sin((90 - angle / 2) * kRadiansPerDegree);
  if (RoofType == roof::kBay) Draw(Drawing::kBayPlan, rafter);
  rafter.CalculateBay();
}

void Document::Command1_Click(int) {
  Try("Command1_Click", [&] {
    for (MeasureControl* field : {&sheet.Face, &sheet.Back, &sheet.BayAngle, &sheet.Projection}) {
      field->ForeColor = CtlForeColor;
      field->ReadOnly = false;
      field->SetText("");
      field->Calculated = false;
    }
    BayEditMode = 0;
    Focus(sheet.Projection);
    Draw(Drawing::kBayDiagram, Rafter1);
  });
}

}  // namespace pitchcraft
