#include "document/document.h"

#include "design/choices.h"
#include "design/questions.h"
#include "document/figures.h"
#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

constexpr int kStripHeight = 420;

std::uint32_t ForeColorOf(const MeasureControl& field, const Preferences& preferences) {
  if (field.Grayed) return kSystemGrayTextColor;
  return field.Calculated ? preferences.CtlCalcColor : preferences.CtlForeColor;
}
std::uint32_t ForeColorOf(const PairControl&, const Preferences& preferences) {
  return preferences.CtlForeColor;
}

/// The spacing is entered above the pages that are laid out by it.
bool ShowsSpacing(const Design& design) {
  const std::span<const RoofPage> pages = RoofOf(design).Pages(design);
  const auto page = static_cast<std::size_t>(PageShown(design));
  return page < pages.size() && pages[page].HasSpacing;
}

}  // namespace

Document::Document(const Surroundings& around)
    : RecentFiles(around.store),
      around_(around),
      board_(meter_, [this](double length) { return LengthFormat(design).ToText(length); }) {}

void Document::Act(const char* procedure, Step step, int index) {
  Act(procedure, [step, index](Design& changed, Reply& reply) { step(changed, reply, index); });
}

void Document::Act(const char* procedure, const std::function<void(Design&, Reply&)>& step) {
  Reply reply;
  Guard(procedure, [&] { step(design, reply); });
  TakeReply(reply);
  Refresh();
}

void Document::TakeReply(const Reply& reply) {
  for (const Reply::Message& message : reply.Messages) Tell(message.Text, message.Title);
  if (!reply.Focus.empty() && !window.DialogIsActive) window.FocusRequest = reply.Focus;
}

void Document::Tell(const std::string& text, const std::string& title) {
  around_.dialogs.MsgBox(title, text);
}

// A dialog keeps the focus.
void Document::Focus(const Control& control) {
  if (!window.DialogIsActive) window.FocusRequest = control.Name;
}

void Document::Refresh() {
  ShowState();
  MakeFigure();
}

void Document::ShowState() {
  ShowChoices(design);
  design.menus.ViewToolbar.Checked = window.ToolBar;
  design.menus.ViewStatusBar.Checked = window.StatusBar;
  Sheet& sheet = design.sheet;
  sheet.Spacing.Visible = sheet.SpacingLabel.Visible = ShowsSpacing(design);
  sheet.ForEachMeasure([this](auto& field) {
    field.BackColor = preferences.CtlBackColor;
    field.ForeColor = ForeColorOf(field, preferences);
  });
  sheet.Frames[1].Top = (window.ToolBar ? kStripHeight : 0) + sheet.DimensionStrip.Height;
  const FormLayout layout = Layout();
  sheet.Frames[2].Top = layout.picture3.Top;
  sheet.Frames[2].Width = layout.picture3.Width;
  sheet.Frames[2].Height = layout.picture3.Height;
}

FormLayout Document::Layout() const {
  return LayOutForm(window.Place.Width, window.Place.Height,
                    {window.ToolBar, window.StatusBar, design.sheet.DimensionStrip.Visible,
                     design.RoofType == Roof::kDualSlope, window.Words});
}

Area Document::FigureArea() const {
  const FormLayout layout = Layout();
  return OnDesignPage(design) ? layout.picture1 : layout.picture3;
}

// A figure that cannot be drawn leaves a blank, and its message.
void Document::MakeFigure() {
  const PageFigure figure = FigureShown(design);
  const Area area = FigureArea();
  board_.DrawScale = DrawScale(design);
  board_.Recorder.SetCanvas({static_cast<double>(area.Width), static_cast<double>(area.Height), false});
  board_.AbandonDrawing();
  const FigureForms* forms = FormsOf(figure.Kind);
  hasFigure_ = forms != nullptr && forms->Draw != nullptr;
  if (!hasFigure_ || figure.Empty) return;
  ++figureCount_;
  Guard(forms->DrawName, [&] {
    forms->Draw(board_, RoofOf(design).RecordOn(design, PageShown(design)), ContextOf(design, preferences));
  });
}

}  // namespace pitchcraft
