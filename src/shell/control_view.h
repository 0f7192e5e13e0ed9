// What every widget that stands for a control of the sheet has.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "shell/session.h"

namespace pitchcraft {

/// A widget takes its state from its control and hands every event of the person to the session. It lives as
/// a child of the part of the window that hosts it.
class ControlView {
 public:
  ControlView(Session& session, Control& control) : session_(session), control_(control) {}
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  Control& Of() const { return control_; }
  virtual QWidget& Widget() = 0;
  /// The parts that Tab stops at, in order.
  virtual std::vector<QWidget*> TabStops() { return {}; }
  /// What the words that it is made for take in its font. Longer ones can be typed; of those the beginning
  /// shows. Empty where it holds no words.
  virtual QSize SizeForWords() const { return {0, 0}; }
  /// Takes over the place, what the control is called, and its state. A hidden control costs nothing.
  void Sync(bool shown, const QRect& place);

 protected:
  Session& TheSession() const { return session_; }
  const std::string& Name() const { return control_.Name; }
  /// Text, list, tick, colours: what the kind of control has.
  virtual void ShowState() = 0;
  /// Names the widget's parts for assistive programs.
  virtual void ShowName(const QString& name) { Widget().setAccessibleName(name); }
  /// The place changed: parts follow.
  virtual void FitTo(const QRect&) {}

 private:
  Session& session_;
  Control& control_;
  QRect place_;
  QString name_;
};

/// The widget for a control; null for a container, which is only a place.
std::unique_ptr<ControlView> MakeControlView(Session& session, const AnyControl& control, QWidget* host);

}  // namespace pitchcraft
