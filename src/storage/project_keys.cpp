#include "storage/project_keys.h"

#include "core/number_text.h"
#include "sheet/roof_types.h"
#include "storage/ini_file.h"

namespace pitchcraft {
namespace {

using Parts = ProjectParts;
using S = ProjectStep;

// Where a value is kept: how it is written and how it is put back.

/// The two functions for one place.
struct Place {
  std::string (*write)(const Parts&);
  void (*putBack)(const Parts&, const std::string&);
};

template <Single Rafter::*Member>
constexpr Place Front() {
  return {[](const Parts& p) { return PlainText(p.Rafter1.*Member); },
          [](const Parts& p, const std::string& text) { p.Rafter1.*Member = LeadingNumber(text); }};
}

template <Single Rafter::*Member>
constexpr Place Rear() {
  return {[](const Parts& p) { return PlainText(p.Rafter2.*Member); },
          [](const Parts& p, const std::string& text) { p.Rafter2.*Member = LeadingNumber(text); }};
}

/// The first rafter carries a bay, the second one the bay of a Dutch hip.
Rafter& BayRafter(const Parts& p) { return p.RoofType == roof::kDutchHip ? p.Rafter2 : p.Rafter1; }

template <Single Rafter::*Member, MeasureControl Sheet::*Field>
constexpr Place Bay() {
  return {[](const Parts& p) { return PlainText(BayRafter(p).*Member); },
          [](const Parts& p, const std::string& text) {
            (p.sheet.*Field).SetText(text);
            BayRafter(p).*Member = LeadingNumber(text);
          }};
}

template <auto Field>
constexpr Place TextOf() {  // of a single control
  return {[](const Parts& p) { return (p.sheet.*Field).Text(); },
          [](const Parts& p, const std::string& text) { (p.sheet.*Field).SetText(Trimmed(text)); }};
}

template <auto Fields, std::size_t Index>
constexpr Place TextOf() {  // of a control in an array
  return {[](const Parts& p) { return (p.sheet.*Fields)[Index].Text(); },
          [](const Parts& p, const std::string& text) { (p.sheet.*Fields)[Index].SetText(Trimmed(text)); }};
}

template <std::size_t Index>
constexpr Place SlopeText() {
  return {[](const Parts& p) { return p.sheet.Slope[Index].LeftText(); },
          [](const Parts& p, const std::string& text) { p.sheet.Slope[Index].SetLeftText(text); }};
}

template <auto Boxes, std::size_t Index>
constexpr Place Tick() {
  return {[](const Parts& p) -> std::string { return (p.sheet.*Boxes)[Index].Ticked() ? "1" : "0"; },
          [](const Parts& p, const std::string& text) {
            (p.sheet.*Boxes)[Index].Value = LeadingNumber(text) != 0 ? 1 : 0;
          }};
}

template <MenuItem Menus::*Item>
constexpr Place Check() {
  return {[](const Parts& p) -> std::string { return (p.menus.*Item).Checked ? "True" : "False"; }, nullptr};
}

/// The box of degrees. It also sets the rafter's slope angle, except for a gambrel, whose solver does that.
template <std::size_t Index>
constexpr Place DegreesBox() {
  return {TextOf<&Sheet::Degrees, Index>().write, [](const Parts& p, const std::string& text) {
            p.sheet.Degrees[Index].SetText(Trimmed(text));
            if (Index == 0 && p.RoofType != roof::kGambrel) p.Rafter1.degrees = LeadingNumber(text);
            if (Index == 1 && p.RoofType == roof::kDualSlope) p.Rafter2.degrees = LeadingNumber(text);
          }};
}

/// The solver of a gambrel takes the overhang from the field.
constexpr Place MainOverhang() {
  return {Front<&Rafter::Overhang>().write, [](const Parts& p, const std::string& text) {
            p.Rafter1.Overhang = LeadingNumber(text);
            if (p.RoofType == roof::kGambrel) p.sheet.Overhang[0].SetValue(p.Rafter1.Overhang);
          }};
}

constexpr Place HipEnd() {
  return {Front<&Rafter::HipEndSlope>().write, [](const Parts& p, const std::string& text) {
            p.Rafter1.HipEndSlope = LeadingNumber(text);
            p.Rafter1.HipEndDegrees = LeadingNumber(p.sheet.Degrees[2].Text());
          }};
}

constexpr Place RearSpan() {
  return {Rear<&Rafter::Span>().write, [](const Parts& p, const std::string& text) {
            p.Rafter2.Span = LeadingNumber(text);
            p.sheet.Span[2].SetValue(p.Rafter2.Span);
          }};
}

/// The projection of a Dutch hip is also the run of its common.
constexpr Place ProjectionPlace() {
  constexpr Place kPlace = Bay<&Rafter::Projection, &Sheet::Projection>();
  return {kPlace.write, [](const Parts& p, const std::string& text) {
            Bay<&Rafter::Projection, &Sheet::Projection>().putBack(p, text);
            if (p.RoofType != roof::kDutchHip) return;
            p.Rafter2.Span = LeadingNumber(text);
            p.sheet.Span[2].SetText(text);
          }};
}

constexpr Place Choice(std::string (*write)(const Parts&)) { return {write, nullptr}; }

std::string UnitsText(const Parts& p) { return p.menus.Metric.Checked ? "1" : "0"; }
std::string SlopeModeText(const Parts& p) { return p.menus.SettingsDegrees.Checked ? "1" : "0"; }
std::string RoofText(const Parts& p) { return std::to_string(ProjectRoofCode(p)); }

std::string FasciaHeightText(const Parts& p) {
  const Rafter& rafter = p.RoofType == roof::kGambrel ? p.Rafter2 : p.Rafter1;
  return PlainText(rafter.FasciaHeight);
}

std::string HipLayoutText(const Parts& p) {
  if (p.menus.HipLayoutCenter.Checked) return "Center";
  return p.menus.HipLayoutCornersFlush.Checked ? "Corner Flush" : "Corner";
}

std::string GambrelTypeText(const Parts& p) { return p.menus.GambrelRegular.Checked ? "Regular" : "Custom"; }

std::string SupportText(const Parts& p) {
  if (p.menus.GambrelPurlins.Checked) return "Purlins";
  return p.menus.GambrelWallSupportRaised.Checked ? "Wall Supported Raised" : "Wall Supported";
}

constexpr ProjectKey Row(const char* key, const char* what, const char* missing, RoofSet written,
                         RoofSet read, ProjectStep step, Place place) {
  return {key, what, missing, written, read, step, place.write, place.putBack};
}

constexpr RoofSet kAll = RoofSet::All();
constexpr RoofSet kKneewalls{roof::kGable, roof::kShed, roof::kDualSlope};
constexpr RoofSet kHip{roof::kHip};
constexpr RoofSet kAnyHip{roof::kHip, roof::kBastardHip};
constexpr RoofSet kHipEnds{roof::kHip, roof::kValley, roof::kBay, roof::kOctagon};
constexpr RoofSet kHipEndsRead{roof::kHip, roof::kValley, roof::kBay, roof::kOctagon, roof::kBastardHip};
constexpr RoofSet kTwoRoofs{roof::kDualSlope, roof::kUnequalSpanValley};
constexpr RoofSet kBays{roof::kBay, roof::kDutchHip};
constexpr RoofSet kDutch{roof::kDutchHip};
constexpr RoofSet kBlind{roof::kBlindValley};
constexpr RoofSet kGambrel{roof::kGambrel};
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
    Row("HeelLocked", "chkHeel(0): 0 or 1", "0", kAll, kAll, S::kPutBack, Tick<&Sheet::HeelLock, 0>()),
    Row("SeatLocked", "chkSeat(0): 0 or 1", "0", kAll, kAll, S::kPutBack, Tick<&Sheet::SeatLock, 0>()),
    Row("SquareCutFascia", "check mark of mnuSettingsSquareCut, True or False", "False", kAll, kAll, S::kSquareCut, Check<&Menus::SettingsSquareCut>()),
    Row("PlumbCutFascia", "check mark of mnuSettingsPlumbCut, True or False", "False", kAll, kAll, S::kPlumbCut, Check<&Menus::SettingsPlumbCut>()),
    Row("LevelCutFascia", "check mark of mnuSettingsLevelCut, True or False", "False", kAll, kAll, S::kLevelCut, Check<&Menus::SettingsLevelCut>()),
    Row("Kneewall1", "Rafter1.Kneewall", "0", kAll, kKneewalls, S::kKneewall, Front<&R::Kneewall>()),
    Row("Kneewall2", "Rafter2.Kneewall", "0", kAll, kKneewalls, S::kRearKneewall, Rear<&R::Kneewall>()),
    Row("HipLayout", "Corner, Corner Flush or Center", "Corner", kHip, kAnyHip, S::kHipLayout, Choice(HipLayoutText)),
    Row("OverhangsEqual", "True or False", "True", kHip, kAnyHip, S::kOverhangsEqual, Check<&Menus::HipLayoutOverhangsEqual>()),
    Row("JackMeasurement", "True or False", "True", kHip, kAnyHip, S::kJackMeasurement, Check<&Menus::HipLayoutJackMeasurement>()),
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

int ProjectRoofCode(const ProjectParts& parts) {
  return parts.Rafter1.RafterType == RafterType::kBastardHip ? roof::kBastardHip : parts.RoofType;
}

std::string ProjectText(const ProjectParts& parts) {
  IniWriter writer(kProjectSection);
  for (const ProjectKey& key : kKeys) {
    if (key.Written.Has(parts.RoofType)) writer.Add(key.Key, key.Write(parts));
  }
  return writer.Text();
}

}  // namespace pitchcraft
