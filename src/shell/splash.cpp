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
constexpr int kNameHeight = 34;
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
  // Each size of letters costs the start a search for its face: one is large, the rest are the desktop's.
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
  QLabel* name = add("lblProductName", "Pitchcraft");
  QFont large = name->font();
  large.setPixelSize(kNameHeight);
  large.setBold(true);
  name->setFont(large);
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
}

}  // namespace pitchcraft
