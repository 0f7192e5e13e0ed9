#include "shell/choice_field.h"

#include <QSignalBlocker>
#include <QStyleOption>
#include <QWheelEvent>
#include <algorithm>

#include "shell/entry_box.h"
#include "shell/field_look.h"

namespace pitchcraft {

ChoiceField::ChoiceField(Session& session, ComboControl& combo, QWidget* host)
    : QComboBox(host), ControlView(session, combo), combo_(combo) {
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(this, &QComboBox::activated, this, [this](int row) {
    const std::string caption = itemText(row).toStdString();
    TheSession().Do([&](Actions& actions) { actions.Pick(Name(), caption); });
  });
}

void ChoiceField::ShowState() {
  const QSignalBlocker quiet(this);
  const Document& document = TheSession().Document();
  const bool isField = combo_.Host != Host::kTabStrip;
  const std::uint32_t fore = isField ? document.preferences.CtlForeColor : kSystemWindowTextColor;
  const std::uint32_t back = isField ? document.preferences.CtlBackColor : kSystemWindowColor;
  if (colors_.Take(fore, back, parentWidget()->palette())) setPalette(colors_.Palette());
  if (rows_ != combo_.List()) {
    rows_ = combo_.List();
    clear();
    for (const std::string& row : rows_) addItem(QString::fromStdString(row));
    setMaxVisibleItems(count());
  }
  if (currentIndex() != combo_.ListIndex()) setCurrentIndex(combo_.ListIndex());
}

QSize ChoiceField::SizeForWords() const {
  const QFontMetrics words = fontMetrics();
  int widest = 0;
  for (const std::string& row : combo_.List()) {
    widest = std::max(widest, words.horizontalAdvance(QString::fromStdString(row)));
  }
  QStyleOptionComboBox box;
  initStyleOption(&box);
  const QSize text(widest, words.height());
  const QSize outside = style()->sizeFromContents(QStyle::CT_ComboBox, &box, text, this);
  return {outside.width(), words.height() + kAboveAndBelowText};
}

// A wheel that only passes over must not change the roof.
void ChoiceField::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace pitchcraft
