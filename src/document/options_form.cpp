#include "document/options_form.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "core/number_text.h"
#include "storage/list_files.h"
#include "storage/settings.h"

namespace pitchcraft {
namespace {

constexpr std::uint32_t kFirstSystemCode = 0x80000000;
constexpr std::uint32_t kLastSystemCode = 0x8000001E;
constexpr std::uint32_t kLastColor = 0xFFFFFF;

constexpr std::uint32_t Blend(double red, double green, double blue) {
  const auto part = [](double share) { return static_cast<std::uint32_t>(std::lround(share * 255)); };
  return part(red) | part(green) << 8U | part(blue) << 16U;
}

const std::string& Nothing() {
  static const std::string kNothing;
  return kNothing;
}

}  // namespace

// --- Lists
// ----------------------------------------------------------------------------------------------------------

void ListGrid::Load(const std::vector<std::string>& rows) {
  rows_.clear();
  rows_.reserve(rows.size());
  for (const std::string_view text : rows) {
    Row& row = rows_.emplace_back();
    std::size_t from = 0;
    for (std::string& cell : row) {
      if (from > text.size()) break;
      const std::size_t bar = std::min(text.find('|', from), text.size());
      cell = text.substr(from, bar - from);
      from = bar + 1;
    }
  }
  Settle();
}

const std::string& ListGrid::Cell(int row, int column) const {
  if (!Has(row) || column < 0 || column >= kColumns) return Nothing();
  return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void ListGrid::SetCell(int row, int column, std::string_view text) {
  if (!Has(row) || column < 0 || column >= kColumns) return;
  std::string clean(text);
  for (char& c : clean) {
    const bool control = static_cast<unsigned char>(c) < ' ';
    if (c == ',' && column > 0) {
      c = '.';
    } else if (c == ',' || c == '|' || c == '\\' || control) {
      c = ' ';
    }
  }
  rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = Trimmed(clean);
}

int ListGrid::InsertRow(int below) {
  const int place = std::clamp(below + 1, 0, RowCount());
  rows_.insert(rows_.begin() + place, NewRow);
  return place;
}

void ListGrid::DeleteRow(int row) {
  if (Has(row)) rows_.erase(rows_.begin() + row);
}

std::vector<std::string> ListGrid::FileRows() const {
  std::vector<std::string> rows;
  for (const Row& row : rows_) {
    const bool blank = row == NewRow || (row[0].empty() && row[1].empty() && row[2].empty());
    if (!blank) rows.push_back(ListRow(row[0], row[1], row[2]));
  }
  return rows;
}

// --- Values
// ---------------------------------------------------------------------------------------------------------

void OptionsForm::Load(const std::array<std::uint32_t, kColorRows>& colors,
                       const std::array<int, kDxfColorRows>& dxfColors, int lineWidth) {
  colors_ = colors;
  dxfColors_ = dxfColors;
  lineWidth_ = lineWidth;
}

bool OptionsForm::SetColor(int row, std::uint32_t color) {
  const bool system = color >= kFirstSystemCode && color <= kLastSystemCode;
  if (row < 0 || row >= kColorRows || (color > kLastColor && !system)) return false;
  colors_[static_cast<std::size_t>(row)] = color;
  return true;
}

bool OptionsForm::SetDxfColor(int row, int color) {
  if (row < 0 || row >= kDxfColorRows || color < (row == kDxfBack ? 0 : 1) || color > 255) return false;
  dxfColors_[static_cast<std::size_t>(row)] = color;
  return true;
}

void OptionsForm::SetLineWidth(int width) { lineWidth_ = std::clamp(width, kThinnestLine, kHeaviestLine); }

std::uint32_t OptionsForm::ShownColor(int row) const {
  if (SystemColors && row == kCtlBack) return kSystemWindowColor;
  if (SystemColors && (row == kCtlText || row == kCalcText)) return kSystemWindowTextColor;
  return row >= 0 && row < kColorRows ? colors_[static_cast<std::size_t>(row)] : 0;
}

// --- Colours
// --------------------------------------------------------------------------------------------------------

const std::vector<NamedColor>& OfferedColors() {
  static const std::vector<NamedColor> kColors{{"Black", 0x000000},
                                               {"Dark gray", 0x404040},
                                               {"Gray", 0x808080},
                                               {"Silver", 0xC0C0C0},
                                               {"White", 0xFFFFFF},
                                               {"Maroon", 0x000080},
                                               {"Red", 0x0000FF},
                                               {"Orange", 0x0080FF},
                                               {"Brown", 0x2A5A96},
                                               {"Tan", 0x8CB4D2},
                                               {"Olive", 0x008080},
                                               {"Yellow", 0x00FFFF},
                                               {"Light yellow", 0xC0FFFF},
                                               {"Green", 0x008000},
                                               {"Lime", 0x00FF00},
                                               {"Light green", 0xC0FFC0},
                                               {"Teal", 0x808000},
                                               {"Cyan", 0xFFFF00},
                                               {"Light cyan", 0xFFFFC0},
                                               {"Navy", 0x800000},
                                               {"Blue", 0xFF0000},
                                               {"Sky blue", 0xEBCE87},
                                               {"Purple", 0x800080},
                                               {"Magenta", 0xFF00FF},
                                               {"Pink", 0xCBC0FF},
                                               {"Window", kSystemWindowColor},
                                               {"Window text", kSystemWindowTextColor}};
  return kColors;
}

std::string NameOfColor(std::uint32_t color) {
  for (const NamedColor& offered : OfferedColors()) {
    if (offered.Color == color) return offered.Name;
  }
  if (color >= kFirstSystemCode) return "System color";
  return std::to_string(color & 0xFFU) + ", " + std::to_string(color >> 8U & 0xFFU) + ", " +
         std::to_string(color >> 16U & 0xFFU);
}

// Colours 10 to 249 are a wheel of 24 hues, five shades each, and each of those pale once more.
std::uint32_t ColorOfDxf(int number) {
  constexpr std::uint32_t kFirst[] = {0x000000, 0x0000FF, 0x00FFFF, 0x00FF00, 0xFFFF00,
                                      0xFF0000, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
  constexpr double kShades[] = {1, 0.741, 0.506, 0.408, 0.310};
  constexpr double kGrays[] = {0.2, 0.314, 0.412, 0.51, 0.745, 1};
  if (number < 0 || number > 255) return 0;
  if (number < 10) return kFirst[number];
  if (number >= 250) return Blend(kGrays[number - 250], kGrays[number - 250], kGrays[number - 250]);
  const int step = number / 10 - 1;
  const double hue = step / 4.0;  // of six
  const double shade = kShades[number % 10 / 2];
  const double pale = number % 2 == 0 ? 0 : 2.0 / 3;
  const auto part = [&](double middle) {
    const double away = std::abs(hue - middle);
    const double full = std::clamp(2 - std::min(away, 6 - away), 0.0, 1.0);
    return shade * (pale + (1 - pale) * full);
  };
  return Blend(part(0), part(2), part(4));
}

std::string NameOfDxfColor(int number) {
  constexpr const char* kNames[] = {"Black", "Red",     "Yellow",        "Green", "Cyan",
                                    "Blue",  "Magenta", "White / black", "Gray",  "Light gray"};
  const std::string text = std::to_string(number);
  return number >= 0 && number < 10 ? text + "  " + kNames[number] : text;
}

}  // namespace pitchcraft
