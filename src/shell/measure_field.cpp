#include "shell/measure_field.h"

#include <QContextMenuEvent>

#include "design/questions.h"
#include "shell/field_look.h"
#include "shell/popup_menu.h"

namespace pitchcraft {
namespace {

bool HasIncrement(const std::string& name) {
  return name.starts_with("FtSpan") || name.starts_with("FtOverhang") || name.starts_with("FtRidge");
}

}  // namespace

MeasureField::MeasureField(Session& session, MeasureControl& field, QWidget* host)
    : EntryBox(host), ControlView(session, field), field_(field) {
  connect(this, &EntryBox::Edited, this, [this] {
    if (!editing_) before_ = field_;
    editing_ = true;
    TheSession().Do([this](Actions& actions) { actions.Edit(Name(), Entry()); });
  });
  connect(this, &EntryBox::Entered, this, [this] {
    EndEntry();
    TheSession().Do([this](Actions& actions) { actions.Enter(Name(), Entry()); });
  });
  connect(this, &EntryBox::Left, this, [this] {
    if (!Modified()) return;
    EndEntry();
    TheSession().Do([this](Actions& actions) { actions.Type(Name(), Entry()); });
  });
  connect(this, &EntryBox::Escaped, this, [this] {
    EndEntry();
    // The entry is taken back, and then the number itself: its text is rounded.
    TheSession().Do([this](Actions& actions) {
      const MeasureControl before = before_;
      actions.Edit(Name(), before.Text());
      field_ = before;
    });
  });
  connect(this, &EntryBox::Stepped, this, &MeasureField::Step);
}

void MeasureField::EndEntry() {
  Settle();
  editing_ = false;
}

// The spin button that stands in the field's row.
void MeasureField::Step(bool up) {
  for (const SpinControl& spin : TheSession().Document().design.sheet.Spin) {
    const bool beside = spin.Visible && spin.Host == field_.Host && spin.Top == field_.Top;
    if (!beside) continue;
    emit Left();
    TheSession().Do([&](Actions& actions) { actions.Spin(spin.Name, up); });
    return selectAll();
  }
}

void MeasureField::ShowState() {
  const Design& design = TheSession().Document().design;
  const bool takes = TakesEntry(design, field_);
  if (colors_.Take(field_.ForeColor, field_.BackColor, parentWidget()->palette(), takes)) {
    setPalette(colors_.Palette());
  }
  SetTakesEntry(takes);
  ShowText(field_.Text());
  TellWhetherItWaits(!Modified() && pitchcraft::Waits(design, Name()));
}

// What is still being typed does not wait yet.
void MeasureField::TellWhetherItWaits(bool waits) {
  if (waits == Waits()) return;
  ShowWaiting(waits);
  const QString tip = waits ? tr(kWaits) : QString::fromStdString(field_.ToolTip);
  setToolTip(tip);
  setAccessibleDescription(tip);
}

QSize MeasureField::SizeForWords() const {
  return SizeFor(field_.Format.Units == kPlainNumber ? "157.5" : kLongMeasure);
}

void MeasureField::contextMenuEvent(QContextMenuEvent* event) {
  if (!HasIncrement(Name())) return EntryBox::contextMenuEvent(event);
  ShowPopup(TheSession(), TheSession().Document().design.menus.Spin, event->globalPos());
}

}  // namespace pitchcraft
