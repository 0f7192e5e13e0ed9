#include "shell/sheet_panel.h"

#include <QFontInfo>
#include <algorithm>
#include <tuple>
#include <utility>

#include "shell/field_look.h"
#include "shell/twips.h"

namespace pitchcraft {
namespace {

constexpr int kTabsLeft = 4;
constexpr int kCaptionDrop = 30;  // twips

}  // namespace

SheetPanel::SheetPanel(Session& session, QWidget* window)
    : QWidget(window), session_(session), roofTabs_(new PageTabs(session, 1, this)) {
  setObjectName("Sheet");
  setAccessibleName(tr("Design sheet"));
  for (const AnyControl& any : session.Document().design.sheet.Controls()) {
    const Host host = ControlOf(any).Host;
    if (host != Host::kSheet && host != Host::kFrontPage && host != Host::kRearPage) continue;
    auto view = MakeControlView(session, any, this);
    if (view == nullptr) continue;
    if (auto* caption = dynamic_cast<LabelView*>(view.get())) captions_.push_back(caption);
    views_.push_back(std::move(view));
  }
}

bool SheetPanel::IsShown(const Control& control) const {
  const IndexTab& roofs = session_.Document().design.sheet.Tabs[1];
  const int roof = roofs.OnePageOnly ? 0 : roofs.Page;
  if (control.Host == Host::kFrontPage && roof != 0) return false;
  if (control.Host == Host::kRearPage && roof != 1) return false;
  return control.Visible;
}

// All captions have one size: the one in which the longest fits.
void SheetPanel::FitCaptions() {
  QFont smallest = font();
  for (const LabelView* caption : captions_) {
    if (caption->isHidden()) continue;
    const QFont fitted = FittedFont(font(), caption->text(), caption->width(), caption->height() + 4);
    if (QFontInfo(fitted).pixelSize() < QFontInfo(smallest).pixelSize()) smallest = fitted;
  }
  for (LabelView* caption : captions_) {
    if (caption->font() != smallest) caption->setFont(smallest);
  }
}

// Tab goes as the eye does: rows from the top, each from the left. A roof type has its rows in an order of
// its own. The roof type comes first everywhere, so what is in front of the sheet and behind it stays there.
void SheetPanel::ChainTabOrder() {
  using Place = std::tuple<bool, int, int>;  // what does not show comes last
  const auto placeOf = [](const QWidget& part) { return Place(part.isHidden(), part.y(), part.x()); };
  std::vector<std::pair<Place, QWidget*>> places;
  places.emplace_back(placeOf(*roofTabs_), roofTabs_);
  for (const auto& view : views_) {
    for (QWidget* stop : view->TabStops()) places.emplace_back(placeOf(view->Widget()), stop);
  }
  std::stable_sort(places.begin(), places.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<QWidget*> stops;
  stops.reserve(places.size());
  for (const auto& [place, stop] : places) stops.push_back(stop);
  if (stops == stops_) return;
  stops_ = std::move(stops);
  for (std::size_t i = 1; i < stops_.size(); ++i) setTabOrder(stops_[i - 1], stops_[i]);
}

void SheetPanel::Sync(const FormLayout& layout) {
  const bool twoRoofs = layout.roofTabs.Height > 0;
  if (twoRoofs) {
    roofTabs_->setGeometry(ToRect(layout.roofTabs).translated(-x(), -y()).adjusted(kTabsLeft, 0, 0, 0));
    roofTabs_->Sync();
  }
  roofTabs_->setVisible(twoRoofs);
  for (const auto& view : views_) {
    const Control& control = view->Of();
    const double scale = layout.sheetScale;
    const int origin = control.Host == Host::kSheet ? 0 : layout.sheetOrigin;
    QRect place(ToPixels(control.Left * scale), ToPixels((origin + control.Top) * scale),
                ToPixels(control.Width * scale), ToPixels(control.Height * scale));
    // A caption stands lower than its field, and is as much less high: their middles are level.
    if (std::find(captions_.begin(), captions_.end(), view.get()) != captions_.end()) {
      place.setHeight(place.height() - 2 * ToPixels(kCaptionDrop * scale));
    }
    view->Sync(IsShown(control), place);
  }
  FitCaptions();
  ChainTabOrder();
}

}  // namespace pitchcraft
