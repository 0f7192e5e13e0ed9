// The record of one rafter family: what goes in, what comes out, and the procedures between.
#pragma once

#include <string>

#include "core/record_members.h"
#include "core/single.h"
#include "core/trade.h"

namespace pitchcraft {

/// One rafter family: its design values, the member it stands for at present, and after a calculation every
/// derived length, rise, angle, allowance and text.
///
/// Lengths are in the working unit, inches (Units 0) or millimetres (any other). Nothing is converted when
/// Units changes. A slope is a rise for SlopeBase of run; angles are degrees. A calculation overwrites the
/// derived members and, where told, the inputs Heel, Seat and Overhang; members that it does not touch keep
/// their values. No input is checked: what cannot be computed is stored as an infinity or a not-a-number.
class Rafter {
 public:
  Rafter();

  /// Common, hip, valley and shed; hands over to the others for bastard hip and gambrel.
  void Calculate();

  /// A hip roof whose end has a slope of its own. Where OverhangsEqual asks for it, this is the adjusted
  /// calculation.
  void CalculateBastardHip();

  /// The same roof with one overhang all round: the end wall moves in or out, and the hip line shifts.
  void CalculateAdjustedBastardHip();

  /// One of the two rafters of a gambrel. HipValSlope holds the slope of the other one, RidgeThickness the
  /// board at the break (bottom) or at break and ridge (top).
  void CalculateGambrel();

  /// All members of a bay or of a Dutch hip end at once. A bay that lacks a dimension is left alone: no
  /// member changes.
  void CalculateBay();
  /// All four dimensions of the bay are known.
  bool HasBay() const { return Projection * Face * Back * BayAngle != 0; }

  /// Hip and longest jack of a regular octagon. Of Span and HipValSpan the one that is 0 follows from the
  /// other.
  void CalculateOctagon();

  /// A roof with an irregular plan: nothing is calculated for it.
  void CalculateIrregular();

  /// 0 is imperial, anything else metric. Sets SlopeBase, HipRun and HipFactor; calculates nothing.
  void SetUnits(int units);
  int Units() const { return units_; }

  // What the working unit gives.
  Internal<int> SlopeBase;     ///< run to which Slope is a rise: 12 or 1000
  Internal<double> HipRun;     ///< plan run of a 45-degree hip for SlopeBase of common run
  Internal<double> HipFactor;  ///< HipRun / SlopeBase

  // Public members.
  Single AdjSpanWithOverhang;        ///< AdjSpan + Overhang
  Single AdjHipSpanWithOverhang;     ///< AdjHipSpan + HipValOverhang
  Single AdjValSpanWithOverhang;     ///< AdjValSpan + HipValOverhang
  Single AdjLedgerSpanWithOverhang;  ///< AdjLedgerSpan + LedgerOverhang (bay)
  Single Rise;                       ///< rise of the common over AdjSpan
  Single RiseWithOverhang;           ///< rise of the common over AdjSpanWithOverhang
  Single HipRise;                    ///< rise of the hip over its adjusted run (bay, bastard hip)
  Single HipRiseWithOverhang;        ///< the same with the overhang
  Single LedgerRise;                 ///< rise of the ledger rafter over AdjLedgerSpan (bay)
  Single LedgerRiseWithOverhang;     ///< the same with the overhang
  Single HipEndRise;                 ///< rise of the hip end common (bastard hip)
  Single HipEndRiseWithOverhang;     ///< the same with the overhang
  Single RiseToSpan;                 ///< rise over the whole Span (gambrel)
  Single RiseToSpanWithOverhang;     ///< rise over Span + Overhang (gambrel)
  Single JointAngle;                 ///< bisector between the two slopes, degrees (gambrel)
  Single JointCut;                   ///< length of the cut at the break (gambrel)
  Single HipEndDrop;                 ///< rise of the difference in overhang on the hip end (bastard hip)
  Single HipEndOverhangExcess;  ///< Overhang less the overhang that the end slope would give (bastard hip)
  Single HipShift;              ///< plan shift of the hip line with equal overhangs (bastard hip)
  Single JointOffset;           ///< level offset of the top rafter at a purlin (gambrel)
  Single JointCutAngle;         ///< bottom cut at the break, degrees (gambrel)
  Single TopCutAngle;           ///< top cut at the break, degrees (gambrel)
  int TopBevelType = 0;         ///< kind of the bevel at the ridge; always 0
  Single TopBevelAngle;         ///< bevel at the ridge, degrees
  int BottomBevelType = 0;      ///< kind of the bevel at the tail; always 0
  Single BottomBevelAngle;      ///< bevel at the tail, degrees
  Single AdjFasciaHeight;       ///< FasciaHeight after the limits of the calculation
  Single HipFasciaHeight;       ///< fascia cut of the bay hip
  Single LedgerFasciaHeight;    ///< fascia cut of the bay ledger
  Single BayAngle;              ///< between the bay's angled side and the main wall; above 0, at most 90
  Single Back;                  ///< width of the bay at the main wall
  Single Face;                  ///< width of the bay's front
  Single Projection;            ///< how far the bay stands out: the run of its common
  Single BaySide;               ///< plan length of the angled side
  Single CenterLedgerSpan;      ///< copy of Back
  Single CenterLedgerLength;    ///< CenterLedgerSpan + 2 RidgeThickness tan(BayAngle / 2)
  Single LedgerRunFactor;       ///< ledger run for SlopeBase of common run
  Single HipRunFactor;          ///< bay hip run for SlopeBase of common run

