// One application for all window tests, and a watchdog: nobody would ever close an unexpected dialog.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <clocale>

#include "../support/faces.h"
#include "platform/font_setup.h"
#include "shell/accessible_parts.h"
#include "shell/program_style.h"

namespace {

// The unseen screen is small by itself; a window with large letters would not be let to show them.
void UseCommonScreen(const QTemporaryDir& folder) {
  if (qgetenv("QT_QPA_PLATFORM") != "offscreen") return;
  QFile file(folder.filePath("screens.json"));
  if (!file.open(QIODevice::WriteOnly)) return;
  file.write(R"({"screens": [{"name": "common", "x": 0, "y": 0, "width": 1920, "height": 1080,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir folder;
  UseCommonScreen(folder);
  pitchcraft::UseProgramStyle();
  const QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  pitchcraft::EnsureDrawingFont();
  QApplication::setFont(pitchcraft::testing::UsualFont());
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
