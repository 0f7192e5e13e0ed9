#include "shell/strips.h"

#include <QPainter>
#include <algorithm>

#include "shell/plain_views.h"
#include "shell/twips.h"

namespace pitchcraft {
namespace {

constexpr int kMargin = 8;
constexpr int kGap = 6;
constexpr int kFieldGap = 16;

std::vector<std::unique_ptr<ControlView>> ViewsOn(Host host, Session& session, QWidget* strip) {
  std::vector<std::unique_ptr<ControlView>> views;
  for (const AnyControl& any : session.Document().design.sheet.Controls()) {
    if (ControlOf(any).Host != host) continue;
    if (auto view = MakeControlView(session, any, strip)) views.push_back(std::move(view));
  }
  return views;
}

int HeightOf(const Control& control) { return ToPixels(control.Height); }

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

void BayStrip::Sync() {
  if (isHidden()) return;
  int left = kMargin;
  for (std::size_t i = 0; i < views_.size(); ++i) {
    const Control& control = views_[i]->Of();
    if (captions_[i] != nullptr) {
      const int width = captions_[i]->sizeHint().width();
      captions_[i]->setGeometry(left, 0, width, height());
      left += width + kGap;
    }
    const QRect place(left, (height() - HeightOf(control)) / 2, ToPixels(control.Width), HeightOf(control));
    views_[i]->Sync(control.Visible, place);
    left = place.right() + kFieldGap;
  }
}

TabStrip::TabStrip(Session& session, QWidget* window)
    : QWidget(window),
      views_(ViewsOn(Host::kTabStrip, session, this)),
      pages_(new PageTabs(session, 0, this)) {
  setObjectName("TabStrip");
  setAccessibleName(tr("Pages and settings"));
}

void TabStrip::Sync() {
  int right = width() - kMargin;
  // From the right: each field, then the caption that stands before it.
  for (auto view = views_.rbegin(); view != views_.rend(); ++view) {
    const Control& control = (*view)->Of();
    // A caption takes what its text needs.
    auto* caption = dynamic_cast<LabelView*>(view->get());
    const int needed = caption == nullptr ? 0 : caption->NeededWidth();
    const int fieldWidth = std::max(ToPixels(control.Width), needed);
    const QRect place(right - fieldWidth, (height() - HeightOf(control)) / 2, fieldWidth, HeightOf(control));
    (*view)->Sync(control.Visible, place);
    if (control.Visible) right = place.left() - kGap;
  }
  pages_->setGeometry(kMargin / 2, 2, std::max(right - kMargin, 0), height() - 2);
  pages_->Sync();
}

// The line that the pages stand on.
void TabStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(0, height() - 1, width(), height() - 1);
}

}  // namespace pitchcraft
