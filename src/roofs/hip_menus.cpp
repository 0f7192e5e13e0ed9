#include "roofs/hip_menus.h"

namespace pitchcraft {

void ShowHipLayoutMenus(Menus& menus, bool show) {
  for (MenuItem* item : {&menus.HipLayout, &menus.Separator[15], &menus.PopUp1LayoutCenter,
                         &menus.PopUp1LayoutCorner, &menus.PopUp1LayoutCornerFlush}) {
    item->Visible = show;
  }
}

void ShowOverhangsEqualMenus(Menus& menus, bool show) {
  for (MenuItem* item : {&menus.HipLayoutOverhangsEqual, &menus.PopUp1OverhangsEqual, &menus.Separator[17],
                         &menus.Separator[19]}) {
    item->Visible = show;
  }
}

}  // namespace pitchcraft
