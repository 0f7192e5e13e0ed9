// The icons of the tool bar: strokes, drawn at whatever size and scale is asked for, in the desktop's
// colours.
#pragma once

#include <QIcon>
#include <string_view>

namespace pitchcraft {

/// The icon of a tool button's key; an empty one for a key that has none.
QIcon IconOf(std::string_view key);

/// The program's own: a roof over a house.
QIcon ProgramIcon();

}  // namespace pitchcraft
