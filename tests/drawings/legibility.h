// Finds texts that cannot be read: crossed by a line, overlapping another text, or upside down.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "drawing/arial_meter.h"
#include "drawing/recording.h"
#include "drawing/text_align.h"

namespace pitchcraft::testing {

struct Spot {
  double X, Y;
};

inline Spot SpotOf(DrawnPoint point) { return {static_cast<double>(point.X), static_cast<double>(point.Y)}; }

/// The four corners of a text's letters, from the base line to the height of a capital, drawn in by one unit
/// because rounding may bring two coordinates that much closer.
inline std::array<Spot, 4> LettersOf(const TextOp& text) {
  const ArialMeter meter;
  const double height = text.Height;
  const double width = meter.TextWidth(text.Text, {text.Font, height, text.Bold, text.Italic});
  const double left = -width * ShareLeftOf(SideOf(text.Align));
  double base = 0;
  if (LevelOf(text.Align) == AlignLevel::kTop) base = -height * kAscentPerCell;
  if (LevelOf(text.Align) == AlignLevel::kBottom) base = height * kDescentPerCell;
  const double angle = text.Angle * std::acos(-1.0) / 180;
  const auto at = [&](double along, double up) {
    return Spot{text.At.X + along * std::cos(angle) - up * std::sin(angle),
                text.At.Y + along * std::sin(angle) + up * std::cos(angle)};
  };
  const double top = base + height * kCapitalPerCell - 1;
  const double right = left + width - 1;
  return {at(left + 1, base + 1), at(right, base + 1), at(right, top), at(left + 1, top)};
}

/// Two convex polygons are apart if a line along one of their edges has them on different sides.
template <typename A, typename B>
bool HasDividingEdge(const A& edges, const B& other) {
  for (std::size_t at = 0; at < edges.size(); ++at) {
    const Spot from = edges[at];
    const Spot to = edges[(at + 1) % edges.size()];
    const Spot normal{to.Y - from.Y, from.X - to.X};
    double lowest = 1e300;
    double highest = -1e300;
    double otherLowest = 1e300;
    double otherHighest = -1e300;
    for (const Spot& spot : edges) {
      const double value = spot.X * normal.X + spot.Y * normal.Y;
      lowest = std::min(lowest, value);
      highest = std::max(highest, value);
    }
    for (const Spot& spot : other) {
      const double value = spot.X * normal.X + spot.Y * normal.Y;
      otherLowest = std::min(otherLowest, value);
      otherHighest = std::max(otherHighest, value);
    }
    if (highest < otherLowest || otherHighest < lowest) return true;
  }
  return false;
}

template <typename A, typename B>
bool Meet(const A& a, const B& b) {
  return !HasDividingEdge(a, b) && !HasDividingEdge(b, a);
}

inline std::string Told(const TextOp& text) {
  return "[" + text.Text + "] at " + std::to_string(text.At.X) + "," + std::to_string(text.At.Y);
}

/// The faults of a drawing's lettering on a background of that colour; none if all of it can be read.
inline std::vector<std::string> UnreadableTexts(const Recording& recording, DrawColor ground = 0) {
  std::vector<std::string> faults;
  std::vector<const TextOp*> texts;
  for (const DrawOp& operation : recording) {
    if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(text);
  }
  for (std::size_t at = 0; at < texts.size(); ++at) {
    const auto letters = LettersOf(*texts[at]);
    const double turn = std::remainder(texts[at]->Angle, 360.0);
    if (turn > 90.01 || turn <= -90.01) faults.push_back(Told(*texts[at]) + " stands upside down");
    for (std::size_t other = at + 1; other < texts.size(); ++other) {
      if (Meet(letters, LettersOf(*texts[other]))) {
        faults.push_back(Told(*texts[at]) + " lies on " + Told(*texts[other]));
      }
    }
    for (const DrawOp& operation : recording) {
      const auto* line = std::get_if<LineOp>(&operation);
      if (line == nullptr || line->Pen.Color == ground) continue;  // unseen
      const std::array<Spot, 2> stroke = {SpotOf(line->From), SpotOf(line->To)};
      if (Meet(letters, stroke)) {
        faults.push_back(Told(*texts[at]) + " is struck by the line from " + std::to_string(line->From.X) +
                         "," + std::to_string(line->From.Y) + " to " + std::to_string(line->To.X) + "," +
                         std::to_string(line->To.Y));
      }
    }
  }
  return faults;
}

}  // namespace pitchcraft::testing
