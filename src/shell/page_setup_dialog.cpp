#include "shell/page_setup_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPrinterInfo>

namespace pitchcraft {

PageSetupDialog::PageSetupDialog(const PageSetup& setup, QWidget* parent)
    : QDialog(parent), printer_(new QComboBox(this)), paper_(new QComboBox(this)) {
  setWindowTitle("Page Setup");
  setAccessibleName(windowTitle());
  setObjectName("PageSetup");
  printer_->setObjectName("Printer");
  for (const QString& name : QPrinterInfo::availablePrinterNames()) printer_->addItem(name, name);
  printer_->addItem("PDF file", QString());
  printer_->setCurrentIndex(std::max(0, printer_->findData(setup.Printer)));
  paper_->setObjectName("Paper");
  paper_->addItem("Letter, or A4 for millimetres");
  paper_->addItem("Letter, 8.5 x 11 inches");
  paper_->addItem("A4, 210 x 297 mm");
  paper_->setCurrentIndex(static_cast<int>(setup.Paper));

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* form = new QFormLayout(this);
  form->addRow("&Printer:", printer_);
  form->addRow("P&aper:", paper_);
  form->addRow(buttons);
}

PageSetup PageSetupDialog::Setup() const {
  return {printer_->currentData().toString(), static_cast<PageSetup::Size>(paper_->currentIndex())};
}

}  // namespace pitchcraft
