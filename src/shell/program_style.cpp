#include "shell/program_style.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

#include "shell/field_look.h"

namespace pitchcraft {
namespace {

class ProgramStyle : public QProxyStyle {
 public:
  ProgramStyle() : QProxyStyle("Fusion") {}

  // The base style's outline of an empty box is a shade darker than the window: faint by day, unseen on a
  // dark desktop.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_IndicatorCheckBox) return;
    const QPalette& palette = option->palette;
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(SwitchedOff(palette.color(QPalette::Active, QPalette::WindowText), window));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter->restore();
  }
};

}  // namespace

void UseProgramStyle() { QApplication::setStyle(new ProgramStyle); }

}  // namespace pitchcraft
