// What is printed beside the plan and the layout of a hip roof's end, and written into their files.
#pragma once

#include <string>

#include "drawings/printed_sheet.h"

namespace pitchcraft {

/// "Hip Roof - Plan View".
std::string HipPlanTitle(const Rafter& rafter);
/// "Hip Roof - Layout  (16" o.c. spacing)".
std::string HipLayoutTitle(const Rafter& rafter, const PrintContext& context);

/// The measures for plan and layout alike, in three columns.
SheetColumns HipRows(const Rafter& rafter, const PrintContext& context);

}  // namespace pitchcraft
