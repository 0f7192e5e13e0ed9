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
MemberValue ValueOf(const Member& member) { return static_cast<int>(member); }

template <auto Member>
MemberValue Read(const Rafter& rafter) {
  return ValueOf(rafter.*Member);
}

constexpr RafterMember kMembers[] = {
    {"Units", [](const Rafter& rafter) -> MemberValue { return rafter.Units(); }},
    {"SlopeBase", Read<&Rafter::SlopeBase>},
    {"HipRun", Read<&Rafter::HipRun>},
    {"HipFactor", Read<&Rafter::HipFactor>},
    {"AdjSpanWithOverhang", Read<&Rafter::AdjSpanWithOverhang>},
    {"AdjHipSpanWithOverhang", Read<&Rafter::AdjHipSpanWithOverhang>},
    {"AdjValSpanWithOverhang", Read<&Rafter::AdjValSpanWithOverhang>},
    {"AdjLedgerSpanWithOverhang", Read<&Rafter::AdjLedgerSpanWithOverhang>},
    {"Rise", Read<&Rafter::Rise>},
    {"RiseWithOverhang", Read<&Rafter::RiseWithOverhang>},
    {"HipRise", Read<&Rafter::HipRise>},
    {"HipRiseWithOverhang", Read<&Rafter::HipRiseWithOverhang>},
    {"LedgerRise", Read<&Rafter::LedgerRise>},
    {"LedgerRiseWithOverhang", Read<&Rafter::LedgerRiseWithOverhang>},
    {"HipEndRise", Read<&Rafter::HipEndRise>},
    {"HipEndRiseWithOverhang", Read<&Rafter::HipEndRiseWithOverhang>},
    {"RiseToSpan", Read<&Rafter::RiseToSpan>},
    {"RiseToSpanWithOverhang", Read<&Rafter::RiseToSpanWithOverhang>},
    {"JointAngle", Read<&Rafter::JointAngle>},
    {"JointCut", Read<&Rafter::JointCut>},
    {"HipEndDrop", Read<&Rafter::HipEndDrop>},
    {"HipEndOverhangExcess", Read<&Rafter::HipEndOverhangExcess>},
    {"HipShift", Read<&Rafter::HipShift>},
    {"JointOffset", Read<&Rafter::JointOffset>},
    {"JointCutAngle", Read<&Rafter::JointCutAngle>},
    {"TopCutAngle", Read<&Rafter::TopCutAngle>},
    {"TopBevelType", Read<&Rafter::TopBevelType>},
    {"TopBevelAngle", Read<&Rafter::TopBevelAngle>},
    {"BottomBevelType", Read<&Rafter::BottomBevelType>},
    {"BottomBevelAngle", Read<&Rafter::BottomBevelAngle>},
    {"AdjFasciaHeight", Read<&Rafter::AdjFasciaHeight>},
    {"HipFasciaHeight", Read<&Rafter::HipFasciaHeight>},
    {"LedgerFasciaHeight", Read<&Rafter::LedgerFasciaHeight>},
    {"BayAngle", Read<&Rafter::BayAngle>},
    {"Back", Read<&Rafter::Back>},
    {"Face", Read<&Rafter::Face>},
    {"Projection", Read<&Rafter::Projection>},
    {"BaySide", Read<&Rafter::BaySide>},
    {"CenterLedgerSpan", Read<&Rafter::CenterLedgerSpan>},
    {"CenterLedgerLength", Read<&Rafter::CenterLedgerLength>},
    {"LedgerRunFactor", Read<&Rafter::LedgerRunFactor>},
    {"HipRunFactor", Read<&Rafter::HipRunFactor>},
    {"Name", Read<&Rafter::Name>},
    {"RafterType", Read<&Rafter::RafterType>},
    {"Slope", Read<&Rafter::Slope>},
    {"Span", Read<&Rafter::Span>},
    {"Overhang", Read<&Rafter::Overhang>},
    {"Thickness", Read<&Rafter::Thickness>},
    {"Depth", Read<&Rafter::Depth>},
    {"FasciaThickness", Read<&Rafter::FasciaThickness>},
    {"FasciaHeight", Read<&Rafter::FasciaHeight>},
    {"RidgeThickness", Read<&Rafter::RidgeThickness>},
    {"RidgeDepth", Read<&Rafter::RidgeDepth>},
    {"HipValDepth", Read<&Rafter::HipValDepth>},
    {"HipValThickness", Read<&Rafter::HipValThickness>},
    {"Heel", Read<&Rafter::Heel>},
    {"Seat", Read<&Rafter::Seat>},
    {"CommonHeel", Read<&Rafter::CommonHeel>},
    {"CommonSeat", Read<&Rafter::CommonSeat>},
    {"spacing", Read<&Rafter::spacing>},
    {"Kneewall", Read<&Rafter::Kneewall>},
    {"OverhangsEqual", Read<&Rafter::OverhangsEqual>},
    {"Pitch", Read<&Rafter::Pitch>},
    {"LedgerPitch", Read<&Rafter::LedgerPitch>},
    {"degrees", Read<&Rafter::degrees>},
    {"HipDegrees", Read<&Rafter::HipDegrees>},
    {"HipEndDegrees", Read<&Rafter::HipEndDegrees>},
    {"LedgerDegrees", Read<&Rafter::LedgerDegrees>},
    {"HipValSlope", Read<&Rafter::HipValSlope>},
    {"LedgerSlope", Read<&Rafter::LedgerSlope>},
    {"HipValSpan", Read<&Rafter::HipValSpan>},
    {"LedgerSpan", Read<&Rafter::LedgerSpan>},
    {"HipValOverhang", Read<&Rafter::HipValOverhang>},
    {"LedgerOverhang", Read<&Rafter::LedgerOverhang>},
    {"AdjSpan", Read<&Rafter::AdjSpan>},
    {"AdjHipSpan", Read<&Rafter::AdjHipSpan>},
    {"AdjValSpan", Read<&Rafter::AdjValSpan>},
    {"AdjLedgerSpan", Read<&Rafter::AdjLedgerSpan>},
    {"HipEndSpan", Read<&Rafter::HipEndSpan>},
    {"HipEndOverhang", Read<&Rafter::HipEndOverhang>},
    {"HipEndSlope", Read<&Rafter::HipEndSlope>},
    {"HipEndRidgeAllowance", Read<&Rafter::HipEndRidgeAllowance>},
    {"HipEndFasciaCut", Read<&Rafter::HipEndFasciaCut>},
    {"HipAngle1", Read<&Rafter::HipAngle1>},
    {"HipAngle2", Read<&Rafter::HipAngle2>},
    {"AdjHipEndSpan", Read<&Rafter::AdjHipEndSpan>},
    {"AdjHipEndSpanWithOverhang", Read<&Rafter::AdjHipEndSpanWithOverhang>},
    {"HipEndPlumbCut", Read<&Rafter::HipEndPlumbCut>},
    {"HipEndSeat", Read<&Rafter::HipEndSeat>},
    {"HipEndHeel", Read<&Rafter::HipEndHeel>},
    {"HipFasciaCut", Read<&Rafter::HipFasciaCut>},
    {"HipEndPitch", Read<&Rafter::HipEndPitch>},
    {"HipPitch", Read<&Rafter::HipPitch>},
    {"HipEndCommonDifference", Read<&Rafter::HipEndCommonDifference>},
    {"HipEndCommonDifference16", Read<&Rafter::HipEndCommonDifference16>},
    {"HipEndCommonDifference24", Read<&Rafter::HipEndCommonDifference24>},
    {"CommonLength1", Read<&Rafter::CommonLength1>},
    {"HipEndLength1", Read<&Rafter::HipEndLength1>},
    {"CommonLength2", Read<&Rafter::CommonLength2>},
    {"HipEndLength2", Read<&Rafter::HipEndLength2>},
    {"KneewallRise", Read<&Rafter::KneewallRise>},
    {"Length1", Read<&Rafter::Length1>},
    {"Length2", Read<&Rafter::Length2>},
    {"HipLength1", Read<&Rafter::HipLength1>},
    {"HipLength2", Read<&Rafter::HipLength2>},
    {"LedgerLength1", Read<&Rafter::LedgerLength1>},
    {"LedgerLength2", Read<&Rafter::LedgerLength2>},
    {"PlumbCut", Read<&Rafter::PlumbCut>},
    {"HipValPlumbCut", Read<&Rafter::HipValPlumbCut>},
    {"LedgerPlumbCut", Read<&Rafter::LedgerPlumbCut>},
    {"Purlins", Read<&Rafter::Purlins>},
    {"PlumbRun", Read<&Rafter::PlumbRun>},
    {"HipHeel", Read<&Rafter::HipHeel>},
    {"LedgerHeel", Read<&Rafter::LedgerHeel>},
    {"HeelLocked", Read<&Rafter::HeelLocked>},
    {"SeatLocked", Read<&Rafter::SeatLocked>},
    {"HipValSeat", Read<&Rafter::HipValSeat>},
    {"LedgerSeat", Read<&Rafter::LedgerSeat>},
    {"HipDrop", Read<&Rafter::HipDrop>},
    {"LedgerDrop", Read<&Rafter::LedgerDrop>},
    {"RidgeAllowance", Read<&Rafter::RidgeAllowance>},
    {"HipRidgeAllowance", Read<&Rafter::HipRidgeAllowance>},
    {"ValRidgeAllowance", Read<&Rafter::ValRidgeAllowance>},
    {"LedgerRidgeAllowance", Read<&Rafter::LedgerRidgeAllowance>},
    {"CommonDifference", Read<&Rafter::CommonDifference>},
    {"CommonDifference16", Read<&Rafter::CommonDifference16>},
    {"CommonDifference24", Read<&Rafter::CommonDifference24>},
    {"HipCommonDifference16", Read<&Rafter::HipCommonDifference16>},
    {"HipCommonDifference24", Read<&Rafter::HipCommonDifference24>},
    {"LedgerCommonDifference16", Read<&Rafter::LedgerCommonDifference16>},
    {"LedgerCommonDifference24", Read<&Rafter::LedgerCommonDifference24>},
};

}  // namespace

std::span<const RafterMember> RafterMembers() { return kMembers; }

}  // namespace pitchcraft
