// The calculator with a sum entered.
#pragma once

#include <QWidget>
#include <memory>

namespace pitchcraft {

/// The calculator, shown, with two sums on its tape.
std::unique_ptr<QWidget> CalculatorWithSum();

}  // namespace pitchcraft
