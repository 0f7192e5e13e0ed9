// The page shown, on paper.
#pragma once

#include "document/document.h"
#include "drawings/printed_sheet.h"

namespace pitchcraft {

void SetUpPage(Document& document, int = 0);
/// Prints the sheet of the page shown.
void PrintPageShown(Document& document, int = 0);

/// What paper and files state beside the figure of the page shown.
PrintContext OutputContext(const Document& document);

}  // namespace pitchcraft
