// The Settings, View, Hip Layout and Dutch Hip menus: each choice stands in up to three places, kept in step
// here.
#include <array>

#include "core/number_text.h"
#include "document/document.h"

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
void Document::mnuImperial_Click(int) {
  constexpr const char* kProcedure = "mnuImperial_Click";
  const bool metric = !menus.Metric.Checked;
  menus.Metric.Checked = metric;
  menus.Imperial.Checked = !metric;
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
    sheet.RoofList.SetListIndex(0);
    cboType_Click();
  });
  Try(kProcedure, [&] {
    menus.Tools.Caption = units.calculatorCaption;
    UnitRun = units.unitRun;
    UnitHipRun = units.hipRun;
    UnitHipRatio = UnitHipRun / UnitRun;
    measures.Units = units.textUnits;
    measures.BaseUnits = units.baseUnits;
    measures.DecimalPlaces = units.decimalPlaces;
    measures.Imperial = !metric;
    sheet.UpperFascia.SetList(UpperFasciaItems(!metric));
    sheet.Spacing.SetList(SpacingItems(!metric));
    for (Rafter* rafter : {&Rafter1, &Rafter2}) {
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
    sheet.Span[2].SetValue(units.span);
    DefaultLumberList();
    DefaultSlopeList();
  });
  Try(kProcedure, [&] {
    sheet.Tabs[0].Page = 0;
    sheet.Tabs[1].Page = 0;
    CurrentTab = 0;
    sheet.SpacingLabel.Visible = false;
    sheet.Spacing.Visible = false;
    for (PairControl& slope : sheet.Slope) slope.SetListIndex(0);
    for (ComboControl& degrees : sheet.Degrees) degrees.SetListIndex(0);
    TakeDegreesOfFirstSlope();
    sheet.Spacing.SetListIndex(1);
    cboSpacing_Click();
    Rafter1.Calculate();
  });
}

// The toggle inverts the checks, so they are set to the other system first; that system may be the present
// one.
void Document::SwitchUnits(bool metric) {
  menus.Metric.Checked = !metric;
  menus.Imperial.Checked = metric;
  mnuImperial_Click();
}

// A heel, seat or kneewall of the other system is discarded, and with it its lock.
void Document::ClearLocksAndKneewalls() {
  for (std::size_t row = 0; row < 2; ++row) {
    sheet.HeelLock[row].Value = 0;
    sheet.SeatLock[row].Value = 0;
    sheet.HasKneewall[row].Value = 0;
    TakeTick(sheet.HasKneewall[row], sheet.Kneewall[row], sheet.Label[row]);
    sheet.Kneewall[row].SetValue(0);
  }
  for (Rafter* rafter : {&Rafter1, &Rafter2}) {
    rafter->HeelLocked = false;
    rafter->SeatLocked = false;
    rafter->Kneewall = 0;
  }
  menus.SettingsHeelLocked.Checked = false;
  menus.SettingsSeatLocked.Checked = false;
}

// The rafters start with the angle of their start slope.
void Document::TakeDegreesOfFirstSlope() {
  Rafter1.degrees = RoundTo(DegreesOfRow(0), 2);
  Rafter2.degrees = Rafter1.degrees;
}

// --- Slope mode
// -----------------------------------------------------------------------------------------------------

void Document::mnuSettingsRiseOverRun_Click(int) { SetSlopeMode(true); }

void Document::mnuSettingsDegrees_Click(int) { SetSlopeMode(false); }

// Rows 1 and 2 follow only while one of their two boxes shows, so that a row not in use stays hidden.
void Document::SetSlopeMode(bool riseOverRun) {
  menus.SettingsRiseOverRun.Checked = riseOverRun;
  menus.SettingsDegrees.Checked = !riseOverRun;
  ShowSlopeRow(0);
  for (const std::size_t row : {1, 2}) {
    if (sheet.Slope[row].Visible || sheet.Degrees[row].Visible) ShowSlopeRow(row);
  }
}

// --- Fascia cut
// -----------------------------------------------------------------------------------------------------

void Document::mnuSettingsPlumbCut_Click(int) { SetFasciaCut(FasciaCut::kPlumb); }
void Document::mnuSettingsSquareCut_Click(int) { SetFasciaCut(FasciaCut::kSquare); }
void Document::mnuSettingsLevelCut_Click(int) { SetFasciaCut(FasciaCut::kLevel); }

// Square and level cuts take the fascia height from the rafter, so the field shows none to enter; what it
// showed is kept for the way back.
void Document::SetFasciaCut(FasciaCut cut) {
  Try("mnuSettingsPlumbCut_Click", [&] {
    const bool wasPlumb = menus.SettingsPlumbCut.Checked;
    const bool plumb = cut == FasciaCut::kPlumb;
    CheckFasciaCut(cut);
    for (std::size_t row = 0; row < 2; ++row) {
      PairControl& fascia = sheet.Fascia[row];
      if (wasPlumb && !plumb) keptFasciaHeight_[row] = fascia.RightText();
      if (!wasPlumb && plumb && !keptFasciaHeight_[row].empty()) fascia.SetRightText(keptFasciaHeight_[row]);
      fascia.Enabled = plumb;
    }
    RepeatDrawing();
  });
}

