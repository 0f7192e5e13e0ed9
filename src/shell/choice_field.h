// A list of which one row shows, without typing.
#pragma once

#include <QComboBox>

#include "shell/control_view.h"
#include "shell/field_look.h"

namespace pitchcraft {

class ChoiceField : public QComboBox, public ControlView {
  Q_OBJECT

 public:
  ChoiceField(Session& session, ComboControl& combo, QWidget* host);

  QWidget& Widget() override { return *this; }
  std::vector<QWidget*> TabStops() override { return {this}; }
  QSize SizeForWords() const override;

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  void ShowState() override;

  ComboControl& combo_;
  std::vector<std::string> rows_;
  FieldColors colors_;
};

}  // namespace pitchcraft
