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

/// The palette of a field with those colours. A disabled field, and one that takes no entry, is grey on the
/// colour of the window.
QPalette FieldPalette(std::uint32_t fore, std::uint32_t back, const QPalette& desktop,
                      bool takesEntry = true);

/// The mark of a field whose entry waits: amber, light or dark, or white or black where amber is not seen.
QColor WaitingColor(const QColor& ground);

/// The colours of one field. Setting a palette costs far more than comparing what it is made of.
class FieldColors {
 public:
  /// True where a colour, the desktop or what the field takes has changed, and so the palette.
  bool Take(std::uint32_t fore, std::uint32_t back, const QPalette& desktop, bool takesEntry = true);
  const QPalette& Palette() const { return palette_; }

 private:
  struct Origin {
    std::uint32_t fore = 0;
    std::uint32_t back = 0;
    qint64 desktop = -1;
    bool takesEntry = true;
    bool operator==(const Origin&) const = default;
  };
  Origin origin_;
  QPalette palette_;
};

}  // namespace pitchcraft
