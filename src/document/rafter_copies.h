// What the second rafter of a roof takes from the first.
#pragma once

#include "core/rafter.h"

namespace pitchcraft {

/// Sizes of common rafter, ridge and fascia.
inline void CopyLumber(const Rafter& from, Rafter& to) {
  to.Depth = from.Depth;
  to.Thickness = from.Thickness;
  to.RidgeDepth = from.RidgeDepth;
  to.RidgeThickness = from.RidgeThickness;
  to.FasciaHeight = from.FasciaHeight;
  to.FasciaThickness = from.FasciaThickness;
}

/// Size of hip or valley.
inline void CopyHipLumber(const Rafter& from, Rafter& to) {
  to.HipValDepth = from.HipValDepth;
  to.HipValThickness = from.HipValThickness;
}

inline void CopyLocks(const Rafter& from, Rafter& to) {
  to.HeelLocked = from.HeelLocked;
  to.SeatLocked = from.SeatLocked;
}

}  // namespace pitchcraft
