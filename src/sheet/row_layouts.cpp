#include "sheet/row_layouts.h"

#include <array>

#include "sheet/roof_types.h"

namespace pitchcraft {
namespace {

constexpr int kHidden = -1;
constexpr int kLabelDrop = 30;

// Tops of the fields in twips. Rows stand 360 apart above the lumber and 330 apart in it; a bay lacks the run
// row and moves up by one, roofs with an extra row move down by one.
struct RowLayout {
  int slope2, span0, span2, ridge0, ridge1, overhang, heel, seat;
  int fascia, ridge, rafter, hipVal;
  // Labels 11 to 14 and 15 to 18 stand in two runs; these are the tops of 11, 12 and 15. 20 is the extra
  // row's.
  int label11, label12, label15, label20;
  // Spin buttons 0, 1, 2, 3, 4 and 7 beside their fields.
  int spin0, spin1, spin2, spin3, spin4, spin7;
};

constexpr RowLayout kGableRows{kHidden, 840,  kHidden, kHidden, kHidden, 1200,   1560, 1920,
                               2400,    2730, 3060,    3390,    870,     1230,   2430, kHidden,
                               840,     1200, kHidden, kHidden, kHidden, kHidden};
constexpr RowLayout kBayRows{kHidden, kHidden, kHidden, kHidden, kHidden, 840,    1200, 1560,
                             2040,    2370,    2700,    3030,    kHidden, 870,    2070, kHidden,
                             kHidden, 840,     kHidden, kHidden, kHidden, kHidden};
constexpr RowLayout kDutchRows{kHidden, 840,  1200, kHidden, kHidden, 1560,   1920, 2280,
                               2760,    3090, 3420, 3750,    870,     1590,   2790, 1230,
                               840,     1560, 1200, kHidden, kHidden, kHidden};
constexpr RowLayout kOctagonRows{kHidden, 840,     1200, kHidden, kHidden, 1560,   1920, 2280,
                                 2760,    kHidden, 3090, 3420,    870,     1590,   2790, 1230,
                                 840,     1560,    1200, kHidden, kHidden, kHidden};
constexpr RowLayout kHipRows{860,  1200, kHidden, kHidden, kHidden, 1560,   1920, 2280,
                             2760, 3090, 3420,    3750,    1230,    1590,   2790, 890,
                             1200, 1560, kHidden, kHidden, kHidden, kHidden};
constexpr RowLayout kBlindRows{860,     1200,    kHidden, 1560, 1920, kHidden, kHidden, kHidden,
                               kHidden, 2730,    3060,    3390, 870,  1230,    2430,    kHidden,
                               1200,    kHidden, kHidden, 1560, 1920, kHidden};
constexpr RowLayout kGambrelRows{860,     1560, 1200, 1920, 2280, 2640,    3000, 3360, 3750, 4470, 4110,
                                 kHidden, 1230, 1590, 3780, 890,  kHidden, 2640, 1200, 1560, 1920, 2280};

const RowLayout& LayoutOf(int roofType) {
  switch (roofType) {
    case roof::kHip:
    case roof::kBastardHip: return kHipRows;
    case roof::kBay: return kBayRows;
    case roof::kDutchHip:
    case roof::kUnequalSpanValley: return kDutchRows;
    case roof::kOctagon: return kOctagonRows;
    case roof::kBlindValley: return kBlindRows;
    case roof::kGambrel: return kGambrelRows;
    default: return kGableRows;
  }
}

// What a roof type calls its rows where it departs from the usual captions.
struct RowCaption {
  int roofType;
  std::size_t label;
  const char* caption;
};
constexpr RowCaption kCaptions[] = {
    {roof::kValley, 10, "Commn Slope:"},
    {roof::kUnequalSpanValley, 10, "Commn Slope:"},
    {roof::kHip, 10, "Main Slope:"},
    {roof::kHip, 20, "End Slope:"},
    {roof::kDutchHip, 11, "Main Run:"},
    {roof::kDutchHip, 20, "Dutch Run:"},
    {roof::kUnequalSpanValley, 20, "Main Run:"},
    {roof::kOctagon, 20, "Hip Run:"},
    {roof::kBlindValley, 10, "Addtn Slope:"},
    {roof::kBlindValley, 11, "Main Slope:"},
    {roof::kBlindValley, 12, "Addtn Span:"},
    {roof::kBlindValley, 13, "Thrtcl Ridge:"},
    {roof::kBlindValley, 14, "Actual Ridge:"},
    {roof::kGambrel, 10, "Upper Slope:"},
    {roof::kGambrel, 20, "Lower Slope:"},
    {roof::kGambrel, 11, "Upper Span:"},
    {roof::kGambrel, 12, "Lower Span:"},
    {roof::kGambrel, 13, "Upper Height:"},
    {roof::kGambrel, 14, "Lower Height:"},
    {roof::kShed, 16, "Ledger:"},
    {roof::kBay, 16, "Ledger:"},
    {roof::kUnequalSpanValley, 16, "Ridges:"},
    {roof::kOctagon, 16, "Jacks:"},
    {roof::kOctagon, 17, "Hips:"},
    {roof::kBlindValley, 17, "Jacks:"},
    {roof::kGambrel, 17, "Rafters:"},
    {roof::kDutchHip, 18, "Dutch Hip:"},
    {roof::kUnequalSpanValley, 18, "Valleys:"},
    {roof::kBlindValley, 18, "Val Plates:"},
};

/// A control of a row: shown at its top, or hidden where the roof type has no such row.
void Put(Control& control, int top) {
  control.Visible = top != kHidden;
  if (control.Visible) control.Top = top;
}

void PutLabel(LabelControl& label, int top) {
  Put(label, top);
  // The label of a row in use is never grey.
  if (label.Visible) label.Enabled = true;
}

bool HasKneewall(int roofType) {
  return roofType == roof::kGable || roofType == roof::kShed || roofType == roof::kDualSlope;
}

bool HasHipOrValleyLumber(int roofType) {
  switch (roofType) {
    case roof::kHip:
    case roof::kBastardHip:
    case roof::kValley:
    case roof::kBay:
    case roof::kDutchHip:
    case roof::kUnequalSpanValley:
    case roof::kBlindValley:
    case roof::kOctagon: return true;
    default: return false;
  }
}

void PutFields(Sheet& sheet, const RowLayout& rows, int roofType) {
  sheet.Slope[2].Visible = sheet.Degrees[2].Visible = false;
  sheet.Slope[2].Top = sheet.Degrees[2].Top = rows.slope2 == kHidden ? 860 : rows.slope2;
  Put(sheet.Span[0], rows.span0);
  Put(sheet.Span[2], rows.span2);
  Put(sheet.RidgeLength[0], rows.ridge0);
  Put(sheet.RidgeLength[1], rows.ridge1);
  Put(sheet.Overhang[0], rows.overhang);
  Put(sheet.Heel[0], rows.heel);
  Put(sheet.HeelLock[0], rows.heel);
  Put(sheet.Seat[0], rows.seat);
  Put(sheet.SeatLock[0], rows.seat);
  Put(sheet.Fascia[0], rows.fascia);
  Put(sheet.Ridge, rows.ridge);
  Put(sheet.Common[0], rows.rafter);
  Put(sheet.HipOrValley, HasHipOrValleyLumber(roofType) ? rows.hipVal : kHidden);
  const std::array<std::pair<std::size_t, int>, 6> spins{
      {{0, rows.spin0}, {1, rows.spin1}, {2, rows.spin2}, {3, rows.spin3}, {4, rows.spin4}, {7, rows.spin7}}};
  for (const auto& [index, top] : spins) Put(sheet.Spin[index], top);
}

void PutLabels(Sheet& sheet, const RowLayout& rows, int roofType) {
  const bool lastRow = HasHipOrValleyLumber(roofType) && roofType != roof::kOctagon;
  PutLabel(sheet.Label[11], rows.label11);
  int top = rows.label12;
  for (const std::size_t label : {12, 13, 14}) {
    PutLabel(sheet.Label[label], top);
    top += 360;
  }
  top = rows.label15;
  for (const std::size_t label : {15, 16, 17, 18}) {
    PutLabel(sheet.Label[label], top);
    top += 330;
  }
  PutLabel(sheet.Label[20], rows.label20);
  sheet.Label[15].Visible = rows.fascia != kHidden;
  sheet.Label[18].Visible = lastRow;
}

void PutGambrelLabels(Sheet& sheet, bool hasPurlins) {
  const RowLayout& rows = kGambrelRows;
  PutLabel(sheet.Label[14], rows.ridge1 + kLabelDrop);
  PutLabel(sheet.Label[13], rows.ridge0 + kLabelDrop);
  PutLabel(sheet.Label[0], rows.overhang + kLabelDrop);
  PutLabel(sheet.Label[6], rows.heel + kLabelDrop);
  PutLabel(sheet.Label[21], rows.seat);
  PutLabel(sheet.Label[22], rows.ridge + kLabelDrop);
  PutLabel(sheet.Label[17], rows.rafter + kLabelDrop);
  sheet.Label[16].Visible = false;
  sheet.Label[0].Caption = "Overhang:";
  sheet.Label[6].Caption = "Heel:";
  sheet.Label[21].Caption = "Seat:";
  sheet.Label[22].Caption = hasPurlins ? "Purlins:" : "Ridge:";
}

void PutKneewallRows(Sheet& sheet, int roofType) {
  const bool rows[] = {HasKneewall(roofType), roofType == roof::kDualSlope};
  for (std::size_t i = 0; i < 2; ++i) {
    sheet.Kneewall[i].Visible = rows[i];
    sheet.HasKneewall[i].Visible = rows[i];
    sheet.Label[i].Visible = rows[i];
    sheet.Label[i].Enabled = sheet.HasKneewall[i].Ticked();
  }
  sheet.Label[0].Caption = "Kneewall:";
  sheet.Label[0].Top = 3570;
}

// The rear page belongs to a dual slope alone.
void PutRearPage(Sheet& sheet, int roofType) {
  for (const AnyControl& any : sheet.Controls()) {
    Control& control = ControlOf(any);
    if (control.Host == Host::kRearPage) control.Visible = roofType == roof::kDualSlope;
  }
}

void SetUsualCaptions(Sheet& sheet) {
  constexpr std::pair<std::size_t, const char*> kUsual[] = {
      {10, "Slope:"}, {11, "Run:"},   {12, "Overhang:"}, {13, "Heel:"},
      {14, "Seat:"},  {16, "Ridge:"}, {17, "Common:"},   {18, "Hip/Val:"}};
  for (const auto& [label, caption] : kUsual) sheet.Label[label].Caption = caption;
}

}  // namespace

void LayOutRows(Sheet& sheet, int roofType, bool gambrelHasPurlins) {
  if (roofType == roof::kBastardHip) roofType = roof::kHip;
  const RowLayout& rows = LayoutOf(roofType);
  SetUsualCaptions(sheet);
  for (const std::size_t label : {6, 21, 22}) sheet.Label[label].Visible = false;
  PutFields(sheet, rows, roofType);
  PutLabels(sheet, rows, roofType);
  PutKneewallRows(sheet, roofType);
  PutRearPage(sheet, roofType);
  if (roofType == roof::kGambrel) PutGambrelLabels(sheet, gambrelHasPurlins);
  for (const RowCaption& row : kCaptions) {
    if (row.roofType == roofType) sheet.Label[row.label].Caption = row.caption;
  }
  const bool hip = roofType == roof::kHip;
  sheet.LastCommon.Visible = hip;
  sheet.HasLastCommon.Visible = hip;
  sheet.Label[23].Visible = hip;
}

bool HasSecondSlope(int roofType) { return LayoutOf(roofType).slope2 != kHidden; }

bool HasGableRows(int roofType) { return &LayoutOf(roofType) == &kGableRows; }

}  // namespace pitchcraft
