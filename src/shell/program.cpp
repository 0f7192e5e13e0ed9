#include "shell/program.h"

#include <QApplication>
#include <clocale>

#include "platform/font_setup.h"
#include "platform/program_folder.h"
#include "shell/accessible_parts.h"
#include "shell/help_pages.h"

namespace pitchcraft {

void SetUpApplication() {
  // The toolkit takes over the user's locale; measures keep their decimal point.
  std::setlocale(LC_NUMERIC, "C");
  QCoreApplication::setOrganizationName("Pitchcraft");
  QCoreApplication::setApplicationName("Pitchcraft");
  QGuiApplication::setDesktopFileName("pitchcraft");
  EnsureDrawingFont();
  TellAccessibleParts();
}

Program::Program()
    : printer_(dialogs_),
      folder_(ProgramFolder()),
      calculator_({QString::fromStdString(folder_.string()), QCoreApplication::applicationDirPath()}),
      help_(HelpFolder(QCoreApplication::applicationDirPath())),
      window_(Around()) {
  dialogs_.SetOwner(&window_);
  printer_.SetOwner(&window_);
  dialogs_.OnApplied([this] { window_.ShowState(); });
}

Surroundings Program::Around() {
  return {dialogs_, store_, folder_, &printer_, DataFolder(), &calculator_, &help_};
}

}  // namespace pitchcraft
