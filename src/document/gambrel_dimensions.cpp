// The numbers of a gambrel, kept consistent: told what was changed, the others follow.
#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

#include "core/angles.h"
#include "core/number_text.h"
#include "document/document.h"

namespace pitchcraft {
namespace {

// A regular gambrel fits a circle: 22.5 and 67.5 degrees. Its slopes are literals; the fields show them
// rounded.
struct RegularSlopes {
  double upperShown, lowerShown, upper, lower;
};
constexpr RegularSlopes kImperialSlopes{5, 29, 4.970562934875, 28.97056388855};
constexpr RegularSlopes kMetricSlopes{414, 2414, 414.213562011719, 2414.21337890625};

constexpr std::string_view kFields[] = {"LOWER SPAN",  "UPPER SPAN",  "LOWER HEIGHT", "UPPER HEIGHT",
                                        "LOWER SLOPE", "UPPER SLOPE", "HEEL",         "SEAT",
                                        "RAFTER",      "OVERHANG",    "FASCIA",       "RIDGE"};

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return upper;
}

}  // namespace

void Document::CalculateGambrelDimensions(std::string_view ChangedField) {
  constexpr const char* kProcedure = "CalculateGambrelDimensions";
  const std::string changed = UpperCase(ChangedField);
  Single upperSpan;
  Try(kProcedure, [&] {
    if (Rafter1.Heel == 0) {
      Rafter1.Overhang = 0;
      sheet.Overhang[0].SetValue(0);
    }
    if (menus.GambrelRegular.Checked) {
      upperSpan = SolveRegularGambrel(std::find(std::begin(kFields), std::end(kFields), changed) !=
                                      std::end(kFields));
    } else {
      upperSpan = SolveCustomGambrel(changed);
      SetUpperBearing();
    }
  });
  Try(kProcedure, [&] {
    if (Rafter1.Heel == 0) Rafter1.Overhang = 0;
    Rafter1.Calculate();
    Rafter2.Calculate();
    sheet.Span[2].SetValue(upperSpan);
    sheet.RidgeLength[0].SetValue(Rafter2.RiseToSpan + Rafter2.Heel);
    sheet.RidgeLength[1].SetValue(Rafter1.RiseToSpan + Rafter1.Heel);
  });
  Draw(Drawing::kGambrelPreview, Rafter1);
}

// The roof fits the circle through the ends of the overhangs and the ridge. Gives the upper span.
double Document::SolveRegularGambrel(bool knownField) {
  const RegularSlopes& slopes = Imperial() ? kImperialSlopes : kMetricSlopes;
  sheet.Slope[0].SetValues(slopes.upperShown, UnitRun);
  sheet.Slope[2].SetValues(slopes.lowerShown, UnitRun);
  Rafter2.Slope = Rafter1.HipValSlope = slopes.upper;
  Rafter1.Slope = Rafter2.HipValSlope = slopes.lower;
  sheet.Degrees[0].SetText(PlainText(22.5));
  sheet.Degrees[2].SetText(PlainText(67.5));
  Rafter1.degrees = 67.5;
  Rafter2.degrees = 22.5;
  const Single width = sheet.Span[0].Value();
  Single half;
  if (knownField) {
    const Single radius = sheet.Overhang[0].Value() + width / 2;
    half = std::sqrt(radius * radius / 2);
  }
  const Single upper = 2 * half;
  Rafter1.Span = (width - upper) / 2;
  Rafter2.Span = half;
  Rafter2.Heel = 0;
  Rafter2.Overhang = 0;
  return upper;
}

