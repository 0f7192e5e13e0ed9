// The lists of the lumber, slope and degree fields: from the program's folder, or the usual ones when nobody
// has edited them.
#pragma once

#include "document/document.h"

namespace pitchcraft {

/// Fills all of them for the present unit system. The fields keep their values.
void FillLists(Document& document);

}  // namespace pitchcraft
