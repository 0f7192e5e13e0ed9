#include "core/rafter_members.h"

namespace pitchcraft {
namespace {

template <typename T>
MemberValue ValueOf(const T& member) {
  return member;
}
template <typename T>
MemberValue ValueOf(const Derived<T>& member) {
  return member.Stored();
}
template <typename T>
MemberValue ValueOf(const Internal<T>& member) {
  return member.Stored();
}
MemberValue ValueOf(const Flag& member) { return static_cast<bool>(member); }
MemberValue ValueOf(const SingleFlag& member) { return static_cast<bool>(member); }
MemberValue ValueOf(const RafterType& member) { return static_cast<int>(member); }

template <auto Member>
MemberValue Read(const CRafter& rafter) {
  return ValueOf(rafter.*Member);
}

constexpr RafterMember kMembers[] = {
    {"Units", [](const CRafter& rafter) -> MemberValue { return rafter.Units(); }},
    {"SlopeBase", Read<&CRafter::SlopeBase>},
    {"HipRun", Read<&CRafter::HipRun>},
    {"HipFactor", Read<&CRafter::HipFactor>},
    {"AdjSpanWithOverhang", Read<&CRafter::AdjSpanWithOverhang>},
    {"AdjHipSpanWithOverhang", Read<&CRafter::AdjHipSpanWithOverhang>},
    {"AdjValSpanWithOverhang", Read<&CRafter::AdjValSpanWithOverhang>},
    {"AdjLedgerSpanWithOverhang", Read<&CRafter::AdjLedgerSpanWithOverhang>},
    {"Rise", Read<&CRafter::Rise>},
    {"RiseWithOverhang", Read<&CRafter::RiseWithOverhang>},
    {"HipRise", Read<&CRafter::HipRise>},
    {"HipRiseWithOverhang", Read<&CRafter::HipRiseWithOverhang>},
    {"LedgerRise", Read<&CRafter::LedgerRise>},
    {"LedgerRiseWithOverhang", Read<&CRafter::LedgerRiseWithOverhang>},
    {"HipEndRise", Read<&CRafter::HipEndRise>},
    {"HipEndRiseWithOverhang", Read<&CRafter::HipEndRiseWithOverhang>},
    {"RiseToSpan", Read<&CRafter::RiseToSpan>},
    {"RiseToSpanWithOverhang", Read<&CRafter::RiseToSpanWithOverhang>},
    {"JointAngle", Read<&CRafter::JointAngle>},
    {"JointCut", Read<&CRafter::JointCut>},
    {"HipEndDrop", Read<&CRafter::HipEndDrop>},
    {"HipEndOverhangExcess", Read<&CRafter::HipEndOverhangExcess>},
    {"HipShift", Read<&CRafter::HipShift>},
    {"JointOffset", Read<&CRafter::JointOffset>},
    {"JointCutAngle", Read<&CRafter::JointCutAngle>},
    {"TopCutAngle", Read<&CRafter::TopCutAngle>},
    {"TopBevelType", Read<&CRafter::TopBevelType>},
    {"TopBevelAngle", Read<&CRafter::TopBevelAngle>},
    {"BottomBevelType", Read<&CRafter::BottomBevelType>},
    {"BottomBevelAngle", Read<&CRafter::BottomBevelAngle>},
    {"AdjFasciaHeight", Read<&CRafter::AdjFasciaHeight>},
    {"HipFasciaHeight", Read<&CRafter::HipFasciaHeight>},
    {"LedgerFasciaHeight", Read<&CRafter::LedgerFasciaHeight>},
    {"BayAngle", Read<&CRafter::BayAngle>},
    {"Back", Read<&CRafter::Back>},
    {"Face", Read<&CRafter::Face>},
    {"Projection", Read<&CRafter::Projection>},
    {"BaySide", Read<&CRafter::BaySide>},
    {"CenterLedgerSpan", Read<&CRafter::CenterLedgerSpan>},
    {"CenterLedgerLength", Read<&CRafter::CenterLedgerLength>},
    {"LedgerRunFactor", Read<&CRafter::LedgerRunFactor>},
    {"HipRunFactor", Read<&CRafter::HipRunFactor>},
    {"Name", Read<&CRafter::Name>},
    {"RafterType", Read<&CRafter::RafterType>},
    {"Slope", Read<&CRafter::Slope>},
    {"Span", Read<&CRafter::Span>},
    {"Overhang", Read<&CRafter::Overhang>},
    {"Thickness", Read<&CRafter::Thickness>},
    {"Depth", Read<&CRafter::Depth>},
    {"FasciaThickness", Read<&CRafter::FasciaThickness>},
    {"FasciaHeight", Read<&CRafter::FasciaHeight>},
    {"RidgeThickness", Read<&CRafter::RidgeThickness>},
    {"RidgeDepth", Read<&CRafter::RidgeDepth>},
    {"HipValDepth", Read<&CRafter::HipValDepth>},
    {"HipValThickness", Read<&CRafter::HipValThickness>},
    {"Heel", Read<&CRafter::Heel>},
    {"Seat", Read<&CRafter::Seat>},
    {"CommonHeel", Read<&CRafter::CommonHeel>},
    {"CommonSeat", Read<&CRafter::CommonSeat>},
    {"spacing", Read<&CRafter::spacing>},
    {"Kneewall", Read<&CRafter::Kneewall>},
    {"OverhangsEqual", Read<&CRafter::OverhangsEqual>},
    {"Pitch", Read<&CRafter::Pitch>},
    {"LedgerPitch", Read<&CRafter::LedgerPitch>},
    {"degrees", Read<&CRafter::degrees>},
    {"HipDegrees", Read<&CRafter::HipDegrees>},
    {"HipEndDegrees", Read<&CRafter::HipEndDegrees>},
    {"LedgerDegrees", Read<&CRafter::LedgerDegrees>},
    {"HipValSlope", Read<&CRafter::HipValSlope>},
    {"LedgerSlope", Read<&CRafter::LedgerSlope>},
    {"HipValSpan", Read<&CRafter::HipValSpan>},
    {"LedgerSpan", Read<&CRafter::LedgerSpan>},
    {"HipValOverhang", Read<&CRafter::HipValOverhang>},
    {"LedgerOverhang", Read<&CRafter::LedgerOverhang>},
    {"AdjSpan", Read<&CRafter::AdjSpan>},
    {"AdjHipSpan", Read<&CRafter::AdjHipSpan>},
    {"AdjValSpan", Read<&CRafter::AdjValSpan>},
    {"AdjLedgerSpan", Read<&CRafter::AdjLedgerSpan>},
    {"HipEndSpan", Read<&CRafter::HipEndSpan>},
    {"HipEndOverhang", Read<&CRafter::HipEndOverhang>},
    {"HipEndSlope", Read<&CRafter::HipEndSlope>},
    {"HipEndRidgeAllowance", Read<&CRafter::HipEndRidgeAllowance>},
    {"HipEndFasciaCut", Read<&CRafter::HipEndFasciaCut>},
    {"HipAngle1", Read<&CRafter::HipAngle1>},
    {"HipAngle2", Read<&CRafter::HipAngle2>},
    {"AdjHipEndSpan", Read<&CRafter::AdjHipEndSpan>},
    {"AdjHipEndSpanWithOverhang", Read<&CRafter::AdjHipEndSpanWithOverhang>},
    {"HipEndPlumbCut", Read<&CRafter::HipEndPlumbCut>},
    {"HipEndSeat", Read<&CRafter::HipEndSeat>},
    {"HipEndHeel", Read<&CRafter::HipEndHeel>},
    {"HipFasciaCut", Read<&CRafter::HipFasciaCut>},
    {"HipEndPitch", Read<&CRafter::HipEndPitch>},
    {"HipPitch", Read<&CRafter::HipPitch>},
    {"HipEndCommonDifference", Read<&CRafter::HipEndCommonDifference>},
    {"HipEndCommonDifference16", Read<&CRafter::HipEndCommonDifference16>},
    {"HipEndCommonDifference24", Read<&CRafter::HipEndCommonDifference24>},
    {"CommonLength1", Read<&CRafter::CommonLength1>},
    {"HipEndLength1", Read<&CRafter::HipEndLength1>},
    {"CommonLength2", Read<&CRafter::CommonLength2>},
    {"HipEndLength2", Read<&CRafter::HipEndLength2>},
    {"KneewallRise", Read<&CRafter::KneewallRise>},
    {"Length1", Read<&CRafter::Length1>},
    {"Length2", Read<&CRafter::Length2>},
    {"HipLength1", Read<&CRafter::HipLength1>},
    {"HipLength2", Read<&CRafter::HipLength2>},
    {"LedgerLength1", Read<&CRafter::LedgerLength1>},
    {"LedgerLength2", Read<&CRafter::LedgerLength2>},
    {"PlumbCut", Read<&CRafter::PlumbCut>},
    {"HipValPlumbCut", Read<&CRafter::HipValPlumbCut>},
    {"LedgerPlumbCut", Read<&CRafter::LedgerPlumbCut>},
    {"Purlins", Read<&CRafter::Purlins>},
    {"PlumbRun", Read<&CRafter::PlumbRun>},
    {"HipHeel", Read<&CRafter::HipHeel>},
    {"LedgerHeel", Read<&CRafter::LedgerHeel>},
    {"HeelLocked", Read<&CRafter::HeelLocked>},
    {"SeatLocked", Read<&CRafter::SeatLocked>},
    {"HipValSeat", Read<&CRafter::HipValSeat>},
    {"LedgerSeat", Read<&CRafter::LedgerSeat>},
    {"HipDrop", Read<&CRafter::HipDrop>},
    {"LedgerDrop", Read<&CRafter::LedgerDrop>},
    {"RidgeAllowance", Read<&CRafter::RidgeAllowance>},
    {"HipRidgeAllowance", Read<&CRafter::HipRidgeAllowance>},
    {"ValRidgeAllowance", Read<&CRafter::ValRidgeAllowance>},
    {"LedgerRidgeAllowance", Read<&CRafter::LedgerRidgeAllowance>},
    {"CommonDifference", Read<&CRafter::CommonDifference>},
    {"CommonDifference16", Read<&CRafter::CommonDifference16>},
    {"CommonDifference24", Read<&CRafter::CommonDifference24>},
    {"HipCommonDifference16", Read<&CRafter::HipCommonDifference16>},
    {"HipCommonDifference24", Read<&CRafter::HipCommonDifference24>},
    {"LedgerCommonDifference16", Read<&CRafter::LedgerCommonDifference16>},
    {"LedgerCommonDifference24", Read<&CRafter::LedgerCommonDifference24>},
};

}  // namespace

std::span<const RafterMember> RafterMembers() { return kMembers; }

}  // namespace pitchcraft