// Gives the upper span; the two runs follow from it and the whole width. Unless a lock box names another
// derived quantity, a change of the lower roof moves the upper span, and every other change the two heights.
double Document::SolveCustomGambrel(const std::string& changed) {
  Rafter2.Slope = Rafter1.HipValSlope = sheet.Slope[0].LeftValue();
  Rafter1.Slope = Rafter2.HipValSlope = sheet.Slope[2].LeftValue();
  const Single width = sheet.Span[0].Value();
  Single upper = sheet.Span[2].Value();
  const bool lowerRoof = changed == "LOWER SPAN" || changed == "LOWER HEIGHT";
  const bool lowerHeightFollows = sheet.LowerHeightLock.Ticked() && changed == "LOWER SPAN";
  const bool upperSpanFollows = sheet.UpperSpanLock.Ticked() && changed == "LOWER SLOPE";
  if (sheet.LowerSlopeLock.Ticked() && (lowerRoof || changed == "UPPER SPAN")) {
    DeriveLowerSlope(width, upper);
  } else if ((lowerRoof && !lowerHeightFollows) || upperSpanFollows) {
    upper = UpperSpanFromLowerHeight(width);
  } else if (changed == "UPPER HEIGHT" && sheet.UpperSpanLock.Ticked()) {
    upper = 2 * UnitRun * sheet.RidgeLength[0].Value() / Rafter2.Slope;
  } else if (changed == "UPPER HEIGHT" || (changed == "UPPER SPAN" && sheet.UpperSlopeLock.Ticked())) {
    DeriveUpperSlope(upper);
  } else if (changed == "UPPER SLOPE") {
    sheet.RidgeLength[0].SetValue((upper / 2) * Rafter2.Slope / UnitRun);
  }
  for (Rafter* rafter : {&Rafter1, &Rafter2}) {
    rafter->degrees = kDegreesPerRadian * std::atan(rafter->Slope / UnitRun);
  }
  Rafter1.Span = (width - upper) / 2;
  Rafter2.Span = upper / 2;
  return upper;
}

// The lower roof keeps its height and slope: what is left of the width is the upper roof's.
double Document::UpperSpanFromLowerHeight(double width) {
  const Single lowerHeight = sheet.RidgeLength[1].Value();
  Rafter1.Span = UnitRun * (lowerHeight - Rafter1.Heel) / Rafter1.Slope;
  return width - (Rafter1.Span + Rafter1.Span);
}

void Document::DeriveUpperSlope(double upperSpan) {
  Rafter2.Slope = UnitRun * sheet.RidgeLength[0].Value() / (upperSpan / 2);
  Rafter1.HipValSlope = Rafter2.Slope;
  sheet.Slope[0].SetValues(Rafter2.Slope, UnitRun);
  sheet.Degrees[0].SetText(PlainText(DegreesOfRow(0)));
}

void Document::DeriveLowerSlope(double width, double upperSpan) {
  Rafter1.Slope = UnitRun * (sheet.RidgeLength[1].Value() - Rafter1.Heel) / ((width - upperSpan) / 2);
  Rafter2.HipValSlope = Rafter1.Slope;
  sheet.Slope[2].SetValues(Rafter1.Slope, UnitRun);
  sheet.Degrees[2].SetText(PlainText(DegreesOfRow(2)));
}

// A raised wall support gives the upper rafter a heel of its fascia's plumb height; else it sits on the lower
// one.
void Document::SetUpperBearing() {
  Rafter2.Heel = 0;
  Rafter2.Overhang = 0;
  if (!menus.GambrelWallSupportRaised.Checked) return;
  const Single fascia = measures.ToValue(sheet.UpperFascia.Text());
  const Single rise = fascia * Rafter2.Slope / UnitRun;
  Rafter2.Heel = std::sqrt(fascia * fascia + rise * rise);
  const double angle = std::atan(Rafter2.Slope / UnitRun) + 1.570796326795;
  Rafter2.Overhang = std::abs(DraftingBoard::AngleDistance(angle, fascia).X);
}

void Document::FTUpperFascia_Click(int) {
  Try("FTUpperFascia_Click", [&] {
    const double height = measures.ToValue(sheet.UpperFascia.Text());
    const bool tooTall = height > Rafter1.Depth;
    if (Imperial()) {
      measures.Units = kInchesAlone;
      sheet.UpperFascia.SetText(measures.ToText(tooTall ? double{Rafter1.Depth} : height));
      measures.Units = kFeetAndInches;
    } else if (tooTall) {
      sheet.UpperFascia.SetText(PlainText(Rafter1.Depth));
    }
    CalculateGambrelDimensions("Heel");
    const int page = sheet.Tabs[0].Page;
    if (page == 1 || page == 2) Draw(Drawing::kGambrelRafter, page == 1 ? Rafter1 : Rafter2);
  });
}

