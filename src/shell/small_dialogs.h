// The small forms as dialogs: each shows the state of its form and presses its buttons.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>

#include "document/forms.h"

namespace pitchcraft {

class IncrementDialog : public QDialog {
 public:
  IncrementDialog(IncrementForm& form, QWidget* parent);
};

class AboutDialog : public QDialog {
 public:
  AboutDialog(const AboutForm& form, QWidget* parent);
};

class DisclaimerDialog : public QDialog {
 public:
  DisclaimerDialog(DisclaimerForm& form, QWidget* parent);
};

class TipDialog : public QDialog {
 public:
  TipDialog(TipForm& form, QWidget* parent);
};

}  // namespace pitchcraft
