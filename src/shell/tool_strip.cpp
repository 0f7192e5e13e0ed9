#include "shell/tool_strip.h"

#include <QPainter>
#include <QShortcut>

#include "document/menu_actions.h"
#include "shell/entry_box.h"
#include "shell/hint_watcher.h"
#include "shell/icons.h"

namespace pitchcraft {
namespace {

constexpr int kMargin = 4;
constexpr int kGroupGap = 9;
constexpr int kIcon = 20;

/// The roof types have the keys of the number row, as they stand in the tool bar from left to right.
constexpr Qt::Key kNumberRow[] = {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5,    Qt::Key_6,
                                  Qt::Key_7, Qt::Key_8, Qt::Key_9, Qt::Key_0, Qt::Key_Minus};

QKeySequence KeysOf(const ToolButton& row) {
  if (row.RoofListIndex < 0 || row.RoofListIndex >= static_cast<int>(std::size(kNumberRow))) return {};
  return {Qt::ALT | kNumberRow[row.RoofListIndex]};
}

}  // namespace

ToolStrip::ToolStrip(Session& session, QWidget* window) : QWidget(window), session_(session) {
  setObjectName("tbToolBar");
  setAccessibleName(tr("Tool bar"));
  for (const ToolButton& row : session.Document().design.toolBar.Buttons()) {
    auto* button = new QToolButton(this);
    const QString key = QString::fromUtf8(row.Key.data(), qsizetype(row.Key.size()));
    const QString tip = QString::fromUtf8(row.ToolTip.data(), qsizetype(row.ToolTip.size()));
    button->setObjectName(key);
    button->setAccessibleName(tip);
    const QKeySequence keys = KeysOf(row);
    button->setToolTip(keys.isEmpty() ? tip
                                      : tr("%1 (%2)").arg(tip, keys.toString(QKeySequence::NativeText)));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setIconSize({kIcon, kIcon});
    button->setIcon(IconOf(row.Key));
    button->installEventFilter(new HintWatcher(session, row.Key, button));
    connect(button, &QToolButton::clicked, this, [this, key = row.Key] {
      EntryBox::CommitFocused();
      session_.Do([&](Actions& actions) { actions.Press(key); });
    });
    if (!keys.isEmpty()) {
      button->setProperty(kKeysProperty, keys.toString(QKeySequence::NativeText));
      auto* shortcut = new QShortcut(keys, window);
      shortcut->setAutoRepeat(false);
      connect(shortcut, &QShortcut::activated, this, [this, key = row.Key] { PressByKeys(key); });
    }
    buttons_.push_back(button);
  }
}

// The keys serve while the bar is hidden, too, where a hand could not press the button.
void ToolStrip::PressByKeys(std::string_view key) {
  EntryBox::CommitFocused();
  session_.Do([&](Actions&) { PressToolButton(session_.Document(), key); });
}

void ToolStrip::Sync() {
  const auto rows = session_.Document().design.toolBar.Buttons();
  bool moved = false;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    QToolButton& button = *buttons_[i];
    const bool checkable = rows[i].RoofListIndex >= 0 || i + 3 >= rows.size();
    moved = moved || button.isHidden() == rows[i].Visible;
    button.setCheckable(checkable);
    button.setChecked(rows[i].Pressed);
    button.setEnabled(IsToolButtonEnabled(session_.Document(), rows[i]));
    button.setVisible(rows[i].Visible);
  }
  if (moved) Place();
}

void ToolStrip::Place() {
  const auto rows = session_.Document().design.toolBar.Buttons();
  const int side = height() - 2;
  int left = kMargin;
  gaps_.clear();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (!rows[i].Visible) continue;
    if (rows[i].StartsGroup && left > kMargin) {
      gaps_.push_back(left + kGroupGap / 2);
      left += kGroupGap;
    }
    buttons_[i]->setGeometry(left, 1, side, side);
    left += side;
  }
  update();
}

void ToolStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  for (const int gap : gaps_) painter.drawLine(gap, 5, gap, height() - 6);
}

}  // namespace pitchcraft
