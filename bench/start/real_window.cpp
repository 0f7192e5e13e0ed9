// The program's own start, up to its first picture.
#include <QApplication>
#include <clocale>

#include "first_paint.h"
#include "platform/font_setup.h"
#include "platform/qt_store.h"
#include "shell/main_window.h"
#include "shell/qt_dialogs.h"

int main(int argc, char** argv) {
  QApplication::setStyle("Fusion");
  const QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  pitchcraft::EnsureDrawingFont();
  pitchcraft::QtDialogs dialogs;
  pitchcraft::QtStore store;
  pitchcraft::MainWindow window({dialogs, store, "."});
  const pitchcraft::ExitAtFirstPaint exit(window);
  window.Open();
  return QApplication::exec();
}
