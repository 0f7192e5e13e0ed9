#include "storage/project_keys.h"

#include "core/number_text.h"
#include "design/questions.h"
#include "storage/ini_file.h"

namespace pitchcraft {
namespace {

using S = ProjectStep;

// Where a value is kept: how it is written and how it is put back.

/// The two functions for one place.
struct Place {
  std::string (*write)(const Design&);
  void (*putBack)(Design&, const std::string&);
};

template <Single Rafter::*Member>
constexpr Place Front() {
  return {[](const Design& p) { return PlainText(p.Rafter1.*Member); },
          [](Design& p, const std::string& text) { p.Rafter1.*Member = LeadingNumber(text); }};
}

template <Single Rafter::*Member>
constexpr Place Rear() {
  return {[](const Design& p) { return PlainText(p.Rafter2.*Member); },
          [](Design& p, const std::string& text) { p.Rafter2.*Member = LeadingNumber(text); }};
}

/// A bay is carried by the first rafter, the bay of a Dutch hip by the second.
template <typename DesignType>
auto& BayRafter(DesignType& p) {
  return p.RoofType == Roof::kDutchHip ? p.Rafter2 : p.Rafter1;
}

template <Single Rafter::*Member, MeasureControl Sheet::*Field>
constexpr Place Bay() {
  return {[](const Design& p) { return PlainText(BayRafter(p).*Member); },
          [](Design& p, const std::string& text) {
            (p.sheet.*Field).SetText(text);
            BayRafter(p).*Member = LeadingNumber(text);
          }};
}

template <auto Field>
constexpr Place TextOf() {  // of a single control
  return {[](const Design& p) { return (p.sheet.*Field).Text(); },
          [](Design& p, const std::string& text) { (p.sheet.*Field).SetText(Trimmed(text)); }};
}

template <auto Fields, std::size_t Index>
constexpr Place TextOf() {  // of a control in an array
  return {[](const Design& p) { return (p.sheet.*Fields)[Index].Text(); },
          [](Design& p, const std::string& text) { (p.sheet.*Fields)[Index].SetText(Trimmed(text)); }};
}

template <std::size_t Index>
constexpr Place SlopeText() {
  return {[](const Design& p) { return p.sheet.Slope[Index].LeftText(); },
          [](Design& p, const std::string& text) { p.sheet.Slope[Index].SetLeftText(text); }};
}

template <auto Boxes, std::size_t Index>
constexpr Place Tick() {
  return {[](const Design& p) -> std::string { return (p.sheet.*Boxes)[Index].Ticked() ? "1" : "0"; },
          [](Design& p, const std::string& text) {
            (p.sheet.*Boxes)[Index].Value = LeadingNumber(text) != 0 ? 1 : 0;
          }};
}

/// The box of degrees. The slope of a rafter knows its angle from there, but for a gambrel, whose solver
/// gives it.
template <std::size_t Index>
constexpr Place DegreesBox() {
  return {TextOf<&Sheet::Degrees, Index>().write, [](Design& p, const std::string& text) {
            p.sheet.Degrees[Index].SetText(Trimmed(text));
            if (Index == 0 && p.RoofType != Roof::kGambrel) p.Rafter1.degrees = LeadingNumber(text);
            if (Index == 1 && p.RoofType == Roof::kDualSlope) p.Rafter2.degrees = LeadingNumber(text);
          }};
}

/// The solver of a gambrel takes the overhang from the field.
constexpr Place MainOverhang() {
  return {Front<&Rafter::Overhang>().write, [](Design& p, const std::string& text) {
            p.Rafter1.Overhang = LeadingNumber(text);
            if (p.RoofType == Roof::kGambrel) p.sheet.Overhang[0].SetValue(p.Rafter1.Overhang);
          }};
}

constexpr Place HipEnd() {
  return {Front<&Rafter::HipEndSlope>().write, [](Design& p, const std::string& text) {
            p.Rafter1.HipEndSlope = LeadingNumber(text);
            p.Rafter1.HipEndDegrees = LeadingNumber(p.sheet.Degrees[2].Text());
          }};
}

constexpr Place RearSpan() {
  return {Rear<&Rafter::Span>().write, [](Design& p, const std::string& text) {
            p.Rafter2.Span = LeadingNumber(text);
            p.sheet.Span[2].SetValue(p.Rafter2.Span);
          }};
}

/// The projection of a Dutch hip is also the run of its common.
constexpr Place ProjectionPlace() {
  constexpr Place kPlace = Bay<&Rafter::Projection, &Sheet::Projection>();
  return {kPlace.write, [](Design& p, const std::string& text) {
            Bay<&Rafter::Projection, &Sheet::Projection>().putBack(p, text);
            if (p.RoofType != Roof::kDutchHip) return;
            p.Rafter2.Span = LeadingNumber(text);
            p.sheet.Span[2].SetText(text);
          }};
}

constexpr Place Choice(std::string (*write)(const Design&)) { return {write, nullptr}; }

std::string TrueOrFalse(bool on) { return on ? "True" : "False"; }

std::string UnitsText(const Design& p) { return p.Metric ? "1" : "0"; }
std::string SlopeModeText(const Design& p) { return p.InDegrees ? "1" : "0"; }
std::string RoofText(const Design& p) { return PlainText(static_cast<int>(RoofKind(p))); }
std::string OverhangsEqualText(const Design& p) { return TrueOrFalse(p.OverhangsEqual); }
std::string JackMeasurementText(const Design& p) { return TrueOrFalse(p.JacksWithOverhang); }

template <FasciaCut Cut>
constexpr Place CutText() {
  return {[](const Design& p) { return TrueOrFalse(p.Cut == Cut); }, nullptr};
}

std::string FasciaHeightText(const Design& p) {
  const Rafter& rafter = p.RoofType == Roof::kGambrel ? p.Rafter2 : p.Rafter1;
  return PlainText(rafter.FasciaHeight);
}

std::string HipLayoutText(const Design& p) {
  switch (p.Layout) {
    case JackLayout::kCenter: return "Center";
    case JackLayout::kCornersFlush: return "Corner Flush";
    case JackLayout::kCorners: break;
  }
  return "Corner";
}

std::string GambrelTypeText(const Design& p) {
  return p.Gambrel == GambrelKind::kRegular ? "Regular" : "Custom";
}

std::string SupportText(const Design& p) {
  switch (p.Support) {
    case GambrelSupport::kPurlins: return "Purlins";
    case GambrelSupport::kRaisedWall: return "Wall Supported Raised";
    case GambrelSupport::kWall: break;
  }
  return "Wall Supported";
}

constexpr ProjectKey Row(const char* key, const char* what, const char* missing, RoofSet written,
                         RoofSet read, ProjectStep step, Place place) {
  return {key, what, missing, written, read, step, place.write, place.putBack};
}

constexpr RoofSet kAll = RoofSet::All();
constexpr RoofSet kKneewalls{Roof::kGable, Roof::kShed, Roof::kDualSlope};
constexpr RoofSet kHip{Roof::kHip};
constexpr RoofSet kAnyHip{Roof::kHip, Roof::kBastardHip};
constexpr RoofSet kHipEnds{Roof::kHip, Roof::kValley, Roof::kBay, Roof::kOctagon};
constexpr RoofSet kHipEndsRead{Roof::kHip, Roof::kValley, Roof::kBay, Roof::kOctagon, Roof::kBastardHip};
constexpr RoofSet kTwoRoofs{Roof::kDualSlope, Roof::kUnequalSpanValley};
constexpr RoofSet kBays{Roof::kBay, Roof::kDutchHip};
constexpr RoofSet kDutch{Roof::kDutchHip};
constexpr RoofSet kBlind{Roof::kBlindValley};
constexpr RoofSet kGambrel{Roof::kGambrel};
constexpr RoofSet kNone{};

using R = Rafter;

// clang-format off
constexpr ProjectKey kKeys[] = {
    // key, what it holds, default, written for, read for, how it is read, where it is kept
    Row("Units", "0 imperial, 1 metric", "0", kAll, kAll, S::kUnits, Choice(UnitsText)),
    Row("Degrees", "1 if slopes are entered in degrees, otherwise 0", "0", kAll, kAll, S::kSlopeMode, Choice(SlopeModeText)),
    Row("Degrees0", "text of cboDegrees(0)", "", kAll, kAll, S::kPutBackTwice, DegreesBox<0>()),
    Row("Degrees1", "text of cboDegrees(1)", "", kAll, kAll, S::kPutBackTwice, DegreesBox<1>()),
    Row("Degrees2", "text of cboDegrees(2)", "", kAll, kAll, S::kPutBackTwice, DegreesBox<2>()),
    Row("RafterType", "the roof's number", "0", kAll, kAll, S::kRafterType, Choice(RoofText)),
    Row("Slope", "Rafter1.Slope", "1", kAll, kAll, S::kPutBackTwice, Front<&R::Slope>()),
    Row("Span", "Rafter1.Span", "144", kAll, kAll, S::kPutBackTwice, Front<&R::Span>()),
    Row("Overhang", "Rafter1.Overhang", "6", kAll, kAll, S::kPutBackTwice, MainOverhang()),
    Row("Heel", "Rafter1.Heel", "0", kAll, kAll, S::kPutBackTwice, Front<&R::Heel>()),
    Row("Seat", "Rafter1.Seat", "0", kAll, kAll, S::kPutBackTwice, Front<&R::Seat>()),
    Row("FasciaThickness", "Rafter1.FasciaThickness", "1.5", kAll, kAll, S::kPutBackTwice, Front<&R::FasciaThickness>()),
    Row("FasciaHeight", "Rafter1.FasciaHeight; for a gambrel, Rafter2.FasciaHeight", "5.5", kAll, kAll, S::kPutBackTwice, {FasciaHeightText, Front<&R::FasciaHeight>().putBack}),
    Row("RidgeThickness", "Rafter1.RidgeThickness", "1.5", kAll, kAll, S::kPutBackTwice, Front<&R::RidgeThickness>()),
    Row("RidgeDepth", "Rafter1.RidgeDepth", "5.5", kAll, kAll, S::kPutBackTwice, Front<&R::RidgeDepth>()),
    Row("Thickness", "Rafter1.Thickness", "1.5", kAll, kAll, S::kPutBackTwice, Front<&R::Thickness>()),
    Row("Depth", "Rafter1.Depth", "5.5", kAll, kAll, S::kPutBackTwice, Front<&R::Depth>()),
    Row("HipValThickness", "Rafter1.HipValThickness", "1.5", kAll, kAll, S::kPutBackTwice, Front<&R::HipValThickness>()),
    Row("HipValDepth", "Rafter1.HipValDepth", "5.5", kAll, kAll, S::kPutBackTwice, Front<&R::HipValDepth>()),
    Row("HeelLocked", "chkHeel(0), 0 or 1", "0", kAll, kAll, S::kPutBack, Tick<&Sheet::HeelLock, 0>()),
    Row("SeatLocked", "chkSeat(0), 0 or 1", "0", kAll, kAll, S::kPutBack, Tick<&Sheet::SeatLock, 0>()),
    Row("SquareCutFascia", "check of mnuSettingsSquareCut, True or False", "False", kAll, kAll, S::kSquareCut, CutText<FasciaCut::kSquare>()),
    Row("PlumbCutFascia", "check of mnuSettingsPlumbCut, True or False", "False", kAll, kAll, S::kPlumbCut, CutText<FasciaCut::kPlumb>()),
    Row("LevelCutFascia", "check of mnuSettingsLevelCut, True or False", "False", kAll, kAll, S::kLevelCut, CutText<FasciaCut::kLevel>()),
    Row("Kneewall1", "Rafter1.Kneewall", "0", kAll, kKneewalls, S::kKneewall, Front<&R::Kneewall>()),
    Row("Kneewall2", "Rafter2.Kneewall", "0", kAll, kKneewalls, S::kRearKneewall, Rear<&R::Kneewall>()),
    Row("HipLayout", "Corner, Corner Flush or Center", "Corner", kHip, kAnyHip, S::kHipLayout, Choice(HipLayoutText)),
    Row("OverhangsEqual", "True or False", "True", kHip, kAnyHip, S::kOverhangsEqual, Choice(OverhangsEqualText)),
    Row("JackMeasurement", "True or False", "True", kHip, kAnyHip, S::kJackMeasurement, Choice(JackMeasurementText)),
    Row("HipEndSlope", "Rafter1.HipEndSlope", "1", kHipEnds, kHipEndsRead, S::kPutBackTwice, HipEnd()),
    Row("Spacing", "text of cboSpacing", "16\"", kHipEnds, kHipEndsRead, S::kSpacing, TextOf<&Sheet::Spacing>()),
    Row("Slope2", "Rafter2.Slope", "1", kTwoRoofs, kTwoRoofs, S::kPutBackTwice, Rear<&R::Slope>()),
    Row("Span2", "Rafter2.Span", "144", kTwoRoofs, kTwoRoofs, S::kPutBackTwice, RearSpan()),
    Row("Overhang2", "Rafter2.Overhang", "6", kTwoRoofs, kTwoRoofs, S::kPutBackTwice, Rear<&R::Overhang>()),
    Row("Heel2", "Rafter2.Heel", "0", kTwoRoofs, kTwoRoofs, S::kPutBackTwice, Rear<&R::Heel>()),
    Row("Seat2", "Rafter2.Seat", "0", kTwoRoofs, kTwoRoofs, S::kPutBackTwice, Rear<&R::Seat>()),
    Row("FasciaThickness2", "Rafter2.FasciaThickness", "1.5", kTwoRoofs, kTwoRoofs, S::kPutBackTwice, Rear<&R::FasciaThickness>()),
    Row("FasciaHeight2", "Rafter2.FasciaHeight", "5.5", kTwoRoofs, kTwoRoofs, S::kPutBackTwice, Rear<&R::FasciaHeight>()),
    Row("Thickness2", "Rafter2.Thickness", "1.5", kTwoRoofs, kTwoRoofs, S::kPutBackTwice, Rear<&R::Thickness>()),
    Row("Depth2", "Rafter2.Depth", "5.5", kTwoRoofs, kTwoRoofs, S::kPutBackTwice, Rear<&R::Depth>()),
    Row("HeelLocked2", "chkHeel(1): 0 or 1", "0", kTwoRoofs, kTwoRoofs, S::kPutBack, Tick<&Sheet::HeelLock, 1>()),
    Row("SeatLocked2", "chkSeat(1): 0 or 1", "0", kTwoRoofs, kTwoRoofs, S::kPutBack, Tick<&Sheet::SeatLock, 1>()),
    Row("Projection", "Rafter1.Projection; for a Dutch hip, Rafter2.Projection", "24", kBays, kBays, S::kBay, ProjectionPlace()),
    Row("Face", "Rafter1.Face; for a Dutch hip, Rafter2.Face", "48", kBays, kBays, S::kBay, Bay<&R::Face, &Sheet::Face>()),
    Row("Back", "Rafter1.Back; for a Dutch hip, Rafter2.Back", "96", kBays, kBays, S::kBay, Bay<&R::Back, &Sheet::Back>()),
    Row("BayAngle", "Rafter1.BayAngle; for a Dutch hip, Rafter2.BayAngle", "45", kBays, kBays, S::kBay, Bay<&R::BayAngle, &Sheet::BayAngle>()),
    Row("Span2", "Rafter2.Span", "", kDutch, kNone, S::kPutBack, Rear<&R::Span>()),
    Row("Slope2", "left text of LWSlope(2)", "45", kBlind, kBlind, S::kPutBack, SlopeText<2>()),
    Row("Span2", "text of FtSpan(2)", "144", kBlind, kBlind, S::kPutBack, TextOf<&Sheet::Span, 2>()),
    Row("GambrelType", "Regular or Custom", "Regular", kGambrel, kGambrel, S::kGambrelType, Choice(GambrelTypeText)),
    Row("Purlins", "Purlins, Wall Supported or Wall Supported Raised", "Purlins", kGambrel, kGambrel, S::kSupport, Choice(SupportText)),
    Row("UpperSlope", "left text of LWSlope(0)", "5", kGambrel, kGambrel, S::kPutBack, SlopeText<0>()),
    Row("LowerSlope", "left text of LWSlope(2)", "29", kGambrel, kGambrel, S::kPutBack, SlopeText<2>()),
    Row("UpperSpan", "text of FtSpan(2)", "120", kGambrel, kGambrel, S::kPutBack, TextOf<&Sheet::Span, 2>()),
    Row("LowerSpan", "text of FtSpan(0)", "144", kGambrel, kGambrel, S::kPutBack, TextOf<&Sheet::Span, 0>()),
    Row("UpperHeight", "text of FtRidge(0)", "", kGambrel, kGambrel, S::kPutBack, TextOf<&Sheet::RidgeLength, 0>()),
    Row("LowerHeight", "text of FtRidge(1)", "", kGambrel, kGambrel, S::kPutBack, TextOf<&Sheet::RidgeLength, 1>()),
    Row("UpperFascia", "text of FTUpperFascia", "", kGambrel, kGambrel, S::kPutBack, TextOf<&Sheet::UpperFascia>()),
};
// clang-format on

}  // namespace

std::span<const ProjectKey> ProjectKeys() { return kKeys; }

std::string ProjectText(const Design& design) {
  IniWriter writer(kProjectSection);
  for (const ProjectKey& key : kKeys) {
    if (key.Written.Has(design.RoofType)) writer.Add(key.Key, key.Write(design));
  }
  return writer.Text();
}

}  // namespace pitchcraft
