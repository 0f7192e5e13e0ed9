#include "files/file_names.h"

#include <algorithm>

namespace pitchcraft {

std::string FileNameOf(const std::string& path) {
  const std::size_t separator = path.find_last_of("\\/");
  return separator == std::string::npos ? path : path.substr(separator + 1);
}

std::string WithExtension(const std::string& path, std::string_view extension) {
  const bool has = FileNameOf(path).find('.') != std::string::npos;
  if (has || path.empty()) return path;
  return std::string(path).append(".").append(extension);
}

std::string ExtensionOf(const std::filesystem::path& path) {
  const std::string name = FileNameOf(path.string());
  const std::size_t point = name.find_last_of('.');
  std::string extension = point == std::string::npos || point == 0 ? "" : name.substr(point);
  std::transform(extension.begin(), extension.end(), extension.begin(), [](char sign) {
    return sign >= 'A' && sign <= 'Z' ? static_cast<char>(sign - 'A' + 'a') : sign;
  });
  return extension;
}

}  // namespace pitchcraft
