// What a drawing needs besides the rafter: shared values of the document, settings and colours.
#pragma once

#include "drawing/recording.h"
#include "drawings/hip_layout.h"

namespace pitchcraft {

struct DrawingContext {
  Roof RoofType = Roof::kGable;
  double UnitRun = 12;            ///< run to which a slope is a rise: 12 or 1000
  double UnitHipRun = 16.970562;  ///< the hip's run for it: 16.970562 or 1414.2135
  bool OnDesignPage = true;       ///< the first page, whose figure is the plainer one
  bool SquareCut = false;         ///< the fascia stands square to the rafter
  bool RiseOverRun = true;        ///< slopes as rise over run, else as degrees
  HipLayoutOptions HipLayout;
  int LineWidth = 0;  ///< pen width of outlines; 0 is the thinnest, as on screen
  DrawColor BackColor = 0;
  DrawColor LineColor = 0xFFFFFF;
  DrawColor DimColor = 0xFF;
  DrawColor TextColor = 0xFFFF;
};

}  // namespace pitchcraft
