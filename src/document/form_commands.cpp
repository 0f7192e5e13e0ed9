// The menu items that bring up a form, and what its OK does.
#include <cmath>
#include <random>

#include "document/forms.h"
#include "document/frm_document.h"
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

void frmDocument::ShowForm(const AnyForm& form) {
  const bool before = DialogIsActive;
  DialogIsActive = true;
  surroundings_.dialogs.ShowForm(form);
  DialogIsActive = before;
}

/// That of a length, with parts of a millimetre.
FtInConverter frmDocument::FineFormat() const {
  FtInConverter format = sheet.FtSpan[0].Format;
  format.DecimalPlaces = FtInConverter().DecimalPlaces;
  return format;
}

// --- The small ones
// -------------------------------------------------------------------------------------------------

void frmDocument::mnuSpinIncrement_Click(int) {
  Single& step = Imperial() ? Increment : MetricIncrement;
  IncrementForm form;
  form.FtIncrement.Format = FineFormat();
  form.FtIncrement.SetValue(step);
  ShowForm(&form);
  const Single entered = form.FtIncrement.Value();
  if (form.Accepted && entered > 0 && std::isfinite(double{entered})) step = entered;
}

void frmDocument::mnuHelpAbout_Click(int) {
  AboutForm form;
  form.lblVersion = "Version " PITCHCRAFT_VERSION;
  form.lblDescription = "The roof-framing calculator for carpenters and builders.";
  form.lblDisclaimer = DisclaimerForm::Text();
  ShowForm(&form);
}

void frmDocument::mnuHelpTips_Click(int) {
  TipForm form(surroundings_.store, {surroundings_.programFolder, surroundings_.dataFolder},
               std::random_device{}());
  ShowForm(&form);
  form.Unload();
}

void frmDocument::ShowStartForms() {
  const Settings stored = ReadSettings(surroundings_.store);
  if (stored.ShowDisclaimer != 0) {
    DisclaimerForm form(surroundings_.store);
    ShowForm(&form);
  }
  if (stored.ShowTipsAtStartup == 1) mnuHelpTips_Click();
}

// --- The options
// ----------------------------------------------------------------------------------------------------

void frmDocument::mnuViewOptions_Click(int) { ShowOptions(OptionsPage::kColors); }

void frmDocument::mnuFileDXFSettings_Click(int) { ShowOptions(OptionsPage::kDxf); }

void frmDocument::ShowOptions(OptionsPage page) {
  OptionsForm form;
  form.Page = page;
  FillOptions(form);
  form.Apply = [&] { ApplyOptions(form); };
  ShowForm(&form);
  VSTab_Switch(0, kNoTab, CurrentTab);
}

void frmDocument::FillOptions(OptionsForm& form) {
  form.Load({CtlBackColor, CtlForeColor, CtlCalcColor, BackColor, LineColor, DimColor, TextColor},
            {static_cast<int>(DXFBackcolor), DXFTextcolor, DXFLinecolor, DXFDimcolor}, LineWidth);
  form.chkSystemColors = UseSystemColors;
  form.chkPrintAllBlack = PrintAllBlack;
  form.chkRotateFonts = RotateFonts;
  form.ftDXFTextsize.Format = FineFormat();
  if (Imperial()) form.ftDXFTextsize.Format.Units = kInchesAlone;
  form.ftDXFTextsize.SetValue(Imperial() ? DXFTextsize : DXFMetricTextsize);
  // A run of 12 serves metric slopes, too: the field brings it to its own.
  form.SlopeList.NewRow = {"", "", "12"};
  const std::filesystem::path& folder = surroundings_.programFolder;
  Try(OptionsForm::kName,
      [&] { form.SlopeList.Load(RowsFor(folder, SlopeFileOf(UnitRun), DefaultSlopeRows(UnitRun))); });
  Try(OptionsForm::kName,
      [&] { form.LumberList.Load(RowsFor(folder, LumberFileOf(UnitRun), DefaultLumberRows())); });
}

void frmDocument::ApplyOptions(OptionsForm& form) {
  UseSystemColors = form.chkSystemColors;
  CtlBackColor = form.ShownColor(kCtlBack);
  CtlForeColor = form.ShownColor(kCtlText);
  CtlCalcColor = form.ShownColor(kCalcText);
  BackColor = form.ShownColor(kBackground);
  LineColor = form.ShownColor(kLine);
  DimColor = form.ShownColor(kDimension);
  TextColor = form.ShownColor(kText);
  LineWidth = form.LineWidth();
  PrintAllBlack = form.chkPrintAllBlack;
  RotateFonts = form.chkRotateFonts;
  ColorFields();
  Try(kApply, [&] { SwitchTab(0, kNoTab, CurrentTab); });
  TakeDxfTextsize(form.ftDXFTextsize);
  DXFBackcolor = static_cast<std::uint32_t>(form.DxfColors()[kDxfBack]);
  DXFTextcolor = form.DxfColors()[kDxfText];
  DXFLinecolor = form.DxfColors()[kDxfLine];
  DXFDimcolor = form.DxfColors()[kDxfDim];
  const std::filesystem::path& folder = surroundings_.programFolder;
  Try(kApply, [&] { RewriteIfChanged(form.SlopeList, folder, SlopeFileOf(UnitRun)); });
  Try(kApply, [&] { RewriteIfChanged(form.LumberList, folder, LumberFileOf(UnitRun)); });
  DefaultLumberList();
  DefaultSlopeList();
}

// A text without a height, or higher than any drawing, would leave a file that no program shows.
void frmDocument::TakeDxfTextsize(FtInText& field) {
  Single& size = Imperial() ? DXFTextsize : DXFMetricTextsize;
  const Single entered = field.Value();
  if (entered > 0 && entered <= kLargestDxfText) {
    size = entered;
  } else {
    MsgBox("The DXF textsize must be a measure above 0.", kApply);
    field.SetValue(size);
  }
}

}  // namespace pitchcraft
