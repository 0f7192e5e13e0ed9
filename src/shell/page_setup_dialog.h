// The box that chooses printer and paper.
#pragma once

#include <QComboBox>
#include <QDialog>

#include "shell/qt_printer.h"

namespace pitchcraft {

/// Offers the desktop's queues and a PDF file. Sheets are upright; their margins are those of the product.
class PageSetupDialog : public QDialog {
 public:
  PageSetupDialog(const PageSetup& setup, QWidget* parent);
  PageSetup Setup() const;

 private:
  QComboBox* printer_;
  QComboBox* paper_;
};

}  // namespace pitchcraft
