// Which action a menu item or a tool button runs. An item without one is not available and stays gray.
#pragma once

#include <string_view>

#include "document/document.h"

namespace pitchcraft {

/// Runs the action of the item. False where it has none: a holder or a separator.
bool ClickMenu(Document& document, const MenuItem& item);
void DisableItemsWithoutAction(Design& design);

/// Whether the button can be pressed now; those of the File menu go by their item.
bool IsToolButtonEnabled(const Document& document, const ToolButton& button);
void PressToolButton(Document& document, std::string_view key);

}  // namespace pitchcraft