  // Properties.
  std::string Name;                          ///< free name
  Member RafterType{};                       ///< the member this record stands for
  Single Slope;                              ///< rise for SlopeBase of run
  Single Span;                               ///< run of the common, outside of wall to ridge centre
  Single Overhang;                           ///< level overhang
  Single Thickness;                          ///< rafter lumber
  Single Depth;                              ///< rafter lumber
  Single FasciaThickness;                    ///< fascia lumber
  Single FasciaHeight;                       ///< fascia lumber
  Single RidgeThickness;                     ///< ridge board
  Single RidgeDepth;                         ///< ridge board
  Single HipValDepth;                        ///< hip or valley lumber
  Single HipValThickness;                    ///< hip or valley lumber
  Single Heel;                               ///< plumb height above the seat at the wall; in and out
  Single Seat;                               ///< level length of the seat cut; in and out
  Single CommonHeel;                         ///< Heel after the limits
  Single CommonSeat;                         ///< Seat after the limits
  Single spacing;                            ///< rafter spacing on centre
  Single Kneewall;                           ///< run from the wall to the kneewall; 0 for none
  SingleFlag OverhangsEqual;                 ///< bastard hip: same overhang on both faces
  Derived<std::string> Pitch;                ///< text of Slope: " 6/12"
  Derived<std::string> LedgerPitch;          ///< text of LedgerSlope
  Single degrees;                            ///< angle of Slope as the document gave it
  Derived<Single> HipDegrees;                ///< angle of the hip, 2 decimals
  Single HipEndDegrees;                      ///< angle of the hip end slope
  Single LedgerDegrees;                      ///< angle of the ledger slope, 2 decimals
  Single HipValSlope;                        ///< rise of hip or valley for SlopeBase of its own run
  Derived<Single> LedgerSlope;               ///< rise of the ledger rafter for SlopeBase of its own run
  Single HipValSpan;                         ///< plan run of hip or valley
  Derived<Single> LedgerSpan;                ///< plan run of the ledger rafter
  Derived<Single> HipValOverhang;            ///< plan overhang along the hip or valley
  Derived<Single> LedgerOverhang;            ///< plan overhang along the ledger rafter
  Single AdjSpan;                            ///< Span less RidgeAllowance
  Single AdjHipSpan;                         ///< HipValSpan less HipRidgeAllowance
  Derived<Single> AdjValSpan;                ///< HipValSpan less ValRidgeAllowance
  Derived<Single> AdjLedgerSpan;             ///< LedgerSpan less LedgerRidgeAllowance
  Single HipEndSpan;                         ///< run of the common on the hip end
  Single HipEndOverhang;                     ///< overhang on the hip end
  Single HipEndSlope;                        ///< slope of the hip end
  Single HipEndRidgeAllowance;               ///< ridge allowance of the hip end common
  Single HipEndFasciaCut;                    ///< fascia cut on the hip end side
  Single HipAngle1;                          ///< plan angle of the hip to the main wall, degrees
  Single HipAngle2;                          ///< plan angle of the hip to the end wall, degrees
  Single AdjHipEndSpan;                      ///< HipEndSpan less HipEndRidgeAllowance
  Single AdjHipEndSpanWithOverhang;          ///< AdjHipEndSpan + HipEndOverhang
  Internal<Single> HipEndPlumbCut;           ///< plumb depth of the hip end common
  Internal<Single> HipEndSeat;               ///< seat of the hip end common
  Internal<Single> HipEndHeel;               ///< heel of the hip end common
  Single HipFasciaCut;                       ///< fascia cut on the hip
  Derived<std::string> HipEndPitch;          ///< text of HipEndSlope
  Derived<std::string> HipPitch;             ///< text of HipValSlope
  Derived<Single> HipEndCommonDifference;    ///< hip end jack length for one unit along the wall
  Derived<Single> HipEndCommonDifference16;  ///< the same at spacing 16
  Derived<Single> HipEndCommonDifference24;  ///< the same at spacing 24
  Derived<Single> CommonLength1;             ///< common to the wall
  Derived<Single> HipEndLength1;             ///< hip end common to the wall
  Derived<Single> CommonLength2;             ///< common with overhang
  Derived<Single> HipEndLength2;             ///< hip end common with overhang
  Derived<Single> KneewallRise;              ///< rise over Kneewall
  Single Length1;                            ///< the present member to the wall
  Derived<Single> Length2;                   ///< the present member with overhang
  Derived<Single> HipLength1;                ///< bay hip to the wall
  Derived<Single> HipLength2;                ///< bay hip with overhang
  Derived<Single> LedgerLength1;             ///< bay ledger to the wall
  Derived<Single> LedgerLength2;             ///< bay ledger with overhang
  Internal<Single> PlumbCut;                 ///< plumb line through Depth at Slope
  Internal<Single> HipValPlumbCut;           ///< the same for hip or valley
  Internal<Single> LedgerPlumbCut;           ///< the same for the ledger rafter, from RidgeDepth
  Flag Purlins;                              ///< gambrel: the break carries a purlin
  Internal<Single> PlumbRun;                 ///< run of PlumbCut at Slope (gambrel)
  Derived<Single> HipHeel;                   ///< heel of hip or valley
  Single LedgerHeel;                         ///< heel of the ledger rafter
  Flag HeelLocked;                           ///< Heel is given, Seat follows
  Flag SeatLocked;                           ///< Seat is given, Heel follows
  Internal<Single> HipValSeat;               ///< seat of hip or valley
  Internal<Single> LedgerSeat;               ///< seat of the ledger rafter
  Internal<Single> HipDrop;                  ///< backing allowance of the hip
  Internal<Single> LedgerDrop;               ///< drop of the ledger rafter
  Derived<Single> RidgeAllowance;            ///< run taken off the common at the ridge
  Derived<Single> HipRidgeAllowance;         ///< run taken off the hip at the ridge
  Derived<Single> ValRidgeAllowance;         ///< run taken off the valley at the ridge
  Derived<Single> LedgerRidgeAllowance;      ///< run taken off the ledger rafter at the ridge
  Derived<Single> CommonDifference;          ///< rafter length for one unit of run
  Derived<Single> CommonDifference16;        ///< jack difference at spacing 16
  Derived<Single> CommonDifference24;        ///< jack difference at spacing 24
  Derived<Single> HipCommonDifference16;     ///< bay hip jacks at spacing 16
  Derived<Single> HipCommonDifference24;     ///< bay hip jacks at spacing 24
  Derived<Single> LedgerCommonDifference16;  ///< bay ledger jacks at spacing 16
  Derived<Single> LedgerCommonDifference24;  ///< bay ledger jacks at spacing 24

