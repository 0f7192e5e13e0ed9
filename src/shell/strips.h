// The strips above the sheet: the bay's dimensions, and the captions of the pages with what stands beside
// them.
#pragma once

#include <QLabel>
#include <QWidget>

#include "shell/control_view.h"
#include "shell/page_tabs.h"

namespace pitchcraft {

/// The four dimensions of a bay in a row, each with its caption, and the button that empties them.
class BayStrip : public QWidget {
 public:
  BayStrip(Session& session, QWidget* window);
  const std::vector<std::unique_ptr<ControlView>>& Views() const { return views_; }
  /// In which all of it can be read.
  int LeastWidth() const;
  void Sync();

 private:
  int CaptionRoom(std::size_t view) const;

  std::vector<std::unique_ptr<ControlView>> views_;
  std::vector<QLabel*> captions_;  ///< one a view; null before the button
};

/// The pages at the left; at the right the field that belongs to the page or the roof.
class TabStrip : public QWidget {
 public:
  TabStrip(Session& session, QWidget* window);
  const std::vector<std::unique_ptr<ControlView>>& Views() const { return views_; }
  PageTabs& Pages() { return *pages_; }
  /// In which the pages of every roof can be read, with the widest of the fields beside them.
  int LeastWidth() const;
  int LeastHeight() const;
  void Sync();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<std::unique_ptr<ControlView>> views_;
  PageTabs* pages_;
};

}  // namespace pitchcraft
