#include "session/dump.h"

namespace pitchcraft {
namespace {

// What a control shows beside its place, by kind.
struct OwnMembers {
  Json& dump;

  void operator()(const MeasureControl* field) const {
    dump["Value"] = NumberOf(field->Value());
    dump["Text"] = field->Text();
    dump["ForeColor"] = field->ForeColor;
  }
  void operator()(const PairControl* field) const {
    dump["LeftValue"] = NumberOf(field->LeftValue());
    dump["RightValue"] = NumberOf(field->RightValue());
    dump["LeftText"] = field->LeftText();
    dump["RightText"] = field->RightText();
    dump["ListIndex"] = field->ListIndex();
    dump["Locked"] = field->Locked;
    Json list = Json::array();
    for (const PairRow& row : field->List()) list.push_back(row.Caption);
    dump["List"] = std::move(list);
  }
  void operator()(const ComboControl* combo) const {
    dump["Text"] = combo->Text();
    dump["ListIndex"] = combo->ListIndex();
    dump["List"] = combo->List();
  }
  void operator()(const CheckControl* box) const {
    dump["Value"] = box->Value;
    dump["Caption"] = box->Caption;
  }
  void operator()(const LabelControl* label) const { dump["Caption"] = label->Caption; }
  void operator()(const ButtonControl* button) const { dump["Caption"] = button->Caption; }
  void operator()(const SpinControl*) const {}
  void operator()(const ContainerControl* container) const { dump["Height"] = container->Height; }
};

}  // namespace

Json DumpSheet(const Sheet& sheet) {
  Json dump = Json::object();
  for (const AnyControl& any : sheet.Controls()) {
    const Control& control = ControlOf(any);
    Json own = {{"Visible", control.Visible}, {"Enabled", control.Enabled}, {"Top", control.Top}};
    std::visit(OwnMembers{own}, any);
    dump[control.Name] = std::move(own);
  }
  return dump;
}

}  // namespace pitchcraft
