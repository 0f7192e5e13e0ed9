#include "storage/list_files.h"

#include <algorithm>

#include "core/number_text.h"
#include "core/run_time_error.h"
#include "files/whole_file.h"

namespace pitchcraft {
namespace {

// A few million rows: more than anyone scrolls through, and little memory.
constexpr std::size_t kLargestList = std::size_t{32} << 20U;
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

RunTimeError PathOrFileAccess() { return {75, "Path/File access error"}; }

bool IsThere(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::exists(file, error);
}

std::string BytesOf(const std::filesystem::path& file) {
  std::optional<std::string> bytes = ReadWholeFile(file, kLargestList);
  if (!bytes) throw PathOrFileAccess();
  return std::move(*bytes);
}

/// Runs action(row) for every line. A row ends at a comma, because a line may hold several values with commas
/// between them.
template <typename Action>
void ForEachRow(std::string_view text, Action action) {
  if (text.starts_with(kUtf8Mark)) text.remove_prefix(kUtf8Mark.size());
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view line = text.substr(0, end);
    action(Trimmed(line.substr(0, line.find(','))));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

bool BeginsWithNumber(std::string_view row) {
  return !row.empty() && (LeadingNumber(row) != 0 || row.front() == '0');
}

void WriteRows(const std::filesystem::path& file, const std::vector<std::string>& rows) {
  std::string text;
  for (const std::string& row : rows) text += row + "\r\n";
  if (!WriteWholeFile(file, text)) throw PathOrFileAccess();
}

}  // namespace

std::optional<std::vector<std::string>> ReadListFile(const std::filesystem::path& file) {
  if (!IsThere(file)) return std::nullopt;
  std::vector<std::string> rows;
  ForEachRow(BytesOf(file), [&rows](std::string_view row) {
    const std::size_t backslash = row.find('\\');
    if (backslash != std::string_view::npos) row.remove_prefix(backslash + 1);
    if (row.find('|') != std::string_view::npos) rows.emplace_back(row);
  });
  return rows;
}

std::vector<std::string> ReadDegreesFile(const std::filesystem::path& file,
                                         const std::vector<std::string>& defaults) {
  if (!IsThere(file)) {
    WriteRows(file, defaults);
    return defaults;
  }
  std::vector<std::string> rows;
  ForEachRow(BytesOf(file), [&rows](std::string_view row) {
    if (BeginsWithNumber(row)) rows.emplace_back(row);
  });
  return rows;
}

void RewriteListFile(const std::filesystem::path& file, const std::vector<std::string>& rows) {
  if (IsThere(file)) {
    const std::filesystem::path old = std::filesystem::path(file).replace_extension(".old");
    if (!WriteWholeFile(old, BytesOf(file))) throw PathOrFileAccess();
  }
  WriteRows(file, rows);
}

std::string ListRow(std::string_view name, std::string_view left, std::string_view right) {
  std::string row(name);
  for (const std::string_view value : {left, right}) {
    row += '|';
    row += value;
  }
  return row;
}

}  // namespace pitchcraft
