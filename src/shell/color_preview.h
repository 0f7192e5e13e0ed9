// A picture of what the chosen colours look like, with two sample fields.
#pragma once

#include <QFrame>
#include <QLineEdit>

#include "document/options_form.h"

namespace pitchcraft {

class ColorPreview : public QFrame {
 public:
  ColorPreview(const OptionsForm& form, QWidget* parent);
  void ShowColors();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int TextHeight() const;

  const OptionsForm& form_;
  QLineEdit* control_;
  QLineEdit* calculated_;
};

}  // namespace pitchcraft