// --- Menus of the gambrel
// -------------------------------------------------------------------------------------------

void Document::mnuGambrelRegular_Click(int) {
  Try("mnuGambrelRegular_Click", [&] {
    SetGambrelKind(true);
    CalculateGambrelDimensions("Heel");
  });
}

void Document::mnuGambrelCustom_Click(int) {
  Try("mnuGambrelCustom_Click", [&] {
    SetGambrelKind(false);
    if (menus.GambrelWallSupportRaised.Checked) SetGambrelSupport(GambrelSupport::kPurlins);
    CalculateGambrelDimensions("Heel");
  });
}

void Document::SetGambrelKind(bool regular) {
  sheet.UpperFasciaLabel.Visible = sheet.UpperFascia.Visible = false;
  menus.GambrelRegular.Checked = menus.PopUp2GambrelRegular.Checked = regular;
  menus.GambrelCustom.Checked = menus.PopUp2GambrelCustom.Checked = !regular;
  for (const std::size_t index : {2, 4, 7}) sheet.Spin[index].Enabled = !regular;
  sheet.Spin[3].Enabled = true;
  for (const std::size_t row : {0, 2}) {
    sheet.Slope[row].Locked = regular;
    sheet.Degrees[row].Locked = regular;
  }
  for (CheckControl* box : GambrelLocks()) box->Visible = !regular;
  // The upper roof of a regular gambrel cannot stand on raised walls: its circle leaves no room for them.
  const bool canRaise = !regular;
  menus.GambrelWallSupportRaised.Enabled = menus.PopUp2GambrelWallSupportRaised.Enabled = canRaise;
  if (regular && menus.GambrelWallSupportRaised.Checked) SetGambrelSupport(GambrelSupport::kPurlins);
}

void Document::mnuGambrelPurlins_Click(int) { ChooseGambrelSupport(GambrelSupport::kPurlins); }
void Document::mnuGambrelWallSupport_Click(int) { ChooseGambrelSupport(GambrelSupport::kWall); }
void Document::mnuGambrelWallSupportRaised_Click(int) { ChooseGambrelSupport(GambrelSupport::kRaised); }

void Document::ChooseGambrelSupport(GambrelSupport support) {
  Try("mnuGambrelPurlins_Click", [&] {
    SetGambrelSupport(support);
    CalculateGambrelDimensions("Heel");
  });
}

void Document::SetGambrelSupport(GambrelSupport support) {
  const auto check = [support](MenuItem& item, MenuItem& twin, GambrelSupport own) {
    item.Checked = twin.Checked = own == support;
  };
  check(menus.GambrelPurlins, menus.PopUp2GambrelPurlins, GambrelSupport::kPurlins);
  check(menus.GambrelWallSupport, menus.PopUp2GambrelWallSupport, GambrelSupport::kWall);
  check(menus.GambrelWallSupportRaised, menus.PopUp2GambrelWallSupportRaised, GambrelSupport::kRaised);
  Rafter1.Purlins = Rafter2.Purlins = support == GambrelSupport::kPurlins;
  const bool raised = support == GambrelSupport::kRaised;
  sheet.UpperFasciaLabel.Visible = raised;
  sheet.UpperFascia.Visible = raised;
  if (raised) sheet.UpperFascia.SetListIndex(0);
  sheet.Label[22].Caption = support == GambrelSupport::kPurlins ? "Purlins:" : "Ridge:";
}

std::array<CheckControl*, 5> Document::GambrelLocks() {
  return {&sheet.UpperSlopeLock, &sheet.LowerSlopeLock, &sheet.UpperSpanLock, &sheet.UpperHeightLock,
          &sheet.LowerHeightLock};
}

// The box that is ticked names the derived quantity: one of the five follows from the others.
void Document::GambrelLock_Click(std::size_t which) {
  const auto locks = GambrelLocks();
  const CheckControl* clicked = locks[which];
  const int others = clicked->Ticked() ? 0 : 1;
  for (CheckControl* box : locks) {
    if (box != clicked) box->Value = others;
  }
}

}  // namespace pitchcraft
