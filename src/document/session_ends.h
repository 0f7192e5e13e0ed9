// The document's life: what a session begins with and what it leaves.
#pragma once

#include "document/document.h"

namespace pitchcraft {

/// Reads settings and lists and shows the first design.
void Start(Document& document);
/// The window has a new size: its parts move and the figure is made for it.
void FollowSize(Document& document);
/// Writes the settings.
void Close(Document& document);

}  // namespace pitchcraft
