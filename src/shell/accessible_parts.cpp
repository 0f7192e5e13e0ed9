#include "shell/accessible_parts.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QLabel>
#include <QToolButton>
#include <utility>

#include "shell/choice_field.h"
#include "shell/list_field.h"
#include "shell/main_window.h"
#include "shell/spin_button.h"
#include "shell/tool_strip.h"

namespace pitchcraft {
namespace {

/// A part that has a name and a text beside it, which only the program changes.
class ReadPart : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? Shown() : QAccessibleWidget::text(kind);
  }

  QString text(int begin, int end) const override { return Shown().mid(begin, end - begin); }
  int characterCount() const override { return static_cast<int>(Shown().size()); }
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  // Nothing in it can be selected.
  int selectionCount() const override { return 0; }
  void selection(int, int* begin, int* end) const override { *begin = *end = 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  QRect characterRect(int) const override { return rect(); }
  int offsetAtPoint(const QPoint&) const override { return 0; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int, int* begin, int* end) const override {
    *begin = 0;
    *end = characterCount();
    return {};
  }

 protected:
  virtual QString Shown() const = 0;
};

class StatusPart final : public ReadPart {
 public:
  explicit StatusPart(QLabel* label) : ReadPart(label, QAccessible::StatusBar) {}

 private:
  QString Shown() const override { return static_cast<QLabel*>(widget())->text(); }
};

/// The toolkit would call it by the row that is chosen and never say what is being chosen.
class ChoicePart final : public ReadPart {
 public:
  explicit ChoicePart(ChoiceField* field) : ReadPart(field, QAccessible::ComboBox) {}

  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(Field().view()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* part) const override {
    return part != nullptr && part->object() == Field().view() ? 0 : -1;
  }
  QAccessible::State state() const override {
    QAccessible::State state = ReadPart::state();
    state.expandable = true;
    state.expanded = Field().view()->isVisible();
    state.collapsed = !state.expanded;
    return state;
  }
  QStringList actionNames() const override { return QStringList{showMenuAction()} + ReadPart::actionNames(); }
  void doAction(const QString& action) override {
    if (action != showMenuAction()) return ReadPart::doAction(action);
    if (!Field().isEnabled() || !Field().isVisible()) return;
    if (Field().view()->isVisible()) {
      Field().hidePopup();
    } else {
      Field().showPopup();
    }
  }

 private:
  ChoiceField& Field() const { return static_cast<ChoiceField&>(*widget()); }
  QString Shown() const override { return Field().currentText(); }
};

class SpinPart final : public QAccessibleWidget {
 public:
  explicit SpinPart(SpinView* spin) : QAccessibleWidget(spin, QAccessible::SpinBox), spin_(*spin) {}

  QStringList actionNames() const override { return {increaseAction(), decreaseAction()}; }
  void doAction(const QString& action) override {
    if (widget()->isEnabled() && actionNames().contains(action)) spin_.StepOnce(action == increaseAction());
  }

 private:
  SpinView& spin_;
};

/// Of a button that stays down the toolkit would offer to change its look, not to click it.
class ToolPart final : public QAccessibleWidget {
 public:
  explicit ToolPart(QToolButton* button) : QAccessibleWidget(button) {}

  QAccessible::Role role() const override {
    return Button().isCheckable() ? QAccessible::RadioButton : QAccessible::Button;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = Button().isCheckable();
    state.checked = Button().isChecked();
    return state;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction()) Button().click();
  }
  QStringList keyBindingsForAction(const QString& action) const override {
    const QString keys = Button().property(kKeysProperty).toString();
    return action != pressAction() || keys.isEmpty() ? QStringList() : QStringList(keys);
  }

 private:
  QToolButton& Button() const { return static_cast<QToolButton&>(*widget()); }
};

// Parts that have a name and nothing to read.
constexpr std::pair<const char*, QAccessible::Role> kRoles[] = {
    {"tbToolBar", QAccessible::ToolBar}, {"Toolbar1", QAccessible::ToolBar},
    {"TabStrip", QAccessible::Grouping}, {"Sheet", QAccessible::Grouping},
    {"Picture1", QAccessible::Graphic},  {"Picture3", QAccessible::Graphic}};

QAccessibleInterface* PartOf(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr) return nullptr;
  if (auto* spin = qobject_cast<SpinView*>(widget)) return new SpinPart(spin);
  if (auto* choice = qobject_cast<ChoiceField*>(widget)) return new ChoicePart(choice);
  if (auto* button = qobject_cast<QToolButton*>(widget);
      button != nullptr && qobject_cast<ToolStrip*>(button->parent()) != nullptr) {
    return new ToolPart(button);
  }
  if (qobject_cast<ListField*>(widget) != nullptr)
    return new QAccessibleWidget(widget, QAccessible::Grouping);
  if (qobject_cast<MainWindow*>(widget) != nullptr) return new QAccessibleWidget(widget, QAccessible::Window);
  if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && label->objectName() == "StatusBar") {
    return new StatusPart(label);
  }
  for (const auto& [name, role] : kRoles) {
    if (widget->objectName() == name) return new QAccessibleWidget(widget, role);
  }
  return nullptr;
}

}  // namespace

void TellAccessibleParts() { QAccessible::installFactory(PartOf); }

}  // namespace pitchcraft
