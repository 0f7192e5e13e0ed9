#include "files/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

namespace pitchcraft {
namespace {

/// A file descriptor that is closed on every way out.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { Close(); }

  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }
  /// False if the system could not keep what was written: some report a full disk only here.
  bool Close() {
    const int number = number_;
    number_ = -1;
    return number < 0 || close(number) == 0;
  }

 private:
  int number_;
};

bool WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

mode_t UsualRights() {
  const mode_t mask = umask(0);
  umask(mask);
  return static_cast<mode_t>(0666) & ~mask;
}

// The permissions of the file to be replaced, or the usual ones.
mode_t RightsFor(const std::string& path) {
  struct stat old {};
  return stat(path.c_str(), &old) == 0 ? (old.st_mode & 07777) : UsualRights();
}

// A new name is safe only when its folder is on the disk, too.
void FlushFolder(const std::string& folder) {
  const Descriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.IsOpen()) fsync(descriptor.Number());
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::filesystem::path& path, std::size_t largest) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  if (std::filesystem::file_size(path, error) > largest || error) return std::nullopt;
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.IsOpen()) return std::nullopt;
  std::string bytes;
  std::array<char, 65536> block{};
  for (;;) {
    const ssize_t count = read(file.Number(), block.data(), block.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    if (count == 0) return bytes;
    bytes.append(block.data(), static_cast<std::size_t>(count));
    if (bytes.size() > largest) return std::nullopt;  // the file grew while it was read
  }
}

bool WriteWholeFile(const std::filesystem::path& path, std::string_view bytes) {
  if (path.empty() || !path.has_filename()) return false;
  // A link stays a link: the file that it points to is replaced.
  std::error_code error;
  const std::filesystem::path real = std::filesystem::weakly_canonical(path, error);
  const std::filesystem::path target = error ? path : real;
  if (std::filesystem::is_directory(target, error)) return false;
  const std::string folder = target.has_parent_path() ? target.parent_path().string() : ".";
  std::string temporary = folder + "/.pitchcraft-XXXXXX";
  Descriptor file(mkostemp(temporary.data(), O_CLOEXEC));
  if (!file.IsOpen()) return false;
  const bool onDisk = WriteAll(file.Number(), bytes) &&
                      fchmod(file.Number(), RightsFor(target.string())) == 0 && fsync(file.Number()) == 0 &&
                      file.Close();
  if (!onDisk || std::rename(temporary.c_str(), target.c_str()) != 0) {
    unlink(temporary.c_str());
    return false;
  }
  FlushFolder(folder);
  return true;
}

}  // namespace pitchcraft
