// What the toolkit alone needs for a window of this size: as many widgets of each kind, 90 menu items and a
// picture, with nothing behind them.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QTabBar>
#include <QToolButton>

#include "first_paint.h"

namespace {

class BarePicture : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.setPen(Qt::white);
    painter.drawLine(0, height(), width(), 0);
    painter.drawText(rect(), Qt::AlignCenter, "12' 6 1/2\"");
  }
};

/// How many widgets of a kind the program's window creates, and how many its first page shows.
struct Kind {
  QWidget* (*make)(QWidget* parent);
  int made;
  int shown;
};

template <typename Widget>
QWidget* Make(QWidget* parent) {
  return new Widget(parent);
}
template <typename Widget>
QWidget* MakeWithText(QWidget* parent) {
  return new Widget("10 1/2", parent);
}
QWidget* MakeList(QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->addItems({"one", "two", "three"});
  return box;
}
/// A field of two boxes and an arrow.
QWidget* MakePair(QWidget* parent) {
  auto* pair = new QWidget(parent);
  (new QLineEdit("6", pair))->setGeometry(0, 0, 30, 23);
  (new QLineEdit("12", pair))->setGeometry(30, 0, 30, 23);
  (new QPushButton(pair))->setGeometry(60, 0, 8, 23);
  return pair;
}

constexpr Kind kKinds[] = {
    {MakeWithText<QLabel>, 34, 11},
    {MakeWithText<QCheckBox>, 12, 3},
    {MakeList, 2, 1},
    {MakeWithText<QLineEdit>, 23, 5},
    {MakePair, 14, 4},
    {Make<QWidget>, 12, 5},
    {MakeWithText<QPushButton>, 2, 0},
    {Make<QTabBar>, 2, 1},
};

void AddControls(QWidget& window) {
  int place = 0;
  for (const Kind& kind : kKinds) {
    for (int i = 0; i < kind.made; ++i) {
      QWidget* control = kind.make(&window);
      const bool shown = i < kind.shown;
      control->setVisible(shown);
      control->setGeometry(place % 4 * 66, 60 + place / 4 * 25, 64, 23);
      if (shown) ++place;
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  QApplication::setStyle("Fusion");
  const QApplication application(argc, argv);
  QWidget window;
  window.resize(627, 467);
  auto* bar = new QMenuBar(&window);
  bar->setGeometry(0, 0, 627, 24);
  for (int menu = 0; menu < 9; ++menu) {
    QMenu* items = bar->addMenu("Menu");
    for (int item = 0; item < 10; ++item) items->addAction("Item");
  }
  for (int i = 0; i < 20; ++i) {
    auto* button = new QToolButton(&window);
    button->setText(QString::number(i));
    button->setGeometry(i * 28, 24, 28, 28);
  }
  AddControls(window);
  auto* picture = new BarePicture(&window);
  picture->setGeometry(270, 60, 350, 380);
  const pitchcraft::ExitAtFirstPaint exit(window);
  window.show();
  return QApplication::exec();
}
