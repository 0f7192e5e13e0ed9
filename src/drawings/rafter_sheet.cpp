// The print of one rafter: which measure goes into which column.
#include "drawings/rafter_sheet.h"

#include "drawings/rafter_elevation.h"

namespace pitchcraft {
namespace {

enum class SheetFamily { kCommon, kHip, kValley };

SheetFamily FamilyOf(Member type) {
  if (type == Member::kHip) return SheetFamily::kHip;
  return IsValley(type) ? SheetFamily::kValley : SheetFamily::kCommon;
}

struct TitleRow {
  Roof RoofType;
  Member Type;
  const char* Title;
};

// A roof with two rafters of one type has a row for each; the front roof's comes first.
constexpr TitleRow kTitles[] = {
    {Roof::kGable, Member::kCommon, "Gable Roof - Common Rafter"},
    {Roof::kShed, Member::kShed, "Shed Roof - Rafter"},
    {Roof::kHip, Member::kCommon, "Hip Roof - Common Rafter"},
    {Roof::kHip, Member::kHip, "Hip Roof - Hip Rafter"},
    {Roof::kValley, Member::kValley, "Valley - Valley Rafter"},
    {Roof::kDualSlope, Member::kCommon, "Dual Slope Roof - Front Rafter"},
    {Roof::kDualSlope, Member::kCommon, "Dual Slope Roof - Rear Rafter"},
    {Roof::kDutchHip, Member::kCommon, "Dutch Hip Roof - Common Rafter"},
    {Roof::kUnequalSpanValley, Member::kShortValley, "Unequal Span Valley - Short Valley Rafter"},
    {Roof::kUnequalSpanValley, Member::kLongValley, "Unequal Span Valley - Long Valley Rafter"},
    {Roof::kBastardHip, Member::kCommon, "Bastard Hip Roof - Common Rafter"},
    {Roof::kBastardHip, Member::kHipEndCommon, "Bastard Hip Roof - Hip End Common Rafter"},
    {Roof::kBastardHip, Member::kBastardHip, "Bastard Hip Roof - Bastard Hip Rafter"},
};

std::string TitleOf(Roof roofType, Member type, bool rear) {
  const char* title = nullptr;
  std::size_t seen = 0;
  for (const TitleRow& candidate : kTitles) {
    if (candidate.RoofType != roofType || candidate.Type != type) continue;
    title = candidate.Title;
    if (seen++ == (rear ? 1U : 0U)) break;
  }
  return title == nullptr ? "Rafter" : title;
}

class RowBuilder {
 public:
  RowBuilder(const Rafter& rafter, const PrintContext& context) : rafter_(rafter), context_(context) {}

  SheetColumns Columns() const {
    switch (FamilyOf(rafter_.RafterType)) {
      case SheetFamily::kHip: return {Commons("Common "), HipRun(), Hip()};
      case SheetFamily::kValley: return {Commons("Common "), ValleyRun(), Valley()};
      default: return {Commons(""), Lumber(nullptr), Common()};
    }
  }

  SheetColumns BastardHipColumns() const {
    Rows allowances{Length("Ridge Allowance", rafter_.RidgeAllowance),
                    Length("Hip End Ridge Allowance", rafter_.HipEndRidgeAllowance),
                    Length("Bastard Hip Ridge Allowance", rafter_.HipRidgeAllowance)};
    const Rows lumber = Lumber("Hip");
    allowances.insert(allowances.end(), lumber.begin(), lumber.end());
    return {BastardHipRuns(), allowances, BastardHipNotches()};
  }

 private:
  using Rows = std::vector<std::string>;

  std::string Length(const std::string& label, double value) const {
    return LengthRow(context_, label, value);
  }

  Rows Commons(const std::string& member) const {
    return {SlopeRow(member + "Slope", rafter_.Pitch.Stored(), rafter_.degrees),
            Length(member + "Run", rafter_.Span), Length(member + "Overhang", rafter_.Overhang),
            Length(member + "Heel", rafter_.CommonHeel), Length(member + "Seat", rafter_.CommonSeat)};
  }

  /// `hipOrValley` names the member whose lumber is listed between common and ridge; null if there is none.
  Rows Lumber(const char* hipOrValley) const {
    Rows rows{LumberRow(context_, "Common", rafter_.Thickness, rafter_.Depth)};
    if (hipOrValley != nullptr)
      rows.push_back(LumberRow(context_, hipOrValley, rafter_.HipValThickness, rafter_.HipValDepth));
    if (context_.ShowsRidge)
      rows.push_back(LumberRow(context_, "Ridge", rafter_.RidgeThickness, rafter_.RidgeDepth));
    if (context_.Drawing.SquareCut)
      rows.push_back(LumberRow(context_, "Fascia", rafter_.FasciaThickness, rafter_.FasciaHeight));
    return rows;
  }

