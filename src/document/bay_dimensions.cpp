// Back, face, projection and angle of a bay: any three give the fourth.
#include <cmath>

#include "core/angles.h"
#include "document/frm_document.h"

namespace pitchcraft {
namespace {

constexpr const char* kHipsCross = "Not possible... Hip rafters will cross!";

}  // namespace

void frmDocument::FtBay_Commit(int) { CalculateBayDimensions(); }

void frmDocument::CalculateBayDimensions() {
  Try("CalculateBayDimensions", [&] {
    if (!SolveBayField()) return;
    const Single projection = sheet.FtProjection.Value();
    const Single face = sheet.FtFace.Value();
    const Single back = sheet.FtBack.Value();
    const Single angle = sheet.FtBayAngle.Value();
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
bool frmDocument::SolveBayField() {
  const Single p = sheet.FtProjection.Value();
  const Single f = sheet.FtFace.Value();
  const Single k = sheet.FtBack.Value();
  const Single w = sheet.FtBayAngle.Value();
  const Single t = std::tan(1.570796326795 - w * kRadiansPerDegree);
  if (p == 0) {
    if (f * k * w == 0) return false;
    if (w == 90) {
      MsgBox("Projection must be entered if bay angle = 90\u00BA");
      Focus(sheet.Command1);
      return false;
    }
    const Single half = (k - f) / 2;
    SetBayField(sheet.FtProjection, half / t, 1);
  } else if (f == 0) {
    if (k * w == 0) return false;
    const Single reach = p * t;
    SetBayField(sheet.FtFace, k - (reach + reach), 2);
  } else if (k == 0) {
    if (w == 0) return false;
    SetBayField(sheet.FtBack, (p * t + p * t) + f, 3);
  } else if (w == 0) {
    Single angle = 90;
    if (k != f) {
      angle = p / ((k - f) / 2);
      angle = std::atan(angle);
      angle = angle * kDegreesPerRadian;
    }
    SetBayField(sheet.FtBayAngle, angle, 4);
  }
  return true;
}

void frmDocument::SetBayField(FtInText& field, double value, int mode) {
  field.ForeColor = CtlCalcColor;
  field.Calculated = true;
  field.ReadOnly = true;
  field.SetValue(Single(value));
  BayEditMode = mode;
}

// The hips would meet before the ridge.
void frmDocument::RefuseCrossingHips() {
  if (RoofType == roof::kDutchHip) {
    MsgBox(kHipsCross, "Dutch Hip Dimensions");
    sheet.FtSpan[2].SetValue((sheet.FtSpan[0].Value() + sheet.FtSpan[0].Value()) / 3);
    sheet.FtProjection.SetValue(sheet.FtSpan[2].Value());
  } else {
    MsgBox(kHipsCross, "Bay Dimensions");
    Command1_Click();
  }
}

void frmDocument::HandBayToRafter(CRafter& rafter, double side) {
  // The solver is called for other roof types too; only a bay and a Dutch hip have a rafter that carries one.
  if (RoofType != roof::kBay && RoofType != roof::kDutchHip) return;
  const Single angle = sheet.FtBayAngle.Value();
  rafter.Back = sheet.FtBack.Value();
  rafter.Face = sheet.FtFace.Value();
  rafter.BayAngle = angle;
  rafter.Projection = sheet.FtProjection.Value();
  rafter.BaySide = side;
  rafter.CenterLedgerSpan = rafter.Back;
  rafter.LedgerRunFactor = UnitRun / std::sin(angle * kRadiansPerDegree);
  rafter.HipRunFactor = UnitRun / std::sin((90 - angle / 2) * kRadiansPerDegree);
  if (RoofType == roof::kBay) Draw(Drawing::kBayPlan, rafter);
  rafter.CalculateBay();
}

void frmDocument::Command1_Click(int) {
  Try("Command1_Click", [&] {
    for (FtInText* field : {&sheet.FtFace, &sheet.FtBack, &sheet.FtBayAngle, &sheet.FtProjection}) {
      field->ForeColor = CtlForeColor;
      field->ReadOnly = false;
      field->SetText("");
      field->Calculated = false;
    }
    BayEditMode = 0;
    Focus(sheet.FtProjection);
    Draw(Drawing::kBayDiagram, Rafter1);
  });
}

}  // namespace pitchcraft
