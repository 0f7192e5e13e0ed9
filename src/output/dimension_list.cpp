#include "output/dimension_list.h"

namespace pitchcraft {
namespace {

constexpr std::size_t kStroke = 4;

class ListReader {
 public:
  explicit ListReader(std::span<const DimensionValue> values) : values_(values) {}

  ListedDimensions Read() {
    while (at_ < values_.size()) {
      if (const auto* number = std::get_if<Single>(&values_[at_])) {
        numbers_.push_back(*number);
        ++at_;
      } else {
        ReadText();
      }
    }
    TakeStrokes(numbers_.size());
    return std::move(read_);
  }

 private:
  /// The last two numbers before a text are its position; all earlier ones are strokes.
  void ReadText() {
    const auto* text = std::get_if<std::string>(&values_[at_]);
    ++at_;
    if (numbers_.size() < 2) {
      numbers_.clear();
      return;
    }
    ListedText listed{numbers_[numbers_.size() - 2], numbers_.back(), *text, 0, 'L'};
    TakeStrokes(numbers_.size() - 2);
    if (at_ < values_.size() && std::holds_alternative<Single>(values_[at_])) {
      listed.Angle = std::get<Single>(values_[at_++]);
    }
    // If another text follows, it can only be the letter: every other text has numbers before it.
    if (at_ < values_.size() && std::holds_alternative<std::string>(values_[at_])) {
      const std::string& letter = std::get<std::string>(values_[at_++]);
      if (letter == "C" || letter == "R") listed.Align = letter.front();
    }
    read_.Texts.push_back(std::move(listed));
  }

  void TakeStrokes(std::size_t count) {
    for (std::size_t i = 0; i + kStroke <= count; i += kStroke) {
      read_.Strokes.push_back({numbers_[i], numbers_[i + 1], numbers_[i + 2], numbers_[i + 3]});
    }
    numbers_.clear();
  }

  std::span<const DimensionValue> values_;
  std::size_t at_ = 0;
  std::vector<Single> numbers_;  // so far either strokes or the position of a text
  ListedDimensions read_;
};

}  // namespace

ListedDimensions ReadDimensionList(std::span<const DimensionValue> values) {
  return ListReader(values).Read();
}

}  // namespace pitchcraft
