// What stands beside the side view of a rafter, on paper and in a file.
#pragma once

#include <string>

#include "drawings/printed_sheet.h"

namespace pitchcraft {

/// "Hip Roof - Hip Rafter".
std::string RafterTitle(const CRafter& rafter, const PrintContext& context);

/// The measures that the rafter is cut by, in three columns.
SheetColumns RafterRows(const CRafter& rafter, const PrintContext& context);

}  // namespace pitchcraft
