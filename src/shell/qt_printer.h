// The printer of the window: a queue of the desktop, or a PDF file where there is none or the person wants
// one.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "document/surroundings.h"

namespace pitchcraft {

/// What the page setup leaves behind. An empty printer stands for a PDF file.
struct PageSetup {
  QString Printer;
  enum class Size { kByUnits, kLetter, kA4 } Paper = Size::kByUnits;
};

class QtPrinter : public PrintService {
 public:
  /// Asks for PDF files through `dialogs`.
  explicit QtPrinter(Dialogs& dialogs);
  void SetOwner(QWidget* owner) { owner_ = owner; }

  void ShowSetup() override;
  Paper NextPaper(bool metric) override;
  void Send(const PrintedPage& page, const std::string& name) override;
  std::string Today() override;

  const PageSetup& Setup() const { return setup_; }
  void SetSetup(const PageSetup& setup) {
    setup_ = setup;
    chosen_ = true;
  }

 private:
  void FindPrinter();
  void SendToQueue(const PrintedPage& page, const std::string& name) const;
  void SendToFile(const PrintedPage& page, const std::string& name);

  Dialogs& dialogs_;
  QWidget* owner_ = nullptr;
  PageSetup setup_;
  bool chosen_ = false;
};

}  // namespace pitchcraft
