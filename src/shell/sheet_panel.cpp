#include "shell/sheet_panel.h"

#include "shell/twips.h"

namespace pitchcraft {

SheetPanel::SheetPanel(Session& session, QWidget* window)
    : QWidget(window), session_(session), roofTabs_(new PageTabs(session, 1, this)) {
  setObjectName("Sheet");
  setAccessibleName(tr("Design sheet"));
  for (const AnyControl& any : session.Document().sheet.Controls()) {
    const Host host = ControlOf(any).Host;
    if (host != Host::kSheet && host != Host::kFrontPage && host != Host::kRearPage) continue;
    if (auto view = MakeControlView(session, any, this)) views_.push_back(std::move(view));
  }
}

bool SheetPanel::IsShown(const Control& control) const {
  const IndexTab& roofs = session_.Document().sheet.VSTab[1];
  const int roof = roofs.OnePageOnly ? 0 : roofs.Page;
  if (control.Host == Host::kFrontPage && roof != 0) return false;
  if (control.Host == Host::kRearPage && roof != 1) return false;
  return control.Visible;
}

void SheetPanel::Sync(const FormLayout& layout) {
  const bool twoRoofs = layout.roofTabs.Height > 0;
  if (twoRoofs) {
    roofTabs_->setGeometry(ToRect(layout.roofTabs).translated(-x(), -y()));
    roofTabs_->Sync();
  }
  roofTabs_->setVisible(twoRoofs);
  for (const auto& view : views_) {
    const Control& control = view->Of();
    const double scale = layout.sheetScale;
    const int origin = control.Host == Host::kSheet ? 0 : layout.sheetOrigin;
    const QRect place(ToPixels(control.Left * scale), ToPixels((origin + control.Top) * scale),
                      ToPixels(control.Width * scale), ToPixels(control.Height * scale));
    view->Sync(IsShown(control), place);
  }
}

}  // namespace pitchcraft
