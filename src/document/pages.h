// Pages, hints, and the mouse on a figure.
#pragma once

#include <string_view>

#include "document/document.h"

namespace pitchcraft {

inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

/// What the window says of a field whose entry waits.
inline constexpr const char* kWaits = "Taken with the next calculation; F9 calculates now";
/// Whether the entry of that field waits for the next calculation.
bool Waits(const Design& design, std::string_view name);

/// Shows a page of the outer tab (0), or the front or rear roof of the inner one (1).
void ShowPage(Document& document, int tab, int page);
/// The same of the inner tab, as a step.
void ShowRoof(Design& design, int page);

/// The pointer or the focus came to something: the status bar says what it is for.
void ShowHint(Document& document, std::string_view name);
/// The status bar says so where the entry of that field waits for the next calculation.
void TellWhatWaits(Document& document, std::string_view name);

/// A press of a button on the figure, `x` twips from its left. Gives the popup to show, or null.
MenuItem* PressOnFigure(Document& document, int button, int x);

void ToggleToolBar(Document& document, int = 0);
void ToggleStatusBar(Document& document, int = 0);
void AskToClose(Document& document, int = 0);
void DoNothing(Document& document, int = 0);  ///< a popup closes by itself

}  // namespace pitchcraft
