// The pages of VSTab(0) and what is drawn on each.
#include "document/frm_document.h"

namespace pitchcraft {

void frmDocument::VSTab_Switch(int Index, int, int NewTab) {
  constexpr const char* kProcedure = "VSTab_Switch";
  if (Index == 1) {
    sheet.VSTab[1].Page = NewTab;
    const auto page = static_cast<std::size_t>(NewTab);
    menus.mnuSettingsHeelLocked.Checked = sheet.chkHeel[page].Ticked();
    menus.mnuSettingsSeatLocked.Checked = sheet.chkSeat[page].Ticked();
    return;
  }
  sheet.VSTab[0].Page = NewTab;
  CurrentTab = NewTab;
  sheet.txtSpacing.Visible = false;
  sheet.cboSpacing.Visible = false;
  Try(kProcedure, [&] { LayOutPictures(); });
  Try(kProcedure, [&] { DrawPage(NewTab); });
}

void frmDocument::DrawPage(int page) {
  ClearPicture();
  switch (RoofType) {
    case roof::kGable:
    case roof::kValley:
    case roof::kShed:
      Draw(Drawing::kRafter, Rafter1);
      if (page == 0) FocusSlope(0);
      return;
    case roof::kHip: return DrawHipPage(page);
    case roof::kDualSlope:
      if (page == 0) {
        Draw(Drawing::kSaltbox, Rafter1);
        FocusSlope(static_cast<std::size_t>(RoofPage()));
      } else {
        Draw(Drawing::kRafter, page == 1 ? Rafter1 : Rafter2);
      }
      return;
    case roof::kBay: return DrawBayPage(page);
    case roof::kDutchHip: return DrawDutchHipPage(page);
    case roof::kOctagon: return DrawOctagonPage(page);
    case roof::kUnequalSpanValley:
      if (page == 0) return Draw(Drawing::kUnequalSpanValley, Rafter1);
      return Draw(Drawing::kRafter, page == 1 ? Rafter1 : Rafter2);
    case roof::kBlindValley: return Draw(Drawing::kBlindValley, Rafter1);
    case roof::kGambrel:
      if (page > 0) return Draw(Drawing::kGambrelRafter, page == 1 ? Rafter1 : Rafter2);
      Rafter1.RafterType = RafterType::kGambrelBottom;
      Rafter2.RafterType = RafterType::kGambrelTop;
      CalculateGambrelDimensions("Heel");
      return Focus(sheet.FtSpan[0]);
    default: return;
  }
}

void frmDocument::DrawHipPage(int page) {
  const bool bastard = IsBastardByRafter();
  ShowHipLayoutMenus(true);
  ShowOverhangsEqualMenus(bastard);
  if (page == 0) {
    Draw(Drawing::kHipPlan, Rafter1);
    return FocusSlope(bastard ? 2 : 0);
  }
  if (page == (bastard ? 4 : 3)) {
    ShowSpacing();
    if (bastard) CalculateBastard();
    return Draw(Drawing::kHipLayout, Rafter1);
  }
  if (!bastard) {
    if (page == 1) return DrawAs(RafterType::kCommon, Drawing::kRafter);
    return Draw(Drawing::kRafter, Rafter1);
  }
  constexpr RafterType kMembers[] = {RafterType::kBastardHip, RafterType::kCommon, RafterType::kHipEndCommon,
                                     RafterType::kBastardHip};
  DrawAs(kMembers[page], Drawing::kBastardHipRafters);
}

void frmDocument::DrawAs(RafterType type, Drawing drawing) {
  const RafterType own = Rafter1.RafterType;
  Rafter1.RafterType = type;
  Draw(drawing, Rafter1);
  Rafter1.RafterType = own;
}

void frmDocument::DrawBayPage(int page) {
  if (page == 0) return Draw(BayEditMode != 0 ? Drawing::kBayPlan : Drawing::kBayDiagram, Rafter1);
  const double product =
      sheet.FtFace.Value() * sheet.FtBack.Value() * sheet.FtBayAngle.Value() * sheet.FtProjection.Value();
  if (product == 0) return;  // a page of a bay without dimensions stays blank
  Rafter1.RafterType = static_cast<RafterType>(static_cast<int>(RafterType::kBayCommon) + page - 1);
  Rafter1.CalculateBay();
  Draw(page < 4 ? Drawing::kBayRafter : Drawing::kBayCenterLedger, Rafter1);
}

void frmDocument::DrawDutchHipPage(int page) {
  switch (page) {
    case 0: return Draw(Drawing::kDutchPlan, Rafter2);
    case 1: return Draw(Drawing::kRafter, Rafter1);
    case 4: Rafter2.RafterType = RafterType::kCenterLedger; return Draw(Drawing::kBayCenterLedger, Rafter2);
    default:
      Rafter2.RafterType = page == 2 ? RafterType::kBayCommon : RafterType::kBayHip;
      return Draw(Drawing::kBayRafter, Rafter2);
  }
}

void frmDocument::DrawOctagonPage(int page) {
  if (page == 0) {
    Rafter1.RafterType = RafterType::kOctagonHip;
    Draw(Drawing::kOctagonPlan, Rafter1);
    return FocusSlope(0);
  }
  if (page > 1) ShowSpacing();
  Rafter1.RafterType = page == 1 ? RafterType::kOctagonHip : RafterType::kOctagonJack;
  Rafter1.CalculateOctagon();
  Draw(page < 3 ? Drawing::kOctagonRafter : Drawing::kOctagonLayout, Rafter1);
  Rafter1.RafterType = RafterType::kOctagonJack;
}

void frmDocument::Draw(Drawing drawing, const CRafter& rafter) {
  if (!CalcEnabled) return;
  const DrawingForms& forms = FormsOf(drawing);
  DrawingExists = forms.Draw != nullptr;
  ClearPicture();
  if (DrawingExists) Try(forms.DrawName, [&] { forms.Draw(board, rafter, Context()); });
}

DrawingContext frmDocument::Context() const {
  DrawingContext context;
  context.RoofType = RoofType;
  context.UnitRun = UnitRun;
  context.UnitHipRun = UnitHipRun;
  context.CurrentTab = CurrentTab;
  context.SquareCut = menus.mnuSettingsSquareCut.Checked;
  context.RiseOverRun = menus.mnuSettingsRiseOverRun.Checked;
  context.HipLayout = HipLayoutChoice();
  context.BackColor = static_cast<DrawColor>(BackColor);
  context.LineColor = static_cast<DrawColor>(LineColor);
  context.DimColor = static_cast<DrawColor>(DimColor);
  context.TextColor = static_cast<DrawColor>(TextColor);
  return context;
}

HipLayoutOptions frmDocument::HipLayoutChoice() const {
  HipLayoutOptions options;
  options.Layout = menus.mnuHipLayoutCenter.Checked         ? JackLayout::kCenter
                   : menus.mnuHipLayoutCornersFlush.Checked ? JackLayout::kCornersFlush
                                                            : JackLayout::kCorners;
  options.WithOverhang = menus.mnuHipLayoutJackMeasurement.Checked;
  if (sheet.chkLastCommon.Ticked()) options.LastCommon = sheet.FtLastCommon.Value();
  return options;
}

// The page's picture becomes the target, with nothing on it.
void frmDocument::ClearPicture() {
  board.DrawScale = DrawScale();
  board.MetaCanvas.SetCanvas((CurrentTab == 0 ? Picture1 : Picture3).Size());
  board.AbandonDrawing();
}

void frmDocument::RepeatDrawing() {
  const std::string focus = FocusRequest;
  if (RoofType == roof::kGambrel && CurrentTab > 0) CalculateGambrelDimensions("Heel");
  DrawPage(CurrentTab);
  FocusRequest = focus;
}

void frmDocument::ShowSpacing() {
  sheet.txtSpacing.Visible = true;
  sheet.cboSpacing.Visible = true;
}

void frmDocument::FocusSlope(std::size_t row) {
  if (DialogIsActive) return;  // a dialog keeps the focus
  if (menus.mnuSettingsRiseOverRun.Checked) {
    Focus(sheet.LWSlope[row]);
  } else {
    Focus(sheet.cboDegrees[row]);
  }
}

}  // namespace pitchcraft
