// Every item of the menus: where a person finds it, what the status bar says over it, and what it does.
#pragma once

#include <functional>

#include "whole_program.h"

namespace pitchcraft::testing {

/// Picks an item, or presses the button that does the same.
using Pick = std::function<void()>;
/// Brings the program to where the pick can be seen, picks, and looks at what became of it.
using Deed = std::function<void(WholeProgram&, const Pick&)>;

struct ItemRow {
  const char* item;
  const char* roof;  ///< the tool button of a roof that has the item
  const char* hint;
  Deed deed;
};

void PrintTo(const ItemRow& row, std::ostream* stream);

/// In the order of the menus.
const std::vector<ItemRow>& ItemRows();
/// The rows of the popups, or all the others.
std::vector<ItemRow> ItemRowsOf(bool popups);

/// An item's name as the name of a test.
std::string TestName(std::string item);

// What tool buttons do as well.
void StartsAProject(WholeProgram& program, const Pick& pick);
void OpensAProject(WholeProgram& program, const Pick& pick);
void SavesTheProject(WholeProgram& program, const Pick& pick);
void PrintsTheSheet(WholeProgram& program, const Pick& pick);

}  // namespace pitchcraft::testing
