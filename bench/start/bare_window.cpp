// What the toolkit alone needs for a window of this size: 60 controls, 90 menu items, 20 tool buttons and a
// picture, with nothing behind them.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
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

QWidget* Control(int number, QWidget* parent) {
  const QString text = QString::number(number);
  switch (number % 5) {
    case 0: return new QLabel(text, parent);
    case 1: return new QCheckBox(text, parent);
    case 2: {
      auto* box = new QComboBox(parent);
      box->addItems({"one", "two", "three"});
      return box;
    }
    default: return new QLineEdit(text, parent);
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
  for (int i = 0; i < 60; ++i) Control(i, &window)->setGeometry(i % 4 * 66, 60 + i / 4 * 25, 64, 23);
  auto* picture = new BarePicture(&window);
  picture->setGeometry(270, 60, 350, 380);
  const pitchcraft::ExitAtFirstPaint exit(window);
  window.show();
  return QApplication::exec();
}
