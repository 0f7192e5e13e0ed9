// The window's life: start, layout, end.
#include <algorithm>

#include "document/frm_document.h"
#include "sheet/row_layouts.h"

namespace pitchcraft {

frmDocument::frmDocument(const Surroundings& surroundings)
    : RecentFiles(surroundings.store),
      board(meter, [this](double length) { return FtInConverter1.ToText(length); }),
      surroundings_(surroundings) {
  menus.mnuSettingsPlumbCut.Checked = true;
  CheckFasciaCut(FasciaCut::kPlumb);
  menus.mnuViewToolbar.Checked = true;
  menus.mnuViewStatusBar.Checked = true;
  menus.mnuImperial.Checked = true;
  menus.mnuGambrelPurlins.Checked = menus.mnuPopup2GambrelPurlins.Checked = true;
  LayOutRows(sheet, RoofType, true);
  DisableItemsWithoutHandler();
}

FormLayout frmDocument::Layout() const {
  return LayOutForm(Window.Width, Window.Height,
                    {menus.mnuViewToolbar.Checked, menus.mnuViewStatusBar.Checked, sheet.Toolbar1.Visible,
                     RoofType == roof::kDualSlope});
}

void frmDocument::Form_Load() {
  constexpr const char* kProcedure = "Form_Load";
  const Settings stored = ReadSettings(surroundings_.store);
  static_cast<Preferences&>(*this) = stored;
  Window = {stored.MainLeft, stored.MainTop, stored.MainWidth, stored.MainHeight};
  Try(kProcedure, [&] { ColorFields(); });
  Try(kProcedure, [&] { CreateRafters(); });
  for (std::size_t place = 0; place < MRU::kPlaces; ++place) {
    RecentFiles.MenuArray[place] = &menus.mnuFileMRU[place];
  }
  Try(kProcedure, [&] { RecentFiles.LoadMRU(); });
  ShowProjectTitle("Untitled");
  Window.Width = std::max(Window.Width, kMinimumWidth);
  Window.Height = std::max(Window.Height, kMinimumHeight);
  CalcEnabled = true;
  Try(kProcedure, [&] { ShowStoredOptions(stored); });
  tbToolBar.PressRoof(0);
  Try(kProcedure, [&] { SwitchUnits(stored.Units != 0); });
  Try(kProcedure, [&] { TakeStoredSpacing(stored); });
  Form_Resize();
  FocusSlope(0);
  SetHelpContext();
}

// A field that is switched off stays grey, and one that was calculated keeps the colour that says so.
void frmDocument::ColorFields() {
  sheet.ForEachMeasure([this](auto& field) {
    field.BackColor = CtlBackColor;
    if (!field.Enabled && field.ForeColor == kSystemGrayTextColor) return;
    field.ForeColor = CtlForeColor;
    if constexpr (requires { field.Calculated; }) {
      if (field.Calculated) field.ForeColor = CtlCalcColor;
    }
  });
}

// The first values of a session: the sheet takes those of the unit switch soon after.
void frmDocument::CreateRafters() {
  Rafter1.Calculated = [this] { Rafter1_Calculated(); };
  Rafter2.Calculated = [this] { Rafter2_Calculated(); };
  DefaultLumberList();
  DefaultSlopeList();
  std::vector<std::string> items;
  for (const RoofTypeRow& row : RoofTypes()) items.emplace_back(row.Item);
  sheet.cboType.SetList(items);
  sheet.cboType.SetListIndex(0);
  cboType_Click();
  for (const std::size_t row : {0, 1}) {
    sheet.LWSlope[row].SetListIndex(0);
    sheet.cboDegrees[row].SetListIndex(0);
  }
  Rafter1.RafterType = RafterType::kCommon;
  Rafter1.Span = 144;
  Rafter1.Thickness = Rafter1.HipValThickness = 1.5;
  Rafter1.Depth = Rafter1.HipValDepth = Rafter1.RidgeDepth = 7.25;
  Rafter1.FasciaHeight = 5.5;
  Rafter1.FasciaThickness = 1.5;
  Rafter1.Overhang = 10.5;
  Rafter1.RidgeThickness = 1.5;
  Rafter1.Calculate();
  sheet.cboLedger.SetListIndex(0);
  menus.mnuDutchLedger[0].Checked = menus.mnuPopUp1Ledger[0].Checked = true;
}

void frmDocument::ShowStoredOptions(const Settings& stored) {
  sheet.FtKneewall[0].SetText(stored.Kneewall1);
  sheet.FtKneewall[1].SetText(stored.Kneewall2);
  for (FtInText& field : sheet.FtKneewall) {
    field.Enabled = false;
    field.ForeColor = kSystemGrayTextColor;
  }
  sheet.FtLastCommon.Enabled = false;
  sheet.Label[23].Enabled = false;
  ShowHipLayoutChecks(stored.HipLayout == "Center" ? 0 : stored.HipLayout == "Corner Flush" ? 2 : 1);
  menus.mnuHipLayoutOverhangsEqual.Checked = menus.mnuPopUp1OverhangsEqual.Checked = stored.OverhangsEqual;
  menus.mnuHipLayoutJackMeasurement.Checked = menus.mnuPopUp1JackMeasurement.Checked = stored.JackMeasurement;
  if (stored.Degrees) {
    mnuSettingsDegrees_Click();
  } else {
    mnuSettingsRiseOverRun_Click();
  }
}

void frmDocument::Form_Resize() {
  if (!CalcEnabled || WindowState == 1) return;
  Window.Width = std::max(Window.Width, kMinimumWidth);
  Window.Height = std::max(Window.Height, kMinimumHeight);
  LayOutPictures();
  RepeatDrawing();
}

void frmDocument::LayOutPictures() {
  const FormLayout layout = Layout();
  Picture1.Place = layout.picture1;
  Picture3.Place = layout.picture3;
  sheet.VSElastic[2].Top = layout.picture3.Top;
  sheet.VSElastic[2].Width = layout.picture3.Width;
  sheet.VSElastic[2].Height = layout.picture3.Height;
}

void frmDocument::Form_Unload() {
  Settings settings = ReadSettings(surroundings_.store);
  static_cast<Preferences&>(settings) = *this;
  settings.Units = Imperial() ? 0 : 1;
  settings.Degrees = menus.mnuSettingsDegrees.Checked;
  settings.MainLeft = Window.Left;
  settings.MainTop = Window.Top;
  settings.MainWidth = Window.Width;
  settings.MainHeight = Window.Height;
  settings.Kneewall1 = sheet.FtKneewall[0].Text();
  settings.Kneewall2 = sheet.FtKneewall[1].Text();
  settings.HipLayout = menus.mnuHipLayoutCenter.Checked         ? "Center"
                       : menus.mnuHipLayoutCornersFlush.Checked ? "Corner Flush"
                                                                : "Corner";
  settings.OverhangsEqual = menus.mnuHipLayoutOverhangsEqual.Checked;
  settings.JackMeasurement = menus.mnuHipLayoutJackMeasurement.Checked;
  Try("Form_Unload", [&] { WriteSettings(settings, surroundings_.store); });
}

void frmDocument::TakeStoredSpacing(const Settings& stored) {
  Spacing = Imperial() ? stored.Spacing : stored.MetricSpacing;
  Rafter1.spacing = Rafter2.spacing = Spacing;
  if (Imperial()) FtInConverter1.Units = kInchesAlone;
  sheet.cboSpacing.SetText(FtInConverter1.ToText(Spacing));
  if (Imperial()) FtInConverter1.Units = kFeetAndInches;
}

void frmDocument::MsgBox(const std::string& text, const std::string& title) {
  surroundings_.dialogs.MsgBox(title, text);
}

}  // namespace pitchcraft
