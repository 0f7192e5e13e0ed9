// A drawing of the document, filling its place.
#pragma once

#include <QWidget>

#include "shell/session.h"

namespace pitchcraft {

class PictureView : public QWidget {
 public:
  /// `picture` 1: of the design page; 3: of all others.
  PictureView(Session& session, int picture, QWidget* window);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  Session& session_;
  int picture_;
};

}  // namespace pitchcraft
