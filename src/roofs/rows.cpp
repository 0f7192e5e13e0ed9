#include "roofs/rows.h"

#include <array>
#include <utility>

namespace pitchcraft {
namespace {

/// A control of a row: shown at its top, or hidden where the roof type has no such row.
void Put(Control& control, int top) {
  control.Visible = top != kHiddenRow;
  if (control.Visible) control.Top = top;
}

void PutLabel(LabelControl& label, int top) {
  Put(label, top);
  // The label of a row in use is never gray.
  if (label.Visible) label.Enabled = true;
}

void PutFields(Sheet& sheet, const RoofRows& rows) {
  const RowTops& tops = rows.tops;
  sheet.Slope[2].Visible = sheet.Degrees[2].Visible = false;
  sheet.Slope[2].Top = sheet.Degrees[2].Top = rows.HasSecondSlope() ? tops.slope2 : 860;
  Put(sheet.Span[0], tops.span0);
  Put(sheet.Span[2], tops.span2);
  Put(sheet.RidgeLength[0], tops.ridge0);
  Put(sheet.RidgeLength[1], tops.ridge1);
  Put(sheet.Overhang[0], tops.overhang);
  Put(sheet.Heel[0], tops.heel);
  Put(sheet.HeelLock[0], tops.heel);
  Put(sheet.Seat[0], tops.seat);
  Put(sheet.SeatLock[0], tops.seat);
  Put(sheet.Fascia[0], tops.fascia);
  Put(sheet.Ridge, tops.ridge);
  Put(sheet.Common[0], tops.rafter);
  Put(sheet.HipOrValley, rows.hipLumber ? tops.hipVal : kHiddenRow);
  const std::array<std::pair<std::size_t, int>, 6> spins{
      {{0, tops.spin0}, {1, tops.spin1}, {2, tops.spin2}, {3, tops.spin3}, {4, tops.spin4}, {7, tops.spin7}}};
  for (const auto& [index, top] : spins) Put(sheet.Spin[index], top);
}

void PutLabels(Sheet& sheet, const RoofRows& rows) {
  const RowTops& tops = rows.tops;
  PutLabel(sheet.Label[11], tops.label11);
  int top = tops.label12;
  for (const std::size_t label : {12, 13, 14}) {
    PutLabel(sheet.Label[label], top);
    top += 360;
  }
  top = tops.label15;
  for (const std::size_t label : {15, 16, 17, 18}) {
    PutLabel(sheet.Label[label], top);
    top += 330;
  }
  PutLabel(sheet.Label[20], tops.label20);
  sheet.Label[15].Visible = tops.fascia != kHiddenRow;
  sheet.Label[18].Visible = rows.hipLumber && rows.hipLumberIsNamed;
}

void PutKneewallRows(Sheet& sheet, int count) {
  for (std::size_t row = 0; row < 2; ++row) {
    const bool shown = static_cast<int>(row) < count;
    sheet.Kneewall[row].Visible = shown;
    sheet.HasKneewall[row].Visible = shown;
    sheet.Label[row].Visible = shown;
    sheet.Label[row].Enabled = sheet.HasKneewall[row].Ticked();
  }
  sheet.Label[0].Caption = "Kneewall:";
  sheet.Label[0].Top = 3570;
}

void PutRearPage(Sheet& sheet, bool shown) {
  for (const AnyControl& any : sheet.Controls()) {
    Control& control = ControlOf(any);
    if (control.Host == Host::kRearPage) control.Visible = shown;
  }
}

void SetUsualCaptions(Sheet& sheet) {
  constexpr RowCaption kUsual[] = {{10, "Slope:"}, {11, "Run:"},   {12, "Overhang:"}, {13, "Heel:"},
                                   {14, "Seat:"},  {16, "Ridge:"}, {17, "Common:"},   {18, "Hip/Val:"}};
  for (const RowCaption& row : kUsual) sheet.Label[row.label].Caption = row.caption;
}

constexpr int kHidden = kHiddenRow;

}  // namespace

const RowTops kGableTops{kHidden, 840,  kHidden, kHidden, kHidden, 1200,   1560, 1920,
                         2400,    2730, 3060,    3390,    870,     1230,   2430, kHidden,
                         840,     1200, kHidden, kHidden, kHidden, kHidden};
const RowTops kDutchTops{kHidden, 840, 1200, kHidden, kHidden, 1560, 1920, 2280, 2760,    3090,    3420,
                         3750,    870, 1590, 2790,    1230,    840,  1560, 1200, kHidden, kHidden, kHidden};

void LayOutRows(Sheet& sheet, const RoofRows& rows) {
  SetUsualCaptions(sheet);
  for (const std::size_t label : {6, 21, 22}) sheet.Label[label].Visible = false;
  PutFields(sheet, rows);
  PutLabels(sheet, rows);
  PutKneewallRows(sheet, rows.kneewalls);
  PutRearPage(sheet, rows.rearPage);
  for (const RowCaption& row : rows.captions) sheet.Label[row.label].Caption = row.caption;
  sheet.LastCommon.Visible = rows.lastCommon;
  sheet.HasLastCommon.Visible = rows.lastCommon;
  sheet.Label[23].Visible = rows.lastCommon;
}

}  // namespace pitchcraft
