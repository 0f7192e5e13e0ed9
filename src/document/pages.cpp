#include "document/pages.h"

#include <algorithm>

#include "design/questions.h"
#include "roofs/roof_types.h"
#include "roofs/switch_roof.h"

namespace pitchcraft {
namespace {

// The popup offers what the roof type knows: layouts for a hip, the ledger for a Dutch hip, cuts for all but
// the blind valley. The items of a hip stay as the page set them.
void ShowPopUp1Items(Design& design) {
  Menus& menus = design.menus;
  if (design.RoofType != Roof::kHip) {
    for (MenuItem* item :
         {&menus.PopUp1LayoutCenter, &menus.PopUp1LayoutCorner, &menus.PopUp1LayoutCornerFlush,
          &menus.PopUp1JackMeasurement, &menus.PopUp1OverhangsEqual, &menus.Separator[15],
          &menus.Separator[18], &menus.Separator[19]}) {
      item->Visible = false;
    }
  }
  const bool ledger = design.RoofType == Roof::kDutchHip;
  for (MenuItem& item : menus.PopUp1Ledger) item.Visible = ledger;
  menus.Separator[13].Visible = ledger;
  const bool cuts = RoofOf(design).About().HasFasciaCuts;
  menus.PopUp1PlumbCut.Visible = cuts;
  menus.PopUp1SquareCut.Visible = cuts;
  menus.Separator[12].Visible = cuts;
}

}  // namespace

bool Waits(const Design& design, std::string_view name) {
  const std::vector<std::string> waiting = Waiting(design);
  return std::find(waiting.begin(), waiting.end(), name) != waiting.end();
}

// The lock items of the Settings menu speak of the row that is shown.
void ShowRoof(Design& design, int page) {
  design.sheet.Tabs[1].Page = page;
  design.LockRow = static_cast<std::size_t>(page);
}

void ShowPage(Document& document, int tab, int page) {
  document.Act("VSTab_Switch", [&](Design& design, Reply& reply) {
    if (tab == 1) {
      ShowRoof(design, page);
    } else {
      TurnPage(design, reply, page);
    }
  });
}

void ShowHint(Document& document, std::string_view name) {
  const Design& design = document.design;
  if (Waits(design, name)) {
    document.window.Status = kWaits;
  } else if (const MenuItem* item = design.menus.Find(name)) {
    document.window.Status = item->StatusText;
  } else {
    document.window.Status = HintOf(design, name);
  }
}

void TellWhatWaits(Document& document, std::string_view name) {
  if (Waits(document.design, name)) document.window.Status = kWaits;
}

MenuItem* PressOnFigure(Document& document, int button, int x) {
  Design& design = document.design;
  if (button == kLeftButton && OnDesignPage(design) && design.RoofType == Roof::kDualSlope) {
    const double share = design.Calculated1.Span / (design.Calculated1.Span + design.Calculated2.Span);
    const int page = x < share * document.FigureArea().Width ? 0 : 1;
    document.Act("Picture1_MouseDown", [page](Design& changed, Reply& reply) {
      ShowRoof(changed, page);
      FocusSlope(changed, reply, static_cast<std::size_t>(page));
    });
    return nullptr;
  }
  if (button != kRightButton) return nullptr;
  if (design.RoofType == Roof::kGambrel) return &design.menus.PopUp2;
  ShowPopUp1Items(design);
  return &design.menus.PopUp1;
}

void ToggleToolBar(Document& document, int) {
  document.window.ToolBar = !document.window.ToolBar;
  document.Refresh();
}

void ToggleStatusBar(Document& document, int) {
  document.window.StatusBar = !document.window.StatusBar;
  document.Refresh();
}

void AskToClose(Document& document, int) { document.window.CloseRequested = true; }

void DoNothing(Document&, int) {}

}  // namespace pitchcraft
