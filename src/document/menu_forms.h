// The menu items that bring up a form, and what its OK does.
#pragma once

#include "document/document.h"

namespace pitchcraft {

void AskForIncrement(Document& document, int = 0);
void ShowAbout(Document& document, int = 0);
void ShowTips(Document& document, int = 0);
void ShowOptions(Document& document, int = 0);
void ShowDxfSettings(Document& document, int = 0);
/// The forms of a start: what the user has not switched off. They belong to the window alone.
void ShowStartForms(Document& document);

}  // namespace pitchcraft
