#include "shell/list_field.h"

#include <QApplication>
#include <algorithm>

#include "design/questions.h"
#include "shell/arrow_button.h"
#include "shell/drop_list.h"
#include "shell/field_look.h"

namespace pitchcraft {
namespace {

constexpr int kGap = 2;
constexpr int kArrowWidth = 18;

}  // namespace

ListField::ListField(Session& session, Control& control, QWidget* host, std::size_t boxes)
    : QWidget(host), ControlView(session, control) {
  const char* const kBoxNames[] = {".Left", ".Right"};
  for (std::size_t i = 0; i < boxes; ++i) {
    auto* box = new EntryBox(this);
    box->setObjectName(QString::fromStdString(control.Name) + (boxes == 1 ? ".Text" : kBoxNames[i]));
    Connect(*box);
    boxes_.push_back(box);
  }
  arrow_ = new ArrowButton(this);
  connect(arrow_, &QAbstractButton::pressed, this, [this] {
    boxes_.front()->setFocus(Qt::MouseFocusReason);
    OpenList();
  });
}

void ListField::Connect(EntryBox& box) {
  connect(&box, &EntryBox::Edited, this, [this] {
    if (!editing_) Remember();
    editing_ = true;
    TheSession().Do([this](Actions& actions) { actions.Edit(Name(), Entry()); });
  });
  connect(&box, &EntryBox::Entered, this, &ListField::Enter);
  connect(&box, &EntryBox::Tabbed, this, [this] {
    if (TabEnters() && Modified()) Enter();
  });
  connect(&box, &EntryBox::Left, this, [this, &box] {
    const QWidget* focus = QApplication::focusWidget();
    const bool toOtherBox = focus != &box && isAncestorOf(focus);
    if (toOtherBox || !Modified()) return;
    Settle();
    TheSession().Do([this](Actions& actions) { actions.Type(Name(), Entry()); });
  });
  connect(&box, &EntryBox::Escaped, this, [this] {
    Settle();
    TheSession().Do([this](Actions&) { Restore(); });
  });
  connect(&box, &EntryBox::ListAsked, this, &ListField::OpenList);
  connect(&box, &EntryBox::Stepped, this, &ListField::Step);
}

bool ListField::Modified() const {
  return std::any_of(boxes_.begin(), boxes_.end(), [](const EntryBox* box) { return box->Modified(); });
}

void ListField::Settle() {
  for (EntryBox* box : boxes_) box->Settle();
  editing_ = false;
}

void ListField::Enter() {
  Settle();
  TheSession().Do([this](Actions& actions) { actions.Enter(Name(), Entry()); });
}

void ListField::Pick(int row) {
  const QStringList rows = Rows();
  if (row < 0 || row >= rows.size()) return;
  Settle();
  TheSession().Do([&](Actions& actions) { actions.Pick(Name(), rows[row].toStdString()); });
}

void ListField::Step(bool up) {
  if (locked_) return;
  Pick(up ? std::max(Row() - 1, 0) : Row() + 1);
}

void ListField::OpenList() {
  const QStringList rows = Rows();
  if (locked_ || rows.isEmpty() || !isEnabled()) return;
  if (list_ == nullptr) {
    list_ = new DropList(this);
    list_->setObjectName(objectName() + ".List");
    connect(list_, &DropList::Picked, this, &ListField::Pick);
  }
  list_->Open(rows, Row(), boxes_.front()->palette(), boxes_.front()->font());
}

void ListField::Color(std::uint32_t fore, std::uint32_t back) {
  if (!colors_.Take(fore, back, parentWidget()->palette(), !locked_)) return;
  for (EntryBox* box : boxes_) box->setPalette(colors_.Palette());
}

void ListField::Lock(bool locked) {
  if (locked_ == locked) return;
  locked_ = locked;
  for (EntryBox* box : boxes_) box->SetTakesEntry(!locked);
  arrow_->setEnabled(!locked);
}

void ListField::ShowName(const QString& name) {
  setAccessibleName(name);
  arrow_->setAccessibleName(tr("%1, open the list").arg(name));
}

QSize ListField::SizeForWords() const {
  QSize box(0, 0);
  for (const QString& text : Words()) box = box.expandedTo(boxes_.front()->SizeFor(text));
  const int count = static_cast<int>(boxes_.size());
  return {count * (box.width() + kGap) + kArrowWidth, box.height()};
}

void ListField::FitTo(const QRect& place) {
  const int count = static_cast<int>(boxes_.size());
  const int room = place.width() - kArrowWidth - kGap * count;
  int left = 0;
  for (int i = 0; i < count; ++i) {
    const int right = room * (i + 1) / count + kGap * i;
    EntryBox& box = *boxes_[static_cast<std::size_t>(i)];
    box.setGeometry(left, 0, right - left, place.height());
    left = right + kGap;
  }
  arrow_->setGeometry(place.width() - kArrowWidth, 0, kArrowWidth, place.height());
}

// --- Two values
// -----------------------------------------------------------------------------------------------------

PairField::PairField(Session& session, PairControl& pair, QWidget* host)
    : ListField(session, pair, host, 2), pair_(pair), isSlope_(pair.Name.starts_with("LWSlope")) {}

void PairField::ShowState() {
  Lock(!TakesEntry(TheSession().Document().design, pair_));
  Color(pair_.ForeColor, pair_.BackColor);
  Box(0).ShowText(pair_.LeftText());
  Box(1).ShowText(pair_.RightText());
}

void PairField::ShowName(const QString& name) {
  ListField::ShowName(name);
  Box(0).setAccessibleName(name + (isSlope_ ? ", rise" : ", thickness"));
  Box(1).setAccessibleName(name + (isSlope_ ? ", run" : ", depth"));
}

// The bar stands between the two texts; one that was typed is nothing that a measure could hold.
std::string PairField::Entry() const {
  std::string left = TextOf(0);
  std::string right = TextOf(1);
  std::replace(left.begin(), left.end(), '|', ' ');
  std::replace(right.begin(), right.end(), '|', ' ');
  return left + " | " + right;
}

QStringList PairField::Rows() const {
  QStringList rows;
  for (const PairRow& row : pair_.List()) rows << QString::fromStdString(row.Caption);
  return rows;
}

// --- One text
// -------------------------------------------------------------------------------------------------------

ComboField::ComboField(Session& session, ComboControl& combo, QWidget* host)
    : ListField(session, combo, host, 1), combo_(combo) {}

void ComboField::ShowState() {
  const Document& document = TheSession().Document();
  const bool isField = combo_.Host != Host::kTabStrip;
  Lock(!TakesEntry(document.design, combo_));
  Color(isField ? document.preferences.CtlForeColor : kSystemWindowTextColor,
        isField ? document.preferences.CtlBackColor : kSystemWindowColor);
  Box(0).ShowText(combo_.Text());
}

void ComboField::ShowName(const QString& name) {
  ListField::ShowName(name);
  Box(0).setAccessibleName(name);
}

QStringList ComboField::Rows() const {
  QStringList rows;
  for (const std::string& row : combo_.List()) rows << QString::fromStdString(row);
  return rows;
}

}  // namespace pitchcraft
