// Menus from the table of menu items.
#pragma once

#include <QMenu>

#include "shell/session.h"

namespace pitchcraft {

/// An action that shows an item and clicks it.
QAction* MakeMenuAction(Session& session, const MenuItem& item, QObject* parent);
/// Takes caption, check, visible and enabled from the item.
void SyncMenuAction(QAction& action, const MenuItem& item);
/// Fills the menu with the items under the holder, each in step with its action.
std::vector<std::pair<const MenuItem*, QAction*>> FillMenu(Session& session, const MenuItem& holder,
                                                           QMenu& menu);

/// Shows the popup that hangs on `holder`, with `more` below it, at a place of the screen. It goes when it
/// was used.
void ShowPopup(Session& session, const MenuItem& holder, const QPoint& place,
               const QList<QAction*>& more = {});

}  // namespace pitchcraft
