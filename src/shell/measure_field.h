// The measurement field as a text box.
#pragma once

#include "sheet/measure_control.h"
#include "shell/control_view.h"
#include "shell/entry_box.h"
#include "shell/field_look.h"

namespace pitchcraft {

class MeasureField : public EntryBox, public ControlView {
  Q_OBJECT

 public:
  MeasureField(Session& session, MeasureControl& field, QWidget* host);

  QWidget& Widget() override { return *this; }
  std::vector<QWidget*> TabStops() override { return {this}; }
  QSize SizeForWords() const override;

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void ShowState() override;
  void TellWhetherItWaits(bool waits);
  void EndEntry();
  void Step(bool up);

  MeasureControl& field_;
  MeasureControl before_;  ///< as it was before the present entry, for Escape
  bool editing_ = false;
  FieldColors colors_;
};

}  // namespace pitchcraft
