// The list that drops down from a field.
#pragma once

#include <QListWidget>

namespace pitchcraft {

class DropList : public QListWidget {
  Q_OBJECT

 public:
  explicit DropList(QWidget* field);

  /// Shows the rows below the field, or above it where there is more room; wider than the field where the
  /// words ask for it. `icons` are empty or one for each row.
  void Open(const QStringList& rows, int row, const QPalette& palette, const QFont& font,
            const QList<QIcon>& icons = {});

 signals:
  void Picked(int row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void Choose(int row);
};

}  // namespace pitchcraft
