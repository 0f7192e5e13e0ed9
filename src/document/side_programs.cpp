#include "document/side_programs.h"

#include "roofs/roof_types.h"

namespace pitchcraft {

void OpenCalculator(Document& document, int) {
  CalculatorService* calculator = document.Around().calculator;
  if (calculator != nullptr && calculator->Open(document.design.Metric)) return;
  document.Tell(
      "The calculator could not be started. Its program, ftcalc, belongs beside that of Pitchcraft.");
}

void ShowHelp(Document& document, HelpPlace place) {
  HelpService* help = document.Around().help;
  if (help != nullptr && help->Show(place, RoofOf(document.design).About().HelpTopic)) return;
  document.Tell("Unable to display Help Contents. There is no Help associated with this project.");
}

void ShowHelpContents(Document& document, int) { ShowHelp(document, HelpPlace::kContents); }
void ShowHelpGlossary(Document& document, int) { ShowHelp(document, HelpPlace::kGlossary); }
void ShowHelpSearch(Document& document, int) { ShowHelp(document, HelpPlace::kSearch); }

}  // namespace pitchcraft
