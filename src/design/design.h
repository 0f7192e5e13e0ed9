// What a person designs, as one value: a copy of it is a whole design, two of them can be compared, and what
// is shown is a function of it and of the page.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "core/rafter.h"
#include "core/trade.h"
#include "sheet/menus.h"
#include "sheet/sheet.h"
#include "sheet/tool_bar.h"

namespace pitchcraft {

enum class GambrelKind {
  kNone,     ///< no gambrel was designed yet
  kRegular,  ///< fits a circle: the slopes are fixed
  kCustom,
};

/// Every fact is held once. Check marks of menus and pressed tool buttons only show what stands here
/// (`ShowChoices`).
struct Design {
  Rafter Rafter1;  ///< the main, front, bottom or short-valley rafter: what was entered and the last results
  Rafter Rafter2;  ///< the rear, top, long-valley or Dutch rafter
  /// The two as the last calculation left them. An entry that waits for the next one is in the record at
  /// once, but not here; figures, prints and files show these.
  Rafter Calculated1;
  Rafter Calculated2;

  Sheet sheet;
  Menus menus;
  ToolBar toolBar;

  Roof RoofType = Roof::kGable;
  bool Metric = false;     ///< lengths are millimetres, else inches
  bool InDegrees = false;  ///< slopes are entered as degrees, else as rise over run
  FasciaCut Cut = FasciaCut::kPlumb;
  JackLayout Layout = JackLayout::kCorners;
  bool JacksWithOverhang = false;  ///< jacks are measured from the eave, else from the wall
  bool OverhangsEqual = false;     ///< of a hip with two slopes: the same overhang on both faces
  bool DutchLedger = true;         ///< the Dutch hip hangs on a ledger
  GambrelKind Gambrel = GambrelKind::kNone;
  GambrelSupport Support = GambrelSupport::kPurlins;

  int BayEditMode = 0;     ///< which bay dimension was solved: 1 projection, 2 face, 3 back, 4 angle
  Single SavedGableSpan;   ///< run before the gambrel was entered; 0 when nothing is saved
  Single SavedGableSlope;  ///< its slope
  std::array<std::string, 2> KeptFasciaHeight;  ///< text of the fascia's height before the cut left plumb
  std::size_t LockRow = 0;  ///< the row whose locks the Settings menu shows: 0 front, 1 rear
  bool Loading = false;     ///< a project is being opened
};

/// What a step has to say, once it is done.
struct Reply {
  struct Message {
    std::string Text;
    std::string Title = "Pitchcraft";
  };

  std::vector<Message> Messages;
  std::string Focus;  ///< name of the control that is to get the focus; empty leaves it where it is

  void Say(std::string text) { Messages.push_back({std::move(text)}); }
  void Say(std::string text, std::string title) { Messages.push_back({std::move(text), std::move(title)}); }
  void GiveFocus(const Control& control) { Focus = control.Name; }
};

}  // namespace pitchcraft
