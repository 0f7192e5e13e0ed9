// Labels, check boxes and command buttons.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "shell/control_view.h"

namespace pitchcraft {

class LabelView : public QLabel, public ControlView {
 public:
  LabelView(Session& session, LabelControl& label, QWidget* host);
  QWidget& Widget() override { return *this; }
  /// Of the caption as it is now, which need not show yet.
  QSize SizeForWords() const override;
  QSize SizeFor(const QString& caption) const;

 private:
  void ShowState() override;
  void ShowName(const QString&) override {}  // a label's name is its text
  void ShowColors();

  LabelControl& label_;
  qint64 desktop_ = -1;  ///< the palette that the colours were mixed from
};

/// A tick; where it locks the value of its row it looks like a padlock, open or shut.
class CheckView : public QCheckBox, public ControlView {
  Q_OBJECT

 public:
  CheckView(Session& session, CheckControl& box, QWidget* host);
  QWidget& Widget() override { return *this; }
  std::vector<QWidget*> TabStops() override { return {this}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& point) const override { return rect().contains(point); }

 private:
  void ShowState() override;
  void ShowName(const QString& name) override;

  CheckControl& box_;
  bool isLock_;
};

class ButtonView : public QPushButton, public ControlView {
 public:
  ButtonView(Session& session, ButtonControl& button, QWidget* host);
  QWidget& Widget() override { return *this; }
  std::vector<QWidget*> TabStops() override { return {this}; }
  QSize SizeForWords() const override;

 private:
  void ShowState() override;
  void ShowName(const QString&) override {}  // a button's name is its text

  ButtonControl& button_;
};

}  // namespace pitchcraft
