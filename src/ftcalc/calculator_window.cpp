#include "ftcalc/calculator_window.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace pitchcraft {
namespace {

struct KeyRow {
  const char* caption;
  const char* name;  // read out by screen readers
  char key;
};

constexpr int kLettersAcross = 100;
constexpr int kLinesDown = 28;
constexpr int kTapeLetters = 24;
constexpr int kBesideCaption = 6;
constexpr int kKeysAcross = 5;
constexpr KeyRow kKeys[] = {
    {"7", "7", '7'},
    {"8", "8", '8'},
    {"9", "9", '9'},
    {"\u00f7", "Divide", ':'},
    {"'", "Feet", '\''},
    {"4", "4", '4'},
    {"5", "5", '5'},
    {"6", "6", '6'},
    {"\u00d7", "Multiply", '*'},
    {"\"", "Inches", '"'},
    {"1", "1", '1'},
    {"2", "2", '2'},
    {"3", "3", '3'},
    {"\u2212", "Subtract", '-'},
    {"/", "Fraction", '/'},
    {"0", "0", '0'},
    {".", "Point", '.'},
    {"=", "Equals", '='},
    {"+", "Add", '+'},
    {"Space", "Space", ' '},
};

}  // namespace

CalculatorWindow::CalculatorWindow(bool metric, QWidget* parent) : QWidget(parent) {
  setObjectName("FtCalc");
  setWindowTitle(metric ? tr("Calculator") : tr("FtInch Calculator"));
  calculator_.SetUnits(metric ? CalcUnits::kMillimetres : CalcUnits::kFeetAndInches);

  display_ = new QLineEdit(this);
  display_->setObjectName("Display");
  display_->setAccessibleName(tr("Display"));
  display_->setReadOnly(true);
  display_->setAlignment(Qt::AlignRight);
  QFont large = display_->font();
  large.setPixelSize(qRound(QFontInfo(large).pixelSize() * 1.6));
  display_->setFont(large);
  display_->installEventFilter(this);

  message_ = new QLabel(this);
  message_->setObjectName("Message");
  message_->setAccessibleName(tr("Message"));
  message_->setTextFormat(Qt::PlainText);
  message_->setWordWrap(true);
  memory_ = new QLabel(this);
  memory_->setObjectName("Memory");
  memory_->setAccessibleName(tr("Memory"));
  memory_->setTextFormat(Qt::PlainText);

  units_ = new QComboBox(this);
  units_->setObjectName("Units");
  units_->setAccessibleName(tr("Units"));
  units_->addItems({tr("Feet and inches"), tr("Inches"), tr("Millimetres")});
  units_->setCurrentIndex(static_cast<int>(calculator_.Units()));
  connect(units_, &QComboBox::currentIndexChanged, this,
          [this](int index) { Do([this, index] { calculator_.SetUnits(static_cast<CalcUnits>(index)); }); });

  tape_ = new QListWidget(this);
  tape_->setObjectName("Tape");
  tape_->setAccessibleName(tr("Tape"));
  tape_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  tape_->setMinimumWidth(kTapeLetters * tape_->fontMetrics().averageCharWidth());

  keys_ = new QWidget(this);
  AddKeys();

  auto* above = new QHBoxLayout;
  above->addWidget(units_);
  above->addWidget(memory_, 1);
  auto* left = new QVBoxLayout;
  left->addWidget(display_);
  left->addWidget(message_);
  left->addLayout(above);
  left->addWidget(keys_, 1);
  auto* whole = new QHBoxLayout(this);
  whole->addLayout(left, 2);
  whole->addWidget(tape_, 1);
  resize(kLettersAcross * fontMetrics().averageCharWidth(), kLinesDown * fontMetrics().lineSpacing());
  display_->setFocus();
  Sync();
}

void CalculatorWindow::AddButton(const QString& caption, const QString& name, const QString& hint, int row,
                                 int column, std::function<void()> action) {
  auto* button = new QPushButton(caption == "&" ? "&&" : caption, keys_);
  button->setObjectName(name);
  button->setAccessibleName(name);
  button->setToolTip(hint);
  // The style's least width of a button is for dialogs; a key is as narrow as its caption.
  button->setMinimumWidth(button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() +
                          2 * kBesideCaption);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  connect(button, &QPushButton::clicked, this, [this, action = std::move(action)] { Do(action); });
  static_cast<QGridLayout*>(keys_->layout())->addWidget(button, row, column);
}

