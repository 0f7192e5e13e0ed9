// The menu items that bring up a form, and what its OK does.
#include <cmath>
#include <random>

#include "document/document.h"
#include "document/forms.h"
#include "storage/list_files.h"
#include "storage/lists.h"

namespace pitchcraft {
namespace {

constexpr const char* kApply = "cmdApply_Click";
// A tab that no page has: the page shown counts as newly chosen.
constexpr int kNoTab = 9;

/// The grid shows what the fields offer: the rows of the file, or the usual ones where there is none.
std::vector<std::string> RowsFor(const std::filesystem::path& folder, const char* name,
                                 const std::vector<std::string>& usual) {
  if (folder.empty()) return usual;
  const auto stored = ReadListFile(folder / name);
  return stored ? *stored : usual;
}

void RewriteIfChanged(ListGrid& grid, const std::filesystem::path& folder, const char* name) {
  if (!grid.Changed()) return;
  if (folder.empty()) throw RunTimeError::PathNotFound();
  RewriteListFile(folder / name, grid.FileRows());
  grid.Settle();
}

}  // namespace

void Document::ShowForm(const AnyForm& form) {
  const bool before = DialogIsActive;
  DialogIsActive = true;
  surroundings_.dialogs.ShowForm(form);
  DialogIsActive = before;
}

/// That of a length, with parts of a millimetre.
MeasureConverter Document::FineFormat() const {
  MeasureConverter format = sheet.Span[0].Format;
  format.DecimalPlaces = MeasureConverter().DecimalPlaces;
  return format;
}

// --- The small ones
// -------------------------------------------------------------------------------------------------

void Document::mnuSpinIncrement_Click(int) {
  Single& step = Imperial() ? Increment : MetricIncrement;
  IncrementForm form;
  form.Increment.Format = FineFormat();
  form.Increment.SetValue(step);
  ShowForm(&form);
  const Single entered = form.Increment.Value();
  if (form.Accepted && entered > 0 && std::isfinite(double{entered})) step = entered;
}

void Document::mnuHelpAbout_Click(int) {
  AboutForm form;
  form.Version = "Version " PITCHCRAFT_VERSION;
  form.Description = "The roof-framing calculator for carpenters and builders.";
  form.Disclaimer = DisclaimerForm::Text();
  ShowForm(&form);
}

void Document::mnuHelpTips_Click(int) {
  TipForm form(surroundings_.store, {surroundings_.programFolder, surroundings_.dataFolder},
               std::random_device{}());
  ShowForm(&form);
  form.Unload();
}

void Document::ShowStartForms() {
  const Settings stored = ReadSettings(surroundings_.store);
  if (stored.ShowDisclaimer != 0) {
    DisclaimerForm form(surroundings_.store);
    ShowForm(&form);
  }
  if (stored.ShowTipsAtStartup == 1) mnuHelpTips_Click();
}

// --- The options
// ----------------------------------------------------------------------------------------------------

void Document::mnuViewOptions_Click(int) { ShowOptions(OptionsPage::kColors); }

void Document::mnuFileDXFSettings_Click(int) { ShowOptions(OptionsPage::kDxf); }

void Document::ShowOptions(OptionsPage page) {
  OptionsForm form;
  form.Page = page;
  FillOptions(form);
  form.Apply = [&] { ApplyOptions(form); };
  ShowForm(&form);
  VSTab_Switch(0, kNoTab, CurrentTab);
}

void Document::FillOptions(OptionsForm& form) {
  form.Load({CtlBackColor, CtlForeColor, CtlCalcColor, BackColor, LineColor, DimColor, TextColor},
            {static_cast<int>(DxfBackColor), DxfTextColor, DxfLineColor, DxfDimColor}, LineWidth);
  form.SystemColors = UseSystemColors;
  form.PrintAllBlack = PrintAllBlack;
  form.RotateFonts = RotateFonts;
  form.DxfTextSize.Format = FineFormat();
  if (Imperial()) form.DxfTextSize.Format.Units = kInchesAlone;
  form.DxfTextSize.SetValue(Imperial() ? DxfTextSize : DxfMetricTextSize);
  // A run of 12 serves metric slopes, too: the field brings it to its own.
  form.SlopeList.NewRow = {"", "", "12"};
  const std::filesystem::path& folder = surroundings_.programFolder;
  Try(OptionsForm::kName,
      [&] { form.SlopeList.Load(RowsFor(folder, SlopeFileOf(UnitRun), DefaultSlopeRows(UnitRun))); });
  Try(OptionsForm::kName,
      [&] { form.LumberList.Load(RowsFor(folder, LumberFileOf(UnitRun), DefaultLumberRows())); });
}

void Document::ApplyOptions(OptionsForm& form) {
  UseSystemColors = form.SystemColors;
  CtlBackColor = form.ShownColor(kCtlBack);
  CtlForeColor = form.ShownColor(kCtlText);
  CtlCalcColor = form.ShownColor(kCalcText);
  BackColor = form.ShownColor(kBackground);
  LineColor = form.ShownColor(kLine);
  DimColor = form.ShownColor(kDimension);
  TextColor = form.ShownColor(kText);
  LineWidth = form.LineWidth();
  PrintAllBlack = form.PrintAllBlack;
  RotateFonts = form.RotateFonts;
  ColorFields();
  Try(kApply, [&] { SwitchTab(0, kNoTab, CurrentTab); });
  TakeDxfTextSize(form.DxfTextSize);
  DxfBackColor = static_cast<std::uint32_t>(form.DxfColors()[kDxfBack]);
  DxfTextColor = form.DxfColors()[kDxfText];
  DxfLineColor = form.DxfColors()[kDxfLine];
  DxfDimColor = form.DxfColors()[kDxfDim];
  const std::filesystem::path& folder = surroundings_.programFolder;
  Try(kApply, [&] { RewriteIfChanged(form.SlopeList, folder, SlopeFileOf(UnitRun)); });
  Try(kApply, [&] { RewriteIfChanged(form.LumberList, folder, LumberFileOf(UnitRun)); });
  DefaultLumberList();
  DefaultSlopeList();
}

// A text without a height, or higher than any drawing, would leave a file that no program shows.
void Document::TakeDxfTextSize(MeasureControl& field) {
  Single& size = Imperial() ? DxfTextSize : DxfMetricTextSize;
  const Single entered = field.Value();
  if (entered > 0 && entered <= kLargestDxfText) {
    size = entered;
  } else {
    MsgBox("The DXF textsize must be a measure above 0.", kApply);
    field.SetValue(size);
  }
}

}  // namespace pitchcraft
