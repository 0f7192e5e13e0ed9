// A roof type is picked: rows, captions, menus and tool buttons are rearranged, then the roof is calculated.
#include "document/document.h"
#include "sheet/row_layouts.h"

namespace pitchcraft {

void Document::cboType_Click(int) {
  constexpr const char* kProcedure = "cboType_Click";
  const RoofTypeRow* row = RoofTypeByItem(sheet.RoofList.Text());
  if (row == nullptr) return;
  Try(kProcedure, [&] { LeaveRoofType(); });
  Try(kProcedure, [&] {
    RoofType = row->Code;
    toolBar.PressRoof(sheet.RoofList.ListIndex());
    sheet.Tabs[1].OnePageOnly = RoofType != roof::kDualSlope;
    if (sheet.Tabs[1].OnePageOnly) sheet.Tabs[1].Page = 0;
    toolBar["Level"].Visible = RoofType == roof::kGambrel;
    ResetMenus();
    ResetRows();
  });
  Try(kProcedure, [&] { SetUpRoofType(); });
  LayOutPictures();
  ClearPicture();
  CalculateRoof(false);
}

// What the roof type that is left behind had changed goes back to the usual.
void Document::LeaveRoofType() {
  if (SavedGableSpan > 0) {
    Rafter1.Span = SavedGableSpan;
    Rafter1.Slope = SavedGableSlope;
    ShowDegreesOf(0);
    sheet.Span[0].SetValue(Rafter1.Span);
    SavedGableSpan = 0;
    SavedGableSlope = 0;
  }
  if (toolBar["Level"].Pressed) {
    CheckFasciaCut(FasciaCut::kPlumb);  // only a gambrel offers a level cut
    sheet.Fascia[0].Enabled = true;
  }
  for (CheckControl* box : {&sheet.UpperSlopeLock, &sheet.LowerSlopeLock, &sheet.UpperSpanLock,
                            &sheet.UpperHeightLock, &sheet.LowerHeightLock}) {
    box->Visible = false;
    box->Value = 0;
  }
  sheet.UpperFasciaLabel.Visible = false;
  sheet.UpperFascia.Visible = false;
}

void Document::ResetMenus() {
  ShowHipLayoutMenus(false);
  ShowOverhangsEqualMenus(false);
  menus.Separator[18].Visible = false;
  menus.PopUp1JackMeasurement.Visible = false;
  menus.Dutch.Visible = RoofType == roof::kDutchHip;
  menus.Gambrel.Visible = RoofType == roof::kGambrel;
  menus.SettingsLevelCut.Visible = RoofType == roof::kGambrel;
  for (MenuItem& item : menus.DutchLedger) item.Enabled = RoofType == roof::kDutchHip;
  sheet.Ledger.Visible = RoofType == roof::kDutchHip;
  sheet.LedgerLabel.Visible = RoofType == roof::kDutchHip;
}

void Document::ResetRows() {
  for (const std::size_t row : {0, 2}) {
    sheet.Slope[row].Locked = false;
    sheet.Degrees[row].Locked = false;
  }
  const bool bay = RoofType == roof::kBay;
  sheet.DimensionStrip.Visible = bay;
  sheet.DimensionStrip.Height = bay ? 420 : 0;
  sheet.Frames[1].Top = (menus.ViewToolbar.Checked ? 420 : 0) + (bay ? 420 : 0);
  // Before the end of start-up the rows of a gable stand already.
  const bool rowsStand = RoofType == roof::kBlindValley || HasGableRows(RoofType);
  if (!CalcEnabled && rowsStand) return;
  LayOutRows(sheet, RoofType, menus.GambrelPurlins.Checked);
  ShowSlopeRow(0);
  if (RoofType == roof::kDualSlope) ShowSlopeRow(1);
  if (HasSecondSlope(RoofType)) ShowSlopeRow(2);
}

void Document::SetUpRoofType() {
  switch (RoofType) {
    case roof::kHip: return SetUpHip();
    case roof::kBay: return SetUpBay();
    case roof::kGambrel: return SetUpGambrel();
    case roof::kDutchHip: return sheet.Span[2].SetValue(2 * sheet.Span[0].Value() / 3);
    case roof::kUnequalSpanValley:
      // The same 24 in both unit systems: a start that shows two different runs, to be typed over.
      return sheet.Span[2].SetValue(sheet.Span[0].Value() + 24);
    case roof::kOctagon:
      Rafter1.RafterType = RafterType::kOctagonHip;
      return sheet.Span[2].SetValue(sheet.Span[0].Value());
    case roof::kBlindValley:
      if (!CalcEnabled) return;
      CopySlopeRow(0, 2);
      return FillBlindValleyRidges();
    default: return;
  }
}

void Document::SetUpHip() {
  menus.HipLayout.Visible = true;
  menus.PopUp1JackMeasurement.Visible = true;
  menus.Separator[18].Visible = true;
  if (LoadingProject == 0) CopySlopeRow(0, 2);
  Rafter1.OverhangsEqual = menus.HipLayoutOverhangsEqual.Checked;
}

void Document::SetUpBay() {
  for (MeasureControl* field : {&sheet.Projection, &sheet.Face, &sheet.Back, &sheet.BayAngle}) {
    field->ForeColor = CtlForeColor;
    field->SetText("");
    field->Calculated = false;
    field->ReadOnly = false;
  }
  BayEditMode = 0;
  Draw(Drawing::kBayDiagram, Rafter1);
  Focus(sheet.Projection);
}

// A fresh gambrel is always regular: Custom is checked first, so that the click on Regular takes effect.
void Document::SetUpGambrel() {
  CopySlopeRow(0, 2);
  Rafter1.Purlins = Rafter2.Purlins = menus.GambrelPurlins.Checked;
  SavedGableSpan = sheet.Span[0].Value();
  SavedGableSlope = sheet.Slope[0].LeftValue();
  menus.GambrelRegular.Checked = false;
  menus.GambrelCustom.Checked = true;
  mnuGambrelRegular_Click();
}

void Document::CopySlopeRow(std::size_t from, std::size_t to) {
  sheet.Slope[to].CopyPositionFrom(sheet.Slope[from]);
  sheet.Degrees[to].CopyPositionFrom(sheet.Degrees[from]);
}

void Document::ShowSlopeRow(std::size_t row) {
  const bool riseOverRun = menus.SettingsRiseOverRun.Checked;
  sheet.Slope[row].Visible = riseOverRun;
  sheet.Degrees[row].Visible = !riseOverRun;
}

void Document::ShowHipLayoutMenus(bool show) {
  for (MenuItem* item : {&menus.HipLayout, &menus.Separator[15], &menus.PopUp1LayoutCenter,
                         &menus.PopUp1LayoutCorner, &menus.PopUp1LayoutCornerFlush}) {
    item->Visible = show;
  }
}

void Document::ShowOverhangsEqualMenus(bool show) {
  for (MenuItem* item : {&menus.HipLayoutOverhangsEqual, &menus.PopUp1OverhangsEqual, &menus.Separator[17],
                         &menus.Separator[19]}) {
    item->Visible = show;
  }
}

void Document::SetHelpContext() {
  const RoofTypeRow* row = RoofTypeByCode(RoofType);
  if (row == nullptr) return MsgBox("Unrecognized roof type!", "SetHelpContext");
  HelpContext = row->HelpTopic;
}

}  // namespace pitchcraft
