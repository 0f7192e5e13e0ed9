// Lettering effects: characters set one by one, down a column, on circles and arcs, or growing.
#include <cmath>
#include <vector>

#include "core/angles.h"
#include "core/run_time_error.h"
#include "drawing/text_align.h"
#include "drawing/text_tool.h"
#include "drawing/utf8.h"

namespace pitchcraft {
namespace {

std::vector<std::string_view> CharactersOf(std::string_view text) {
  std::vector<std::string_view> characters;
  while (!text.empty()) characters.push_back(TakeCharacter(text).Bytes);
  return characters;
}

/// How far along its path character `at` of `count` comes, from 0 to 1.
double ShareAt(std::size_t at, std::size_t count) {
  return count < 2 ? 0 : static_cast<double>(at) / static_cast<double>(count - 1);
}

double Between(double from, double to, double share) { return from + (to - from) * share; }

}  // namespace

/// Restores what an effect changes in the lettering, even when a character cannot be placed.
class TextTool::EffectScope {
 public:
  explicit EffectScope(TextTool& text)
      : text_(text),
        angle_(text.Angle),
        height_(text.FontHeight),
        color_(text.TextColor),
        align_(text.TextAlign()) {}
  ~EffectScope() {
    text_.Angle = angle_;
    text_.FontHeight = height_;
    text_.TextColor = color_;
    text_.SetTextAlign(align_);
  }
  EffectScope(const EffectScope&) = delete;
  EffectScope& operator=(const EffectScope&) = delete;
  std::int32_t Height() const { return height_; }

 private:
  TextTool& text_;
  Single angle_;
  std::int32_t height_;
  DrawColor color_;
  int align_;
};

void TextTool::OnCircle(std::string_view character, double x, double y, double radius, double angle) {
  const double radians = angle * kRadiansPerDegree;
  SetTextAlign(kAlignCenterBase);
  Angle = angle - 90;
  TextLine(character, Single(x + radius * std::cos(radians)), Single(y + radius * std::sin(radians)));
}

void TextTool::TextVertical(std::string_view text, Single x, Single y) {
  GrowTextVerticalIn(TextColor, text, x, y, FontHeight);
}

void TextTool::GrowTextVertical(std::string_view text, Single x, Single y, double endHeight) {
  GrowTextVerticalIn(GrowColor, text, x, y, endHeight);
}

void TextTool::GrowTextVerticalIn(DrawColor color, std::string_view text, double x, double y,
                                  double endHeight) {
  const EffectScope scope(*this);
  TextColor = color;
  const auto characters = CharactersOf(text);
  for (std::size_t at = 0; at < characters.size(); ++at) {
    FontHeight = ToLong(Between(scope.Height(), endHeight, ShareAt(at, characters.size())));
    TextLine(characters[at], Single(x), Single(y));
    y -= FontHeight;
  }
}

void TextTool::TextCircle(std::string_view text, Single x, Single y, Single radius, double startAngle) {
  const EffectScope scope(*this);
  const auto characters = CharactersOf(text);
  for (std::size_t at = 0; at < characters.size(); ++at) {
    const double share = static_cast<double>(at) / static_cast<double>(characters.size());
    OnCircle(characters[at], x, y, radius, startAngle - 360 * share);
  }
}

void TextTool::TextArc(std::string_view text, Single x, Single y, Single radius, double startAngle,
                       double endAngle) {
  const EffectScope scope(*this);
  const auto characters = CharactersOf(text);
  for (std::size_t at = 0; at < characters.size(); ++at) {
    OnCircle(characters[at], x, y, radius, Between(startAngle, endAngle, ShareAt(at, characters.size())));
  }
}

void TextTool::GrowTextArc(std::string_view text, Single x, Single y, Single radius, double startAngle,
                           double endAngle, double endHeight) {
  const EffectScope scope(*this);
  TextColor = GrowColor;
  const auto characters = CharactersOf(text);
  for (std::size_t at = 0; at < characters.size(); ++at) {
    const double share = ShareAt(at, characters.size());
    FontHeight = ToLong(Between(scope.Height(), endHeight, share));
    OnCircle(characters[at], x, y, radius, Between(startAngle, endAngle, share));
  }
}

void TextTool::GrowTextLine(std::string_view text, Single x, Single y, double endHeight) {
  const EffectScope scope(*this);
  TextColor = GrowColor;
  const double radians = Angle * kRadiansPerDegree;
  double along = 0;
  const auto characters = CharactersOf(text);
  for (std::size_t at = 0; at < characters.size(); ++at) {
    FontHeight = ToLong(Between(scope.Height(), endHeight, ShareAt(at, characters.size())));
    TextLine(characters[at], Single(x + along * std::cos(radians)), Single(y + along * std::sin(radians)));
    along += TextWidth(characters[at]);
  }
}

void TextTool::SpiralText(std::string_view text, Single x, Single y, Single startRadius, Single endRadius,
                          double turns) {
  const EffectScope scope(*this);
  TextColor = GrowColor;
  const auto characters = CharactersOf(text);
  for (std::size_t at = 0; at < characters.size(); ++at) {
    const double share = ShareAt(at, characters.size());
    OnCircle(characters[at], x, y, Between(startRadius, endRadius, share), 90 - 360 * turns * share);
  }
}

}  // namespace pitchcraft
