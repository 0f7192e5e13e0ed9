// What is beside the document: the calculator and the pages of help.
#pragma once

#include "document/document.h"

namespace pitchcraft {

void OpenCalculator(Document& document, int = 0);
/// The help of a place; of kTopic that of the roof type.
void ShowHelp(Document& document, HelpPlace place);
void ShowHelpContents(Document& document, int = 0);
void ShowHelpGlossary(Document& document, int = 0);
void ShowHelpSearch(Document& document, int = 0);

}  // namespace pitchcraft
