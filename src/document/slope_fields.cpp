// Slopes as rise over run and as degrees, and the lumber fields: commits that end in a calculation.
#include <cmath>

#include "core/angles.h"
#include "core/number_text.h"
#include "document/document.h"

namespace pitchcraft {

// --- What a field ends in
// -------------------------------------------------------------------------------------------

bool Document::SlopesDiffer() const { return sheet.Slope[2].LeftValue() != sheet.Slope[0].LeftValue(); }

void Document::CalculateBastard() {
  Rafter1.OverhangsEqual = menus.HipLayoutOverhangsEqual.Checked;
  if (Rafter1.OverhangsEqual) {
    Rafter1.CalculateAdjustedBastardHip();
  } else {
    Rafter1.CalculateBastardHip();
  }
}

void Document::CalculateMain() {
  if (IsBastardByRafter()) Rafter1.OverhangsEqual = menus.HipLayoutOverhangsEqual.Checked;
  Rafter1.Calculate();
}

void Document::StandardTail(bool bastard) {
  switch (RoofType) {
    case roof::kBay: return Rafter1.CalculateBay();
    case roof::kOctagon: Rafter1.Heel = sheet.Heel[0].Value(); return Rafter1.CalculateOctagon();
    case roof::kGambrel: return CalculateGambrelDimensions("Heel");
    case roof::kHip:
      Rafter1.Heel = sheet.Heel[0].Value();
      return bastard ? CalculateBastard() : Rafter1.Calculate();
    default: return Rafter1.Calculate();
  }
}

void Document::FitCalculation() {
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

void Document::LWFascia_Commit(int Index) {
  Try("LWFascia_Commit", [&] {
    Rafter& rafter = Index == 0 ? Rafter1 : Rafter2;
    if (rafter.FasciaHeight * rafter.FasciaThickness < 0) return;
    StorePair(sheet.Fascia[static_cast<std::size_t>(Index)], Index, &Rafter::FasciaThickness,
              &Rafter::FasciaHeight, "Fascia");
  });
}

void Document::LWRafter_Commit(int Index) {
  Try("LWRafter_Commit", [&] {
    Rafter& rafter = Index == 0 ? Rafter1 : Rafter2;
    if (!(rafter.Depth * rafter.Thickness > 0)) return;
    StorePair(sheet.Common[static_cast<std::size_t>(Index)], Index, &Rafter::Thickness, &Rafter::Depth,
              "Rafter");
  });
}

void Document::StorePair(const PairControl& field, int Index, Single Rafter::*left, Single Rafter::*right,
                         const char* changedField) {
  Rafter& rafter = Index == 0 ? Rafter1 : Rafter2;
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

void Document::LWHipVal_Commit(int) {
  Try("LWHipVal_Commit", [&] {
    if (!(Rafter1.HipValThickness * Rafter1.HipValDepth > 0)) return;
    Rafter1.HipValThickness = sheet.HipOrValley.LeftValue();
    Rafter1.HipValDepth = sheet.HipOrValley.RightValue();
    StandardTail(IsBastardByRafter());
  });
}

void Document::LWRidge_Commit(int) {
  Try("LWRidge_Commit", [&] {
    if (Rafter1.RidgeThickness < 0 || Rafter1.RidgeDepth < 0) return;
    Rafter1.RidgeThickness = sheet.Ridge.LeftValue();
    Rafter1.RidgeDepth = sheet.Ridge.RightValue();
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

void Document::LWSlope_Click(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (sheet.Slope[row].Locked || LoadingProject == 1) return;
  Try("LWSlope_Click", [&] {
    NormalizeSlope(row, true);
    sheet.Degrees[row].SetText(PlainText(DegreesOfRow(row)));
    ApplySlope(row, SlopeEntry::kClick);
  });
}

void Document::LWSlope_Commit(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (sheet.Slope[row].Locked || LoadingProject == 1) return;
  Try("LWSlope_Commit", [&] {
    NormalizeSlope(row, false);
    sheet.Degrees[row].SetText(PlainText(RoundTo(DegreesOfRow(row), 2)));
    ApplySlope(row, SlopeEntry::kCommit);
  });
}

void Document::LWSlope_KeyPress(int Index, int KeyAscii) {
  if (KeyAscii != kKeyEnter && KeyAscii != kKeyTab) return;
  const auto row = static_cast<std::size_t>(Index);
  Try("LWSlope_KeyPress", [&] {
    NormalizeSlope(row, true);
    sheet.Degrees[row].SetText(PlainText(DegreesOfRow(row)));
    ApplySlope(row, SlopeEntry::kKeyPress);
  });
}

// A percentage in either box becomes its rise; a rise over another run is brought to the run of the unit
// system.
void Document::NormalizeSlope(std::size_t row, bool readPercent) {
  PairControl& slope = sheet.Slope[row];
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

double Document::DegreesOfRow(std::size_t row) const {
  return kDegreesPerRadian * std::atan(sheet.Slope[row].LeftValue() / UnitRun);
}

void Document::cboDegrees_Click(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (sheet.Degrees[row].Locked) return;
  Try("cboDegrees_Click", [&] { TakeDegrees(row, SlopeEntry::kDegreesClick); });
}

void Document::cboDegrees_LostFocus(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (sheet.Degrees[row].Locked || LoadingProject == 1) return;
  Try("cboDegrees_LostFocus", [&] { TakeDegrees(row, SlopeEntry::kDegreesLeave); });
}

// A slope of 0 degrees is no roof: 45 stands in for it.
void Document::TakeDegrees(std::size_t row, SlopeEntry how) {
  ComboControl& box = sheet.Degrees[row];
  PairControl& slope = sheet.Slope[row];
  const double degrees = LeadingNumber(box.Text());
  if (degrees != 0) slope.SetValues(UnitRun * std::tan(degrees * kRadiansPerDegree), UnitRun);
  if (degrees == 0 || slope.LeftValue() == 0 || slope.RightValue() == 0) {
    box.SetText("45");
    slope.SetValues(UnitRun, UnitRun);
  }
  ApplySlope(row, how);
}

void Document::ApplySlope(std::size_t row, SlopeEntry how) {
  if (row == 0) ApplyMainSlope(how);
  if (row == 1) ApplyRearSlope(how);
  if (row == 2) ApplySecondSlope(how);
  if (RoofType != roof::kHip) return;
  sheet.Tabs[0].SetCaption(RowsDiffer(how) ? kBastardHipPages : RoofTypeByCode(roof::kHip)->Pages);
  CurrentTab = sheet.Tabs[0].Page;
  Draw(Drawing::kHipPlan, Rafter1);
}

void Document::ApplyMainSlope(SlopeEntry how) {
  if (RoofType != roof::kGambrel) {
    Rafter1.Slope = sheet.Slope[0].LeftValue();
    Rafter1.degrees = LeadingNumber(sheet.Degrees[0].Text());
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
void Document::ApplyPlainHipSlope(SlopeEntry how) {
  Rafter1.RafterType = RafterType::kHip;
  ShowOverhangsEqualMenus(false);
  Rafter1.Heel = sheet.Heel[0].Value();
  if (how != SlopeEntry::kClick) sheet.Slope[2].CopyPositionFrom(sheet.Slope[0]);
  sheet.Degrees[2].CopyPositionFrom(sheet.Degrees[0]);
  Rafter1.Calculate();
}

void Document::ApplyRearSlope(SlopeEntry how) {
  Rafter2.Slope = sheet.Slope[1].LeftValue();
  const bool storeDegrees = how != SlopeEntry::kClick && how != SlopeEntry::kKeyPress;
  if (storeDegrees) Rafter2.degrees = LeadingNumber(sheet.Degrees[1].Text());
  Rafter2.Calculate();
}

void Document::ApplySecondSlope(SlopeEntry how) {
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

void Document::ApplyHipEndSlope(SlopeEntry how) {
  const bool setLastCommon = how != SlopeEntry::kClick || sheet.HasLastCommon.Ticked();
  if (!RowsDiffer(how)) {
    Rafter1.Heel = sheet.Heel[0].Value();
    Rafter1.RafterType = RafterType::kHip;
    Rafter1.Calculate();
    if (setLastCommon) sheet.LastCommon.SetValue(Rafter1.Span);
    return;
  }
  Rafter1.RafterType = RafterType::kBastardHip;
  Rafter1.HipEndSlope = sheet.Slope[2].LeftValue();
  if (how == SlopeEntry::kCommit) {
    Rafter1.HipEndDegrees = RoundTo(DegreesOfRow(2), 2);
  } else if (how != SlopeEntry::kClick && how != SlopeEntry::kKeyPress) {
    Rafter1.HipEndDegrees = LeadingNumber(sheet.Degrees[2].Text());
  }
  ShowOverhangsEqualMenus(true);
  CalculateBastard();
  if (setLastCommon) {
    sheet.LastCommon.SetValue((Rafter1.Slope / Rafter1.HipEndSlope) * Rafter1.Span -
                              Rafter1.HipEndOverhangExcess);
  }
}

bool Document::RowsDiffer(SlopeEntry how) const {
  const bool byDegrees = how == SlopeEntry::kDegreesClick || how == SlopeEntry::kDegreesLeave;
  return byDegrees ? sheet.Degrees[2].Text() != sheet.Degrees[0].Text() : SlopesDiffer();
}

// Each rafter of a regular gambrel knows its own slope and, as its hip slope, that of the other.
void Document::TakeGambrelSlopes() {
  if (!menus.GambrelRegular.Checked) return;
  Rafter2.Slope = Rafter1.HipValSlope = sheet.Slope[0].LeftValue();
  Rafter1.Slope = Rafter2.HipValSlope = sheet.Slope[2].LeftValue();
}

void Document::ShowDegreesOf(std::size_t row) {
  sheet.Slope[row].SetValues(Rafter1.Slope, UnitRun);
  sheet.Degrees[row].SetText(PlainText(DegreesOfRow(row)));
  Rafter1.degrees = LeadingNumber(sheet.Degrees[row].Text());
}

// --- Spacing
// --------------------------------------------------------------------------------------------------------

void Document::cboSpacing_Click(int) {
  Try("cboSpacing_Click", [&] {
    Spacing = measures.ToValue(sheet.Spacing.Text());
    Rafter1.spacing = Spacing;
    Rafter2.spacing = Spacing;
    if (Imperial()) {
      measures.Units = kInchesAlone;  // 16" and not 1' 4"
      sheet.Spacing.SetText(measures.ToText(Spacing));
      measures.Units = kFeetAndInches;
    }
    RedrawSpacing();
  });
}

void Document::RedrawSpacing() {
  const int page = sheet.Tabs[0].Page;
  if (RoofType == roof::kOctagon) {
    Rafter1.CalculateOctagon();
    if (page == 2) Draw(Drawing::kOctagonRafter, Rafter1);
    if (page == 3) Draw(Drawing::kOctagonLayout, Rafter1);
  } else if (RoofType == roof::kHip && page > 0 && page == sheet.Tabs[0].PageCount() - 1) {
    Draw(Drawing::kHipLayout, Rafter1);
  }
}

}  // namespace pitchcraft
