#include "shell/sheet_panel.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "document/roof_words.h"
#include "shell/twips.h"

namespace pitchcraft {
namespace {

constexpr int kTabsLeft = 4;
constexpr int kCaptionDrop = 30;  // twips

// Rounded down: parts that stand close beside each other would overlap otherwise. What is a hair below a
// whole pixel is one.
int WholePixels(double pixels) { return static_cast<int>(pixels + 1e-6); }

/// In pixels, where the layout gives the sheet the usual columns and rows.
QSize UsualSize(const ControlView& view) {
  const QSize size(ToPixels(view.Of().Width), ToPixels(view.Of().Height));
  // A caption stands lower than its field, and is as much less high: their middles are level.
  const bool isCaption = dynamic_cast<const LabelView*>(&view) != nullptr;
  return isCaption ? size - QSize(0, 2 * ToPixels(kCaptionDrop)) : size;
}

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

// A caption belongs to a row, and each roof calls its rows otherwise: the column has room for all of them.
WordRoom SheetPanel::Words() const {
  WordRoom words;
  const auto hold = [&words](const QSize& text, const QSize& usual) {
    words.across = std::max(words.across, static_cast<double>(text.width()) / usual.width());
    words.down = std::max(words.down, static_cast<double>(text.height()) / usual.height());
  };
  for (const auto& view : views_) hold(view->SizeForWords(), UsualSize(*view));
  const LabelView& caption = *captions_.front();
  for (const std::string& text : WordsOfAllRoofs().RowCaptions) {
    hold(caption.SizeFor(QString::fromStdString(text)), UsualSize(caption));
  }
  return words;
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
    const int origin = control.Host == Host::kSheet ? 0 : layout.sheetOrigin;
    const QPoint corner(ToPixels(control.Left * layout.sheetAcross),
                        ToPixels((origin + control.Top) * layout.sheetDown));
    const QSize usual = UsualSize(*view);
    const QSize size(WholePixels(usual.width() * layout.sheetAcross),
                     WholePixels(usual.height() * layout.sheetDown));
    view->Sync(IsShown(control), QRect(corner, size));
  }
  ChainTabOrder();
}

}  // namespace pitchcraft
