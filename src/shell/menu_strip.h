// The menu bar.
#pragma once

#include <QMenuBar>

#include "shell/session.h"

namespace pitchcraft {

class MenuStrip : public QMenuBar {
 public:
  MenuStrip(Session& session, QWidget* window);
  void Sync();

 private:
  std::vector<std::pair<MenuItem*, QAction*>> rows_;
};

}  // namespace pitchcraft
