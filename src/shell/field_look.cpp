#include "shell/field_look.h"

#include <algorithm>
#include <cmath>

#include "drawing/colors.h"

namespace pitchcraft {
namespace {

constexpr double kLeastForMarks = 3;
constexpr double kLeastForText = 4.5;
constexpr int kFaintest = 60;  // percent of the text's own colour

double Luminance(const QColor& color) {
  const auto linear = [](double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// A field that the focus comes to has all of its text selected: that is what most people read.
void SetHighlight(QPalette& palette, const QColor& text, const QColor& ground) {
  QColor mark = palette.color(QPalette::Active, QPalette::Highlight);
  QColor marked = Contrast(mark, Qt::white) > Contrast(mark, Qt::black) ? Qt::white : Qt::black;
  if (Contrast(mark, ground) < kLeastForMarks) {
    mark = text;
    marked = ground;
  }
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Highlight, mark);
    palette.setColor(group, QPalette::HighlightedText, marked);
  }
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor SwitchedOff(const QColor& text, const QColor& ground) {
  // As faint as can still be read.
  for (int percent = kFaintest; percent < 100; percent += 2) {
    const float share = static_cast<float>(percent) / 100;
    const auto mix = [share](float a, float b) { return a * share + b * (1 - share); };
    const QColor grey = QColor::fromRgbF(mix(text.redF(), ground.redF()), mix(text.greenF(), ground.greenF()),
                                         mix(text.blueF(), ground.blueF()));
    if (Contrast(grey, ground) >= kLeastForText) return grey;
  }
  return text;
}

QColor WaitingColor(const QColor& ground) {
  const QColor light(0xFF, 0xB3, 0x2E);
  const QColor dark(0x9A, 0x58, 0x00);
  const QColor amber = Contrast(light, ground) >= Contrast(dark, ground) ? light : dark;
  if (Contrast(amber, ground) >= kLeastForMarks) return amber;
  return Contrast(Qt::white, ground) >= Contrast(Qt::black, ground) ? Qt::white : Qt::black;
}

QColor ColorOf(std::uint32_t value, const QPalette& desktop) {
  switch (value) {
    case 0x80000005: return desktop.color(QPalette::Active, QPalette::Base);
    case 0x80000008: return desktop.color(QPalette::Active, QPalette::Text);
    case 0x8000000D: return desktop.color(QPalette::Active, QPalette::Highlight);
    case 0x8000000E: return desktop.color(QPalette::Active, QPalette::HighlightedText);
    case 0x80000011: return desktop.color(QPalette::Disabled, QPalette::Text);
    default: break;
  }
  if (value >= 0x80000000U) return desktop.color(QPalette::Active, QPalette::Button);
  const Rgb rgb = RgbOf(value);
  return {rgb.Red, rgb.Green, rgb.Blue};
}

QPalette FieldPalette(std::uint32_t fore, std::uint32_t back, const QPalette& desktop, bool takesEntry) {
  QPalette palette = desktop;
  const QColor off = desktop.color(QPalette::Active, QPalette::Window).darker(106);
  const QColor grey = SwitchedOff(desktop.color(QPalette::Active, QPalette::WindowText), off);
  const QColor text = takesEntry ? ColorOf(fore, desktop) : grey;
  const QColor ground = takesEntry ? ColorOf(back, desktop) : off;
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Base, ground);
    palette.setColor(group, QPalette::Button, ground);
    palette.setColor(group, QPalette::Text, text);
    palette.setColor(group, QPalette::ButtonText, text);
  }
  SetHighlight(palette, text, ground);
  palette.setColor(QPalette::Disabled, QPalette::Base, off);
  palette.setColor(QPalette::Disabled, QPalette::Button, off);
  palette.setColor(QPalette::Disabled, QPalette::Text, grey);
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, grey);
  return palette;
}

bool FieldColors::Take(std::uint32_t fore, std::uint32_t back, const QPalette& desktop, bool takesEntry) {
  const Origin origin{fore, back, desktop.cacheKey(), takesEntry};
  if (origin == origin_) return false;
  origin_ = origin;
  palette_ = FieldPalette(fore, back, desktop, takesEntry);
  return true;
}

}  // namespace pitchcraft
