#include "shell/strips.h"

#include <QPainter>
#include <algorithm>

#include "document/roof_words.h"
#include "shell/twips.h"

namespace pitchcraft {
namespace {

constexpr int kMargin = 8;
constexpr int kGap = 6;
constexpr int kFieldGap = 12;
constexpr int kAboveAndBelowPage = 10;

std::vector<std::unique_ptr<ControlView>> ViewsOn(Host host, Session& session, QWidget* strip) {
  std::vector<std::unique_ptr<ControlView>> views;
  for (const AnyControl& any : session.Document().design.sheet.Controls()) {
    if (ControlOf(any).Host != host) continue;
    if (auto view = MakeControlView(session, any, strip)) views.push_back(std::move(view));
  }
  return views;
}

/// The usual size, or what the font asks for.
QSize SizeOf(const ControlView& view) {
  const Control& control = view.Of();
  return QSize(ToPixels(control.Width), ToPixels(control.Height)).expandedTo(view.SizeForWords());
}

QRect Beside(int left, const QSize& size, int stripHeight) {
  return {QPoint(left, (stripHeight - size.height()) / 2), size};
}

}  // namespace

BayStrip::BayStrip(Session& session, QWidget* window)
    : QWidget(window), views_(ViewsOn(Host::kBayStrip, session, this)) {
  setObjectName("Toolbar1");
  setAccessibleName(tr("Bay dimensions"));
  for (const auto& view : views_) {
    const bool isButton = view->Of().Name == "Command1";
    captions_.push_back(isButton ? nullptr : new QLabel(this));
    if (isButton) continue;
    const std::string name = session.Document().design.sheet.AccessibleNameOf(view->Of());
    captions_.back()->setText(QString::fromStdString(name) + ":");
  }
}

// The caption's width with the gap behind it.
int BayStrip::CaptionRoom(std::size_t view) const {
  return captions_[view] == nullptr ? 0 : captions_[view]->sizeHint().width() + kGap;
}

int BayStrip::LeastWidth() const {
  int width = 2 * kMargin - kFieldGap;
  for (std::size_t i = 0; i < views_.size(); ++i) {
    width += CaptionRoom(i) + SizeOf(*views_[i]).width() + kFieldGap;
  }
  return width;
}

void BayStrip::Sync() {
  if (isHidden()) return;
  int left = kMargin;
  for (std::size_t i = 0; i < views_.size(); ++i) {
    const int room = CaptionRoom(i);
    if (room > 0) captions_[i]->setGeometry(left, 0, room - kGap, height());
    const QRect place = Beside(left + room, SizeOf(*views_[i]), height());
    views_[i]->Sync(views_[i]->Of().Visible, place);
    left += room + place.width() + kFieldGap;
  }
}

TabStrip::TabStrip(Session& session, QWidget* window)
    : QWidget(window),
      views_(ViewsOn(Host::kTabStrip, session, this)),
      pages_(new PageTabs(session, 0, this)) {
  setObjectName("TabStrip");
  setAccessibleName(tr("Pages and settings"));
}

// A field has its caption before it.
int TabStrip::LeastWidth() const {
  int pages = 0;
  for (const auto& captions : WordsOfAllRoofs().Pages) pages = std::max(pages, pages_->WidthFor(captions));
  int field = 0;
  for (std::size_t i = 1; i < views_.size(); i += 2) {
    field = std::max(field, SizeOf(*views_[i - 1]).width() + kGap + SizeOf(*views_[i]).width());
  }
  return kMargin / 2 + pages + kGap + field + kMargin;
}

int TabStrip::LeastHeight() const { return pages_->fontMetrics().height() + kAboveAndBelowPage; }

void TabStrip::Sync() {
  int right = width() - kMargin;
  // From the right: each field, then the caption that stands before it.
  for (auto view = views_.rbegin(); view != views_.rend(); ++view) {
    const QSize size = SizeOf(**view);
    const bool shown = (*view)->Of().Visible;
    (*view)->Sync(shown, Beside(right - size.width(), size, height()));
    if (shown) right -= size.width() + kGap;
  }
  pages_->setGeometry(kMargin / 2, 2, std::max(right - kMargin / 2, 0), height() - 2);
  pages_->Sync();
}

// The line that the pages stand on.
void TabStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(0, height() - 1, width(), height() - 1);
}

}  // namespace pitchcraft
