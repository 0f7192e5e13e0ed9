// The roof types: their codes, what they are called, and what belongs to each.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/rafter_type.h"

namespace pitchcraft {

/// The codes of the roof types. The numbers are part of the product: they stand in dumps and projects.
namespace roof {
inline constexpr int kGable = 0;
inline constexpr int kHip = 1;
inline constexpr int kValley = 2;
inline constexpr int kShed = 3;
inline constexpr int kDualSlope = 4;
inline constexpr int kBay = 5;
inline constexpr int kDutchHip = 8;
inline constexpr int kOctagon = 9;
inline constexpr int kUnequalSpanValley = 10;
inline constexpr int kBlindValley = 11;
inline constexpr int kBastardHip = 12;  ///< only while a project is opened; it becomes kHip at once
inline constexpr int kGambrel = 13;
}  // namespace roof

/// One roof type. Rows stand in the order of the list RoofList.
struct RoofTypeRow {
  std::string_view Item;        ///< in RoofList
  int Code;                     ///< RoofType
  std::string_view ToolButton;  ///< key of its tool button
  int HelpTopic;
  std::string_view Pages;  ///< captions of Tabs(0)
};

inline constexpr std::string_view kBastardHipPages = "Design|Common|Hip End Common|Hip Rafter|Layout";

std::span<const RoofTypeRow> RoofTypes();

/// The row of a code, or null: a bastard hip has none.
const RoofTypeRow* RoofTypeByCode(int code);
/// The row of an item of RoofList, compared exactly, or null.
const RoofTypeRow* RoofTypeByItem(std::string_view item);
/// The position of a code in RoofList; the bastard hip stands under "Hip"; -1 when there is none.
int ListIndexOfRoof(int code);

}  // namespace pitchcraft
