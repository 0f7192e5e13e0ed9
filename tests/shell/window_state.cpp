#include <sstream>

#include "core/number_text.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

struct Teller {
  std::ostringstream& out;

  void operator()(const MeasureControl* field) const {
    out << ExactText(field->Value()) << " [" << field->Text() << "] " << field->ForeColor;
  }
  void operator()(const PairControl* pair) const {
    out << ExactText(pair->LeftValue()) << " " << ExactText(pair->RightValue()) << " [" << pair->LeftText()
        << "|" << pair->RightText() << "] " << pair->ListIndex() << pair->Locked;
  }
  void operator()(const ComboControl* combo) const {
    out << "[" << combo->Text() << "] " << combo->ListIndex() << " of " << combo->List().size();
  }
  void operator()(const CheckControl* box) const { out << box->Value; }
  void operator()(const LabelControl* label) const { out << label->Caption; }
  void operator()(const ButtonControl* button) const { out << button->Caption; }
  void operator()(const SpinControl*) const {}
  void operator()(const ContainerControl*) const {}
};

void Tell(std::ostringstream& out, const Rafter& rafter) {
  for (const RafterMember& member : RafterMembers()) {
    out << member.Name << " ";
    std::visit(
        [&](const auto& value) {
          if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::string>) {
            out << value;
          } else {
            out << ExactText(static_cast<double>(value));
          }
        },
        member.Read(rafter));
    out << "\n";
  }
}

}  // namespace

std::string StateOf(Document& document) {
  std::ostringstream out;
  out << document.window.Title << "\n"
      << static_cast<int>(document.design.RoofType) << " " << UnitRun(document.design) << " "
      << PageShown(document.design) << "\n";
  for (const AnyControl& any : document.design.sheet.Controls()) {
    const Control& control = ControlOf(any);
    out << control.Name << " " << control.Visible << control.Enabled << " " << control.Top << " ";
    std::visit(Teller{out}, any);
    out << "\n";
  }
  for (const MenuItem* item : document.design.menus.Items()) {
    out << item->Name << " " << item->Visible << item->Enabled << item->Checked << "\n";
  }
  for (const ToolButton& button : document.design.toolBar.Buttons()) {
    out << button.Key << " " << button.Visible << button.Pressed << "\n";
  }
  for (const IndexTab& tab : document.design.sheet.Tabs) out << tab.Caption() << " " << tab.Page << "\n";
  Tell(out, document.design.Rafter1);
  Tell(out, document.design.Rafter2);
  out << document.Board().Recorder.Operations().size() << " strokes\n";
  return out.str();
}

}  // namespace pitchcraft::testing
