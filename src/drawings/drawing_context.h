// What a drawing needs besides the rafter: shared values of the document, settings and colours.
#pragma once

#include "drawing/recording.h"
#include "drawings/hip_layout.h"

namespace pitchcraft {

struct DrawingContext {
  int RoofType = 0;               ///< the roof's code: 0 gable, 1 hip, 2 valley, 3 shed, 4 dual slope ...
  double UnitRun = 12;            ///< run for which a slope gives the rise: 12 or 1000
  double UnitHipRun = 16.970562;  ///< the hip's run for the same rise: 16.970562 or 1414.2135
  int CurrentTab = 0;             ///< page of Tabs(0)
  bool SquareCut = false;         ///< SettingsSquareCut is checked: the fascia is square to the rafter
  bool RiseOverRun = true;  ///< SettingsRiseOverRun is checked: slopes as rise over run; otherwise in degrees
  HipLayoutOptions HipLayout;
  int LineWidth = 0;  ///< pen width of outlines; 0 is the thinnest, as on screen
  DrawColor BackColor = 0;
  DrawColor LineColor = 0xFFFFFF;
  DrawColor DimColor = 0xFF;
  DrawColor TextColor = 0xFFFF;
};

}  // namespace pitchcraft
