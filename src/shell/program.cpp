#include "shell/program.h"

#include <QApplication>
#include <QFontInfo>
#include <clocale>

#include "platform/font_setup.h"
#include "platform/program_folder.h"
#include "shell/accessible_parts.h"
#include "shell/help_pages.h"

namespace pitchcraft {
namespace {

// Where no face stands for the usual name, the system may answer with one of letters of equal width.
void AvoidTypewriterLetters() {
  QFont font = QApplication::font();
  const QFontInfo shown(font);
  if (!shown.fixedPitch() || shown.family() == font.family()) return;  // or somebody wants it so
  font.setFamily(DrawingFont().family());
  QApplication::setFont(font);
}

}  // namespace

void SetUpApplication() {
  // The toolkit takes over the user's locale; measures keep their decimal point.
  std::setlocale(LC_NUMERIC, "C");
  QCoreApplication::setOrganizationName("Pitchcraft");
  QCoreApplication::setApplicationName("Pitchcraft");
  QGuiApplication::setDesktopFileName("pitchcraft");
  EnsureDrawingFont();
  AvoidTypewriterLetters();
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
