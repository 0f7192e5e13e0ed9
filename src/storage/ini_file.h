// The plain text of sections and keys in which projects are stored.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace pitchcraft {

/// Reads "[Section]" and "key=value" lines by the rules for such files: sections and keys in any case and
/// order, blanks around a key and a value dropped, one pair of quotes around a value dropped, lines that
/// begin with ";" skipped, the first of two equal keys used. Lines end with CR LF, LF or CR. There may be a
/// byte-order mark; text in UTF-16 with its mark is read, too. Any bytes are accepted.
class IniText {
 public:
  explicit IniText(std::string_view bytes);

  bool HasSection(std::string_view section) const;
  /// The value, cut to its first kLongestValue bytes; nothing if the key is missing.
  std::optional<std::string> Value(std::string_view section, std::string_view key) const;

  static constexpr std::size_t kLongestValue = 99;

 private:
  void TakeLine(std::string_view line, std::string& section);

  // By "section\nkey" in lower case; each section has an entry of its own, too.
  std::unordered_map<std::string, std::string> values_;
};

/// Writes one section. A value that would be read back differently is quoted; control characters become
/// blanks.
class IniWriter {
 public:
  explicit IniWriter(std::string_view section);
  void Add(std::string_view key, std::string_view value);
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace pitchcraft
