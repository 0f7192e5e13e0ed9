#include "shell/field_look.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "drawing/colors.h"

namespace pitchcraft {

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

QPalette FieldPalette(std::uint32_t fore, std::uint32_t back, const QPalette& desktop) {
  QPalette palette = desktop;
  const QColor text = ColorOf(fore, desktop);
  const QColor ground = ColorOf(back, desktop);
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Base, ground);
    palette.setColor(group, QPalette::Button, ground);
    palette.setColor(group, QPalette::Text, text);
    palette.setColor(group, QPalette::ButtonText, text);
  }
  const QColor window = desktop.color(QPalette::Active, QPalette::Window);
  const QColor grey = desktop.color(QPalette::Disabled, QPalette::WindowText);
  palette.setColor(QPalette::Disabled, QPalette::Base, window.darker(106));
  palette.setColor(QPalette::Disabled, QPalette::Button, window.darker(106));
  palette.setColor(QPalette::Disabled, QPalette::Text, grey);
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, grey);
  return palette;
}

bool FieldColors::Take(std::uint32_t fore, std::uint32_t back, const QPalette& desktop) {
  const Origin origin{fore, back, desktop.cacheKey()};
  if (origin == origin_) return false;
  origin_ = origin;
  palette_ = FieldPalette(fore, back, desktop);
  return true;
}

QFont FittedFont(QFont font, const QString& text, int width, int height) {
  const QFontMetricsF metrics(font);
  const double across = text.isEmpty() ? 1 : width / std::max(1.0, metrics.horizontalAdvance(text));
  const double share = std::min(across, height / std::max(1.0, metrics.height()));
  if (share >= 1) return font;
  const int pixels = QFontInfo(font).pixelSize();
  font.setPixelSize(std::max(7, static_cast<int>(std::floor(pixels * share))));
  return font;
}

}  // namespace pitchcraft
