// What the words beside a drawing must say, on paper and in a file.
#include <algorithm>
#include <cmath>
#include <optional>
#include <sstream>
#include <string_view>

#include "core/number_text.h"
#include "page_forms.h"
#include "page_words.h"

namespace pitchcraft::testing {
namespace {

constexpr double kDegrees = 57.29577951308232;
constexpr double kHalfHundredth = 0.0051;  // angles are rounded to hundredths

struct TitleRow {
  const char* Roof;
  const char* Caption;
  const char* Title;
  const char* SlopeRow;  ///< the row that states the slope of the member drawn; null where it is a plan
};

// The end of a title may say more: the spacing, that overhangs were made equal.
constexpr TitleRow kTitles[] = {
    {"Common Gable", "Design", "Gable Roof - Common Rafter", "Slope"},
    {"Common Gable", "Rafter", "Gable Roof - Common Rafter", "Slope"},
    {"Common Shed", "Design", "Shed Roof - Rafter", "Slope"},
    {"Common Shed", "Shed Rafter", "Shed Roof - Rafter", "Slope"},
    {"Dual Slope", "Front Rafter", "Dual Slope Roof - Front Rafter", "Slope"},
    {"Dual Slope", "Rear Rafter", "Dual Slope Roof - Rear Rafter", "Slope"},
    {"Hip", "Design", "Hip Roof - Plan View", nullptr},
    {"Hip", "Common", "Hip Roof - Common Rafter", "Slope"},
    {"Hip", "Hip Rafter", "Hip Roof - Hip Rafter", "Hip Slope"},
    {"Hip", "Layout", "Hip Roof - Layout", nullptr},
    {"Bastard Hip", "Design", "Bastard Hip Roof - Plan View", nullptr},
    {"Bastard Hip", "Common", "Bastard Hip Roof - Common Rafter", "Main Slope"},
    {"Bastard Hip", "Hip End Common", "Bastard Hip Roof - Hip End Common Rafter", "Hip End Slope"},
    {"Bastard Hip", "Hip Rafter", "Bastard Hip Roof - Bastard Hip Rafter", "Hip Rafter Slope"},
    {"Bastard Hip", "Layout", "Bastard Hip Roof - Layout", nullptr},
    {"Valley", "Design", "Valley - Valley Rafter", "Valley Slope"},
    {"Valley", "Valley Rafter", "Valley - Valley Rafter", "Valley Slope"},
    {"Unequal Span Valley", "Short Valley", "Unequal Span Valley - Short Valley Rafter", "Valley Slope"},
    {"Unequal Span Valley", "Long Valley", "Unequal Span Valley - Long Valley Rafter", "Valley Slope"},
    {"Dutch Hip", "Common", "Dutch Hip Roof - Common Rafter", "Slope"},
};

/// A hip roof whose two slopes differ has a page more, and its sheets have another name.
const TitleRow* TitleOf(const PageFacts& facts) {
  constexpr std::size_t kBastardPages = 5;
  const bool bastard = facts.Roof == "Hip" && facts.Pages.size() == kBastardPages;
  const std::string roof = bastard ? "Bastard Hip" : facts.Roof;
  for (const TitleRow& row : kTitles) {
    if (row.Roof == roof && facts.Page < facts.Pages.size() && row.Caption == facts.Pages[facts.Page])
      return &row;
  }
  return nullptr;
}

std::string LabelOf(const std::string& row) { return row.substr(0, row.find(" =")); }

std::string StatedBy(const std::string& row) {
  const std::size_t sign = row.find(" =");
  return sign == std::string::npos ? "" : std::string(Trimmed(std::string_view(row).substr(sign + 2)));
}

bool SaysNothing(const std::string& row) {
  const std::string value = StatedBy(row);
  if (value.empty()) return true;
  return value == "x" || value.starts_with("x ") || value.ends_with(" x");  // sizes of lumber
}

/// "6/12 (26.57º)".
struct SlopeValue {
  double LeastRise = 0;
  double MostRise = 0;
  double Run = 0;
  double Angle = 0;
};

/// The rise of a hip or valley is cut, not rounded, after its second decimal; in millimetres every rise is
/// rounded to a whole one.
std::optional<SlopeValue> ReadSlope(const std::string& text, bool metric) {
  SlopeValue slope;
  std::size_t at = 0;
  double rise = 0;
  const auto skip = [&](const std::string& sign) {
    if (text.compare(at, sign.size(), sign) != 0) return false;
    at += sign.size();
    return true;
  };
  const bool read = ReadNumber(text, at, rise) && skip("/") && ReadNumber(text, at, slope.Run) &&
                    skip(" (") && ReadNumber(text, at, slope.Angle) && skip(std::string(kDegreeSign) + ")");
  if (!read) return std::nullopt;
  const std::string digits = text.substr(0, text.find('/'));
  const std::size_t point = digits.find('.');
  const double cut = point == std::string::npos ? 0 : std::pow(10, -double(digits.size() - point - 1));
  const double rounded = metric ? 0.5 : 0;
  slope.LeastRise = rise - std::max(rounded, rise < 0 ? cut : 0);
  slope.MostRise = rise + std::max(rounded, rise > 0 ? cut : 0);
  return slope;
}

bool IsSlopeRow(const std::string& row) { return LabelOf(row).ends_with("Slope"); }

void CheckSlopeRow(const std::string& row, bool metric, Disagreements& found) {
  const std::optional<SlopeValue> slope = ReadSlope(StatedBy(row), metric);
  if (!slope) {
    found.push_back("slope row: cannot be read: " + row);
    return;
  }
  const double low = std::atan(slope->LeastRise / slope->Run) * kDegrees;
  const double high = std::atan(slope->MostRise / slope->Run) * kDegrees;
  if (slope->Angle < low - kHalfHundredth || slope->Angle > high + kHalfHundredth)
    found.push_back(Said("slope row: ", row, " should be ", low, " to ", high));
}

std::string OneBlankBetweenWords(const std::string& text) {
  std::istringstream words(text);
  std::string joined;
  for (std::string word; words >> word;) joined += joined.empty() ? word : ' ' + word;
  return joined;
}

/// A text that was too wide for its place is cut.
bool SameWords(const std::string& paper, const std::string& file) {
  const std::string shown = OneBlankBetweenWords(paper);
  const std::string whole = OneBlankBetweenWords(file);
  const std::string ellipsis = "\u2026";
  if (!shown.ends_with(ellipsis)) return shown == whole;
  return whole.starts_with(shown.substr(0, shown.size() - ellipsis.size()));
}

}  // namespace

Disagreements CheckSheet(const PageFacts& facts, const PageSheet& sheet) {
  Disagreements found;
  if (const TitleRow* row = TitleOf(facts)) {
    const std::string title = row->Title;
    if (sheet.Title != title && !sheet.Title.starts_with(title + " "))
      found.push_back("title: " + sheet.Title + " instead of " + title);
  } else {
    found.push_back("title: no row of the table for page " + std::to_string(facts.Page) + " of " +
                    facts.Roof);
  }
  if (sheet.Rows.empty()) found.emplace_back("rows: there are none");
  for (const std::string& row : sheet.Rows) {
    if (SaysNothing(row)) found.push_back("empty row: " + row);
    if (IsSlopeRow(row)) CheckSlopeRow(row, facts.Metric, found);
  }
  return found;
}

/// The slope over an elevation is that of the row which names the member.
Disagreements CheckHeading(const PageFacts& facts, const PageForm& form, const PageSheet& sheet) {
  const TitleRow* title = TitleOf(facts);
  if (title == nullptr) return {};
  if (title->SlopeRow == nullptr) {
    if (form.Heading) return {"heading: a plan has none: " + *form.Heading};
    return {};
  }
  const std::string heading(Trimmed(form.Heading.value_or("")));
  for (const std::string& row : sheet.Rows) {
    if (LabelOf(row) != title->SlopeRow) continue;
    const std::string value = StatedBy(row);
    if (value.starts_with(heading + " (") && !heading.empty()) return {};
    const std::optional<SlopeValue> slope = ReadSlope(value, facts.Metric);
    std::size_t at = 0;
    double angle = 0;
    const bool degrees = heading.ends_with(kDegreeSign) && ReadNumber(heading, at, angle);
    if (slope && degrees && std::fabs(slope->Angle - angle) <= kHalfHundredth) return {};
    return {Said("heading: ", heading, " over ", row)};
  }
  return {Said("heading: no row ", title->SlopeRow)};
}

Disagreements CompareSheets(const PageSheet& paper, const PageSheet& file) {
  Disagreements found;
  if (!SameWords(paper.Title, file.Title))
    found.push_back("title: " + paper.Title + " on paper, " + file.Title + " in the file");
  if (paper.Rows.size() != file.Rows.size()) {
    found.push_back(Said("rows: ", paper.Rows.size(), " on paper, ", file.Rows.size(), " in the file"));
    return found;
  }
  for (std::size_t i = 0; i < paper.Rows.size(); ++i) {
    if (!SameWords(paper.Rows[i], file.Rows[i]))
      found.push_back("rows: " + paper.Rows[i] + " on paper, " + file.Rows[i] + " in the file");
  }
  return found;
}

}  // namespace pitchcraft::testing
