// The program's own start up to its first picture: everything that happens at a real start, except for the
// time that the splash stays up.
#include <QApplication>

#include "first_paint.h"
#include "shell/program.h"
#include "shell/program_style.h"
#include "shell/splash.h"

int main(int argc, char** argv) {
  pitchcraft::UseProgramStyle();
  const QApplication application(argc, argv);
  pitchcraft::SetUpApplication();
  pitchcraft::Splash splash("0.0.0");
  splash.show();
  QCoreApplication::processEvents();
  pitchcraft::Program program;
  splash.hide();
  const pitchcraft::ExitAtFirstPaint exit(program.Window());
  program.Window().Open();
  return QApplication::exec();
}
