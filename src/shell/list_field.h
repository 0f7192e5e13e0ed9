// Fields with a list below them: one or two text boxes and an arrow.
#pragma once

#include <QPointer>

#include "sheet/combo_control.h"
#include "sheet/pair_control.h"
#include "shell/control_view.h"
#include "shell/entry_box.h"
#include "shell/field_look.h"

namespace pitchcraft {

class ArrowButton;
class DropList;

/// What both have in common: boxes, arrow, keyboard, list. Nothing is committed while the focus goes from one
/// box to the other. The focus is a box's and never the field's: it has no proxy, which would also confuse
/// the toolkit when the order of Tab changes.
class ListField : public QWidget, public ControlView {
  Q_OBJECT

 public:
  QWidget& Widget() override { return *this; }
  std::vector<QWidget*> TabStops() override { return {boxes_.begin(), boxes_.end()}; }
  QSize SizeForWords() const override;

 protected:
  /// Names the field and its arrow; the boxes have names of their own.
  void ShowName(const QString& name) override;
  ListField(Session& session, Control& control, QWidget* host, std::size_t boxes);

  EntryBox& Box(std::size_t index) { return *boxes_[index]; }
  bool Modified() const;
  void Settle();
  /// A locked field takes no entry and opens no list. Its colours follow, so they are given after it.
  void Lock(bool locked);
  void Color(std::uint32_t fore, std::uint32_t back);

  virtual std::string Entry() const = 0;
  virtual QStringList Rows() const = 0;
  /// The texts that each of the boxes has room for.
  virtual QStringList Words() const = 0;
  virtual int Row() const = 0;
  /// Keeps the control as it is before an entry, for Escape.
  virtual void Remember() = 0;
  virtual void Restore() = 0;
  /// Tab confirms the entry as Enter does before it moves on.
  virtual bool TabEnters() const { return false; }
  void FitTo(const QRect& place) override;
  std::string TextOf(std::size_t index) const { return boxes_[index]->Entry(); }

 private:
  void Connect(EntryBox& box);
  void Enter();
  void OpenList();
  void Step(bool up);
  void Pick(int row);

  std::vector<EntryBox*> boxes_;
  ArrowButton* arrow_;
  QPointer<DropList> list_;
  FieldColors colors_;
  bool locked_ = false;
  bool editing_ = false;
};

/// Two values with a list: lumber, or a slope.
class PairField : public ListField {
  Q_OBJECT

 public:
  PairField(Session& session, PairControl& pair, QWidget* host);

 private:
  void ShowState() override;
  void ShowName(const QString& name) override;
  std::string Entry() const override;
  QStringList Rows() const override;
  QStringList Words() const override { return {kShortMeasure}; }
  int Row() const override { return pair_.ListIndex(); }
  void Remember() override { before_ = pair_; }
  void Restore() override { pair_ = before_; }
  bool TabEnters() const override { return isSlope_; }

  PairControl& pair_;
  PairControl before_;
  bool isSlope_;
};

/// One text with a list.
class ComboField : public ListField {
  Q_OBJECT

 public:
  ComboField(Session& session, ComboControl& combo, QWidget* host);

 private:
  void ShowState() override;
  void ShowName(const QString& name) override;
  std::string Entry() const override { return TextOf(0); }
  QStringList Rows() const override;
  QStringList Words() const override { return Rows() + QStringList{kShortMeasure}; }
  int Row() const override { return combo_.ListIndex(); }
  void Remember() override { before_ = combo_.Text(); }
  void Restore() override { combo_.SetText(before_); }

  ComboControl& combo_;
  std::string before_;
};

}  // namespace pitchcraft
