#include "document/session_ends.h"

#include <algorithm>

#include "design/questions.h"
#include "document/calculate.h"
#include "document/commands.h"
#include "document/menu_actions.h"
#include "document/units.h"
#include "roofs/results.h"
#include "roofs/roof_types.h"
#include "roofs/switch_roof.h"

namespace pitchcraft {
namespace {

constexpr int kMinimized = 1;

void FillRoofList(Design& design) {
  std::vector<std::string> items;
  for (const RoofType* type : RoofTypes()) items.emplace_back(type->About().Item);
  design.sheet.RoofList.SetList(items);
  design.sheet.RoofList.SetListIndex(0);
}

void TakeSettings(Document& document, const Settings& stored) {
  Design& design = document.design;
  Sheet& sheet = design.sheet;
  sheet.Kneewall[0].SetText(stored.Kneewall1);
  sheet.Kneewall[1].SetText(stored.Kneewall2);
  for (MeasureControl& field : sheet.Kneewall) {
    field.Enabled = false;
    field.Grayed = true;
  }
  sheet.LastCommon.Enabled = false;
  sheet.Label[23].Enabled = false;
  design.Layout = stored.HipLayout == "Center"         ? JackLayout::kCenter
                  : stored.HipLayout == "Corner Flush" ? JackLayout::kCornersFlush
                                                       : JackLayout::kCorners;
  design.OverhangsEqual = stored.OverhangsEqual;
  design.JacksWithOverhang = stored.JackMeasurement;
  SetSlopeMode(design, stored.Degrees);
}

void TakeSpacing(Design& design, const Settings& stored) {
  const Single spacing = design.Metric ? stored.MetricSpacing : stored.Spacing;
  SetSpacing(design, spacing);
  design.sheet.Spacing.SetText(InchesAlone(design).ToText(spacing));
}

void FitLeastSize(Area& place) {
  place.Width = std::max(place.Width, kMinimumWidth);
  place.Height = std::max(place.Height, kMinimumHeight);
}

}  // namespace

void Start(Document& document) {
  constexpr const char* kProcedure = "Form_Load";
  const Settings stored = ReadSettings(document.Around().store);
  Design& design = document.design;
  document.preferences = stored;
  document.window.Place = {stored.MainLeft, stored.MainTop, stored.MainWidth, stored.MainHeight};
  FitLeastSize(document.window.Place);
  document.window.Title = "Pitchcraft - [" + document.project.Name + "]";
  DisableItemsWithoutAction(design);
  FillRoofList(design);
  design.sheet.Ledger.SetListIndex(0);
  for (std::size_t place = 0; place < RecentFileList::kPlaces; ++place) {
    document.RecentFiles.Items[place] = &design.menus.FileMRU[place];
  }
  document.Guard(kProcedure, [&] { document.RecentFiles.Load(); });
  Reply reply;
  ArrangeRoof(design, reply, GableRoof());
  TakeSettings(document, stored);
  SwitchUnits(document, reply, stored.Units != 0);
  TakeSpacing(design, stored);
  FocusSlope(design, reply, 0);
  document.TakeReply(reply);
  document.Refresh();
}

void FollowSize(Document& document) {
  if (document.preferences.WindowState == kMinimized) return;
  FitLeastSize(document.window.Place);
  document.Refresh();
}

void Close(Document& document) {
  const Design& design = document.design;
  Settings settings = ReadSettings(document.Around().store);
  static_cast<Preferences&>(settings) = document.preferences;
  settings.Units = design.Metric ? 1 : 0;
  settings.Degrees = design.InDegrees;
  settings.Spacing = design.Rafter1.spacing;
  settings.MainLeft = document.window.Place.Left;
  settings.MainTop = document.window.Place.Top;
  settings.MainWidth = document.window.Place.Width;
  settings.MainHeight = document.window.Place.Height;
  settings.Kneewall1 = design.sheet.Kneewall[0].Text();
  settings.Kneewall2 = design.sheet.Kneewall[1].Text();
  settings.HipLayout = design.Layout == JackLayout::kCenter         ? "Center"
                       : design.Layout == JackLayout::kCornersFlush ? "Corner Flush"
                                                                    : "Corner";
  settings.OverhangsEqual = design.OverhangsEqual;
  settings.JackMeasurement = design.JacksWithOverhang;
  document.Guard("Form_Unload", [&] { WriteSettings(settings, document.Around().store); });
}

}  // namespace pitchcraft
