// What every roof type has: its row of facts, its pages, and its steps.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "design/design.h"
#include "roofs/figure_kind.h"
#include "roofs/rows.h"

namespace pitchcraft {

struct RoofPage {
  std::string_view Caption;  ///< on the index tab
  PageFigure Figure;
  bool HasSpacing = false;  ///< the spacing of the rafters is entered above it
};

/// What the status bar says while the pointer or the focus is on a field.
struct RoofHint {
  std::string_view
      Field;  ///< name of the control, as `FtSpan(2)`; without an index it serves for all of them
  const char* Text;
};

/// How a slope was entered.
enum class SlopeEntry { kPicked, kLeft, kKey, kDegreesPicked, kDegreesLeft };
constexpr bool IsInDegrees(SlopeEntry how) {
  return how == SlopeEntry::kDegreesPicked || how == SlopeEntry::kDegreesLeft;
}

/// The sizes of lumber that a person enters.
enum class Lumber { kFascia, kRafter, kRidge, kHipOrValley };

/// One roof type. It changes a design and gives messages and focus back; it draws nothing and asks nobody. An
/// entry is in the sheet when its step runs; a step ends with a calculation unless it says otherwise.
class RoofType {
 public:
  struct Facts {
    Roof Code;
    std::string_view Item;        ///< in the list of roof types
    std::string_view ToolButton;  ///< key of its tool button
    int HelpTopic;
    std::span<const RoofPage> Pages;
    RoofRows Rows;
    std::span<const RoofHint> Hints = {};
    bool TakesHeelFromField =
        false;                  ///< a field of the sheet hands the heel that it shows to the record, too
    bool HasFasciaCuts = true;  ///< its popup offers them
  };

  explicit RoofType(const Facts& facts) : facts_(facts) {}
  RoofType(const RoofType&) = delete;
  RoofType& operator=(const RoofType&) = delete;
  virtual ~RoofType() = default;

  const Facts& About() const { return facts_; }
  virtual std::span<const RoofPage> Pages(const Design&) const { return facts_.Pages; }
  virtual PageFigure FigureOn(const Design& design, int page) const;
  /// The record as a page shows it: a copy of the last calculation that stands for the page's member.
  virtual Rafter RecordOn(const Design& design, int page) const;
  virtual std::span<const RoofHint> Hints(const Design&) const { return facts_.Hints; }

  /// Lays out the rows of the sheet.
  virtual void LayOut(Design& design) const;
  /// The roof type was picked: what its sheet begins with.
  virtual void SetUp(Design&, Reply&) const {}
  /// Configures both records and calculates. `fromFile`: what a project brought is kept.
  virtual void Start(Design& design, Reply& reply, bool fromFile) const = 0;
  /// Calculates with all that was entered and brings the results to the sheet.
  virtual void Recalculate(Design& design, Reply& reply) const = 0;
  /// A page was chosen: what it leaves in the records and menus, and where the focus goes.
  virtual void TurnPage(Design& design, Reply& reply, int page) const;

  virtual void RunEntered(Design& design, Reply& reply) const;       ///< the first run or span
  virtual void ExtraRunEntered(Design& design, Reply& reply) const;  ///< the second one of the front page
  virtual void OverhangEntered(Design& design, Reply& reply) const;
  virtual void SlopeEntered(Design& design, Reply& reply, SlopeEntry how) const;
  virtual void SecondSlopeEntered(Design&, Reply&, SlopeEntry) const {}
  virtual void RidgeLengthEntered(Design&, Reply&, std::size_t) const {}
  virtual void LumberEntered(Design& design, Reply& reply, Lumber which) const;
  virtual void SpacingEntered(Design&, Reply&) const {}

 protected:
  /// After a field of the first row.
  void TakeHeelAndRecalculate(Design& design, Reply& reply) const;

 private:
  Facts facts_;
};

/// The slope's field has the focus next, in the form in which slopes are entered.
void FocusSlope(const Design& design, Reply& reply, std::size_t row);

/// The captions of the pages as the index tab takes them.
void NamePages(Design& design, std::span<const RoofPage> pages);

}  // namespace pitchcraft
