// The captions of an index tab.
#pragma once

#include <QTabBar>

#include <string>
#include <vector>

#include "shell/session.h"

namespace pitchcraft {

class PageTabs : public QTabBar {
  Q_OBJECT

 public:
  /// `index` 0: the pages of the roof type; 1: front and rear roof.
  PageTabs(Session& session, int index, QWidget* host);
  void Sync();
  /// Of pages with those captions, with none of them cut off or pushed aside.
  int WidthFor(const std::vector<std::string>& captions) const;

 protected:
  QSize tabSizeHint(int tab) const override;

 private:
  Session& session_;
  int index_;
  std::string caption_;
};

}  // namespace pitchcraft
