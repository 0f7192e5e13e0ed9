// The menu items that only a hip roof has.
#pragma once

#include "sheet/menus.h"

namespace pitchcraft {

void ShowHipLayoutMenus(Menus& menus, bool show);
/// Those of a hip with two slopes.
void ShowOverhangsEqualMenus(Menus& menus, bool show);

}  // namespace pitchcraft
