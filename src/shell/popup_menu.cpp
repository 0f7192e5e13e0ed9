#include "shell/popup_menu.h"

#include "shell/entry_box.h"

namespace pitchcraft {
namespace {

struct Shortcut {
  const char* item;
  QKeySequence::StandardKey key;
};
constexpr Shortcut kShortcuts[] = {
    {"mnuFileNew", QKeySequence::New},     {"mnuFileOpen", QKeySequence::Open},
    {"mnuFileSave", QKeySequence::Save},   {"mnufileSaveAs", QKeySequence::SaveAs},
    {"mnuFilePrint", QKeySequence::Print}, {"mnuFileExit", QKeySequence::Quit},
};

/// An option shows whether it is on; a command does not.
bool IsOption(const Menus& menus, const MenuItem& item) {
  const MenuItem* holder = menus.HolderOf(item);
  if (holder == nullptr || &item == &menus.ViewOptions) return false;
  if (holder == &menus.File || holder == &menus.Help || holder == &menus.Spin) return false;
  return item.Name.find("Print") == std::string::npos && item.Name.find("DXF") == std::string::npos;
}

}  // namespace

QAction* MakeMenuAction(Session& session, const MenuItem& item, QObject* parent) {
  auto* action = new QAction(parent);
  action->setObjectName(QString::fromStdString(item.Name));
  action->setSeparator(item.IsSeparator());
  action->setCheckable(!item.IsSeparator() && IsOption(session.Document().design.menus, item));
  for (const Shortcut& shortcut : kShortcuts) {
    if (item.Name == shortcut.item) action->setShortcuts(shortcut.key);
  }
  const std::string& name = item.Name;
  QObject::connect(action, &QAction::triggered, &session, [&session, &name] {
    EntryBox::CommitFocused();
    session.Do([&](Actions& actions) { actions.Click(name); });
  });
  QObject::connect(action, &QAction::hovered, &session, [&session, &name] { session.Hint(name); });
  SyncMenuAction(*action, item);
  return action;
}

void SyncMenuAction(QAction& action, const MenuItem& item) {
  if (!item.IsSeparator()) {
    const QString caption = QString::fromStdString(item.Caption);
    if (action.text() != caption) action.setText(caption);
    action.setEnabled(item.Enabled);
    if (action.isCheckable()) action.setChecked(item.Checked);
  }
  action.setVisible(item.Visible);
}

std::vector<std::pair<const MenuItem*, QAction*>> FillMenu(Session& session, const MenuItem& holder,
                                                           QMenu& menu) {
  std::vector<std::pair<const MenuItem*, QAction*>> rows;
  for (MenuItem* item : session.Document().design.menus.ItemsUnder(holder)) {
    rows.emplace_back(item, MakeMenuAction(session, *item, &menu));
    menu.addAction(rows.back().second);
  }
  QObject::connect(&menu, &QMenu::aboutToHide, &session, [&session] { session.Hint(""); });
  return rows;
}

void ShowPopup(Session& session, const MenuItem& holder, const QPoint& place, const QList<QAction*>& more) {
  auto* menu = new QMenu;
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setObjectName(QString::fromStdString(holder.Name));
  FillMenu(session, holder, *menu);
  if (!more.isEmpty()) menu->addSeparator();
  menu->addActions(more);
  menu->popup(place);
}

}  // namespace pitchcraft
