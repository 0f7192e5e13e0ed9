#include "shell/menu_strip.h"

#include <QStyleOption>

#include "shell/popup_menu.h"

namespace pitchcraft {

MenuStrip::MenuStrip(Session& session, QWidget* window) : QMenuBar(window) {
  setObjectName("MenuBar");
  setAccessibleName(tr("Menus"));
  const Menus& menus = session.Document().design.menus;
  for (const MenuItem* item : menus.Items()) {
    if (item->Level != 0 || menus.IsPopup(*item)) continue;
    if (menus.ItemsUnder(*item).empty()) {
      rows_.emplace_back(item, MakeMenuAction(session, *item, this));
      addAction(rows_.back().second);
      continue;
    }
    auto* menu = new QMenu(QString::fromStdString(item->Caption), this);
    menu->setObjectName(QString::fromStdString(item->Name));
    rows_.emplace_back(item, addMenu(menu));
    const auto below = FillMenu(session, *item, *menu);
    rows_.insert(rows_.end(), below.begin(), below.end());
  }
  Sync();
}

void MenuStrip::Sync() {
  for (const auto& [item, action] : rows_) SyncMenuAction(*action, *item);
}

int MenuStrip::LeastWidth() const {
  QStyleOptionMenuItem option;
  option.initFrom(this);
  const int spacing = style()->pixelMetric(QStyle::PM_MenuBarItemSpacing, &option, this);
  const int side = style()->pixelMetric(QStyle::PM_MenuBarPanelWidth, &option, this) +
                   style()->pixelMetric(QStyle::PM_MenuBarHMargin, &option, this);
  int width = 2 * side;
  for (const QAction* action : actions()) {
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, action->text());
    option.text = action->text();
    width += style()->sizeFromContents(QStyle::CT_MenuBarItem, &option, words, this).width() + spacing;
  }
  return width;
}

void MenuStrip::Append(const QString& menu, const QList<QAction*>& commands) {
  auto* holder = findChild<QMenu*>(menu);
  holder->addSeparator();
  holder->addActions(commands);
}

}  // namespace pitchcraft