void Document::CheckFasciaCut(FasciaCut cut) {
  const bool plumb = cut == FasciaCut::kPlumb, square = cut == FasciaCut::kSquare,
             level = cut == FasciaCut::kLevel;
  for (MenuItem* item :
       {&menus.SettingsPlumbCut, &menus.GambrelPlumb, &menus.PopUp1PlumbCut, &menus.PopUp2PlumbCut}) {
    item->Checked = plumb;
  }
  for (MenuItem* item :
       {&menus.SettingsSquareCut, &menus.GambrelSquare, &menus.PopUp1SquareCut, &menus.PopUp2SquareCut}) {
    item->Checked = square;
  }
  for (MenuItem* item : {&menus.SettingsLevelCut, &menus.GambrelLevel, &menus.PopUp2LevelCut}) {
    item->Checked = level;
  }
  toolBar.PressFasciaCut(plumb ? "Plumb" : square ? "Square" : "Level");
}

// --- Locks
// ----------------------------------------------------------------------------------------------------------

void Document::mnuSettingsHeelLocked_Click(int) {
  menus.SettingsHeelLocked.Checked = !menus.SettingsHeelLocked.Checked;
  sheet.HeelLock[static_cast<std::size_t>(RoofPage())].Value = menus.SettingsHeelLocked.Checked ? 1 : 0;
  chkHeel_Click(RoofPage());
}

void Document::mnuSettingsSeatLocked_Click(int) {
  menus.SettingsSeatLocked.Checked = !menus.SettingsSeatLocked.Checked;
  sheet.SeatLock[static_cast<std::size_t>(RoofPage())].Value = menus.SettingsSeatLocked.Checked ? 1 : 0;
  chkSeat_Click(RoofPage());
}

// --- Bars
// -----------------------------------------------------------------------------------------------------------

void Document::mnuViewToolbar_Click(int) {
  menus.ViewToolbar.Checked = !menus.ViewToolbar.Checked;
  sheet.Frames[1].Top = (menus.ViewToolbar.Checked ? 420 : 0) + (sheet.DimensionStrip.Visible ? 420 : 0);
  Form_Resize();
}

void Document::mnuViewStatusBar_Click(int) {
  menus.ViewStatusBar.Checked = !menus.ViewStatusBar.Checked;
  Form_Resize();
}

// --- Hip layout
// -----------------------------------------------------------------------------------------------------

void Document::mnuHipLayoutCenter_Click(int) { SetHipLayout(0); }
void Document::mnuHipLayoutCorners_Click(int) { SetHipLayout(1); }
void Document::mnuHipLayoutCornersFlush_Click(int) { SetHipLayout(2); }

void Document::SetHipLayout(int which) {
  ShowHipLayoutChecks(which);
  RedrawLayoutPage();
}

void Document::ShowHipLayoutChecks(int which) {
  const std::array<std::array<MenuItem*, 2>, 3> choices{
      {{&menus.HipLayoutCenter, &menus.PopUp1LayoutCenter},
       {&menus.HipLayoutCorners, &menus.PopUp1LayoutCorner},
       {&menus.HipLayoutCornersFlush, &menus.PopUp1LayoutCornerFlush}}};
  for (int i = 0; i < 3; ++i) {
    for (MenuItem* item : choices[static_cast<std::size_t>(i)]) item->Checked = i == which;
  }
}

void Document::mnuHipLayoutJackMeasurement_Click(int) {
  menus.HipLayoutJackMeasurement.Checked = !menus.HipLayoutJackMeasurement.Checked;
  menus.PopUp1JackMeasurement.Checked = menus.HipLayoutJackMeasurement.Checked;
  RedrawLayoutPage();
}

void Document::RedrawLayoutPage() {
  const int page = sheet.Tabs[0].Page;
  const bool last = page > 0 && page == sheet.Tabs[0].PageCount() - 1;
  if (RoofType == roof::kHip && last) Draw(Drawing::kHipLayout, Rafter1);
}

void Document::mnuHipLayoutOverhangsEqual_Click(int) {
  Try("mnuHipLayoutOverhangsEqual_Click", [&] {
    menus.HipLayoutOverhangsEqual.Checked = !menus.HipLayoutOverhangsEqual.Checked;
    menus.PopUp1OverhangsEqual.Checked = menus.HipLayoutOverhangsEqual.Checked;
    CalculateBastard();
    // The moved end wall may leave the last common where it cannot stand.
    if (sheet.Tabs[0].Page == 0) return FtLastCommon_Commit();
    RepeatDrawing();
  });
}

// --- Ledger of a Dutch hip
// ------------------------------------------------------------------------------------------

void Document::cboLedger_Click(int) { mnuDutchLedger_Click(sheet.Ledger.ListIndex()); }

void Document::mnuDutchLedger_Click(int Index) {
  if (Index < 0 || Index > 1) return;
  Try("mnuDutchLedger_Click", [&] {
    for (std::size_t i = 0; i < 2; ++i) {
      menus.DutchLedger[i].Checked = menus.PopUp1Ledger[i].Checked = static_cast<int>(i) == Index;
    }
    sheet.Ledger.SetListIndex(Index);
    Rafter2.RidgeThickness = Index == 0 ? double{Rafter1.RidgeThickness} : 0.0;
    Rafter1.Calculate();
    const int page = sheet.Tabs[0].Page;
    if (page == 2 || page == 3) Draw(Drawing::kBayRafter, Rafter2);
    if (page == 4) Draw(Drawing::kBayCenterLedger, Rafter2);
  });
}

}  // namespace pitchcraft
