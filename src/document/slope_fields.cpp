// Slopes as rise over run and as degrees, and the lumber fields: commits that end in a calculation.
#include <cmath>

#include "core/angles.h"
#include "core/number_text.h"
#include "document/frm_document.h"

namespace pitchcraft {

// --- What a field ends in
// -------------------------------------------------------------------------------------------

bool frmDocument::SlopesDiffer() const {
  return sheet.LWSlope[2].LeftValue() != sheet.LWSlope[0].LeftValue();
}

void frmDocument::CalculateBastard() {
  Rafter1.OverhangsEqual = menus.mnuHipLayoutOverhangsEqual.Checked;
  if (Rafter1.OverhangsEqual) {
    Rafter1.CalculateAdjustedBastardHip();
  } else {
    Rafter1.CalculateBastardHip();
  }
}

void frmDocument::CalculateMain() {
  if (IsBastardByRafter()) Rafter1.OverhangsEqual = menus.mnuHipLayoutOverhangsEqual.Checked;
  Rafter1.Calculate();
}

void frmDocument::StandardTail(bool bastard) {
  switch (RoofType) {
    case roof::kBay: return Rafter1.CalculateBay();
    case roof::kOctagon: Rafter1.Heel = sheet.FtHeel[0].Value(); return Rafter1.CalculateOctagon();
    case roof::kGambrel: return CalculateGambrelDimensions("Heel");
    case roof::kHip:
      Rafter1.Heel = sheet.FtHeel[0].Value();
      return bastard ? CalculateBastard() : Rafter1.Calculate();
    default: return Rafter1.Calculate();
  }
}

void frmDocument::FitCalculation() {
  switch (RoofType) {
    case roof::kBay: return Rafter1.CalculateBay();
    case roof::kOctagon: return Rafter1.CalculateOctagon();
    case roof::kHip: return SlopesDiffer() ? CalculateBastard() : Rafter1.Calculate();
    default: return Rafter1.Calculate();
  }
}

// --- Lumber
// ---------------------------------------------------------------------------------------------------------
// The guards look at the sizes that the rafter holds, not at the entry.

void frmDocument::LWFascia_Commit(int Index) {
  Try("LWFascia_Commit", [&] {
    CRafter& rafter = Index == 0 ? Rafter1 : Rafter2;
    if (rafter.FasciaHeight * rafter.FasciaThickness < 0) return;
    StorePair(sheet.LWFascia[static_cast<std::size_t>(Index)], Index, &CRafter::FasciaThickness,
              &CRafter::FasciaHeight, "Fascia");
  });
}

void frmDocument::LWRafter_Commit(int Index) {
  Try("LWRafter_Commit", [&] {
    CRafter& rafter = Index == 0 ? Rafter1 : Rafter2;
    if (!(rafter.Depth * rafter.Thickness > 0)) return;
    StorePair(sheet.LWRafter[static_cast<std::size_t>(Index)], Index, &CRafter::Thickness, &CRafter::Depth,
              "Rafter");
  });
}

void frmDocument::StorePair(const LWCombo& field, int Index, Single CRafter::*left, Single CRafter::*right,
                            const char* changedField) {
  CRafter& rafter = Index == 0 ? Rafter1 : Rafter2;
  rafter.*left = field.LeftValue();
  rafter.*right = field.RightValue();
  if (Index == 1) return Rafter2.Calculate();
  if (RoofType == roof::kGambrel) {
    Rafter2.*left = Rafter1.*left;
    Rafter2.*right = Rafter1.*right;
    return CalculateGambrelDimensions(changedField);
  }
  StandardTail(IsBastardByRafter());
}

void frmDocument::LWHipVal_Commit(int) {
  Try("LWHipVal_Commit", [&] {
    if (!(Rafter1.HipValThickness * Rafter1.HipValDepth > 0)) return;
    Rafter1.HipValThickness = sheet.LWHipVal.LeftValue();
    Rafter1.HipValDepth = sheet.LWHipVal.RightValue();
    StandardTail(IsBastardByRafter());
  });
}

void frmDocument::LWRidge_Commit(int) {
  Try("LWRidge_Commit", [&] {
    if (Rafter1.RidgeThickness < 0 || Rafter1.RidgeDepth < 0) return;
    Rafter1.RidgeThickness = sheet.LWRidge.LeftValue();
    Rafter1.RidgeDepth = sheet.LWRidge.RightValue();
    switch (RoofType) {
      case roof::kGambrel:
        Rafter2.RidgeThickness = Rafter1.RidgeThickness;
        Rafter2.RidgeDepth = Rafter1.RidgeDepth;
        return CalculateGambrelDimensions("Ridge");
      case roof::kDualSlope: Rafter2.RidgeThickness = Rafter1.RidgeThickness; return Rafter1.Calculate();
      case roof::kOctagon:
        return Rafter1.Calculate();  // an octagon meets in a point: its ridge board is none
      default: return StandardTail(IsBastardByRafter());
    }
  });
}

// --- Slopes
// ---------------------------------------------------------------------------------------------------------

void frmDocument::LWSlope_Click(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (sheet.LWSlope[row].Locked || LoadingProject == 1) return;
  Try("LWSlope_Click", [&] {
    NormalizeSlope(row, true);
    sheet.cboDegrees[row].SetText(PlainText(DegreesOfRow(row)));
    ApplySlope(row, SlopeEntry::kClick);
  });
}

void frmDocument::LWSlope_Commit(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (sheet.LWSlope[row].Locked || LoadingProject == 1) return;
  Try("LWSlope_Commit", [&] {
    NormalizeSlope(row, false);
    sheet.cboDegrees[row].SetText(PlainText(RoundTo(DegreesOfRow(row), 2)));
    ApplySlope(row, SlopeEntry::kCommit);
  });
}

void frmDocument::LWSlope_KeyPress(int Index, int KeyAscii) {
  if (KeyAscii != kKeyEnter && KeyAscii != kKeyTab) return;
  const auto row = static_cast<std::size_t>(Index);
  Try("LWSlope_KeyPress", [&] {
    NormalizeSlope(row, true);
    sheet.cboDegrees[row].SetText(PlainText(DegreesOfRow(row)));
    ApplySlope(row, SlopeEntry::kKeyPress);
  });
}

// A percentage in either box becomes its rise; a rise over another run is brought to the run of the unit
// system.
void frmDocument::NormalizeSlope(std::size_t row, bool readPercent) {
  LWCombo& slope = sheet.LWSlope[row];
  if (readPercent) {
    for (const std::string* text : {&slope.RightText(), &slope.LeftText()}) {
      if (text->find('%') == std::string::npos) continue;
      const Single percent = LeadingNumber(text->substr(0, text->size() - 1));
      return slope.SetValues((UnitRun / 100.0) * percent, UnitRun);
    }
  }
  if (slope.RightValue() != UnitRun) {
    slope.SetValues(slope.LeftValue() * (UnitRun / slope.RightValue()), UnitRun);
  }
}

double frmDocument::DegreesOfRow(std::size_t row) const {
  return kDegreesPerRadian * std::atan(sheet.LWSlope[row].LeftValue() / UnitRun);
}

void frmDocument::cboDegrees_Click(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (sheet.cboDegrees[row].Locked) return;
  Try("cboDegrees_Click", [&] { TakeDegrees(row, SlopeEntry::kDegreesClick); });
}

void frmDocument::cboDegrees_LostFocus(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (sheet.cboDegrees[row].Locked || LoadingProject == 1) return;
  Try("cboDegrees_LostFocus", [&] { TakeDegrees(row, SlopeEntry::kDegreesLeave); });
}

// A slope of 0 degrees is no roof: 45 stands in for it.
void frmDocument::TakeDegrees(std::size_t row, SlopeEntry how) {
  ComboControl& box = sheet.cboDegrees[row];
  LWCombo& slope = sheet.LWSlope[row];
  const double degrees = LeadingNumber(box.Text());
  if (degrees != 0) slope.SetValues(UnitRun * std::tan(degrees * kRadiansPerDegree), UnitRun);
  if (degrees == 0 || slope.LeftValue() == 0 || slope.RightValue() == 0) {
    box.SetText("45");
    slope.SetValues(UnitRun, UnitRun);
  }
  ApplySlope(row, how);
}

void frmDocument::ApplySlope(std::size_t row, SlopeEntry how) {
  if (row == 0) ApplyMainSlope(how);
  if (row == 1) ApplyRearSlope(how);
  if (row == 2) ApplySecondSlope(how);
  if (RoofType != roof::kHip) return;
  sheet.VSTab[0].SetCaption(RowsDiffer(how) ? kBastardHipPages : RoofTypeByCode(roof::kHip)->Pages);
  CurrentTab = sheet.VSTab[0].Page;
  Draw(Drawing::kHipPlan, Rafter1);
}

void frmDocument::ApplyMainSlope(SlopeEntry how) {
  if (RoofType != roof::kGambrel) {
    Rafter1.Slope = sheet.LWSlope[0].LeftValue();
    Rafter1.degrees = LeadingNumber(sheet.cboDegrees[0].Text());
  }
  switch (RoofType) {
    case roof::kDutchHip: Rafter2.Slope = Rafter1.Slope; return Rafter1.Calculate();
    case roof::kBlindValley:
      Rafter1.Calculate();
      FillBlindValleyRidges();
      return Draw(Drawing::kBlindValley, Rafter1);
    case roof::kHip: return ApplyPlainHipSlope(how);
    case roof::kOctagon: return Rafter1.CalculateOctagon();
    case roof::kGambrel: TakeGambrelSlopes(); return CalculateGambrelDimensions("Upper Slope");
    case roof::kBay: return Rafter1.CalculateBay();
    default: return Rafter1.Calculate();
  }
}

// A new main slope brings a hip back to equal slopes; a different end is entered after it.
void frmDocument::ApplyPlainHipSlope(SlopeEntry how) {
  Rafter1.RafterType = RafterType::kHip;
  ShowOverhangsEqualMenus(false);
  Rafter1.Heel = sheet.FtHeel[0].Value();
  if (how != SlopeEntry::kClick) sheet.LWSlope[2].CopyPositionFrom(sheet.LWSlope[0]);
  sheet.cboDegrees[2].CopyPositionFrom(sheet.cboDegrees[0]);
  Rafter1.Calculate();
}

void frmDocument::ApplyRearSlope(SlopeEntry how) {
  Rafter2.Slope = sheet.LWSlope[1].LeftValue();
  const bool storeDegrees = how != SlopeEntry::kClick && how != SlopeEntry::kKeyPress;
  if (storeDegrees) Rafter2.degrees = LeadingNumber(sheet.cboDegrees[1].Text());
  Rafter2.Calculate();
}

void frmDocument::ApplySecondSlope(SlopeEntry how) {
  switch (RoofType) {
    case roof::kHip: return ApplyHipEndSlope(how);
    case roof::kBlindValley:
      Rafter1.Calculate();
      FillBlindValleyRidges();
      return Draw(Drawing::kBlindValley, Rafter1);
    case roof::kGambrel: TakeGambrelSlopes(); return CalculateGambrelDimensions("Lower Slope");
    default: return;
  }
}

void frmDocument::ApplyHipEndSlope(SlopeEntry how) {
  const bool setLastCommon = how != SlopeEntry::kClick || sheet.chkLastCommon.Ticked();
  if (!RowsDiffer(how)) {
    Rafter1.Heel = sheet.FtHeel[0].Value();
    Rafter1.RafterType = RafterType::kHip;
    Rafter1.Calculate();
    if (setLastCommon) sheet.FtLastCommon.SetValue(Rafter1.Span);
    return;
  }
  Rafter1.RafterType = RafterType::kBastardHip;
  Rafter1.HipEndSlope = sheet.LWSlope[2].LeftValue();
  if (how == SlopeEntry::kCommit) {
    Rafter1.HipEndDegrees = RoundTo(DegreesOfRow(2), 2);
  } else if (how != SlopeEntry::kClick && how != SlopeEntry::kKeyPress) {
    Rafter1.HipEndDegrees = LeadingNumber(sheet.cboDegrees[2].Text());
  }
  ShowOverhangsEqualMenus(true);
  CalculateBastard();
  if (setLastCommon) {
    sheet.FtLastCommon.SetValue((Rafter1.Slope / Rafter1.HipEndSlope) * Rafter1.Span -
                                Rafter1.HipEndOverhangExcess);
  }
}

bool frmDocument::RowsDiffer(SlopeEntry how) const {
  const bool byDegrees = how == SlopeEntry::kDegreesClick || how == SlopeEntry::kDegreesLeave;
  return byDegrees ? sheet.cboDegrees[2].Text() != sheet.cboDegrees[0].Text() : SlopesDiffer();
}

// Each rafter of a regular gambrel knows its own slope and, as its hip slope, that of the other.
void frmDocument::TakeGambrelSlopes() {
  if (!menus.mnuGambrelRegular.Checked) return;
  Rafter2.Slope = Rafter1.HipValSlope = sheet.LWSlope[0].LeftValue();
  Rafter1.Slope = Rafter2.HipValSlope = sheet.LWSlope[2].LeftValue();
}

void frmDocument::ShowDegreesOf(std::size_t row) {
  sheet.LWSlope[row].SetValues(Rafter1.Slope, UnitRun);
  sheet.cboDegrees[row].SetText(PlainText(DegreesOfRow(row)));
  Rafter1.degrees = LeadingNumber(sheet.cboDegrees[row].Text());
}

// --- Spacing
// --------------------------------------------------------------------------------------------------------

void frmDocument::cboSpacing_Click(int) {
  Try("cboSpacing_Click", [&] {
    Spacing = FtInConverter1.ToValue(sheet.cboSpacing.Text());
    Rafter1.spacing = Spacing;
    Rafter2.spacing = Spacing;
    if (Imperial()) {
      FtInConverter1.Units = kInchesAlone;  // 16" and not 1' 4"
      sheet.cboSpacing.SetText(FtInConverter1.ToText(Spacing));
      FtInConverter1.Units = kFeetAndInches;
    }
    RedrawSpacing();
  });
}

void frmDocument::RedrawSpacing() {
  const int page = sheet.VSTab[0].Page;
  if (RoofType == roof::kOctagon) {
    Rafter1.CalculateOctagon();
    if (page == 2) Draw(Drawing::kOctagonRafter, Rafter1);
    if (page == 3) Draw(Drawing::kOctagonLayout, Rafter1);
  } else if (RoofType == roof::kHip && page > 0 && page == sheet.VSTab[0].PageCount() - 1) {
    Draw(Drawing::kHipLayout, Rafter1);
  }
}

}  // namespace pitchcraft
