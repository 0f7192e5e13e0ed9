// What the roof types have to say in the window, all of them, so that it has room for the next one as well.
#pragma once

#include <set>
#include <string>
#include <vector>

namespace pitchcraft {

struct RoofWords {
  std::set<std::string> RowCaptions;
  std::vector<std::vector<std::string>> Pages;  ///< the captions of the pages, a row for each roof type
};

RoofWords WordsOfAllRoofs();

}  // namespace pitchcraft