void CalculatorWindow::AddKeys() {
  keys_->setLayout(new QGridLayout);
  keys_->layout()->setContentsMargins(0, 0, 0, 0);
  FtCalc& sums = calculator_;
  AddButton("MC", tr("Clear memory"), tr("Clear the memory"), 0, 0, [&sums] { sums.MemoryClear(); });
  AddButton("MR", tr("Recall memory"), tr("Recall the memory"), 0, 1, [&sums] { sums.MemoryRecall(); });
  AddButton("M+", tr("Add to memory"), tr("Add to the memory"), 0, 2, [&sums] { sums.MemoryAdd(); });
  AddButton("M\u2212", tr("Subtract from memory"), tr("Subtract from the memory"), 0, 3,
            [&sums] { sums.MemorySubtract(); });
  AddButton("\u00b1", tr("Change sign"), tr("Change the sign"), 0, 4, [&sums] { sums.ChangeSign(); });
  AddButton("C", tr("Clear"), tr("Start over (Esc)"), 1, 0, [&sums] { sums.Clear(); });
  AddButton("CE", tr("Clear entry"), tr("Clear the entry (Delete)"), 1, 1, [&sums] { sums.ClearEntry(); });
  AddButton("\u232b", tr("Backspace"), tr("Delete the last key"), 1, 2, [&sums] { sums.Backspace(); });
  AddButton(tr("Tape"), tr("Clear tape"), tr("Clear the tape"), 1, 3, [&sums] { sums.ClearTape(); });
  AddButton("mm", tr("Millimetres"), "", 1, 4, [&sums] { sums.Keys(" mm"); });
  int place = 2 * kKeysAcross;
  for (const KeyRow& row : kKeys) {
    const char key = row.key;
    AddButton(row.caption, row.name, "", place / kKeysAcross, place % kKeysAcross,
              [&sums, key] { sums.Key(key); });
    ++place;
  }
}

void CalculatorWindow::Do(const std::function<void()>& action) {
  action();
  Sync();
}

void CalculatorWindow::Sync() {
  display_->setText(QString::fromStdString(calculator_.Display()));
  message_->setText(QString::fromStdString(calculator_.Message()));
  memory_->setText(calculator_.HasMemory() ? "M " + QString::fromStdString(calculator_.MemoryText()) : "");
  const std::vector<std::string>& tape = calculator_.Tape();
  QStringList lines;
  for (const std::string& line : tape) lines << QString::fromStdString(line);
  QStringList shown;
  for (int i = 0; i < tape_->count(); ++i) shown << tape_->item(i)->text();
  if (lines == shown) return;
  tape_->clear();
  tape_->addItems(lines);
  tape_->scrollToBottom();
}

void CalculatorWindow::Raise() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void CalculatorWindow::Paste() {
  Do([this] { calculator_.SetEntry(QGuiApplication::clipboard()->text().simplified().toStdString()); });
}

bool CalculatorWindow::TakeKey(const QKeyEvent& event) {
  if (event.matches(QKeySequence::Paste)) return Paste(), true;
  if (event.matches(QKeySequence::Copy)) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(calculator_.Display()));
    return true;
  }
  if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) return false;
  FtCalc& sums = calculator_;
  switch (event.key()) {
    case Qt::Key_Escape: return Do([&sums] { sums.Clear(); }), true;
    case Qt::Key_Delete: return Do([&sums] { sums.ClearEntry(); }), true;
    case Qt::Key_Backspace: return Do([&sums] { sums.Backspace(); }), true;
    case Qt::Key_Return:
    case Qt::Key_Enter: return Do([&sums] { sums.Equals(); }), true;
    default: break;
  }
  const QString text = event.text();
  if (text.size() != 1 || text[0].unicode() < ' ' || text[0].unicode() > '~') return false;
  bool taken = false;
  Do([&] { taken = sums.Key(text[0].toLatin1()); });
  return taken;
}

// The calculator takes its keys before the display can.
bool CalculatorWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == display_ && event->type() == QEvent::KeyPress && TakeKey(static_cast<QKeyEvent&>(*event))) {
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void CalculatorWindow::keyPressEvent(QKeyEvent* event) {
  if (!TakeKey(*event)) QWidget::keyPressEvent(event);
}

}  // namespace pitchcraft
