// What stands beside the plan and the layout of a hip roof's end, on paper and in a file.
#pragma once

#include <string>

#include "drawings/printed_sheet.h"

namespace pitchcraft {

/// "Hip Roof - Plan View".
std::string HipPlanTitle(const Rafter& rafter);
/// "Hip Roof - Layout  (16" o.c. spacing)".
std::string HipLayoutTitle(const Rafter& rafter, const PrintContext& context);

/// The measures of both, in three columns.
SheetColumns HipRows(const Rafter& rafter, const PrintContext& context);

}  // namespace pitchcraft