 private:
  /// The store behind a derived member: `let(AdjValSpan) = HipValSpan - ValRidgeAllowance`.
  template <typename T>
  static T& let(Derived<T>& member) {
    return member.value_;
  }
  template <typename T>
  static T& let(Internal<T>& member) {
    return member.value_;
  }

  bool IsMetric() const { return units_ != 0; }

  /// What a heel of exactly 0 does at the limits.
  enum class ZeroHeel {
    kClearsOverhang,  ///< a rafter without a heel cannot carry an overhang
    kTakesDefault,    ///< it is no heel at all, like one below 0
  };

  // Steps of Calculate, in their order.
  void TakeHipEndFromMainRoof();
  void CalculatePlumbCuts();
  void CalculateRidgeAllowances();
  void CalculateHeelAndSeat();
  void CalculateHipDropAndSeat();
  void CalculateRunsAndRises();
  void CalculateLengths();
  void CalculateJackDifferences();
  void SetBevels();

  // Steps of the two bastard hip calculations.
  void CalculateMainCommonRuns();
  void TakeNaturalHipEnd(double endRun);
  void MakeOverhangsEqual();
  void CalculateHipEndRuns();
  void CalculateBastardHipSlope(double hipRunPerRun);
  void ShiftHipForEqualOverhangs();
  void CalculateBastardHipRuns();
  void CalculateBastardHipFascia();
  void CalculateBastardHipHeels();
  void CalculateMainRises();
  void SetHipRises(double hipRise, double hipEndRise);
  void CalculateBastardHipLengths();
  void CalculateBastardJackDifferences(double endRun, double mainRun);
  void WriteBastardHipTexts();

