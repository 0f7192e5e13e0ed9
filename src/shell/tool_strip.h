// The tool bar.
#pragma once

#include <QToolButton>

#include "shell/session.h"

namespace pitchcraft {

/// Of a button, for assistive programs: the keys that do the same.
inline constexpr const char* kKeysProperty = "keys";

class ToolStrip : public QWidget {
  Q_OBJECT

 public:
  ToolStrip(Session& session, QWidget* window);
  void Sync();

 protected:
  void resizeEvent(QResizeEvent*) override { Place(); }
  void paintEvent(QPaintEvent* event) override;

 private:
  void PressByKeys(std::string_view key);
  void Place();

  Session& session_;
  std::vector<QToolButton*> buttons_;
  std::vector<int> gaps_;  ///< where groups begin
};

}  // namespace pitchcraft
