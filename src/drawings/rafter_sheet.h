// What is printed beside the side view of a rafter, and written into its file.
#pragma once

#include <string>

#include "drawings/printed_sheet.h"

namespace pitchcraft {

struct RafterSheet {
  std::string Title;  ///< "Hip Roof - Hip Rafter"
  SheetColumns Rows;  ///< the measures to cut the rafter by
};

RafterSheet RafterSheetOf(const Rafter& rafter, const PrintContext& context);
/// For main common, hip end common and hip of a roof whose end has a slope of its own. Each names its member
/// and states the measures of all three.
RafterSheet BastardHipSheetOf(const Rafter& rafter, const PrintContext& context);

}  // namespace pitchcraft
