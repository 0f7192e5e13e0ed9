#include "storage/recent_files.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

namespace pitchcraft {
namespace {

constexpr std::string_view kSeparators = "\\/";
constexpr std::size_t kPrefixLength = 3;  // "&1 "

std::string PrefixOf(std::size_t place) { return "&" + std::to_string(place + 1) + " "; }
std::string CaptionKey(std::size_t place) { return "MRU" + std::to_string(place + 1); }
std::string PathKey(std::size_t place) { return CaptionKey(place) + "A"; }

/// Where each letter begins, and the end of the text, so that a path is shortened between letters.
std::vector<std::size_t> LetterStarts(const std::string& text) {
  std::vector<std::size_t> starts;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool continues = (static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80;
    if (!continues) starts.push_back(i);
  }
  starts.push_back(text.size());
  return starts;
}

// Capitals and small letters of Western Europe, by their second byte after 0xC3.
bool IsWesternCapital(unsigned char second) { return second >= 0x80 && second <= 0x9E && second != 0x97; }
bool IsWesternSmall(unsigned char second) { return second >= 0xA0 && second <= 0xBE && second != 0xB7; }
constexpr char kWesternLead = '\xC3';
constexpr int kCaseStep = 0x20;

char WithCase(char c, bool capital, bool western) {
  const auto byte = static_cast<unsigned char>(c);
  const bool isCapital = western ? IsWesternCapital(byte) : c >= 'A' && c <= 'Z';
  const bool isSmall = western ? IsWesternSmall(byte) : c >= 'a' && c <= 'z';
  if (capital && isSmall) return static_cast<char>(byte - kCaseStep);
  if (!capital && isCapital) return static_cast<char>(byte + kCaseStep);
  return c;
}

}  // namespace

void RecentFileList::SetMenuLength(int length) {
  if (length > 0) menuLength_ = length;
}

RecentFileList::Entry RecentFileList::Read(std::size_t place) const {
  const std::string caption = store_.Get(AppName, Section, CaptionKey(place)).value_or("");
  return {caption.size() > kPrefixLength ? caption.substr(kPrefixLength) : "",
          store_.Get(AppName, Section, PathKey(place)).value_or("")};
}

void RecentFileList::Write(std::size_t place, const Entry& entry) {
  store_.Set(AppName, Section, CaptionKey(place), entry.name.empty() ? "" : PrefixOf(place) + entry.name);
  store_.Set(AppName, Section, PathKey(place), entry.path);
}

void RecentFileList::Load() {
  for (std::size_t place = 0; place < kPlaces; ++place) {
    MenuItem* item = Items[place];
    if (item == nullptr) continue;
    item->Caption = store_.Get(AppName, Section, CaptionKey(place)).value_or("");
    item->Visible = !item->Caption.empty();
  }
}

void RecentFileList::AddNewFile(const std::string& path) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(path, error);
  const Entry added{InProperCase(ShortenedPath(path, menuLength_)), error ? path : absolute.string()};
  std::array<Entry, kPlaces> entries;
  for (std::size_t place = 0; place < kPlaces; ++place) entries[place] = Read(place);
  if (entries[0].name == added.name) {
    entries[0] = added;  // the same caption may come from another case of the path
  } else {
    const Entry fallenOut = entries[3];
    std::move_backward(entries.begin(), entries.end() - 1, entries.end());
    entries[0] = added;
    if (entries[2].path == added.path) {
      entries[2] = entries[3];
      entries[3] = fallenOut;
    } else if (entries[3].path == added.path) {
      entries[3] = fallenOut;
    }
  }
  for (std::size_t place = 0; place < kPlaces; ++place) Write(place, entries[place]);
  Load();
}

std::string RecentFileList::Selected(int index) const {
  if (index < 0 || index >= static_cast<int>(kPlaces)) return "";
  return Read(static_cast<std::size_t>(index)).path;
}

std::string RecentFileList::ShortenedPath(const std::string& path, int length) {
  const std::vector<std::size_t> starts = LetterStarts(path);
  const int letters = static_cast<int>(starts.size()) - 1;
  if (letters <= length) return path;
  // A name too long by itself has no separator left to start at: only its end is shown.
  const int first = std::clamp(letters - (length - 6) - 1, 0, letters);
  const std::size_t from = starts[static_cast<std::size_t>(first)];
  const std::size_t separator = path.find_first_of(kSeparators, from);
  const std::size_t head = starts[static_cast<std::size_t>(std::min(3, letters))];
  return path.substr(0, head) + "..." + path.substr(separator == std::string::npos ? from : separator);
}

std::string RecentFileList::InProperCase(const std::string& text) const {
  if (!ProperCase) return text;
  std::string proper = text;
  bool startsWord = true;
  for (std::size_t i = 0; i < proper.size(); ++i) {
    const bool western = proper[i] == kWesternLead && i + 1 < proper.size();
    if (western) ++i;
    const char c = proper[i];
    proper[i] = WithCase(c, startsWord, western);
    startsWord = !western && (c == ' ' || c == '\t' || kSeparators.find(c) != std::string_view::npos);
  }
  return proper;
}

}  // namespace pitchcraft
