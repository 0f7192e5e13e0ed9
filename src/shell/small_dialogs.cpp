#include "shell/small_dialogs.h"

#include <QFontInfo>
#include <QHBoxLayout>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>

#include "shell/icons.h"

namespace pitchcraft {
namespace {

constexpr int kLettersInLine = 70;
constexpr int kIconSide = 56;

QLabel* MakeText(const char* name, const std::string& text, QWidget* parent) {
  auto* label = new QLabel(QString::fromStdString(text), parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setMinimumWidth(kLettersInLine * label->fontMetrics().averageCharWidth());
  return label;
}

QLabel* MakeHeading(const char* name, const char* text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(name);
  QFont font = label->font();
  font.setBold(true);
  font.setPixelSize(qRound(QFontInfo(font).pixelSize() * 1.3));
  label->setFont(font);
  return label;
}

QLabel* MakeLogo(QWidget* parent) {
  auto* logo = new QLabel(parent);
  logo->setPixmap(ProgramIcon().pixmap(kIconSide, kIconSide));
  logo->setAccessibleName("Pitchcraft");
  return logo;
}

QPushButton* MakeButton(const char* name, const char* caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  return button;
}

void SetUp(QDialog& dialog, const char* name, const char* title) {
  dialog.setObjectName(name);
  dialog.setWindowTitle(title);
  dialog.setAccessibleName(title);
}

QString SystemInfo() {
  return QString("System: %1\nKernel: %2 %3\nProcessor: %4\nLanguage: %5\nToolkit: Qt %6")
      .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
           QSysInfo::currentCpuArchitecture(), QLocale::system().name(), qVersion());
}

}  // namespace

IncrementDialog::IncrementDialog(IncrementForm& form, QWidget* parent) : QDialog(parent) {
  SetUp(*this, IncrementForm::kName, IncrementForm::kTitle);
  auto* label = new QLabel(IncrementForm::kLabel1, this);
  label->setObjectName("Label1");
  auto* field = new QLineEdit(QString::fromStdString(form.Increment.Text()), this);
  field->setObjectName("FtIncrement");
  field->setAccessibleName(IncrementForm::kLabel1);
  field->selectAll();
  label->setBuddy(field);
  QPushButton* ok = MakeButton("Command1(0)", "OK", this);
  ok->setDefault(true);
  QPushButton* cancel = MakeButton("Command1(1)", "Cancel", this);
  connect(ok, &QPushButton::clicked, this, [this, &form, field] {
    // What was not typed over keeps the number behind its rounded text.
    if (field->isModified()) form.Increment.SetText(field->text().toStdString());
    form.Accepted = true;
    accept();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* column = new QVBoxLayout(this);
  column->addWidget(label);
  column->addWidget(field);
  column->addLayout(buttons);
}

AboutDialog::AboutDialog(const AboutForm& form, QWidget* parent) : QDialog(parent) {
  SetUp(*this, AboutForm::kName, AboutForm::kTitle);
  auto* info = new QPlainTextEdit(SystemInfo(), this);
  info->setObjectName("txtSysInfo");
  info->setAccessibleName("System information");
  info->setReadOnly(true);
  info->setTabChangesFocus(true);
  info->hide();
  QPushButton* more = MakeButton("cmdSysInfo", "&System Info...", this);
  QPushButton* ok = MakeButton("cmdOK", "OK", this);
  ok->setDefault(true);
  connect(more, &QPushButton::clicked, this, [this, info] {
    info->setVisible(info->isHidden());
    adjustSize();
  });
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  auto* head = new QHBoxLayout;
  head->addWidget(MakeLogo(this));
  auto* names = new QVBoxLayout;
  names->addWidget(MakeHeading("lblTitle", "Pitchcraft", this));
  names->addWidget(MakeText("lblVersion", form.Version, this));
  head->addLayout(names, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(more);
  buttons->addStretch();
  buttons->addWidget(ok);
  auto* column = new QVBoxLayout(this);
  column->addLayout(head);
  column->addWidget(MakeText("lblDescription", form.Description, this));
  column->addWidget(MakeText("lblDisclaimer", form.Disclaimer, this));
  column->addWidget(info);
  column->addLayout(buttons);
  ok->setFocus();
}

DisclaimerDialog::DisclaimerDialog(DisclaimerForm& form, QWidget* parent) : QDialog(parent) {
  SetUp(*this, DisclaimerForm::kName, "Pitchcraft");
  auto* box = new QCheckBox(DisclaimerForm::kBox, this);
  box->setObjectName("Check1");
  box->setChecked(form.Ticked());
  connect(box, &QCheckBox::clicked, this, [&form](bool ticked) { form.Click(ticked); });
  QPushButton* ok = MakeButton("cmdOK", "OK", this);
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  auto* row = new QHBoxLayout;
  row->addWidget(box);
  row->addStretch();
  row->addWidget(ok);
  auto* column = new QVBoxLayout(this);
  QLabel* heading = MakeHeading("lblTitle", DisclaimerForm::kTitle, this);
  heading->setAlignment(Qt::AlignHCenter);
  column->addWidget(heading);
  column->addWidget(MakeText("lblDisclaimer", DisclaimerForm::Text(), this));
  column->addLayout(row);
  ok->setFocus();
}

TipDialog::TipDialog(TipForm& form, QWidget* parent) : QDialog(parent) {
  SetUp(*this, TipForm::kName, TipForm::kTitle);
  QLabel* text = MakeText("lblTipText", form.TipText(), this);
  text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  text->setMinimumHeight(6 * text->fontMetrics().lineSpacing());
  auto* box = new QCheckBox(TipForm::kBox, this);
  box->setObjectName("chkLoadTipsAtStartup");
  box->setChecked(form.ShowsAtStartup());
  connect(box, &QCheckBox::clicked, this, [&form](bool ticked) { form.Click(ticked); });
  QPushButton* next = MakeButton("cmdNextTip", "&Next Tip", this);
  connect(next, &QPushButton::clicked, this, [&form, text] {
    form.NextTip();
    text->setText(QString::fromStdString(form.TipText()));
  });
  QPushButton* ok = MakeButton("cmdOK", "OK", this);
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  auto* head = new QHBoxLayout;
  head->addWidget(MakeLogo(this));
  head->addWidget(MakeHeading("Label1", TipForm::kHeading, this), 1);
  auto* row = new QHBoxLayout;
  row->addWidget(box);
  row->addStretch();
  row->addWidget(next);
  row->addWidget(ok);
  auto* column = new QVBoxLayout(this);
  column->addLayout(head);
  column->addWidget(text, 1);
  column->addLayout(row);
  ok->setFocus();
}

}  // namespace pitchcraft
