// The menu bar.
#pragma once

#include <QMenuBar>

#include "shell/session.h"

namespace pitchcraft {

class MenuStrip : public QMenuBar {
 public:
  MenuStrip(Session& session, QWidget* window);
  void Sync();
  /// In which every menu shows, also those that belong to one roof alone.
  int LeastWidth() const;
  /// Puts more commands at the end of a menu: those of the window itself.
  void Append(const QString& menu, const QList<QAction*>& commands);

 private:
  std::vector<std::pair<const MenuItem*, QAction*>> rows_;
};

}  // namespace pitchcraft
