// Colours as the settings hold them, converted for painting.
#pragma once

#include <cstdint>

namespace pitchcraft {

/// Red, green and blue, each 0 to 255.
struct Rgb {
  int Red = 0;
  int Green = 0;
  int Blue = 0;
};

/// A colour value 0xBBGGRR is taken as it is. A system colour code, from 0x80000000 up, becomes that colour
/// of an ordinary light desktop, so that a picture file is the same everywhere.
constexpr Rgb RgbOf(std::uint32_t color) {
  switch (color) {
    case 0x80000005:                           // window
    case 0x8000000E: color = 0xFFFFFF; break;  // highlighted text
    case 0x80000008: color = 0x000000; break;  // window text
    case 0x80000011: color = 0x808080; break;  // grey text
    case 0x8000000D: color = 0xD77800; break;  // highlight
    default:
      if (color >= 0x80000000U) color = 0xF0F0F0;  // faces of buttons, bars and so on
  }
  return {static_cast<int>(color & 0xFFU), static_cast<int>(color >> 8U & 0xFFU),
          static_cast<int>(color >> 16U & 0xFFU)};
}

}  // namespace pitchcraft