  // Steps of CalculateGambrel.
  void CalculateGambrelBottomJoint();
  void CalculateGambrelTopJoint();
  void CalculateGambrelRunsAndLengths();

  // Steps of CalculateBay.
  void CalculateBaySlopes();
  void CalculateBayAllowancesAndDrops();
  void CalculateBayHeel();
  void CalculateBayHip();
  void CalculateBayLedger();
  void CalculateBayRuns();
  void CalculateBayRisesAndLengths();
  void CalculateBayJackDifferences();
  void WriteBayTexts();

  // Steps of CalculateOctagon.
  void CalculateOctagonRuns();
  void CalculateOctagonHip(double hipRunPerRun);
  void CalculateOctagonFascia();
  void CalculateOctagonDropAndSeat();
  void CalculateOctagonLengths();
  void CalculateOctagonJackDifferences();

  // What the calculations share.
  /// The share of the plumb depth that stays above the seat cut: seven digits, not an exact two thirds.
  static constexpr double kDefaultHeelShare = 0.6666667;

  /// Plumb depth of lumber at a slope: stored as a Single after the division and again after the root.
  static Single PlumbDepth(double slope, double depth, double run);
  /// Lowers a height to a limit that it exceeds.
  static void LimitTo(Single& height, double limit);
  /// Rise at the main slope over a run.
  double RiseOver(double run) const { return Slope * run / SlopeBase; }
  /// Angle of a slope in degrees, 2 decimals.
  double RoundedDegrees(double slope) const;
  /// Seat that leaves `heel` of `plumbCut` above it at a slope.
  double SeatBelow(double plumbCut, double heel, double slope) const {
    return (plumbCut - heel) * SlopeBase / slope;
  }
  double SeatBelowHeel() const { return SeatBelow(PlumbCut, Heel, Slope); }
  /// Heel and Seat by the locks; unlocked, the heel takes `share` of the plumb depth.
  void ApplyLocks(bool heelLocked, bool seatLocked, double share);
  /// Brings Heel between 0 and the plumb depth and copies Heel and Seat to CommonHeel and CommonSeat.
  void LimitHeel(double share, ZeroHeel zeroHeel);
  /// Without an overhang there is no wood in front of the wall that a taller fascia could be nailed to.
  void LimitFasciaWithoutOverhang();

  double WholeInMetric(double slope) const;
  /// Ends a slope's text: "/12".
  std::string PerSlopeBase(const std::string& text) const;
  /// A slope's text cut for a hip: two decimals of an ordinary slope. It is cut, never rounded up past the
  /// saw.
  static std::string CutText(const std::string& text, double slope);
  std::string PitchText(double slope) const;
  std::string HipPitchText() const;
  int units_ = 0;
};

}  // namespace pitchcraft
