// The questions that are asked of a design, each answered in one place.
#pragma once

#include <string>
#include <vector>

#include "design/design.h"
#include "measure/measure_converter.h"

namespace pitchcraft {

/// Run of the slope triangle: 12 in inches, 1000 in millimetres.
int UnitRun(const Design& design);
/// The hip's run for one UnitRun of common run: 16.970562 or 1414.2135.
double UnitHipRun(const Design& design);
/// Drawing units for one unit of length: 10 for inches, 1 for millimetres.
double DrawScale(const Design& design);

/// How lengths read and show; `InchesAlone` is the same for small measures that carpenters say in inches (16"
/// and not 1' 4").
MeasureConverter LengthFormat(const Design& design);
MeasureConverter InchesAlone(const Design& design);

/// A hip roof whose two slopes differ, as the record holds them: 45 and 45.0 degrees are one slope.
bool IsUnequalHip(const Design& design);
/// The roof's kind where a project or a title tells a hip with two slopes from a plain one.
Roof RoofKind(const Design& design);

/// The page of the roof type that is shown, counted from 0; 0 is the design page.
int PageShown(const Design& design);
inline bool OnDesignPage(const Design& design) { return PageShown(design) == 0; }
/// The roof whose row is shown: 0 front, 1 rear.
std::size_t RowShown(const Design& design);

/// The four dimensions of a bay are known.
bool BayIsComplete(const Design& design);

/// The names of the fields whose entry waits for the next calculation.
std::vector<std::string> Waiting(const Design& design);

/// Whether a field takes what is typed into it. A field that does not is read and copied from, no more: a
/// locked slope, a number that the roof's own rules give, a heel or a seat without its lock.
bool TakesEntry(const Design& design, const Control& control);

}  // namespace pitchcraft
