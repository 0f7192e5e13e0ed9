// The plain text of sections and keys that projects are kept in.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace pitchcraft {

/// Reads "[Section]" and "key=value" lines as the system calls for such files do: sections and keys in any
/// case and order, blanks around a key and a value dropped, one pair of quotes around a value dropped, lines
/// that begin with ";" skipped, the first of two same keys taken. Lines end with CR LF, LF or CR; a
/// byte-order mark may stand in front, and a text in UTF-16 behind its mark is understood. Any bytes are
/// taken.
class IniText {
 public:
  explicit IniText(std::string_view bytes);

  bool HasSection(std::string_view section) const;
  /// The value, cut to its first kLongestValue bytes; nothing where the key is missing.
  std::optional<std::string> Value(std::string_view section, std::string_view key) const;

  static constexpr std::size_t kLongestValue = 99;

 private:
  void TakeLine(std::string_view line, std::string& section);

  // By "section\nkey" in small letters; the section alone stands there too.
  std::unordered_map<std::string, std::string> values_;
};

/// Writes one section. What would not come back as it is, is quoted; control characters become blanks.
class IniWriter {
 public:
  explicit IniWriter(std::string_view section);
  void Add(std::string_view key, std::string_view value);
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace pitchcraft
