#include "session/file_store.h"

#include <fstream>

#include "files/whole_file.h"
#include "session/json_number.h"

namespace pitchcraft {

FileStore::FileStore(const std::filesystem::path& folder) : file_(folder / "settings.json") {
  std::ifstream stream(file_, std::ios::binary);
  const Json stored = Json::parse(stream, nullptr, /*allow_exceptions=*/false);
  if (!stored.is_object()) return;
  for (const auto& [application, sections] : stored.items()) {
    if (!sections.is_object()) continue;
    for (const auto& [section, keys] : sections.items()) {
      if (!keys.is_object()) continue;
      for (const auto& [key, text] : keys.items()) {
        if (text.is_string()) MemoryStore::Set(application, section, key, text.get<std::string>());
      }
    }
  }
}

void FileStore::Set(const std::string& application, const std::string& section, const std::string& key,
                    const std::string& text) {
  MemoryStore::Set(application, section, key, text);
  changed_ = true;
}

bool FileStore::Save() const {
  if (!changed_) return true;
  Json stored = Json::object();
  ForEach([&](const std::string& application, const std::string& section, const std::string& key,
              const std::string& text) { stored[application][section][key] = text; });
  return WriteWholeFile(file_, stored.dump(2, ' ', false, Json::error_handler_t::replace) + "\n");
}

}  // namespace pitchcraft
