// A roof type is picked: rows, captions, menus and tool buttons are rearranged, then the roof is calculated.
#include "document/frm_document.h"
#include "sheet/row_layouts.h"

namespace pitchcraft {

void frmDocument::cboType_Click(int) {
  constexpr const char* kProcedure = "cboType_Click";
  const RoofTypeRow* row = RoofTypeByItem(sheet.cboType.Text());
  if (row == nullptr) return;
  Try(kProcedure, [&] { LeaveRoofType(); });
  Try(kProcedure, [&] {
    RoofType = row->Code;
    tbToolBar.PressRoof(sheet.cboType.ListIndex());
    sheet.VSTab[1].OnePageOnly = RoofType != roof::kDualSlope;
    if (sheet.VSTab[1].OnePageOnly) sheet.VSTab[1].Page = 0;
    tbToolBar["Level"].Visible = RoofType == roof::kGambrel;
    ResetMenus();
    ResetRows();
  });
  Try(kProcedure, [&] { SetUpRoofType(); });
  LayOutPictures();
  ClearPicture();
  CalculateRoof(false);
}

// What the roof type that is left behind had changed goes back to the usual.
void frmDocument::LeaveRoofType() {
  if (SavedGableSpan > 0) {
    Rafter1.Span = SavedGableSpan;
    Rafter1.Slope = SavedGableSlope;
    ShowDegreesOf(0);
    sheet.FtSpan[0].SetValue(Rafter1.Span);
    SavedGableSpan = 0;
    SavedGableSlope = 0;
  }
  if (tbToolBar["Level"].Pressed) {
    CheckFasciaCut(FasciaCut::kPlumb);  // only a gambrel offers a level cut
    sheet.LWFascia[0].Enabled = true;
  }
  for (CheckControl* box : {&sheet.chkUpperSlope, &sheet.chkLowerSlope, &sheet.chkUpperSpan,
                            &sheet.chkUpperHeight, &sheet.chkLowerHeight}) {
    box->Visible = false;
    box->Value = 0;
  }
  sheet.txtUpperFascia.Visible = false;
  sheet.FTUpperFascia.Visible = false;
}

void frmDocument::ResetMenus() {
  ShowHipLayoutMenus(false);
  ShowOverhangsEqualMenus(false);
  menus.mnuSeparator[18].Visible = false;
  menus.mnuPopUp1JackMeasurement.Visible = false;
  menus.mnuDutch.Visible = RoofType == roof::kDutchHip;
  menus.mnuGambrel.Visible = RoofType == roof::kGambrel;
  menus.mnuSettingsLevelCut.Visible = RoofType == roof::kGambrel;
  for (MenuItem& item : menus.mnuDutchLedger) item.Enabled = RoofType == roof::kDutchHip;
  sheet.cboLedger.Visible = RoofType == roof::kDutchHip;
  sheet.txtLedger.Visible = RoofType == roof::kDutchHip;
}

void frmDocument::ResetRows() {
  for (const std::size_t row : {0, 2}) {
    sheet.LWSlope[row].Locked = false;
    sheet.cboDegrees[row].Locked = false;
  }
  const bool bay = RoofType == roof::kBay;
  sheet.Toolbar1.Visible = bay;
  sheet.Toolbar1.Height = bay ? 420 : 0;
  sheet.VSElastic[1].Top = (menus.mnuViewToolbar.Checked ? 420 : 0) + (bay ? 420 : 0);
  // Before the end of start-up the rows of a gable stand already.
  const bool rowsStand = RoofType == roof::kBlindValley || HasGableRows(RoofType);
  if (!CalcEnabled && rowsStand) return;
  LayOutRows(sheet, RoofType, menus.mnuGambrelPurlins.Checked);
  ShowSlopeRow(0);
  if (RoofType == roof::kDualSlope) ShowSlopeRow(1);
  if (HasSecondSlope(RoofType)) ShowSlopeRow(2);
}

void frmDocument::SetUpRoofType() {
  switch (RoofType) {
    case roof::kHip: return SetUpHip();
    case roof::kBay: return SetUpBay();
    case roof::kGambrel: return SetUpGambrel();
    case roof::kDutchHip: return sheet.FtSpan[2].SetValue(2 * sheet.FtSpan[0].Value() / 3);
    case roof::kUnequalSpanValley:
      // The same 24 in both unit systems: a start that shows two different runs, to be typed over.
      return sheet.FtSpan[2].SetValue(sheet.FtSpan[0].Value() + 24);
    case roof::kOctagon:
      Rafter1.RafterType = RafterType::kOctagonHip;
      return sheet.FtSpan[2].SetValue(sheet.FtSpan[0].Value());
    case roof::kBlindValley:
      if (!CalcEnabled) return;
      CopySlopeRow(0, 2);
      return FillBlindValleyRidges();
    default: return;
  }
}

void frmDocument::SetUpHip() {
  menus.mnuHipLayout.Visible = true;
  menus.mnuPopUp1JackMeasurement.Visible = true;
  menus.mnuSeparator[18].Visible = true;
  if (LoadingProject == 0) CopySlopeRow(0, 2);
  Rafter1.OverhangsEqual = menus.mnuHipLayoutOverhangsEqual.Checked;
}

void frmDocument::SetUpBay() {
  for (FtInText* field : {&sheet.FtProjection, &sheet.FtFace, &sheet.FtBack, &sheet.FtBayAngle}) {
    field->ForeColor = CtlForeColor;
    field->SetText("");
    field->Calculated = false;
    field->ReadOnly = false;
  }
  BayEditMode = 0;
  Draw(Drawing::kBayDiagram, Rafter1);
  Focus(sheet.FtProjection);
}

// A fresh gambrel is always regular: Custom is checked first, so that the click on Regular takes effect.
void frmDocument::SetUpGambrel() {
  CopySlopeRow(0, 2);
  Rafter1.Purlins = Rafter2.Purlins = menus.mnuGambrelPurlins.Checked;
  SavedGableSpan = sheet.FtSpan[0].Value();
  SavedGableSlope = sheet.LWSlope[0].LeftValue();
  menus.mnuGambrelRegular.Checked = false;
  menus.mnuGambrelCustom.Checked = true;
  mnuGambrelRegular_Click();
}

void frmDocument::CopySlopeRow(std::size_t from, std::size_t to) {
  sheet.LWSlope[to].CopyPositionFrom(sheet.LWSlope[from]);
  sheet.cboDegrees[to].CopyPositionFrom(sheet.cboDegrees[from]);
}

void frmDocument::ShowSlopeRow(std::size_t row) {
  const bool riseOverRun = menus.mnuSettingsRiseOverRun.Checked;
  sheet.LWSlope[row].Visible = riseOverRun;
  sheet.cboDegrees[row].Visible = !riseOverRun;
}

void frmDocument::ShowHipLayoutMenus(bool show) {
  for (MenuItem* item : {&menus.mnuHipLayout, &menus.mnuSeparator[15], &menus.mnuPopUp1LayoutCenter,
                         &menus.mnuPopUp1LayoutCorner, &menus.mnuPopUp1LayoutCornerFlush}) {
    item->Visible = show;
  }
}

void frmDocument::ShowOverhangsEqualMenus(bool show) {
  for (MenuItem* item : {&menus.mnuHipLayoutOverhangsEqual, &menus.mnuPopUp1OverhangsEqual,
                         &menus.mnuSeparator[17], &menus.mnuSeparator[19]}) {
    item->Visible = show;
  }
}

void frmDocument::SetHelpContext() {
  const RoofTypeRow* row = RoofTypeByCode(RoofType);
  if (row == nullptr) return MsgBox("Unrecognized roof type!", "SetHelpContext");
  HelpContext = row->HelpTopic;
}

}  // namespace pitchcraft
