#include "shell/help_viewer.h"

#include <QFileInfo>

namespace pitchcraft {

bool HelpViewer::Show(HelpPlace place, int topic) {
  if (folder_.isEmpty() || !QFileInfo::exists(folder_ + "/index.html")) return false;
  if (!window_) {
    window_ = std::make_unique<HelpWindow>(folder_);
    // A window that is left open does not keep the program running.
    window_->setAttribute(Qt::WA_QuitOnClose, false);
  }
  switch (place) {
    case HelpPlace::kGlossary: window_->ShowPage("glossary.html"); break;
    case HelpPlace::kTopic:
      if (window_->ShowPage(QString::number(topic) + ".html")) break;
      [[fallthrough]];
    case HelpPlace::kContents:
    case HelpPlace::kSearch: window_->ShowPage("index.html"); break;
  }
  window_->Raise();
  if (place == HelpPlace::kSearch) window_->ShowSearch();
  return true;
}

}  // namespace pitchcraft
