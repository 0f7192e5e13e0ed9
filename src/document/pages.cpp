// The pages of Tabs(0) and what is drawn on each.
#include "document/document.h"

namespace pitchcraft {

void Document::VSTab_Switch(int Index, int, int NewTab) {
  constexpr const char* kProcedure = "VSTab_Switch";
  if (Index == 1) {
    sheet.Tabs[1].Page = NewTab;
    const auto page = static_cast<std::size_t>(NewTab);
    menus.SettingsHeelLocked.Checked = sheet.HeelLock[page].Ticked();
    menus.SettingsSeatLocked.Checked = sheet.SeatLock[page].Ticked();
    return;
  }
  sheet.Tabs[0].Page = NewTab;
  CurrentTab = NewTab;
  sheet.SpacingLabel.Visible = false;
  sheet.Spacing.Visible = false;
  Try(kProcedure, [&] { LayOutPictures(); });
  Try(kProcedure, [&] { DrawPage(NewTab); });
}

void Document::DrawPage(int page) {
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
      return Focus(sheet.Span[0]);
    default: return;
  }
}

void Document::DrawHipPage(int page) {
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

void Document::DrawAs(RafterType type, Drawing drawing) {
  const RafterType own = Rafter1.RafterType;
  Rafter1.RafterType = type;
  Draw(drawing, Rafter1);
  Rafter1.RafterType = own;
}

void Document::DrawBayPage(int page) {
  if (page == 0) return Draw(BayEditMode != 0 ? Drawing::kBayPlan : Drawing::kBayDiagram, Rafter1);
  const double product =
      sheet.Face.Value() * sheet.Back.Value() * sheet.BayAngle.Value() * sheet.Projection.Value();
  if (product == 0) return;  // a page of a bay without dimensions stays blank
  Rafter1.RafterType = static_cast<RafterType>(static_cast<int>(RafterType::kBayCommon) + page - 1);
  Rafter1.CalculateBay();
  Draw(page < 4 ? Drawing::kBayRafter : Drawing::kBayCenterLedger, Rafter1);
}

void Document::DrawDutchHipPage(int page) {
  switch (page) {
    case 0: return Draw(Drawing::kDutchPlan, Rafter2);
    case 1: return Draw(Drawing::kRafter, Rafter1);
    case 4: Rafter2.RafterType = RafterType::kCenterLedger; return Draw(Drawing::kBayCenterLedger, Rafter2);
    default:
      Rafter2.RafterType = page == 2 ? RafterType::kBayCommon : RafterType::kBayHip;
      return Draw(Drawing::kBayRafter, Rafter2);
  }
}

void Document::DrawOctagonPage(int page) {
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

void Document::Draw(Drawing drawing, const Rafter& rafter) {
  if (!CalcEnabled) return;
  const DrawingForms& forms = FormsOf(drawing);
  DrawingExists = forms.Draw != nullptr;
  ClearPicture();
  if (DrawingExists) Try(forms.DrawName, [&] { forms.Draw(board, rafter, Context()); });
}

DrawingContext Document::Context() const {
  DrawingContext context;
  context.RoofType = RoofType;
  context.UnitRun = UnitRun;
  context.UnitHipRun = UnitHipRun;
  context.CurrentTab = CurrentTab;
  context.SquareCut = menus.SettingsSquareCut.Checked;
  context.RiseOverRun = menus.SettingsRiseOverRun.Checked;
  context.HipLayout = HipLayoutChoice();
  context.BackColor = static_cast<DrawColor>(BackColor);
  context.LineColor = static_cast<DrawColor>(LineColor);
  context.DimColor = static_cast<DrawColor>(DimColor);
  context.TextColor = static_cast<DrawColor>(TextColor);
  return context;
}

HipLayoutOptions Document::HipLayoutChoice() const {
  HipLayoutOptions options;
  options.Layout = menus.HipLayoutCenter.Checked         ? JackLayout::kCenter
                   : menus.HipLayoutCornersFlush.Checked ? JackLayout::kCornersFlush
                                                         : JackLayout::kCorners;
  options.WithOverhang = menus.HipLayoutJackMeasurement.Checked;
  if (sheet.HasLastCommon.Ticked()) options.LastCommon = sheet.LastCommon.Value();
  return options;
}

// The page's picture becomes the target, with nothing on it.
void Document::ClearPicture() {
  board.DrawScale = DrawScale();
  board.Recorder.SetCanvas((CurrentTab == 0 ? Picture1 : Picture3).Size());
  board.AbandonDrawing();
}

void Document::RepeatDrawing() {
  const std::string focus = FocusRequest;
  if (RoofType == roof::kGambrel && CurrentTab > 0) CalculateGambrelDimensions("Heel");
  DrawPage(CurrentTab);
  FocusRequest = focus;
}

void Document::ShowSpacing() {
  sheet.SpacingLabel.Visible = true;
  sheet.Spacing.Visible = true;
}

void Document::FocusSlope(std::size_t row) {
  if (DialogIsActive) return;  // a dialog keeps the focus
  if (menus.SettingsRiseOverRun.Checked) {
    Focus(sheet.Slope[row]);
  } else {
    Focus(sheet.Degrees[row]);
  }
}

}  // namespace pitchcraft
