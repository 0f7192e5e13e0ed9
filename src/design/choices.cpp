#include "design/choices.h"

#include <initializer_list>

namespace pitchcraft {
namespace {

void Check(bool on, std::initializer_list<MenuItem*> items) {
  for (MenuItem* item : items) item->Checked = on;
}

void ShowCut(Design& design) {
  Menus& menus = design.menus;
  const auto is = [&](FasciaCut cut) { return design.Cut == cut; };
  Check(is(FasciaCut::kPlumb),
        {&menus.SettingsPlumbCut, &menus.GambrelPlumb, &menus.PopUp1PlumbCut, &menus.PopUp2PlumbCut});
  Check(is(FasciaCut::kSquare),
        {&menus.SettingsSquareCut, &menus.GambrelSquare, &menus.PopUp1SquareCut, &menus.PopUp2SquareCut});
  Check(is(FasciaCut::kLevel), {&menus.SettingsLevelCut, &menus.GambrelLevel, &menus.PopUp2LevelCut});
  design.toolBar.PressFasciaCut(is(FasciaCut::kPlumb)    ? "Plumb"
                                : is(FasciaCut::kSquare) ? "Square"
                                                         : "Level");
}

void ShowHipLayout(Design& design) {
  Menus& menus = design.menus;
  const auto is = [&](JackLayout layout) { return design.Layout == layout; };
  Check(is(JackLayout::kCenter), {&menus.HipLayoutCenter, &menus.PopUp1LayoutCenter});
  Check(is(JackLayout::kCorners), {&menus.HipLayoutCorners, &menus.PopUp1LayoutCorner});
  Check(is(JackLayout::kCornersFlush), {&menus.HipLayoutCornersFlush, &menus.PopUp1LayoutCornerFlush});
  Check(design.JacksWithOverhang, {&menus.HipLayoutJackMeasurement, &menus.PopUp1JackMeasurement});
  Check(design.OverhangsEqual, {&menus.HipLayoutOverhangsEqual, &menus.PopUp1OverhangsEqual});
}

void ShowGambrel(Design& design) {
  Menus& menus = design.menus;
  Check(design.Gambrel == GambrelKind::kRegular, {&menus.GambrelRegular, &menus.PopUp2GambrelRegular});
  Check(design.Gambrel == GambrelKind::kCustom, {&menus.GambrelCustom, &menus.PopUp2GambrelCustom});
  const auto is = [&](GambrelSupport support) { return design.Support == support; };
  Check(is(GambrelSupport::kPurlins), {&menus.GambrelPurlins, &menus.PopUp2GambrelPurlins});
  Check(is(GambrelSupport::kWall), {&menus.GambrelWallSupport, &menus.PopUp2GambrelWallSupport});
  Check(is(GambrelSupport::kRaisedWall),
        {&menus.GambrelWallSupportRaised, &menus.PopUp2GambrelWallSupportRaised});
}

}  // namespace

void ShowChoices(Design& design) {
  Menus& menus = design.menus;
  Check(design.Metric, {&menus.Metric});
  Check(!design.Metric, {&menus.Imperial});
  menus.Tools.Caption = design.Metric ? "&Calculator" : "FtInch &Calculator";
  Check(design.InDegrees, {&menus.SettingsDegrees});
  Check(!design.InDegrees, {&menus.SettingsRiseOverRun});
  Check(design.sheet.HeelLock[design.LockRow].Ticked(), {&menus.SettingsHeelLocked});
  Check(design.sheet.SeatLock[design.LockRow].Ticked(), {&menus.SettingsSeatLocked});
  ShowCut(design);
  ShowHipLayout(design);
  ShowGambrel(design);
  Check(design.DutchLedger, {&menus.DutchLedger[0], &menus.PopUp1Ledger[0]});
  Check(!design.DutchLedger, {&menus.DutchLedger[1], &menus.PopUp1Ledger[1]});
  design.toolBar.PressRoof(design.sheet.RoofList.ListIndex());
  design.toolBar["Level"].Visible = design.RoofType == Roof::kGambrel;
}

}  // namespace pitchcraft
