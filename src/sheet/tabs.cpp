#include "sheet/tabs.h"

namespace pitchcraft {

void IndexTab::SetCaption(std::string_view caption) {
  if (caption == caption_) return;
  caption_ = caption;
  pages_.clear();
  std::size_t start = 0;
  for (std::size_t bar = 0; bar != std::string_view::npos; start = bar + 1) {
    bar = caption.find('|', start);
    pages_.emplace_back(caption.substr(start, bar == std::string_view::npos ? bar : bar - start));
  }
  if (Page >= PageCount()) Page = 0;
}

}  // namespace pitchcraft
