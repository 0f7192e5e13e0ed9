#include "storage/ini_file.h"

#include <algorithm>

#include "core/number_text.h"

namespace pitchcraft {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";

std::string SmallLetters(std::string_view text) {
  std::string small(text);
  for (char& c : small) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return small;
}

std::string AddressOf(std::string_view section, std::string_view key) {
  return SmallLetters(section) + "\n" + SmallLetters(key);
}

bool IsQuoted(std::string_view text) {
  return text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.front() == text.back();
}

/// Cuts a value to the greatest length, but not inside a character of several bytes.
std::string_view Cut(std::string_view value) {
  if (value.size() <= IniText::kLongestValue) return value;
  std::size_t length = IniText::kLongestValue;
  const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; };
  while (length > 0 && continues(value[length])) --length;
  // Bytes that form no characters are cut exactly at that length.
  if (length + 4 <= IniText::kLongestValue) length = IniText::kLongestValue;
  return value.substr(0, length);
}

void AppendUtf8(std::string& text, unsigned code) {
  const auto put = [&text](unsigned byte) { text += static_cast<char>(byte); };
  if (code < 0x80) return put(code);
  if (code < 0x800) {
    put(0xC0 | (code >> 6));
  } else {
    put(0xE0 | (code >> 12));
    put(0x80 | ((code >> 6) & 0x3F));
  }
  put(0x80 | (code & 0x3F));
}

// A character beyond the first 65,536 stays split in two halves: no text read here means anything by one.
std::string FromUtf16(std::string_view bytes) {
  std::string text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto low = static_cast<unsigned char>(bytes[i]);
    const auto high = static_cast<unsigned char>(bytes[i + 1]);
    AppendUtf8(text, low + 256U * high);
  }
  return text;
}

}  // namespace

IniText::IniText(std::string_view bytes) {
  std::string converted;
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  if (bytes.starts_with(kUtf16Mark)) {
    converted = FromUtf16(bytes.substr(kUtf16Mark.size()));
    bytes = converted;
  }
  std::string section;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find_first_of(kLineEnd), bytes.size());
    TakeLine(Trimmed(bytes.substr(0, end)), section);
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
}

void IniText::TakeLine(std::string_view line, std::string& section) {
  if (line.empty() || line.front() == ';') return;
  if (line.front() == '[') {
    const std::size_t end = line.rfind(']');
    if (end == std::string_view::npos) return;
    section = Trimmed(line.substr(1, end - 1));
    values_.try_emplace(SmallLetters(section));
    return;
  }
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return;
  std::string_view value = Trimmed(line.substr(equals + 1));
  if (IsQuoted(value)) value = value.substr(1, value.size() - 2);
  values_.try_emplace(AddressOf(section, Trimmed(line.substr(0, equals))), Cut(value));
}

bool IniText::HasSection(std::string_view section) const { return values_.contains(SmallLetters(section)); }

std::optional<std::string> IniText::Value(std::string_view section, std::string_view key) const {
  const auto found = values_.find(AddressOf(section, key));
  return found == values_.end() ? std::nullopt : std::optional(found->second);
}

IniWriter::IniWriter(std::string_view section) {
  text_ += '[';
  text_ += section;
  text_ += ']';
  text_ += kLineEnd;
}

void IniWriter::Add(std::string_view key, std::string_view value) {
  std::string clean(Cut(value));
  for (char& c : clean) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  const bool plain = !IsQuoted(clean) && Trimmed(clean) == clean;
  text_ += key;
  text_ += '=';
  text_ += plain ? clean : '"' + clean + '"';
  text_ += kLineEnd;
}

}  // namespace pitchcraft
