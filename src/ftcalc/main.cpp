// Starts the feet-and-inches calculator.
#include <QApplication>
#include <QIcon>
#include <QStandardPaths>
#include <clocale>
#include <cstdio>
#include <string_view>

#include "ftcalc/calculator_window.h"
#include "ftcalc/single_window.h"

namespace {

constexpr const char* kHelp =
    "Usage: ftcalc [--metric] [--help] [--version]\n"
    "\n"
    "Opens the feet-and-inches calculator, or brings it to the front if it is already open.\n"
    "With --metric it starts in millimetres.\n";

}  // namespace

int main(int argc, char** argv) {
  bool metric = false;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--help" || argument == "-h") return std::fputs(kHelp, stdout) < 0 ? 1 : 0;
    if (argument == "--version") return std::puts("ftcalc " PITCHCRAFT_VERSION) < 0 ? 1 : 0;
    metric = metric || argument == "--metric";
  }
  QApplication::setStyle("Fusion");
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  QCoreApplication::setOrganizationName("Pitchcraft");
  QCoreApplication::setApplicationName("ftcalc");
  QGuiApplication::setDesktopFileName("ftcalc");
  QApplication::setWindowIcon(QIcon::fromTheme("pitchcraft"));

  // One window for each system of units; every user has a separate folder for running programs.
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  const QString name = metric ? "pitchcraft-ftcalc-metric" : "pitchcraft-ftcalc";
  pitchcraft::SingleWindow single(folder.isEmpty() ? name : folder + '/' + name);
  if (single.RaiseRunning()) return 0;
  pitchcraft::CalculatorWindow window(metric);
  QObject::connect(&single, &pitchcraft::SingleWindow::Asked, &window, &pitchcraft::CalculatorWindow::Raise);
  single.Listen();
  window.show();
  return QApplication::exec();
}
