// Where a text lies about its anchor: the nine flags that the drawings use, taken apart.
#pragma once

namespace pitchcraft {

inline constexpr int kAlignLeftTop = 0;
inline constexpr int kAlignRightTop = 2;
inline constexpr int kAlignCenterTop = 6;
inline constexpr int kAlignLeftBottom = 8;
inline constexpr int kAlignRightBottom = 10;
inline constexpr int kAlignCenterBottom = 14;
inline constexpr int kAlignLeftBase = 24;
inline constexpr int kAlignRightBase = 26;
inline constexpr int kAlignCenterBase = 30;

enum class AlignSide { kLeft, kRight, kCenter };
enum class AlignLevel { kTop, kBottom, kBase };

/// The flag is a sum: 2 right or 6 centre; 8 bottom or 24 base line.
constexpr AlignSide SideOf(int align) {
  const int side = align & 6;
  if (side == 6) return AlignSide::kCenter;
  return side == 2 ? AlignSide::kRight : AlignSide::kLeft;
}

constexpr AlignLevel LevelOf(int align) {
  const int level = align & 24;
  if (level == 24) return AlignLevel::kBase;
  return level == 8 ? AlignLevel::kBottom : AlignLevel::kTop;
}

/// The part of a text's width that lies left of its anchor.
constexpr double ShareLeftOf(AlignSide side) {
  if (side == AlignSide::kCenter) return 0.5;
  return side == AlignSide::kRight ? 1.0 : 0.0;
}

}  // namespace pitchcraft
