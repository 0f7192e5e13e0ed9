// A picture on the form: its place, and what it is as a target of drawings.
#pragma once

#include "document/form_layout.h"
#include "drawing/canvas.h"

namespace pitchcraft {

/// The picture shows the document's recording while it is the one that the page draws on.
struct PictureBox {
  Area Place;  ///< twips, in the client area of the window

  CanvasSize Size() const {
    return {static_cast<double>(Place.Width), static_cast<double>(Place.Height), false};
  }
};

}  // namespace pitchcraft
