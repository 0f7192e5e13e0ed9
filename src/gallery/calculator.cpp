#include "gallery/calculator.h"

#include <QApplication>
#include <QKeyEvent>
#include <string_view>

#include "ftcalc/calculator_window.h"

namespace pitchcraft {

std::unique_ptr<QWidget> CalculatorWithSum() {
  auto window = std::make_unique<CalculatorWindow>(false);
  window->show();
  for (const char key : std::string_view("12'6 1/2+3'4=*3=")) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(key)));
    QApplication::sendEvent(window.get(), &press);
  }
  return window;
}

}  // namespace pitchcraft
