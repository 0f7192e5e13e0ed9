#include "shell/control_view.h"

#include "shell/choice_field.h"
#include "shell/hint_watcher.h"
#include "shell/list_field.h"
#include "shell/measure_field.h"
#include "shell/plain_views.h"
#include "shell/spin_button.h"

namespace pitchcraft {

void ControlView::Sync(bool shown, const QRect& place) {
  QWidget& widget = Widget();
  if (!shown) {
    if (!widget.isHidden()) widget.hide();
    return;
  }
  if (place != place_) {
    place_ = place;
    widget.setGeometry(place);
    FitTo(place);
  }
  // A row is called differently in other roofs.
  const QString name = QString::fromStdString(session_.Document().design.sheet.AccessibleNameOf(control_));
  if (name != name_) {
    name_ = name;
    ShowName(name);
  }
  if (widget.isEnabled() != control_.Enabled) widget.setEnabled(control_.Enabled);
  ShowState();
  if (widget.isHidden()) widget.show();
}

namespace {

struct Maker {
  Session& session;
  QWidget* host;

  using View = std::unique_ptr<ControlView>;
  View operator()(MeasureControl* field) const {
    return std::make_unique<MeasureField>(session, *field, host);
  }
  View operator()(PairControl* pair) const { return std::make_unique<PairField>(session, *pair, host); }
  View operator()(ComboControl* combo) const {
    if (combo->DropDownList) return std::make_unique<ChoiceField>(session, *combo, host);
    return std::make_unique<ComboField>(session, *combo, host);
  }
  View operator()(CheckControl* box) const { return std::make_unique<CheckView>(session, *box, host); }
  View operator()(LabelControl* label) const { return std::make_unique<LabelView>(session, *label, host); }
  View operator()(ButtonControl* button) const {
    return std::make_unique<ButtonView>(session, *button, host);
  }
  View operator()(SpinControl* spin) const { return std::make_unique<SpinView>(session, *spin, host); }
  View operator()(ContainerControl*) const { return nullptr; }
};

}  // namespace

std::unique_ptr<ControlView> MakeControlView(Session& session, const AnyControl& control, QWidget* host) {
  std::unique_ptr<ControlView> view = std::visit(Maker{session, host}, control);
  if (view == nullptr) return view;
  QWidget& widget = view->Widget();
  const Control& common = ControlOf(control);
  widget.hide();
  widget.setObjectName(QString::fromStdString(common.Name));
  if (!common.ToolTip.empty()) {
    const QString tip = QString::fromStdString(common.ToolTip);
    widget.setToolTip(tip);
    widget.setAccessibleDescription(tip);
    for (QWidget* part : view->TabStops()) part->setAccessibleDescription(tip);
  }
  if (std::holds_alternative<LabelControl*>(control)) return view;
  auto* watcher = new HintWatcher(session, common.Name, &widget);
  widget.installEventFilter(watcher);
  for (QWidget* part : view->TabStops()) {
    if (part != &widget) part->installEventFilter(watcher);
  }
  return view;
}

}  // namespace pitchcraft
