// Opens the pages of help where the document asks for them.
#pragma once

#include <memory>

#include "document/surroundings.h"
#include "shell/help_window.h"

namespace pitchcraft {

class HelpViewer final : public HelpService {
 public:
  explicit HelpViewer(QString folder) : folder_(std::move(folder)) {}
  bool Show(HelpPlace place, int topic) override;
  /// None before it is first asked for.
  HelpWindow* Window() { return window_.get(); }

 private:
  QString folder_;
  std::unique_ptr<HelpWindow> window_;
};

}  // namespace pitchcraft
