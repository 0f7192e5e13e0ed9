// The program's own start, up to its first picture: all that a person's start does except for waiting until
// the splash has been looked at.
#include <QApplication>
#include <clocale>

#include "first_paint.h"
#include "platform/font_setup.h"
#include "platform/program_folder.h"
#include "platform/qt_store.h"
#include "shell/accessible_parts.h"
#include "shell/calculator_starter.h"
#include "shell/help_viewer.h"
#include "shell/main_window.h"
#include "shell/program_style.h"
#include "shell/qt_dialogs.h"
#include "shell/qt_printer.h"
#include "shell/splash.h"

int main(int argc, char** argv) {
  pitchcraft::UseProgramStyle();
  const QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  QCoreApplication::setOrganizationName("Pitchcraft");
  QCoreApplication::setApplicationName("Pitchcraft");
  pitchcraft::EnsureDrawingFont();
  pitchcraft::TellAccessibleParts();
  pitchcraft::Splash splash("0.0.0");
  splash.show();
  QCoreApplication::processEvents();
  pitchcraft::QtDialogs dialogs;
  pitchcraft::QtStore store;
  pitchcraft::QtPrinter printer(dialogs);
  pitchcraft::Surroundings around{dialogs, store, pitchcraft::ProgramFolder(), &printer};
  const QString own = QCoreApplication::applicationDirPath();
  pitchcraft::CalculatorStarter calculator({QString::fromStdString(around.programFolder.string()), own});
  around.dataFolder = pitchcraft::DataFolder();
  around.calculator = &calculator;
  pitchcraft::HelpViewer help(pitchcraft::HelpFolder(own));
  around.help = &help;
  pitchcraft::MainWindow window(around);
  dialogs.SetOwner(&window);
  printer.SetOwner(&window);
  splash.hide();
  const pitchcraft::ExitAtFirstPaint exit(window);
  window.Open();
  return QApplication::exec();
}
