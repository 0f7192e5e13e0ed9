// What assistive programs are told about the parts that the toolkit knows too little of: what kind of part
// each is, and what it reads.
#pragma once

namespace pitchcraft {

/// From here on, for every window of the program. Telling it again changes nothing.
void TellAccessibleParts();

}  // namespace pitchcraft
