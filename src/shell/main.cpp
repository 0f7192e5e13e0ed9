// Starts the window.
#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "shell/program.h"
#include "shell/program_style.h"
#include "shell/splash.h"

namespace {

constexpr const char* kHelp =
    "Usage: pitchcraft [--help] [--version] [PROJECT.pcf]\n"
    "\n"
    "Opens the window of Pitchcraft, the roof-framing calculator, with the project where one is named.\n"
    "For scripts and for machines without a display there is pitchcraft-cli.\n";

constexpr const char* kNoDisplay =
    "pitchcraft: there is no display to open a window on. Start it from a desktop, or use pitchcraft-cli.\n";

// The toolkit gives up with a fatal message where it finds no display that works.
void Report(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtFatalMsg) {
    std::fputs(kNoDisplay, stderr);
    std::_Exit(1);
  }
  if (type != QtDebugMsg && type != QtInfoMsg) std::fprintf(stderr, "pitchcraft: %s\n", qPrintable(message));
}

#if defined(Q_OS_LINUX) || defined(Q_OS_FREEBSD)
bool DisplayIsNamed() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    if (!qEnvironmentVariableIsEmpty(name)) return true;
  }
  return false;
}
#else
bool DisplayIsNamed() { return true; }
#endif

}  // namespace

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--help" || argument == "-h") return std::fputs(kHelp, stdout) < 0 ? 1 : 0;
    if (argument == "--version") return std::puts("pitchcraft " PITCHCRAFT_VERSION) < 0 ? 1 : 0;
  }
  if (!DisplayIsNamed()) {
    std::fputs(kNoDisplay, stderr);
    return 1;
  }
  qInstallMessageHandler(Report);
  pitchcraft::UseProgramStyle();
  QApplication application(argc, argv);
  pitchcraft::SetUpApplication();

  // The window is made behind it.
  pitchcraft::Splash splash(PITCHCRAFT_VERSION);
  splash.show();
  QCoreApplication::processEvents();

  pitchcraft::Program program;
  pitchcraft::MainWindow& window = program.Window();
  splash.Wait();
  window.Open();
  window.ShowStartForms();
  // The toolkit has taken its own arguments out.
  const QStringList arguments = QCoreApplication::arguments().mid(1);
  for (const QString& argument : arguments) {
    if (argument.startsWith('-')) continue;
    // A message of its own needs the application to run.
    QMetaObject::invokeMethod(
        &window, [&window, argument] { window.OpenProject(argument); }, Qt::QueuedConnection);
    break;
  }
  return QApplication::exec();
}
