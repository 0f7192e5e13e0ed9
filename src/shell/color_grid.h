// A grid of colours: a row for each thing that has one, and a list that drops down from the current row.
#pragma once

#include <QTableWidget>
#include <vector>

#include "shell/arrow_button.h"
#include "shell/drop_list.h"

namespace pitchcraft {

class ColorGrid : public QTableWidget {
  Q_OBJECT

 public:
  struct Offer {
    QString name;
    QColor color;
  };
  ColorGrid(const QStringList& rows, std::vector<Offer> offers, QWidget* parent);

  void ShowColor(int row, const QString& name, const QColor& color);
  void OpenList();

 signals:
  /// The person picked that offer for the current row.
  void Picked(int row, int offer);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void updateGeometries() override;

 private:
  void PlaceArrow();
  void FitColumns();

  std::vector<Offer> offers_;
  QWidget* cell_;
  ArrowButton* arrow_;
  DropList* list_;
};

}  // namespace pitchcraft
