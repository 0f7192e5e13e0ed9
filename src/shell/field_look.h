// The colours of the fields, from the colour values of their controls.
#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace pitchcraft {

/// A colour value; a system colour code is what the desktop has for it.
QColor ColorOf(std::uint32_t value, const QPalette& desktop);

/// How well two colours can be told apart, from 1 (not at all) to 21 (black and white): the ratio of their
/// luminances. Text takes 4.5, lines and marks 3.
double Contrast(const QColor& one, const QColor& other);

/// The grey of what is switched off. It still tells a measure, so it can be read.
QColor SwitchedOff(const QColor& text, const QColor& ground);

/// The palette of a field with those colours; a disabled field is grey on the colour of the window.
QPalette FieldPalette(std::uint32_t fore, std::uint32_t back, const QPalette& desktop);

/// The colours of one field. Setting a palette costs far more than comparing what it is made of.
class FieldColors {
 public:
  /// True where a colour or the desktop has changed, and so the palette.
  bool Take(std::uint32_t fore, std::uint32_t back, const QPalette& desktop);
  const QPalette& Palette() const { return palette_; }

 private:
  struct Origin {
    std::uint32_t fore = 0;
    std::uint32_t back = 0;
    qint64 desktop = -1;
    bool operator==(const Origin&) const = default;
  };
  Origin origin_;
  QPalette palette_;
};

}  // namespace pitchcraft
