// One application for all window tests, and a watchdog: nobody would ever close an unexpected dialog.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <clocale>

#include "platform/font_setup.h"
#include "shell/accessible_parts.h"
#include "shell/program_style.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  pitchcraft::UseProgramStyle();
  const QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  pitchcraft::EnsureDrawingFont();
  pitchcraft::TellAccessibleParts();
  QTimer watchdog;
  QObject::connect(&watchdog, &QTimer::timeout, [] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || qApp->property("dialogIsExpected").toBool()) return;
    ADD_FAILURE() << "an unexpected dialog: " << dialog->windowTitle().toStdString();
    dialog->close();
  });
  watchdog.start(50);
  return RUN_ALL_TESTS();
}
