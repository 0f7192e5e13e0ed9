#include "document/menu_forms.h"

#include <cmath>
#include <random>

#include "design/questions.h"
#include "document/forms.h"
#include "document/lists.h"
#include "roofs/switch_roof.h"
#include "storage/list_files.h"
#include "storage/lists.h"

namespace pitchcraft {
namespace {

constexpr const char* kApply = "cmdApply_Click";

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

void ShowForm(Document& document, const AnyForm& form) {
  bool& active = document.window.DialogIsActive;
  const bool before = active;
  active = true;
  document.Around().dialogs.ShowForm(form);
  active = before;
}

/// That of a length, with parts of a millimetre.
MeasureConverter FineFormat(const Design& design) {
  MeasureConverter format = LengthFormat(design);
  format.DecimalPlaces = MeasureConverter().DecimalPlaces;
  return format;
}

Single& DxfTextSizeOf(Document& document) {
  Preferences& preferences = document.preferences;
  return document.design.Metric ? preferences.DxfMetricTextSize : preferences.DxfTextSize;
}

void FillOptions(Document& document, OptionsForm& form) {
  const Preferences& p = document.preferences;
  form.Load(
      {p.CtlBackColor, p.CtlForeColor, p.CtlCalcColor, p.BackColor, p.LineColor, p.DimColor, p.TextColor},
      {static_cast<int>(p.DxfBackColor), p.DxfTextColor, p.DxfLineColor, p.DxfDimColor}, p.LineWidth);
  form.SystemColors = p.UseSystemColors;
  form.PrintAllBlack = document.PrintAllBlack;
  form.RotateFonts = p.RotateFonts;
  form.DxfTextSize.Format = FineFormat(document.design);
  if (!document.design.Metric) form.DxfTextSize.Format.Units = kInchesAlone;
  form.DxfTextSize.SetValue(DxfTextSizeOf(document));
  // A run of 12 serves metric slopes, too: the field brings it to its own.
  form.SlopeList.NewRow = {"", "", "12"};
  const std::filesystem::path& folder = document.Around().programFolder;
  const int unitRun = UnitRun(document.design);
  document.Guard(OptionsForm::kName, [&] {
    form.SlopeList.Load(RowsFor(folder, SlopeFileOf(unitRun), DefaultSlopeRows(unitRun)));
  });
  document.Guard(OptionsForm::kName,
                 [&] { form.LumberList.Load(RowsFor(folder, LumberFileOf(unitRun), DefaultLumberRows())); });
}

// A text without a height, or higher than any drawing, would leave a file that no program shows.
void TakeDxfTextSize(Document& document, MeasureControl& field) {
  Single& size = DxfTextSizeOf(document);
  const Single entered = field.Value();
  if (entered > 0 && entered <= kLargestDxfText) {
    size = entered;
  } else {
    document.Tell("The DXF textsize must be a measure above 0.", kApply);
    field.SetValue(size);
  }
}

void ApplyOptions(Document& document, OptionsForm& form) {
  Preferences& p = document.preferences;
  p.UseSystemColors = form.SystemColors;
  p.CtlBackColor = form.ShownColor(kCtlBack);
  p.CtlForeColor = form.ShownColor(kCtlText);
  p.CtlCalcColor = form.ShownColor(kCalcText);
  p.BackColor = form.ShownColor(kBackground);
  p.LineColor = form.ShownColor(kLine);
  p.DimColor = form.ShownColor(kDimension);
  p.TextColor = form.ShownColor(kText);
  p.LineWidth = form.LineWidth();
  document.PrintAllBlack = form.PrintAllBlack;
  p.RotateFonts = form.RotateFonts;
  TakeDxfTextSize(document, form.DxfTextSize);
  p.DxfBackColor = static_cast<std::uint32_t>(form.DxfColors()[kDxfBack]);
  p.DxfTextColor = form.DxfColors()[kDxfText];
  p.DxfLineColor = form.DxfColors()[kDxfLine];
  p.DxfDimColor = form.DxfColors()[kDxfDim];
  const std::filesystem::path& folder = document.Around().programFolder;
  const int unitRun = UnitRun(document.design);
  document.Guard(kApply, [&] { RewriteIfChanged(form.SlopeList, folder, SlopeFileOf(unitRun)); });
  document.Guard(kApply, [&] { RewriteIfChanged(form.LumberList, folder, LumberFileOf(unitRun)); });
  FillLists(document);
  document.Refresh();
}

// Closed, the page counts as newly chosen; its figure was made when the options were applied.
void ShowOptionsOn(Document& document, OptionsPage page) {
  OptionsForm form;
  form.Page = page;
  FillOptions(document, form);
  form.Apply = [&] { ApplyOptions(document, form); };
  ShowForm(document, &form);
  Reply reply;
  TurnPage(document.design, reply, PageShown(document.design));
  document.TakeReply(reply);
  document.ShowState();
}

}  // namespace

void AskForIncrement(Document& document, int) {
  Preferences& preferences = document.preferences;
  Single& step = document.design.Metric ? preferences.MetricIncrement : preferences.Increment;
  IncrementForm form;
  form.Increment.Format = FineFormat(document.design);
  form.Increment.SetValue(step);
  ShowForm(document, &form);
  const Single entered = form.Increment.Value();
  if (form.Accepted && entered > 0 && std::isfinite(double{entered})) step = entered;
}

void ShowAbout(Document& document, int) {
  AboutForm form;
  form.Version = "Version " PITCHCRAFT_VERSION;
  form.Description = "The roof-framing calculator for carpenters and builders.";
  form.Disclaimer = DisclaimerForm::Text();
  ShowForm(document, &form);
}

void ShowTips(Document& document, int) {
  const Surroundings& around = document.Around();
  TipForm form(around.store, {around.programFolder, around.dataFolder}, std::random_device{}());
  ShowForm(document, &form);
  form.Unload();
}

void ShowStartForms(Document& document) {
  const Settings stored = ReadSettings(document.Around().store);
  if (stored.ShowDisclaimer != 0) {
    DisclaimerForm form(document.Around().store);
    ShowForm(document, &form);
  }
  if (stored.ShowTipsAtStartup == 1) ShowTips(document);
}

void ShowOptions(Document& document, int) { ShowOptionsOn(document, OptionsPage::kColors); }

void ShowDxfSettings(Document& document, int) { ShowOptionsOn(document, OptionsPage::kDxf); }

}  // namespace pitchcraft
