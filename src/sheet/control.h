// What every control of the design sheet has, and the plain ones. A control is state alone: no widget, no
// event.
#pragma once

#include <string>

namespace pitchcraft {

/// The part of the window that a control stands on.
enum class Host {
  kSheet,      ///< beside the drawing, on every page of the inner tab
  kFrontPage,  ///< page "Front Roof" of the inner tab
  kRearPage,   ///< page "Rear Roof" of the inner tab
  kTabStrip,   ///< right of the page captions of the outer tab
  kBayStrip,   ///< the strip with the bay dimensions, above the tabs
  kNone,       ///< holds others and has no widget of its own
};

/// Tops, lefts, widths and heights are twips (1440 an inch, 15 a pixel at the usual scale), measured from the
/// host's left top.
struct Control {
  std::string Name;
  bool Visible = true;
  bool Enabled = true;
  int Top = 0;
  int Left = 0;
  int Width = 0;
  int Height = 315;
  pitchcraft::Host Host = Host::kFrontPage;
  std::string ToolTip;
};

struct LabelControl : Control {
  std::string Caption;
};

struct ButtonControl : Control {
  std::string Caption;
};

/// A box with a tick: Value 1 when ticked, 0 when not.
struct CheckControl : Control {
  std::string Caption;
  int Value = 0;

  bool Ticked() const { return Value != 0; }
};

/// A pair of arrows beside a field.
struct SpinControl : Control {};

/// A frame that holds others; it has a place and a height.
struct ContainerControl : Control {};

}  // namespace pitchcraft
