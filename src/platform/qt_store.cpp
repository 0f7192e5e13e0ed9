#include "platform/qt_store.h"

namespace pitchcraft {
namespace {

QString KeyOf(const std::string& application, const std::string& section, const std::string& key) {
  return QString::fromStdString(application + "/" + section + "/" + key);
}

}  // namespace

std::optional<std::string> QtStore::Get(const std::string& application, const std::string& section,
                                        const std::string& key) const {
  const QVariant value = settings_.value(KeyOf(application, section, key));
  if (!value.isValid()) return std::nullopt;
  return value.toString().toStdString();
}

void QtStore::Set(const std::string& application, const std::string& section, const std::string& key,
                  const std::string& text) {
  settings_.setValue(KeyOf(application, section, key), QString::fromStdString(text));
}

bool QtStore::Sync() {
  settings_.sync();
  return settings_.status() == QSettings::NoError;
}

}  // namespace pitchcraft
