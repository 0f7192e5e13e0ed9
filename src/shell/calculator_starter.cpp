#include "shell/calculator_starter.h"

#include <QProcess>
#include <QStandardPaths>

namespace pitchcraft {

bool CalculatorStarter::Open(bool metric) {
  const QString program = QStandardPaths::findExecutable("ftcalc", folders_);
  if (program.isEmpty()) return false;
  return QProcess::startDetached(program, metric ? QStringList("--metric") : QStringList());
}

}  // namespace pitchcraft
