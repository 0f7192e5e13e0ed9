// The tool bar's buttons and the mouse on the drawings.
#include "document/frm_document.h"

namespace pitchcraft {

void frmDocument::tbToolBar_ButtonClick(std::string_view key) {
  Try("tbToolBar_ButtonClick", [&] {
    if (key == "New") return mnuFileNew_Click();
    if (key == "Open") return mnuFileOpen_Click();
    if (key == "Save") return mnuFileSave_Click();
    if (key == "Print") return mnuFilePrint_Click();
    if (key == "Plumb") return mnuSettingsPlumbCut_Click();
    if (key == "Square") return mnuSettingsSquareCut_Click();
    if (key == "Level") return mnuSettingsLevelCut_Click();
    const ToolButton* button = tbToolBar.Find(key);
    if (button == nullptr || button->RoofListIndex < 0) return;
    if (sheet.VSTab[1].Page != 0) VSTab_Switch(1, sheet.VSTab[1].Page, 0);
    if (sheet.VSTab[0].Page != 0) VSTab_Switch(0, sheet.VSTab[0].Page, 0);
    sheet.cboType.SetListIndex(button->RoofListIndex);
    cboType_Click();
  });
}

MenuItem* frmDocument::Picture_MouseDown(int picture, int button, int x, int) {
  if (button == kLeftButton && picture == 1 && RoofType == roof::kDualSlope) {
    const double share = Rafter1.Span / (Rafter1.Span + Rafter2.Span);
    const int page = x < share * Picture1.Place.Width ? 0 : 1;
    VSTab_Switch(1, RoofPage(), page);
    FocusSlope(static_cast<std::size_t>(page));
    return nullptr;
  }
  if (button != kRightButton) return nullptr;
  if (RoofType == roof::kGambrel) return &menus.mnuPopUp2;
  ShowPopUp1Items();
  return &menus.mnuPopUp1;
}

// The popup offers what the roof type knows: layouts for a hip, the ledger for a Dutch hip, cuts for all but
// the blind valley. The items of a hip stay as the page set them.
void frmDocument::ShowPopUp1Items() {
  const bool hip = RoofType == roof::kHip || RoofType == roof::kBastardHip;
  const bool ledger = RoofType == roof::kDutchHip;
  const bool cuts = RoofType != roof::kBlindValley;
  if (!hip) {
    for (MenuItem* item :
         {&menus.mnuPopUp1LayoutCenter, &menus.mnuPopUp1LayoutCorner, &menus.mnuPopUp1LayoutCornerFlush,
          &menus.mnuPopUp1JackMeasurement, &menus.mnuPopUp1OverhangsEqual, &menus.mnuSeparator[15],
          &menus.mnuSeparator[18], &menus.mnuSeparator[19]}) {
      item->Visible = false;
    }
  }
  for (MenuItem& item : menus.mnuPopUp1Ledger) item.Visible = ledger;
  menus.mnuSeparator[13].Visible = ledger;
  menus.mnuPopUp1PlumbCut.Visible = cuts;
  menus.mnuPopUp1SquareCut.Visible = cuts;
  menus.mnuSeparator[12].Visible = cuts;
}

}  // namespace pitchcraft
