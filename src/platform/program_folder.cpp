#include "platform/program_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace pitchcraft {

std::filesystem::path ProgramFolder() {
  // From the system, because the driver has no application object of the toolkit.
  const QFileInfo executable(QFileInfo("/proc/self/exe").canonicalFilePath());
  const QFileInfo folder(executable.path());
  if (executable.exists() && folder.isWritable()) return QDir(folder.filePath()).filesystemPath();
  QCoreApplication::setOrganizationName("Pitchcraft");
  QCoreApplication::setApplicationName("Pitchcraft");
  const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  QDir().mkpath(own);
  return QDir(own).filesystemPath();
}

std::filesystem::path DataFolder() {
  const QDir folder = QFileInfo(QFileInfo("/proc/self/exe").canonicalFilePath()).dir();
  const QDir shared(folder.filePath("../share/pitchcraft"));
  return (shared.exists() ? shared : folder).filesystemPath();
}

}  // namespace pitchcraft
