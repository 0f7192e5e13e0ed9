#include "shell/options_dialog.h"

#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>
#include <utility>

#include "shell/color_preview.h"
#include "shell/field_look.h"
#include "shell/list_page.h"

namespace pitchcraft {
namespace {

constexpr int kLastDxfColor = 255;
constexpr const char* kDxfWarning =
    "DXF textsize is set in real world measures, as everything in the drawing is. Consider the scale that "
    "the "
    "drawing will be printed at: for a quarter-inch scale, text of four inches is a good size; for an "
    "eighth-inch scale, text of eight inches.";

template <typename Names>
QStringList ListOf(const Names& names) {
  QStringList list;
  for (const char* name : names) list << name;
  return list;
}

QColor ScreenColor(std::uint32_t color) { return ColorOf(color, QGuiApplication::palette()); }

std::vector<ColorGrid::Offer> ScreenOffers() {
  std::vector<ColorGrid::Offer> offers;
  for (const NamedColor& color : OfferedColors()) offers.push_back({color.Name, ScreenColor(color.Color)});
  return offers;
}

std::vector<ColorGrid::Offer> DxfOffers() {
  std::vector<ColorGrid::Offer> offers;
  for (int number = 0; number <= kLastDxfColor; ++number) {
    offers.push_back({QString::fromStdString(NameOfDxfColor(number)), ScreenColor(ColorOfDxf(number))});
  }
  return offers;
}

constexpr int kNoteLines = 6;

QLabel* MakeLabel(const char* name, const char* text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(name);
  label->setContentsMargins(0, 0, 1, 0);  // a letter may reach out of its advance
  return label;
}

}  // namespace

OptionsDialog::OptionsDialog(OptionsForm& form, std::function<void()> applied, QWidget* parent)
    : QDialog(parent), form_(form), applied_(std::move(applied)), tabs_(new QTabWidget(this)) {
  setObjectName(OptionsForm::kName);
  setWindowTitle(OptionsForm::kTitle);
  setAccessibleName(OptionsForm::kTitle);
  tabs_->setObjectName("tbsOptions");
  tabs_->setUsesScrollButtons(false);  // the dialog is as wide as all captions
  QWidget* const pages[] = {MakeColorPage(), new ListPage(form_.SlopeList, {"Name", "Rise", "Run"}, 0, tabs_),
                            new ListPage(form_.LumberList, {"Name", "Thickness", "Depth"}, 1, tabs_),
                            MakePrintPage(), MakeDxfPage()};
  for (std::size_t i = 0; i < kOptionsPages.size(); ++i) {
    pages[i]->setObjectName(QString("fraOptions(%1)").arg(i));
    tabs_->addTab(pages[i], kOptionsPages[i]);
  }
  tabs_->setCurrentIndex(static_cast<int>(form_.Page));
  auto* column = new QVBoxLayout(this);
  column->addWidget(tabs_, 1);
  column->addLayout(MakeButtons());
  ShowColors();
  ShowTextsize();
}

// --- The pages
// ------------------------------------------------------------------------------------------------------

QCheckBox* OptionsDialog::MakeBox(const char* name, const char* caption, const char* hint, bool& value) {
  auto* box = new QCheckBox(caption, this);
  box->setObjectName(name);
  box->setToolTip(hint);
  box->setChecked(value);
  connect(box, &QCheckBox::toggled, this, [this, &value](bool ticked) {
    value = ticked;
    ShowColors();
  });
  return box;
}

QWidget* OptionsDialog::MakeColorPage() {
  auto* page = new QWidget(tabs_);
  colors_ = new ColorGrid(ListOf(kColorRowNames), ScreenOffers(), page);
  colors_->setObjectName("grdColors(0)");
  colors_->setAccessibleName("Colors of the window");
  connect(colors_, &ColorGrid::Picked, this, [this](int row, int offer) {
    form_.SetColor(row, OfferedColors()[static_cast<std::size_t>(offer)].Color);
    ShowColors();
  });
  preview_ = new ColorPreview(form_, page);
  auto* column = new QVBoxLayout;
  column->addWidget(colors_);
  column->addWidget(MakeBox("chkSystemColors", "&Use System Colors",
                            "Check here to use default Windows colors", form_.SystemColors));
  column->addStretch();
  auto* row = new QHBoxLayout(page);
  row->addLayout(column);
  row->addWidget(preview_, 1);
  return page;
}

QWidget* OptionsDialog::MakePrintPage() {
  auto* page = new QWidget(tabs_);
  auto* slider = new QSlider(Qt::Horizontal, page);
  slider->setObjectName("Slider1");
  slider->setAccessibleName("Printer Line Weight");
  slider->setToolTip("Move the slider to adjust the weight of the lines on printouts");
  slider->setRange(kThinnestLine, kHeaviestLine);
  slider->setTickPosition(QSlider::TicksBelow);
  slider->setPageStep(1);
  slider->setValue(form_.LineWidth());
  connect(slider, &QSlider::valueChanged, this, [this](int width) { form_.SetLineWidth(width); });
  auto* weight = new QHBoxLayout;
  weight->addWidget(MakeLabel("Label3", "lighter", page));
  weight->addWidget(slider, 1);
  weight->addWidget(MakeLabel("Label4", "darker", page));
  auto* column = new QVBoxLayout(page);
  column->addWidget(MakeLabel("Label2", "Printer Line Weight", page));
  column->addLayout(weight);
  column->addWidget(MakeBox("chkPrintAllBlack", "&Print All As Black",
                            "Check here to print all drawings in black on white", form_.PrintAllBlack));
  column->addWidget(MakeBox("chkRotateFonts", "&Rotate TrueType Fonts",
                            "Check this box only if dimension text is printing incorrectly.",
                            form_.RotateFonts));
  column->addStretch();
  return page;
}

QWidget* OptionsDialog::MakeDxfPage() {
  auto* page = new QWidget(tabs_);
  dxfColors_ = new ColorGrid(ListOf(kDxfColorRowNames), DxfOffers(), page);
  dxfColors_->setObjectName("grdColors(2)");
  dxfColors_->setAccessibleName("Colors of DXF files");
  connect(dxfColors_, &ColorGrid::Picked, this, [this](int row, int offer) {
    form_.SetDxfColor(row, offer);
    ShowColors();
  });
  textsize_ = new QLineEdit(page);
  textsize_->setObjectName("ftDXFTextsize");
  textsize_->setAccessibleName("DXF Textsize");
  connect(textsize_, &QLineEdit::editingFinished, this, &OptionsDialog::TakeTextsize);
  QLabel* label = MakeLabel("Label5", "DXF &Textsize", page);
  label->setBuddy(textsize_);
  auto* note = new QPlainTextEdit(kDxfWarning, page);
  note->setObjectName("txtDXFWarning");
  note->setAccessibleName("About the DXF textsize");
  note->setReadOnly(true);
  note->setTabChangesFocus(true);
  note->setMaximumHeight(note->fontMetrics().lineSpacing() * kNoteLines);
  auto* size = new QFormLayout;
  size->addRow(label, textsize_);
  auto* column = new QVBoxLayout(page);
  column->addWidget(dxfColors_);
  column->addLayout(size);
  column->addWidget(note);
  column->addStretch();
  return page;
}

QLayout* OptionsDialog::MakeButtons() {
  auto* row = new QHBoxLayout;
  row->addStretch();
  const auto add = [&](const char* name, const char* caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    row->addWidget(button);
    return button;
  };
  QPushButton* ok = add("cmdOK", "OK");
  QPushButton* cancel = add("cmdCancel", "Cancel");
  QPushButton* apply = add("cmdApply", "&Apply");
  ok->setDefault(true);
  apply->setAutoDefault(false);
  connect(ok, &QPushButton::clicked, this, [this, ok] {
    ok->setFocus();  // ends an entry that is still open
    Apply();
    accept();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(apply, &QPushButton::clicked, this, [this, apply] {
    apply->setFocus();
    Apply();
  });
  return row;
}

// --- State
// ----------------------------------------------------------------------------------------------------------

void OptionsDialog::ShowColors() {
  if (dxfColors_ == nullptr) return;  // not yet built
  for (int row = 0; row < kColorRows; ++row) {
    const std::uint32_t color = form_.ShownColor(row);
    colors_->ShowColor(row, QString::fromStdString(NameOfColor(color)), ScreenColor(color));
  }
  for (int row = 0; row < kDxfColorRows; ++row) {
    const int number = form_.DxfColors()[static_cast<std::size_t>(row)];
    dxfColors_->ShowColor(row, QString::fromStdString(NameOfDxfColor(number)),
                          ScreenColor(ColorOfDxf(number)));
  }
  preview_->ShowColors();
}

void OptionsDialog::ShowTextsize() {
  textsize_->setText(QString::fromStdString(form_.DxfTextSize.Text()));
  textsize_->setModified(false);
}

// What was not typed over keeps the number behind its rounded text.
void OptionsDialog::TakeTextsize() {
  if (textsize_->isModified()) form_.DxfTextSize.SetText(textsize_->text().toStdString());
  ShowTextsize();
}

void OptionsDialog::Apply() {
  TakeTextsize();
  form_.Apply();
  ShowTextsize();
  if (applied_) applied_();
}

}  // namespace pitchcraft
