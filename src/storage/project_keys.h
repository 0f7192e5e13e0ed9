// The keys of a project file: one table for writing, reading, the defaults and docs/project-file.md.
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

/// What reading a key does besides putting the value back.
enum class ProjectStep {
  kPutBack,       ///< nothing more
  kPutBackTwice,  ///< later handlers may change it, so it is put back once more before the roof is calculated
  kUnits,         ///< the unit switch runs
  kSlopeMode,     ///< the slope mode's menu item runs
  kRafterType,    ///< the roof type is picked
  kSquareCut,     ///< the menu item runs
  kPlumbCut,      ///< the menu item runs
  kLevelCut,      ///< the menu item runs
  kKneewall,      ///< the number, its field, and the box of row 0
  kRearKneewall,  ///< the number, its field, and the box of row 0 too
  kHipLayout,     ///< always Center, whatever the file says
  kOverhangsEqual,   ///< always off, whatever the file says
  kJackMeasurement,  ///< always off, whatever the file says
  kSpacing,          ///< the text, and the spacing of the session and both rafters
  kBay,              ///< the field and the rafter that carries the bay; for a bay, read before all numbers
  kGambrelType,      ///< the menu item runs
  kSupport,          ///< the menu item runs
};

/// One key. `Write` gives its text; `PutBack` puts a text back where it came from. Null where the step does
/// it.
struct ProjectKey {
  const char* Key;
  const char* What;  ///< as worded in docs/project-file.md
  const char* Default;
  RoofSet Written;
  RoofSet Read;  ///< here a hip with two slopes has its own code
  ProjectStep Step;
  std::string (*Write)(const Design&);
  void (*PutBack)(Design&, const std::string& text);
};

/// In the order of writing and reading.
std::span<const ProjectKey> ProjectKeys();

/// Something that a project file does not bring back unchanged.
struct ProjectLoss {
  const char*
      Members;  ///< names of the rafters' members with blanks between them; empty if it is not about members
  RoofSet Roofs;  ///< here a hip with two slopes has its own code
  const char* RoofNames;
  const char* Why;

  bool Names(std::string_view member) const;
};
std::span<const ProjectLoss> ProjectLosses();

/// The text of a whole project file.
std::string ProjectText(const Design& design);

/// The text of docs/project-file.md.
std::string ProjectFileManual();

}  // namespace pitchcraft
