#include "shell/splash.h"

#include <QEventLoop>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "platform/font_setup.h"
#include "shell/icons.h"

namespace pitchcraft {
namespace {

constexpr int kTicks = 7;
constexpr int kTick = 200;  // milliseconds
constexpr int kLogo = 96;
constexpr int kSide = 84, kTop = 32, kBottom = 28;
constexpr int kNameHeight = 44;
constexpr int kNameBase = kTop + kLogo + 38;
constexpr double kNameSize = 36;
constexpr const char* kName = "Pitchcraft";
const QColor kPaper(0xF7, 0xF4, 0xEC);
const QColor kInk(0x1C, 0x22, 0x2B);

}  // namespace

Splash::Splash(const QString& version) : QDialog(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName("frmSplash");
  setWindowTitle("Pitchcraft");
  setAccessibleName("Pitchcraft " + version);
  setModal(true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kSide, kTop, kSide, kBottom);
  const auto add = [&](const char* name, const QString& text) {
    auto* label = new QLabel(text, this);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignHCenter);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, kInk);
    label->setPalette(palette);
    column->addWidget(label);
    return label;
  };
  add("imgLogo", {})->setPixmap(ProgramIcon().pixmap(kLogo, kLogo));
  column->addSpacing(kNameHeight);
  add("lblDescription", "Roof framing");
  add("lblVersion", "Version " + version);
  timer1_.start(kTick, this);
}

void Splash::Wait() {
  if (!isVisible()) return;
  QEventLoop loop;
  connect(this, &QDialog::finished, &loop, &QEventLoop::quit);
  loop.exec();
}

void Splash::timerEvent(QTimerEvent*) {
  if (++ticks_ < kTicks) return;
  timer1_.stop();
  accept();
}

void Splash::mousePressEvent(QMouseEvent*) { accept(); }

void Splash::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), kPaper);
  painter.setPen(kInk);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  // Every font that a start loads takes time, so the name has the one that the drawing's title needs anyhow.
  QFont font = DrawingFont();
  font.setBold(true);
  const QFontMetricsF metrics(font);
  painter.setFont(font);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(width() / 2.0, kNameBase);
  painter.scale(kNameSize / font.pixelSize(), kNameSize / font.pixelSize());
  painter.drawText(QPointF(-metrics.horizontalAdvance(kName) / 2, 0), kName);
}

}  // namespace pitchcraft
