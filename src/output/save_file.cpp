#include "output/save_file.h"

#include <system_error>

#include "core/run_time_error.h"
#include "files/whole_file.h"

namespace pitchcraft {

void SaveFile(const std::filesystem::path& path, std::string_view bytes) {
  std::error_code error;
  if (path.has_parent_path() && !std::filesystem::is_directory(path.parent_path(), error)) {
    throw RunTimeError::PathNotFound();
  }
  // A device such as /dev/null must not be replaced by a file.
  const std::filesystem::file_status old = std::filesystem::status(path, error);
  const bool isFree = !std::filesystem::exists(old) || std::filesystem::is_regular_file(old);
  if (!isFree || !WriteWholeFile(path, bytes)) throw RunTimeError::PathFileAccess();
}

}  // namespace pitchcraft
