#include "storage/settings.h"

#include <cmath>
#include <limits>
#include <string_view>
#include <variant>

#include "core/number_text.h"

namespace pitchcraft {
namespace {

using Slot = std::variant<bool Settings::*, int Settings::*, std::uint32_t Settings::*, Single Settings::*,
                          std::string Settings::*>;

/// When the end of a session writes a setting.
enum class Written { kAlways, kNormalWindow, kImperial, kNever };

struct SettingRow {
  const char* section;
  const char* key;
  Slot slot;
  Written written = Written::kAlways;
};

constexpr const char* kApplication = "Pitchcraft";
// The choice about tips is stored under the name of the program file, where the tips dialog keeps it.
constexpr const char* kOptionsApplication = "pitchcraft";
constexpr const char* kOptionsSection = "Options";
constexpr const char* kShowTips = "Show Tips at Startup";
constexpr const char* kShowDisclaimer = "ShowDisclaimer";

const SettingRow kRows[] = {
    // section, key, where it is kept, when it is written
    {"Settings", "UseSystemColors", &Settings::UseSystemColors},
    {"Settings", "RotateFonts", &Settings::RotateFonts},
    {"Settings", "Units", &Settings::Units},
    {"Settings", "LineWidth", &Settings::LineWidth},
    {"Settings", "Spacing", &Settings::Spacing, Written::kImperial},
    {"Settings", "MetricSpacing", &Settings::MetricSpacing, Written::kNever},
    {"Settings", "Increment", &Settings::Increment},
    {"Settings", "MetricIncrement", &Settings::MetricIncrement},
    {"Settings", "Degrees", &Settings::Degrees},
    {"Settings", "WindowState", &Settings::WindowState},
    {"Settings", "MainLeft", &Settings::MainLeft, Written::kNormalWindow},
    {"Settings", "MainTop", &Settings::MainTop, Written::kNormalWindow},
    {"Settings", "MainWidth", &Settings::MainWidth, Written::kNormalWindow},
    {"Settings", "MainHeight", &Settings::MainHeight, Written::kNormalWindow},
    {"Settings", "Kneewall1", &Settings::Kneewall1},
    {"Settings", "Kneewall2", &Settings::Kneewall2},
    {"Settings", "HipLayout", &Settings::HipLayout},
    {"Settings", "OverhangsEqual", &Settings::OverhangsEqual},
    {"Settings", "JackMeasurement", &Settings::JackMeasurement},
    {"Settings", kShowDisclaimer, &Settings::ShowDisclaimer, Written::kNever},
    {"Colors", "CtlBackColor", &Settings::CtlBackColor},
    {"Colors", "CtlForeColor", &Settings::CtlForeColor},
    {"Colors", "CtlCalcColor", &Settings::CtlCalcColor},
    {"Colors", "BackColor", &Settings::BackColor},
    {"Colors", "LineColor", &Settings::LineColor},
    {"Colors", "DimColor", &Settings::DimColor},
    {"Colors", "TextColor", &Settings::TextColor},
    {"DXF", "Backcolor", &Settings::DxfBackColor},
    {"DXF", "Textcolor", &Settings::DxfTextColor},
    {"DXF", "Linecolor", &Settings::DxfLineColor},
    {"DXF", "Dimcolor", &Settings::DxfDimColor},
    {"DXF", "Textsize", &Settings::DxfTextSize},
    {"DXF", "MetricTextsize", &Settings::DxfMetricTextSize},
    {"DXF", "DimTextsize", &Settings::DxfDimTextSize},
    {kOptionsSection, kShowTips, &Settings::ShowTipsAtStartup, Written::kNever},
};

const char* ApplicationOf(const SettingRow& row) {
  return std::string_view(row.section) == kOptionsSection ? kOptionsApplication : kApplication;
}

template <typename Integer>
Integer IntegerIn(const std::string& text, Integer unreadable) {
  const double number = std::nearbyint(LeadingNumber(text));
  const bool fits = number >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
                    number <= static_cast<double>(std::numeric_limits<Integer>::max());
  return fits ? static_cast<Integer>(number) : unreadable;
}

void Take(const std::string& text, bool& value) { value = text == "True" || LeadingNumber(text) != 0; }
void Take(const std::string& text, int& value) { value = IntegerIn(text, value); }
void Take(const std::string& text, std::uint32_t& value) {
  // A colour code with its highest bit set may be stored as a negative 32-bit number.
  const double number = std::nearbyint(LeadingNumber(text));
  value = number < 0 ? static_cast<std::uint32_t>(IntegerIn<std::int32_t>(text, 0)) : IntegerIn(text, value);
}
void Take(const std::string& text, Single& value) { value = LeadingNumber(text); }
void Take(const std::string& text, std::string& value) { value = text; }

std::string TextOf(bool value) { return value ? "True" : "False"; }
std::string TextOf(int value) { return std::to_string(value); }
std::string TextOf(std::uint32_t value) { return std::to_string(value); }
std::string TextOf(Single value) { return PlainText(value); }
std::string TextOf(const std::string& value) { return value; }

bool IsWritten(const SettingRow& row, const Settings& settings) {
  switch (row.written) {
    case Written::kAlways: return true;
    case Written::kNormalWindow: return settings.WindowState == 0;
    case Written::kImperial: return settings.Units == 0;
    case Written::kNever: return false;
  }
  return false;
}

}  // namespace

Settings ReadSettings(const KeyedStore& store) {
  Settings settings;
  for (const SettingRow& row : kRows) {
    const std::optional<std::string> text = store.Get(ApplicationOf(row), row.section, row.key);
    if (text) std::visit([&](auto slot) { Take(*text, settings.*slot); }, row.slot);
  }
  if (settings.UseSystemColors) {
    settings.CtlBackColor = kSystemWindowColor;
    settings.CtlForeColor = kSystemWindowTextColor;
    settings.CtlCalcColor = kSystemWindowTextColor;
  }
  return settings;
}

void WriteSettings(const Settings& settings, KeyedStore& store) {
  for (const SettingRow& row : kRows) {
    if (!IsWritten(row, settings)) continue;
    const std::string text = std::visit([&](auto slot) { return TextOf(settings.*slot); }, row.slot);
    store.Set(ApplicationOf(row), row.section, row.key, text);
  }
}

void WriteShowDisclaimer(int value, KeyedStore& store) {
  store.Set(kApplication, "Settings", kShowDisclaimer, TextOf(value));
}

void WriteShowTips(int value, KeyedStore& store) {
  store.Set(kOptionsApplication, kOptionsSection, kShowTips, TextOf(value));
}

}  // namespace pitchcraft
