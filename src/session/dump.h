// The state of a document as one JSON object.
#pragma once

#include <string>
#include <vector>

#include "document/document.h"
#include "session/json_number.h"

namespace pitchcraft {

/// The members that a dump can hold, in their order.
const std::vector<std::string>& DumpMembers();

/// {"event":"dump", ...} with the named members, or all where none is named. Unknown names are left out.
Json DumpOf(const Document& document, const std::vector<std::string>& members = {});

// Single members of it.
Json DumpSheet(const Sheet& sheet);
Json DumpDrawing(const Document& document);

}  // namespace pitchcraft
