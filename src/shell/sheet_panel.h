// The design sheet: its rows at the places that the document gives them.
#pragma once

#include <QWidget>

#include "shell/control_view.h"
#include "shell/page_tabs.h"
#include "shell/plain_views.h"

namespace pitchcraft {

class SheetPanel : public QWidget {
 public:
  SheetPanel(Session& session, QWidget* window);

  const std::vector<std::unique_ptr<ControlView>>& Views() const { return views_; }
  PageTabs& RoofTabs() { return *roofTabs_; }
  /// The shares of the usual columns and rows that its words need, in every roof.
  WordRoom Words() const;
  /// The panel itself stands where the layout says; its rows follow the layout's scale and origin.
  void Sync(const FormLayout& layout);

 private:
  bool IsShown(const Control& control) const;
  void ChainTabOrder();

  Session& session_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::vector<LabelView*> captions_;
  PageTabs* roofTabs_;
  std::vector<QWidget*> stops_;  ///< in the order of Tab, as last chained
};

}  // namespace pitchcraft
