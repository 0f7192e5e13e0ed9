// The calculator with a sum in it.
#pragma once

#include <QWidget>
#include <memory>

namespace pitchcraft {

/// Shown, with a tape of two sums.
std::unique_ptr<QWidget> CalculatorWithSum();

}  // namespace pitchcraft
