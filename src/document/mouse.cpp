// The tool bar's buttons and the mouse on the drawings.
#include "document/document.h"

namespace pitchcraft {

void Document::tbToolBar_ButtonClick(std::string_view key) {
  Try("tbToolBar_ButtonClick", [&] {
    if (key == "New") return mnuFileNew_Click();
    if (key == "Open") return mnuFileOpen_Click();
    if (key == "Save") return mnuFileSave_Click();
    if (key == "Print") return mnuFilePrint_Click();
    if (key == "Plumb") return mnuSettingsPlumbCut_Click();
    if (key == "Square") return mnuSettingsSquareCut_Click();
    if (key == "Level") return mnuSettingsLevelCut_Click();
    const ToolButton* button = toolBar.Find(key);
    if (button == nullptr || button->RoofListIndex < 0) return;
    if (sheet.Tabs[1].Page != 0) VSTab_Switch(1, sheet.Tabs[1].Page, 0);
    if (sheet.Tabs[0].Page != 0) VSTab_Switch(0, sheet.Tabs[0].Page, 0);
    sheet.RoofList.SetListIndex(button->RoofListIndex);
    cboType_Click();
  });
}

MenuItem* Document::Picture_MouseDown(int picture, int button, int x, int) {
  if (button == kLeftButton && picture == 1 && RoofType == roof::kDualSlope) {
    const double share = Rafter1.Span / (Rafter1.Span + Rafter2.Span);
    const int page = x < share * Picture1.Place.Width ? 0 : 1;
    VSTab_Switch(1, RoofPage(), page);
    FocusSlope(static_cast<std::size_t>(page));
    return nullptr;
  }
  if (button != kRightButton) return nullptr;
  if (RoofType == roof::kGambrel) return &menus.PopUp2;
  ShowPopUp1Items();
  return &menus.PopUp1;
}

// The popup offers what the roof type knows: layouts for a hip, the ledger for a Dutch hip, cuts for all but
// the blind valley. The items of a hip stay as the page set them.
void Document::ShowPopUp1Items() {
  const bool hip = RoofType == roof::kHip || RoofType == roof::kBastardHip;
  const bool ledger = RoofType == roof::kDutchHip;
  const bool cuts = RoofType != roof::kBlindValley;
  if (!hip) {
    for (MenuItem* item :
         {&menus.PopUp1LayoutCenter, &menus.PopUp1LayoutCorner, &menus.PopUp1LayoutCornerFlush,
          &menus.PopUp1JackMeasurement, &menus.PopUp1OverhangsEqual, &menus.Separator[15],
          &menus.Separator[18], &menus.Separator[19]}) {
      item->Visible = false;
    }
  }
  for (MenuItem& item : menus.PopUp1Ledger) item.Visible = ledger;
  menus.Separator[13].Visible = ledger;
  menus.PopUp1PlumbCut.Visible = cuts;
  menus.PopUp1SquareCut.Visible = cuts;
  menus.Separator[12].Visible = cuts;
}

}  // namespace pitchcraft
