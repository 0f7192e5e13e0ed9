#include "platform/font_setup.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <clocale>
#include <memory>

namespace pitchcraft {
namespace {

const QString& FamilyName() {
  static const QString name = QStringLiteral("Liberation Sans");
  return name;
}

// Looks up only the name: asking for a font would load one in a size that nobody uses.
bool IsThere() { return QFontDatabase::hasFamily(FamilyName()); }

void IgnoreMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

QFont DrawingFont() {
  constexpr int kPixels = 100;
  QFont font(FamilyName());
  font.setPixelSize(kPixels);
  font.setKerning(false);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleHint(QFont::SansSerif);
  // What a font leaves open it takes from the desktop's, whose letters may be wide, heavy or spaced.
  font.setStretch(QFont::Unstretched);
  font.setWeight(QFont::Normal);
  font.setStyle(QFont::StyleNormal);
  font.setLetterSpacing(QFont::PercentageSpacing, 100);
  font.setWordSpacing(0);
  font.setCapitalization(QFont::MixedCase);
  return font;
}

bool EnsureDrawingFont() {
  if (IsThere()) return true;
  const QStringList folders{QCoreApplication::applicationDirPath() + "/fonts",
                            "/usr/share/fonts/truetype/liberation", "/usr/share/fonts/liberation-sans",
                            "/usr/share/fonts/liberation"};
  for (const QString& folder : folders) {
    const QDir dir(folder);
    for (const QString& file : dir.entryList({"LiberationSans-*.ttf"}, QDir::Files)) {
      QFontDatabase::addApplicationFont(dir.filePath(file));
    }
  }
  return IsThere();
}

void EnsureGui() {
  if (QCoreApplication::instance() != nullptr) return;
  static int argumentCount = 1;
  static char name[] = "pitchcraft";
  static char* arguments[] = {name, nullptr};
  // Pictures are painted in memory, so a display does not matter even if there is one, nor do the toolkit's
  // remarks about the desktop.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QtMessageHandler handler = qInstallMessageHandler(IgnoreMessage);
  // Ends with the process, when no fonts or images are left.
  static const auto application = std::make_unique<QGuiApplication>(argumentCount, arguments);
  qInstallMessageHandler(handler);
  // The toolkit adopts the user's locale; numbers in files keep their decimal point.
  std::setlocale(LC_NUMERIC, "C");
  EnsureDrawingFont();
}

}  // namespace pitchcraft
