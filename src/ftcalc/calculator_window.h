// The window of the feet-and-inches calculator.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>
#include <functional>

#include "ftcalc/ft_calc.h"

namespace pitchcraft {

class CalculatorWindow : public QWidget {
  Q_OBJECT

 public:
  /// With `metric`, it starts in millimetres.
  explicit CalculatorWindow(bool metric, QWidget* parent = nullptr);

  FtCalc& Calculator() { return calculator_; }
  /// Comes to the front, even if minimized.
  void Raise();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool TakeKey(const QKeyEvent& event);
  void Paste();
  void AddButton(const QString& caption, const QString& name, const QString& hint, int row, int column,
                 std::function<void()> action);
  void AddKeys();
  void Do(const std::function<void()>& action);
  void Sync();

  FtCalc calculator_;
  QLineEdit* display_;
  QLabel* message_;
  QLabel* memory_;
  QComboBox* units_;
  QListWidget* tape_;
  QWidget* keys_;
};

}  // namespace pitchcraft
