#include "shell/splash.h"

#include <QEventLoop>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "shell/icons.h"

namespace pitchcraft {
namespace {

constexpr int kTicks = 7;
constexpr int kTick = 200;  // milliseconds
constexpr int kLogo = 96;
const QColor kPaper(0xF7, 0xF4, 0xEC);
const QColor kInk(0x1C, 0x22, 0x2B);

}  // namespace

Splash::Splash(const QString& version) : QDialog(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName("frmSplash");
  setWindowTitle("Pitchcraft");
  setAccessibleName("Pitchcraft " + version);
  setModal(true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(72, 32, 72, 28);
  const auto add = [&](const char* name, const QString& text, int pixels, bool bold) {
    auto* label = new QLabel(text, this);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignHCenter);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, kInk);
    label->setPalette(palette);
    QFont font = label->font();
    font.setPixelSize(pixels);
    font.setBold(bold);
    label->setFont(font);
    column->addWidget(label);
    return label;
  };
  add("imgLogo", {}, 12, false)->setPixmap(ProgramIcon().pixmap(kLogo, kLogo));
  add("lblProductName", "Pitchcraft", 34, true);
  add("lblDescription", "Roof framing", 16, false);
  add("lblVersion", "Version " + version, 13, false);
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
}

}  // namespace pitchcraft
