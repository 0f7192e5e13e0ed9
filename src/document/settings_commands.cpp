// The Settings, View, Hip Layout and Dutch Hip menus: each choice stands in up to three places, kept in step
// here.
#include <array>

#include "core/number_text.h"
#include "document/frm_document.h"

namespace pitchcraft {
namespace {

/// What a session in one unit system begins with. Lengths are inches or millimetres.
struct UnitDefaults {
  int unitRun;
  int units;
  double hipRun;
  int textUnits, baseUnits, decimalPlaces;
  const char* calculatorCaption;
  double slope, span, overhang, thickness, depth, fasciaHeight;
};
constexpr UnitDefaults kImperialDefaults{
    12, 0, 16.970562, kFeetAndInches, kBaseInches, 4, "FtInch &Calculator", 1, 144, 10.5, 1.5, 7.25, 5.5};
constexpr UnitDefaults kMetricDefaults{
    1000, 1, 1414.2135, kMillimetres, kBaseMillimetres, 0, "&Calculator", 100, 3600, 300, 38, 184, 140};

std::vector<std::string> UpperFasciaItems(bool imperial) {
  if (imperial) return {"3 1/2\"", "5 1/2\"", "7 1/4\"", "9 1/2\"", "11 1/4\""};
  return {"70", "89", "90", "135", "140", "180", "184", "235", "240", "280", "286"};
}

std::vector<std::string> SpacingItems(bool imperial) {
  if (imperial) return {"12\"", "16\"", "19.2\"", "24\"", "48\""};
  return {"12\"", "400 mm", "16\"", "450 mm", "600 mm", "24\"", "1200 mm", "48\"", "2400 mm"};
}

}  // namespace

// --- Units
// ----------------------------------------------------------------------------------------------------------

// A toggle, whichever of the two items was clicked. Nothing is converted: the values of the other system are
// discarded.
void frmDocument::mnuImperial_Click(int) {
  constexpr const char* kProcedure = "mnuImperial_Click";
  const bool metric = !menus.mnuMetric.Checked;
  menus.mnuMetric.Checked = metric;
  menus.mnuImperial.Checked = !metric;
  const UnitDefaults& units = metric ? kMetricDefaults : kImperialDefaults;
  Try(kProcedure, [&] {
    sheet.ForEachMeasure([&](auto& field) {
      const bool plain = field.Format.Units == kPlainNumber;  // slopes and the bay angle are no lengths
      field.Format.Units = plain ? kPlainNumber : units.textUnits;
      field.Format.BaseUnits = units.baseUnits;
      field.Format.DecimalPlaces = units.decimalPlaces;
      field.Format.Imperial = !metric;
    });
    // Back to a common gable, whose first calculation must not mix the two systems' locks.
    ClearLocksAndKneewalls();
    sheet.cboType.SetListIndex(0);
    cboType_Click();
  });
  Try(kProcedure, [&] {
    menus.mnuTools.Caption = units.calculatorCaption;
    UnitRun = units.unitRun;
    UnitHipRun = units.hipRun;
    UnitHipRatio = UnitHipRun / UnitRun;
    FtInConverter1.Units = units.textUnits;
    FtInConverter1.BaseUnits = units.baseUnits;
    FtInConverter1.DecimalPlaces = units.decimalPlaces;
    FtInConverter1.Imperial = !metric;
    sheet.FTUpperFascia.SetList(UpperFasciaItems(!metric));
    sheet.cboSpacing.SetList(SpacingItems(!metric));
    for (CRafter* rafter : {&Rafter1, &Rafter2}) {
      rafter->SetUnits(units.units);
      rafter->Slope = units.slope;
      rafter->Span = units.span;
      if (!metric) rafter->HipValSpan = units.span;
      rafter->Overhang = units.overhang;
      rafter->Thickness = rafter->FasciaThickness = rafter->RidgeThickness = rafter->HipValThickness =
          units.thickness;
      rafter->Depth = rafter->RidgeDepth = rafter->HipValDepth = units.depth;
      rafter->FasciaHeight = units.fasciaHeight;
      rafter->Kneewall = 0;
    }
    sheet.FtSpan[2].SetValue(units.span);
    DefaultLumberList();
    DefaultSlopeList();
  });
  Try(kProcedure, [&] {
    sheet.VSTab[0].Page = 0;
    sheet.VSTab[1].Page = 0;
    CurrentTab = 0;
    sheet.txtSpacing.Visible = false;
    sheet.cboSpacing.Visible = false;
    for (LWCombo& slope : sheet.LWSlope) slope.SetListIndex(0);
    for (ComboControl& degrees : sheet.cboDegrees) degrees.SetListIndex(0);
    TakeDegreesOfFirstSlope();
    sheet.cboSpacing.SetListIndex(1);
    cboSpacing_Click();
    Rafter1.Calculate();
  });
}

// The toggle inverts the checks, so they are set to the other system first; that system may be the present
// one.
void frmDocument::SwitchUnits(bool metric) {
  menus.mnuMetric.Checked = !metric;
  menus.mnuImperial.Checked = metric;
  mnuImperial_Click();
}

// A heel, seat or kneewall of the other system is discarded, and with it its lock.
void frmDocument::ClearLocksAndKneewalls() {
  for (std::size_t row = 0; row < 2; ++row) {
    sheet.chkHeel[row].Value = 0;
    sheet.chkSeat[row].Value = 0;
    sheet.chkKneewall[row].Value = 0;
    TakeTick(sheet.chkKneewall[row], sheet.FtKneewall[row], sheet.Label[row]);
    sheet.FtKneewall[row].SetValue(0);
  }
  for (CRafter* rafter : {&Rafter1, &Rafter2}) {
    rafter->HeelLocked = false;
    rafter->SeatLocked = false;
    rafter->Kneewall = 0;
  }
  menus.mnuSettingsHeelLocked.Checked = false;
  menus.mnuSettingsSeatLocked.Checked = false;
}

// The rafters start with the angle of their start slope.
void frmDocument::TakeDegreesOfFirstSlope() {
  Rafter1.degrees = RoundTo(DegreesOfRow(0), 2);
  Rafter2.degrees = Rafter1.degrees;
}

// --- Slope mode
// -----------------------------------------------------------------------------------------------------

void frmDocument::mnuSettingsRiseOverRun_Click(int) { SetSlopeMode(true); }

void frmDocument::mnuSettingsDegrees_Click(int) { SetSlopeMode(false); }

// Rows 1 and 2 follow only while one of their two boxes shows, so that a row not in use stays hidden.
void frmDocument::SetSlopeMode(bool riseOverRun) {
  menus.mnuSettingsRiseOverRun.Checked = riseOverRun;
  menus.mnuSettingsDegrees.Checked = !riseOverRun;
  ShowSlopeRow(0);
  for (const std::size_t row : {1, 2}) {
    if (sheet.LWSlope[row].Visible || sheet.cboDegrees[row].Visible) ShowSlopeRow(row);
  }
}

// --- Fascia cut
// -----------------------------------------------------------------------------------------------------

void frmDocument::mnuSettingsPlumbCut_Click(int) { SetFasciaCut(FasciaCut::kPlumb); }
void frmDocument::mnuSettingsSquareCut_Click(int) { SetFasciaCut(FasciaCut::kSquare); }
void frmDocument::mnuSettingsLevelCut_Click(int) { SetFasciaCut(FasciaCut::kLevel); }

// Square and level cuts take the fascia height from the rafter, so the field shows none to enter; what it
// showed is kept for the way back.
void frmDocument::SetFasciaCut(FasciaCut cut) {
  Try("mnuSettingsPlumbCut_Click", [&] {
    const bool wasPlumb = menus.mnuSettingsPlumbCut.Checked;
    const bool plumb = cut == FasciaCut::kPlumb;
    CheckFasciaCut(cut);
    for (std::size_t row = 0; row < 2; ++row) {
      LWCombo& fascia = sheet.LWFascia[row];
      if (wasPlumb && !plumb) keptFasciaHeight_[row] = fascia.RightText();
      if (!wasPlumb && plumb && !keptFasciaHeight_[row].empty()) fascia.SetRightText(keptFasciaHeight_[row]);
      fascia.Enabled = plumb;
    }
    RepeatDrawing();
  });
}

void frmDocument::CheckFasciaCut(FasciaCut cut) {
  const bool plumb = cut == FasciaCut::kPlumb, square = cut == FasciaCut::kSquare,
             level = cut == FasciaCut::kLevel;
  for (MenuItem* item : {&menus.mnuSettingsPlumbCut, &menus.mnuGambrelPlumb, &menus.mnuPopUp1PlumbCut,
                         &menus.mnuPopUp2PlumbCut}) {
    item->Checked = plumb;
  }
  for (MenuItem* item : {&menus.mnuSettingsSquareCut, &menus.mnuGambrelSquare, &menus.mnuPopUp1SquareCut,
                         &menus.mnuPopUp2SquareCut}) {
    item->Checked = square;
  }
  for (MenuItem* item : {&menus.mnuSettingsLevelCut, &menus.mnuGambrelLevel, &menus.mnuPopUp2LevelCut}) {
    item->Checked = level;
  }
  tbToolBar.PressFasciaCut(plumb ? "Plumb" : square ? "Square" : "Level");
}

// --- Locks
// ----------------------------------------------------------------------------------------------------------

void frmDocument::mnuSettingsHeelLocked_Click(int) {
  menus.mnuSettingsHeelLocked.Checked = !menus.mnuSettingsHeelLocked.Checked;
  sheet.chkHeel[static_cast<std::size_t>(RoofPage())].Value = menus.mnuSettingsHeelLocked.Checked ? 1 : 0;
  chkHeel_Click(RoofPage());
}

void frmDocument::mnuSettingsSeatLocked_Click(int) {
  menus.mnuSettingsSeatLocked.Checked = !menus.mnuSettingsSeatLocked.Checked;
  sheet.chkSeat[static_cast<std::size_t>(RoofPage())].Value = menus.mnuSettingsSeatLocked.Checked ? 1 : 0;
  chkSeat_Click(RoofPage());
}

// --- Bars
// -----------------------------------------------------------------------------------------------------------

void frmDocument::mnuViewToolbar_Click(int) {
  menus.mnuViewToolbar.Checked = !menus.mnuViewToolbar.Checked;
  sheet.VSElastic[1].Top = (menus.mnuViewToolbar.Checked ? 420 : 0) + (sheet.Toolbar1.Visible ? 420 : 0);
  Form_Resize();
}

void frmDocument::mnuViewStatusBar_Click(int) {
  menus.mnuViewStatusBar.Checked = !menus.mnuViewStatusBar.Checked;
  Form_Resize();
}

// --- Hip layout
// -----------------------------------------------------------------------------------------------------

void frmDocument::mnuHipLayoutCenter_Click(int) { SetHipLayout(0); }
void frmDocument::mnuHipLayoutCorners_Click(int) { SetHipLayout(1); }
void frmDocument::mnuHipLayoutCornersFlush_Click(int) { SetHipLayout(2); }

void frmDocument::SetHipLayout(int which) {
  ShowHipLayoutChecks(which);
  RedrawLayoutPage();
}

void frmDocument::ShowHipLayoutChecks(int which) {
  const std::array<std::array<MenuItem*, 2>, 3> choices{
      {{&menus.mnuHipLayoutCenter, &menus.mnuPopUp1LayoutCenter},
       {&menus.mnuHipLayoutCorners, &menus.mnuPopUp1LayoutCorner},
       {&menus.mnuHipLayoutCornersFlush, &menus.mnuPopUp1LayoutCornerFlush}}};
  for (int i = 0; i < 3; ++i) {
    for (MenuItem* item : choices[static_cast<std::size_t>(i)]) item->Checked = i == which;
  }
}

void frmDocument::mnuHipLayoutJackMeasurement_Click(int) {
  menus.mnuHipLayoutJackMeasurement.Checked = !menus.mnuHipLayoutJackMeasurement.Checked;
  menus.mnuPopUp1JackMeasurement.Checked = menus.mnuHipLayoutJackMeasurement.Checked;
  RedrawLayoutPage();
}

void frmDocument::RedrawLayoutPage() {
  const int page = sheet.VSTab[0].Page;
  const bool last = page > 0 && page == sheet.VSTab[0].PageCount() - 1;
  if (RoofType == roof::kHip && last) Draw(Drawing::kHipLayout, Rafter1);
}

void frmDocument::mnuHipLayoutOverhangsEqual_Click(int) {
  Try("mnuHipLayoutOverhangsEqual_Click", [&] {
    menus.mnuHipLayoutOverhangsEqual.Checked = !menus.mnuHipLayoutOverhangsEqual.Checked;
    menus.mnuPopUp1OverhangsEqual.Checked = menus.mnuHipLayoutOverhangsEqual.Checked;
    CalculateBastard();
    // The moved end wall may leave the last common where it cannot stand.
    if (sheet.VSTab[0].Page == 0) return FtLastCommon_Commit();
    RepeatDrawing();
  });
}

// --- Ledger of a Dutch hip
// ------------------------------------------------------------------------------------------

void frmDocument::cboLedger_Click(int) { mnuDutchLedger_Click(sheet.cboLedger.ListIndex()); }

void frmDocument::mnuDutchLedger_Click(int Index) {
  if (Index < 0 || Index > 1) return;
  Try("mnuDutchLedger_Click", [&] {
    for (std::size_t i = 0; i < 2; ++i) {
      menus.mnuDutchLedger[i].Checked = menus.mnuPopUp1Ledger[i].Checked = static_cast<int>(i) == Index;
    }
    sheet.cboLedger.SetListIndex(Index);
    Rafter2.RidgeThickness = Index == 0 ? double{Rafter1.RidgeThickness} : 0.0;
    Rafter1.Calculate();
    const int page = sheet.VSTab[0].Page;
    if (page == 2 || page == 3) Draw(Drawing::kBayRafter, Rafter2);
    if (page == 4) Draw(Drawing::kBayCenterLedger, Rafter2);
  });
}

}  // namespace pitchcraft
