// The user's settings, in the place that the desktop has for them.
#pragma once

#include <QSettings>

#include "storage/keyed_store.h"

namespace pitchcraft {

/// Keys are grouped by application and section. All writes have reached the disk when the store is destroyed;
/// the toolkit may save them earlier.
class QtStore : public KeyedStore {
 public:
  /// The user's own store: registry, preferences or a file in the configuration folder.
  QtStore() : settings_(QSettings::NativeFormat, QSettings::UserScope, "Pitchcraft", "Pitchcraft") {}
  /// A store in a file of its own.
  explicit QtStore(const QString& file) : settings_(file, QSettings::IniFormat) {}

  std::optional<std::string> Get(const std::string& application, const std::string& section,
                                 const std::string& key) const override;
  void Set(const std::string& application, const std::string& section, const std::string& key,
           const std::string& text) override;
  /// False if the settings could not be read or written.
  bool Sync();

 private:
  QSettings settings_;
};

}  // namespace pitchcraft
