// From a roof type to two calculated rafters, and from their results back to the sheet.
#include <cmath>

#include "core/number_text.h"
#include "document/document.h"
#include "document/rafter_copies.h"

namespace pitchcraft {
namespace {

/// Shows a result by its text in base units: the field then holds the seven digits that it was given.
void ShowResult(MeasureControl& field, double value) {
  if (std::isfinite(value)) {
    field.SetText(PlainText(value));
  } else {
    field.SetValue(value);
  }
}

}  // namespace

void Document::CalculateRoof(bool FromFile) {
  if (!CalcEnabled) return;
  constexpr const char* kProcedure = "CalculateRoof";
  Try(kProcedure, [&] { StartRoof(FromFile); });
  Try(kProcedure, [&] { SetHelpContext(); });
}

void Document::StartRoof(bool FromFile) {
  switch (RoofType) {
    case roof::kGable:
    case roof::kValley:
    case roof::kShed:
      Rafter1.RafterType =
          static_cast<RafterType>(RoofType);  // these three have one code for roof and member
      Rafter1.Calculate();
      return NamePages();
    case roof::kHip:
      Rafter1.RafterType = RafterType::kHip;
      Rafter1.Calculate();
      sheet.LastCommon.SetValue(Rafter1.HipEndSpan);
      return NamePages();
    case roof::kBastardHip: return StartBastardHip();
    case roof::kUnequalSpanValley:
      Rafter1.RafterType = RafterType::kShortValley;
      Rafter2.RafterType = RafterType::kLongValley;
      Rafter1.Calculate();  // its event calculates the long valley
      return NamePages();
    case roof::kDualSlope: StartDualSlope(FromFile); return NamePages();
    case roof::kBay:
      Rafter1.RafterType = RafterType::kBayCommon;
      return NamePages();  // a bay is computed only when its dimensions are complete
    case roof::kDutchHip: StartDutchHip(); return NamePages();
    case roof::kBlindValley:
      NamePages();
      Rafter1.RafterType = RafterType::kCommon;
      Rafter1.Calculate();
      return Draw(Drawing::kBlindValley, Rafter1);  // the event draws it on the later pages alone
    case roof::kOctagon:
      NamePages();
      Rafter1.RafterType = RafterType::kOctagonHip;
      Rafter1.HipValSpan = 0;  // so that it follows from the common run
      return Rafter1.CalculateOctagon();
    case roof::kGambrel:
      NamePages();
      Rafter1.RafterType = RafterType::kGambrelBottom;
      Rafter2.RafterType = RafterType::kGambrelTop;
      CopyLumber(Rafter1, Rafter2);
      Rafter2.Overhang = sheet.Overhang[0].Value();
      return CalculateGambrelDimensions("Heel");
    default: return;
  }
}

void Document::NamePages() {
  const RoofTypeRow* row = RoofTypeByCode(RoofType);
  if (row != nullptr) sheet.Tabs[0].SetCaption(row->Pages);
  CurrentTab = sheet.Tabs[0].Page;
}

// A bastard hip that comes from a project: from here on it is a hip whose rafter is of type 16.
void Document::StartBastardHip() {
  RoofType = roof::kHip;
  Rafter1.RafterType = RafterType::kBastardHip;
  sheet.Slope[2].SetLeftValue(Rafter1.HipEndSlope);
  sheet.Degrees[2].SetText(PlainText(Rafter1.HipEndDegrees));
  CalculateBastard();
  sheet.Tabs[0].SetCaption(kBastardHipPages);
}

// Picked from the list, the rear roof begins as a copy of the front; from a project it keeps its own values.
void Document::StartDualSlope(bool FromFile) {
  Rafter1.RafterType = RafterType::kCommon;
  Rafter2.RafterType = RafterType::kCommon;
  if (!FromFile) {
    sheet.Slope[1].SetListIndex(0);
    sheet.Degrees[1].SetListIndex(0);
    Rafter2.Slope = Rafter1.Slope;
    Rafter2.degrees = Rafter1.degrees;
    sheet.Degrees[1].SetText(PlainText(Rafter2.degrees));
    Rafter2.Span = Rafter1.Span;
    CopyLumber(Rafter1, Rafter2);
    Rafter2.Overhang = Rafter1.Overhang;
    CopyLocks(Rafter1, Rafter2);
    Rafter2.Calculate();
  }
  Rafter1.Calculate();
}

// A Dutch hip is a bay with a square corner across the whole roof end.
void Document::StartDutchHip() {
  Rafter1.RafterType = RafterType::kCommon;
  Rafter1.Calculate();
  Rafter2.RafterType = RafterType::kBayCommon;
  sheet.Projection.SetValue(sheet.Span[2].Value());
  sheet.BayAngle.SetValue(90);
  sheet.Back.SetValue(2 * Rafter1.Span);
  sheet.Face.SetValue(sheet.Back.Value());
  Rafter2.Heel = Rafter1.Heel;
  Rafter2.Seat = Rafter1.Seat;
  CopyLumber(Rafter1, Rafter2);
  CopyHipLumber(Rafter1, Rafter2);
  if (menus.DutchLedger[1].Checked) Rafter2.RidgeThickness = 0;
  Rafter2.Overhang = Rafter1.Overhang;
  Rafter2.Slope = Rafter1.Slope;
  CalculateBayDimensions();
}

void Document::Rafter1_Calculated() {
  constexpr const char* kProcedure = "Rafter1_Calculated";
  Try(kProcedure, [&] { ShowFrontRow(); });
  bool finished = false;
  Try(kProcedure, [&] { finished = ChainRafter2(); });
  if (!finished) Try(kProcedure, [&] { RedrawAfterRafter1(); });
}

void Document::ShowFrontRow() {
  if (RoofType == roof::kGambrel) {
    sheet.Heel[0].SetValue(Rafter1.Heel);
    sheet.Seat[0].SetValue(Rafter1.Seat);
    return;
  }
  ShowRow(0, Rafter1);
  sheet.Ridge.SetValues(Rafter1.RidgeThickness, Rafter1.RidgeDepth);
  sheet.HipOrValley.SetValues(Rafter1.HipValThickness, Rafter1.HipValDepth);
}

// The heel and the seat are those after the limits: this is how a person sees a clamped value.
void Document::ShowRow(std::size_t row, const Rafter& rafter) {
  sheet.Slope[row].SetValues(rafter.Slope, UnitRun);
  ShowResult(sheet.Span[row], rafter.Span);
  ShowResult(sheet.Overhang[row], rafter.Overhang);
  ShowResult(sheet.Heel[row], rafter.CommonHeel);
  ShowResult(sheet.Seat[row], rafter.CommonSeat);
  sheet.Common[row].SetValues(rafter.Thickness, rafter.Depth);
  sheet.Fascia[row].SetValues(rafter.FasciaThickness, rafter.FasciaHeight);
}

// The second rafter of a roof that has two. True when the event ends with it.
bool Document::ChainRafter2() {
  switch (RoofType) {
    case roof::kDualSlope:
      Rafter2.Calculate();  // its event draws both
      return true;
    case roof::kHip:
      if (LoadingProject == 0) sheet.Slope[2].SetValues(Rafter1.HipEndSlope, UnitRun);
      return false;
    case roof::kDutchHip:
      Rafter2.Slope = Rafter1.Slope;
      CopyLumber(Rafter1, Rafter2);
      CopyHipLumber(Rafter1, Rafter2);
      Rafter2.Heel = Rafter1.CommonHeel;
      // The heel in both: the seat of the Dutch common follows from its heel, so what stands here is only a
      // start.
      Rafter2.Seat = Rafter1.CommonHeel;
      if (!menus.DutchLedger[0].Checked) Rafter2.RidgeThickness = 0;
      Rafter2.Overhang = Rafter1.Overhang;
      CopyLocks(Rafter1, Rafter2);
      CalculateBayDimensions();
      Rafter2.CalculateBay();
      if (sheet.Tabs[0].Page == 0) Draw(Drawing::kDutchPlan, Rafter2);
      return true;
    case roof::kUnequalSpanValley:
      Rafter2.Slope = Rafter1.Slope;
      Rafter2.Span = sheet.Span[2].Value();
      CopyLumber(Rafter1, Rafter2);
      CopyHipLumber(Rafter1, Rafter2);
      Rafter2.Overhang = Rafter1.Overhang;
      CopyLocks(Rafter1, Rafter2);
      Rafter2.Heel = Rafter1.CommonHeel;
      Rafter2.Seat = Rafter1.CommonSeat;
      Rafter2.Calculate();
      return false;
    case roof::kOctagon: ShowResult(sheet.Span[2], Rafter1.HipValSpan); return false;
    default: return false;
  }
}

void Document::RedrawAfterRafter1() {
  const bool onDesignPage = sheet.Tabs[0].Page == 0;
  switch (Rafter1.RafterType) {
    case RafterType::kCommon:
    case RafterType::kHip:
    case RafterType::kValley:
    case RafterType::kShed:
      if (RoofType == roof::kBlindValley) {
        if (!onDesignPage) Draw(Drawing::kBlindValley, Rafter1);
      } else if (RoofType == roof::kHip && onDesignPage) {
        Draw(Drawing::kHipPlan, Rafter1);
      } else {
        Draw(Drawing::kRafter, Rafter1);
      }
      return;
    case RafterType::kOctagonHip:
    case RafterType::kOctagonJack: return Draw(Drawing::kOctagonPlan, Rafter1);
    case RafterType::kBayCommon:
    case RafterType::kBayHip:
    case RafterType::kBayLedger:
    case RafterType::kCenterLedger:
      if (onDesignPage) Draw(Drawing::kBayPlan, Rafter1);
      return;
    case RafterType::kShortValley: return Draw(Drawing::kUnequalSpanValley, Rafter1);
    case RafterType::kBastardHip:
      if (onDesignPage) Draw(Drawing::kHipPlan, Rafter1);
      return;
    case RafterType::kGambrelBottom: sheet.Overhang[0].SetValue(Rafter1.Overhang); return;
    default: return;
  }
}

void Document::Rafter2_Calculated() {
  constexpr const char* kProcedure = "Rafter2_Calculated";
  switch (RoofType) {
    case roof::kDualSlope:
      Try(kProcedure, [&] { ShowRow(1, Rafter2); });
      return Draw(Drawing::kSaltbox, Rafter1);
    case roof::kDutchHip: return Draw(Drawing::kDutchPlan, Rafter2);
    case roof::kUnequalSpanValley: return Draw(Drawing::kUnequalSpanValley, Rafter2);
    default: return;
  }
}

}  // namespace pitchcraft
