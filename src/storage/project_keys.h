// The keys of a project file: one table that writing, reading, the defaults and docs/project-file.md follow.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "core/trade.h"
#include "design/design.h"

namespace pitchcraft {

inline constexpr const char* kProjectSection = "Settings";

/// A set of roof types.
class RoofSet {
 public:
  constexpr RoofSet(std::initializer_list<Roof> codes) {
    for (const Roof code : codes) bits_ |= BitOf(code);
  }
  static constexpr RoofSet All() {
    RoofSet all{};
    all.bits_ = ~std::uint32_t{0};
    return all;
  }
  constexpr bool Has(Roof code) const { return (bits_ & BitOf(code)) != 0; }
  constexpr bool operator==(const RoofSet&) const = default;

 private:
  static constexpr std::uint32_t BitOf(Roof code) { return std::uint32_t{1} << static_cast<unsigned>(code); }
  std::uint32_t bits_ = 0;
};

/// What reading a key takes beside putting the value where it came from.
enum class ProjectStep {
  kPutBack,          ///< nothing more
  kPutBackTwice,     ///< handlers that run later may change it: it is put back again before the roof is
                     ///< calculated
  kUnits,            ///< the unit switch runs
  kSlopeMode,        ///< the slope mode's menu item runs
  kRafterType,       ///< the roof type is picked
  kSquareCut,        ///< the menu item runs
  kPlumbCut,         ///< the menu item runs
  kLevelCut,         ///< the menu item runs
  kKneewall,         ///< the number, its field, and the box of row 0
  kRearKneewall,     ///< the number, its field, and the box of row 0 too
  kHipLayout,        ///< Center, whatever stands here
  kOverhangsEqual,   ///< no, whatever stands here
  kJackMeasurement,  ///< no, whatever stands here
  kSpacing,          ///< the text, and the spacing of the session and of both rafters
  kBay,          ///< the field and the rafter that carries the bay; of a bay it is read before all numbers
  kGambrelType,  ///< the menu item runs
  kSupport,      ///< the menu item runs
};

/// One key. `Write` gives its text; `PutBack` puts a text where it came from; null where the
/// step does that.
struct ProjectKey {
  const char* Key;
  const char* What;  ///< in the words of docs/project-file.md
  const char* Default;
  RoofSet Written;
  RoofSet Read;  ///< here a hip with two slopes has a code of its own
  ProjectStep Step;
  std::string (*Write)(const Design&);
  void (*PutBack)(Design&, const std::string& text);
};

/// In the order of writing, which is the order of reading too.
std::span<const ProjectKey> ProjectKeys();

/// What does not come back from a project file as it was.
struct ProjectLoss {
  const char* Members;  ///< of the rafters, by name, with blanks between them; empty where it is no member
  RoofSet Roofs;        ///< here a hip with two slopes has a code of its own
  const char* RoofNames;
  const char* Why;

  bool Names(std::string_view member) const;
};
std::span<const ProjectLoss> ProjectLosses();

/// The text of a whole project file.
std::string ProjectText(const Design& design);

/// docs/project-file.md.
std::string ProjectFileManual();

}  // namespace pitchcraft
