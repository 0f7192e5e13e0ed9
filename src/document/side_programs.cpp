// What stands beside the document: the calculator and the pages of help.
#include "document/document.h"

namespace pitchcraft {

void Document::mnuTools_Click(int) {
  CalculatorService* calculator = surroundings_.calculator;
  if (calculator != nullptr && calculator->Open(!Imperial())) return;
  MsgBox("The calculator could not be started. Its program, ftcalc, belongs beside that of Pitchcraft.");
}

void Document::ShowHelp(HelpPlace place) {
  HelpService* help = surroundings_.help;
  if (help != nullptr && help->Show(place, HelpContext)) return;
  MsgBox("Unable to display Help Contents. There is no Help associated with this project.");
}

}  // namespace pitchcraft
