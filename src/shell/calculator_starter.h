// Starts the feet-and-inches calculator from the window.
#pragma once

#include <QStringList>

#include "document/surroundings.h"

namespace pitchcraft {

class CalculatorStarter final : public CalculatorService {
 public:
  /// The folders are looked through in order.
  explicit CalculatorStarter(QStringList folders) : folders_(std::move(folders)) {}
  /// One that is running comes to the front by itself when another one starts.
  bool Open(bool metric) override;

 private:
  QStringList folders_;
};

}  // namespace pitchcraft
