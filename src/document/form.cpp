// The window's life: start, layout, end.
#include <algorithm>

#include "document/document.h"
#include "sheet/row_layouts.h"

namespace pitchcraft {

Document::Document(const Surroundings& surroundings)
    : RecentFiles(surroundings.store),
      board(meter, [this](double length) { return measures.ToText(length); }),
      surroundings_(surroundings) {
  menus.SettingsPlumbCut.Checked = true;
  CheckFasciaCut(FasciaCut::kPlumb);
  menus.ViewToolbar.Checked = true;
  menus.ViewStatusBar.Checked = true;
  menus.Imperial.Checked = true;
  menus.GambrelPurlins.Checked = menus.PopUp2GambrelPurlins.Checked = true;
  LayOutRows(sheet, RoofType, true);
  DisableItemsWithoutHandler();
}

FormLayout Document::Layout() const {
  return LayOutForm(Window.Width, Window.Height,
                    {menus.ViewToolbar.Checked, menus.ViewStatusBar.Checked, sheet.DimensionStrip.Visible,
                     RoofType == roof::kDualSlope, Words});
}

void Document::Form_Load() {
  constexpr const char* kProcedure = "Form_Load";
  const Settings stored = ReadSettings(surroundings_.store);
  static_cast<Preferences&>(*this) = stored;
  Window = {stored.MainLeft, stored.MainTop, stored.MainWidth, stored.MainHeight};
  Try(kProcedure, [&] { ColorFields(); });
  Try(kProcedure, [&] { CreateRafters(); });
  for (std::size_t place = 0; place < RecentFileList::kPlaces; ++place) {
    RecentFiles.Items[place] = &menus.FileMRU[place];
  }
  Try(kProcedure, [&] { RecentFiles.Load(); });
  ShowProjectTitle("Untitled");
  Window.Width = std::max(Window.Width, kMinimumWidth);
  Window.Height = std::max(Window.Height, kMinimumHeight);
  CalcEnabled = true;
  Try(kProcedure, [&] { ShowStoredOptions(stored); });
  toolBar.PressRoof(0);
  Try(kProcedure, [&] { SwitchUnits(stored.Units != 0); });
  Try(kProcedure, [&] { TakeStoredSpacing(stored); });
  Form_Resize();
  FocusSlope(0);
  SetHelpContext();
}

// A field that is switched off stays grey, and one that was calculated keeps the colour that says so.
void Document::ColorFields() {
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
void Document::CreateRafters() {
  Rafter1.Calculated = [this] { Rafter1_Calculated(); };
  Rafter2.Calculated = [this] { Rafter2_Calculated(); };
  DefaultLumberList();
  DefaultSlopeList();
  std::vector<std::string> items;
  for (const RoofTypeRow& row : RoofTypes()) items.emplace_back(row.Item);
  sheet.RoofList.SetList(items);
  sheet.RoofList.SetListIndex(0);
  cboType_Click();
  for (const std::size_t row : {0, 1}) {
    sheet.Slope[row].SetListIndex(0);
    sheet.Degrees[row].SetListIndex(0);
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
  sheet.Ledger.SetListIndex(0);
  menus.DutchLedger[0].Checked = menus.PopUp1Ledger[0].Checked = true;
}

void Document::ShowStoredOptions(const Settings& stored) {
  sheet.Kneewall[0].SetText(stored.Kneewall1);
  sheet.Kneewall[1].SetText(stored.Kneewall2);
  for (MeasureControl& field : sheet.Kneewall) {
    field.Enabled = false;
    field.ForeColor = kSystemGrayTextColor;
  }
  sheet.LastCommon.Enabled = false;
  sheet.Label[23].Enabled = false;
  ShowHipLayoutChecks(stored.HipLayout == "Center" ? 0 : stored.HipLayout == "Corner Flush" ? 2 : 1);
  menus.HipLayoutOverhangsEqual.Checked = menus.PopUp1OverhangsEqual.Checked = stored.OverhangsEqual;
  menus.HipLayoutJackMeasurement.Checked = menus.PopUp1JackMeasurement.Checked = stored.JackMeasurement;
  if (stored.Degrees) {
    mnuSettingsDegrees_Click();
  } else {
    mnuSettingsRiseOverRun_Click();
  }
}

void Document::Form_Resize() {
  if (!CalcEnabled || WindowState == 1) return;
  Window.Width = std::max(Window.Width, kMinimumWidth);
  Window.Height = std::max(Window.Height, kMinimumHeight);
  LayOutPictures();
  RepeatDrawing();
}

void Document::LayOutPictures() {
  const FormLayout layout = Layout();
  Picture1.Place = layout.picture1;
  Picture3.Place = layout.picture3;
  sheet.Frames[2].Top = layout.picture3.Top;
  sheet.Frames[2].Width = layout.picture3.Width;
  sheet.Frames[2].Height = layout.picture3.Height;
}

void Document::Form_Unload() {
  Settings settings = ReadSettings(surroundings_.store);
  static_cast<Preferences&>(settings) = *this;
  settings.Units = Imperial() ? 0 : 1;
  settings.Degrees = menus.SettingsDegrees.Checked;
  settings.MainLeft = Window.Left;
  settings.MainTop = Window.Top;
  settings.MainWidth = Window.Width;
  settings.MainHeight = Window.Height;
  settings.Kneewall1 = sheet.Kneewall[0].Text();
  settings.Kneewall2 = sheet.Kneewall[1].Text();
  settings.HipLayout = menus.HipLayoutCenter.Checked         ? "Center"
                       : menus.HipLayoutCornersFlush.Checked ? "Corner Flush"
                                                             : "Corner";
  settings.OverhangsEqual = menus.HipLayoutOverhangsEqual.Checked;
  settings.JackMeasurement = menus.HipLayoutJackMeasurement.Checked;
  Try("Form_Unload", [&] { WriteSettings(settings, surroundings_.store); });
}

void Document::TakeStoredSpacing(const Settings& stored) {
  Spacing = Imperial() ? stored.Spacing : stored.MetricSpacing;
  Rafter1.spacing = Rafter2.spacing = Spacing;
  if (Imperial()) measures.Units = kInchesAlone;
  sheet.Spacing.SetText(measures.ToText(Spacing));
  if (Imperial()) measures.Units = kFeetAndInches;
}

void Document::MsgBox(const std::string& text, const std::string& title) {
  surroundings_.dialogs.MsgBox(title, text);
}

}  // namespace pitchcraft
