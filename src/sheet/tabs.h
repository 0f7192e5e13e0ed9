// An index tab: pages named by one caption, one of them shown.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pitchcraft {

class IndexTab {
 public:
  /// The page captions joined by the bar: "Design|Rafter".
  const std::string& Caption() const { return caption_; }
  /// Names the pages anew. A page that is no longer there gives way to the first one.
  void SetCaption(std::string_view caption);

  int PageCount() const { return static_cast<int>(pages_.size()); }
  const std::vector<std::string>& Pages() const { return pages_; }

  int Page = 0;

  /// Whether only the first page can be reached: the sheet has one roof, not a front and a rear.
  bool OnePageOnly = false;

 private:
  std::string caption_;
  std::vector<std::string> pages_;
};

}  // namespace pitchcraft