  Rows Common() const {
    Rows rows;
    if (rafter_.RafterType != Member::kShed)
      rows.push_back(Length("Ridge Allowance", rafter_.RidgeAllowance));
    rows.push_back(Length("Adjusted Run", rafter_.AdjSpan));
    if (rafter_.Kneewall > 0) {
      rows.push_back(Length("Kneewall Location", rafter_.Kneewall));
      rows.push_back(Length("Kneewall Height Above Plate", rafter_.KneewallRise));
    }
    return rows;
  }

  Rows HipRun() const {
    return {SlopeRow("Hip Slope", rafter_.HipPitch.Stored(), rafter_.HipDegrees),
            Length("Hip Run", rafter_.HipValSpan), Length("Hip Overhang", rafter_.HipValOverhang),
            Length("Hip Heel", rafter_.HipHeel), Length("Hip Seat", rafter_.HipValSeat)};
  }

  Rows Hip() const {
    Rows rows = Lumber("Hip");
    rows.push_back(Length("Hip Drop", rafter_.HipDrop));
    rows.push_back(Length("Ridge Allowance", rafter_.HipRidgeAllowance));
    rows.push_back(Length("Adjusted Run", rafter_.AdjHipSpan));
    // The record's own difference at 24 is for two units of run: 24 inches, but two metres.
    const std::string inch = context_.Drawing.UnitRun == 12 ? "\"" : "";
    rows.push_back(Length("CommonDiff 16" + inch, rafter_.CommonDifference * 16));
    rows.push_back(Length("CommonDiff 24" + inch, rafter_.CommonDifference * 24));
    return rows;
  }

  Rows ValleyRun() const {
    const char* run = rafter_.RafterType == Member::kShortValley  ? "Short Valley Run"
                      : rafter_.RafterType == Member::kLongValley ? "Long Valley Run"
                                                                  : "Valley Run";
    return {SlopeRow("Valley Slope", rafter_.HipPitch.Stored(), rafter_.HipDegrees),
            Length(run, rafter_.HipValSpan), Length("Valley Overhang", rafter_.HipValOverhang),
            Length("Valley Heel", rafter_.Heel), Length("Valley Seat", rafter_.HipValSeat)};
  }

  Rows Valley() const {
    Rows rows = Lumber("Valley");
    rows.push_back(Length("Ridge Allowance", rafter_.ValRidgeAllowance));
    rows.push_back(Length("Adjusted Run", rafter_.AdjValSpan));
    return rows;
  }

  Rows BastardHipRuns() const {
    return {Length("Common Rafter Run", rafter_.Span),
            Length("Common Overhang", rafter_.Overhang),
            Length("Hip End Common Run", rafter_.HipEndSpan),
            Length("Hip End Overhang", rafter_.HipEndOverhang),
            Length("Hip Rafter Run", rafter_.HipValSpan),
            Length("Hip Rafter Overhang", rafter_.HipValOverhang),
            SlopeRow("Main Slope", rafter_.Pitch.Stored(), rafter_.degrees),
            SlopeRow("Hip End Slope", rafter_.HipEndPitch.Stored(), rafter_.HipEndDegrees),
            SlopeRow("Hip Rafter Slope", rafter_.HipPitch.Stored(), rafter_.HipDegrees)};
  }

  Rows BastardHipNotches() const {
    return {Length("Common Heel", rafter_.CommonHeel),  Length("Common Seat", rafter_.CommonSeat),
            Length("Hip End Seat", rafter_.HipEndSeat), Length("Hip Heel", rafter_.HipHeel),
            Length("Hip Seat", rafter_.HipValSeat),     Length("Hip Drop", rafter_.HipDrop)};
  }

  const Rafter& rafter_;
  const PrintContext& context_;
};

}  // namespace

RafterSheet RafterSheetOf(const Rafter& rafter, const PrintContext& context) {
  return {TitleOf(context.Drawing.RoofType, rafter.RafterType, context.Rear),
          RowBuilder(rafter, context).Columns()};
}

RafterSheet BastardHipSheetOf(const Rafter& rafter, const PrintContext& context) {
  return {TitleOf(Roof::kBastardHip, rafter.RafterType, false),
          RowBuilder(rafter, context).BastardHipColumns()};
}

void PrintRafter(Printer& page, DraftingBoard& board, const Rafter& rafter, const PrintContext& context) {
  DrawRafter(board, rafter, context.Drawing);
  const RafterSheet sheet = RafterSheetOf(rafter, context);
  PrintSheet(page, context, board.Recorder, sheet.Title, sheet.Rows);
}

void PrintBastardHipRafters(Printer& page, DraftingBoard& board, const Rafter& rafter,
                            const PrintContext& context) {
  DrawBastardHipRafters(board, rafter, context.Drawing);
  const RafterSheet sheet = BastardHipSheetOf(rafter, context);
  PrintSheet(page, context, board.Recorder, sheet.Title, sheet.Rows);
}

}  // namespace pitchcraft
