#include "shell/color_preview.h"

#include <QGuiApplication>
#include <QPainter>
#include <QVBoxLayout>

#include "shell/field_look.h"

namespace pitchcraft {
namespace {

constexpr int kLeastWidth = 220;
constexpr int kDrawingHeight = 98;
constexpr int kAroundText = 5;
constexpr int kBesideText = 8;

QColor Shown(const OptionsForm& form, ColorRow row) {
  return ColorOf(form.ShownColor(row), QGuiApplication::palette());
}

QLineEdit* MakeSample(const char* name, const char* text, const char* hint, QWidget* parent) {
  auto* box = new QLineEdit(text, parent);
  box->setObjectName(name);
  box->setAccessibleName(text);
  box->setToolTip(hint);
  box->setReadOnly(true);
  box->setFocusPolicy(Qt::NoFocus);
  box->setMinimumWidth(box->fontMetrics().horizontalAdvance(text) + 2 * kBesideText);
  return box;
}

}  // namespace

ColorPreview::ColorPreview(const OptionsForm& form, QWidget* parent)
    : QFrame(parent),
      form_(form),
      control_(MakeSample("txtControlText", "Sample Control Text",
                          "This is the color of the text in the input boxes", this)),
      calculated_(MakeSample("txtCalcText", "Sample Calculated Text",
                             "This is the color of the calculated text in the Bay Window dimensions toolbar",
                             this)) {
  setObjectName("Picture1");
  setAccessibleName("Preview of the colors");
  setToolTip("Preview your new color selections here");
  setMinimumWidth(kLeastWidth);
  auto* column = new QVBoxLayout(this);
  column->addSpacing(kDrawingHeight + TextHeight());
  column->addStretch();
  column->addWidget(control_);
  column->addWidget(calculated_);
  ShowColors();
}

int ColorPreview::TextHeight() const { return fontMetrics().height() + 2 * kAroundText; }

void ColorPreview::ShowColors() {
  const QPalette desktop = QGuiApplication::palette();
  const std::uint32_t back = form_.ShownColor(kCtlBack);
  control_->setPalette(FieldPalette(form_.ShownColor(kCtlText), back, desktop));
  calculated_->setPalette(FieldPalette(form_.ShownColor(kCalcText), back, desktop));
  update();
}

// A roof, the measure of its span, and its name.
void ColorPreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Shown(form_, kBackground));
  painter.setRenderHint(QPainter::Antialiasing);
  const int left = width() / 6;
  const int right = width() - left;
  painter.setPen(QPen(Shown(form_, kLine), 2));
  painter.drawPolyline(QPolygon({{left, 70}, {width() / 2, 20}, {right, 70}}));
  painter.setPen(Shown(form_, kDimension));
  painter.drawLine(left, 92, right, 92);
  painter.drawLine(left, 86, left, 98);
  painter.drawLine(right, 86, right, 98);
  painter.setPen(Shown(form_, kText));
  painter.drawText(QRect(0, kDrawingHeight, width(), TextHeight()), Qt::AlignCenter, "Sample Text");
}

}  // namespace pitchcraft
