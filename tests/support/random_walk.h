// A person without a plan: any action on any control, with sensible and absurd texts.
#pragma once

#include <array>
#include <random>
#include <string>

#include "support/document_api.h"

namespace pitchcraft {

class RandomWalk {
 public:
  RandomWalk(Document& document, unsigned seed) : document_(document), actions_(document), random_(seed) {}

  /// Takes one action; a refusal counts as one. Gives what it was, as a script would write it.
  std::string Step() {
    switch (Below(12)) {
      case 0: return Pick("cboType", Any(document_.design.sheet.RoofList.List()));
      case 1:
        return Say("press",
                   document_.design.toolBar.Buttons()[Below(document_.design.toolBar.Buttons().size())].Key);
      case 2:
        return Say("click",
                   document_.design.menus.Items()[Below(document_.design.menus.Items().size())]->Name);
      case 3: return Page();
      case 4: return Size();
      case 5: return Mouse();
      case 6: return Spin();
      default: return OnControl();
    }
  }

 private:
  std::size_t Below(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
  }
  const std::string& Any(const std::vector<std::string>& list) { return list[Below(list.size())]; }

  std::string Text() {
    static const std::array<const char*, 30> kTexts{
        "0",           "1",           "6",     "12",         "16\"",         "24",         "144",
        "12' 6 1/2\"", "45",          "90",    "22.5",       "-3",           "1e30",       "1e-30",
        "0.001",       "1000000",     "",      "letters",    "nan",          "1/0",        "25%",
        "6 | 12",      "9 | 12",      "0 | 0", "1.5 | 7.25", "1e30 | 1e-30", "100 | 1000", "3600 mm",
        "120",         "\xE2\x88\x9E"};
    return kTexts[Below(kTexts.size())];
  }

  std::string Say(const char* verb, std::string_view name) {
    if (name == "mnuFileExit") return "no exit";
    if (std::string_view(verb) == "press") {
      actions_.Press(name);
    } else {
      actions_.Click(name);
    }
    return std::string(verb) + " " + std::string(name);
  }

  std::string Pick(const std::string& control, const std::string& item) {
    actions_.Pick(control, item);
    return "pick " + control + " " + item;
  }

  std::string Page() {
    const int tab = static_cast<int>(Below(2));
    const int page = static_cast<int>(Below(5));
    const std::string name = "VSTab(" + std::to_string(tab) + ")";
    actions_.Page(name, page);
    return "page " + name + " " + std::to_string(page);
  }

  std::string Size() {
    document_.window.Place.Width = static_cast<int>(Below(40000));
    document_.window.Place.Height = static_cast<int>(Below(25000));
    FollowSize(document_);
    return "size " + std::to_string(document_.window.Place.Width) + " " +
           std::to_string(document_.window.Place.Height);
  }

  std::string Mouse() {
    const int picture = PageShown(document_.design) == 0 ? 1 : 3;
    const int button = static_cast<int>(1 + Below(2));
    const int x = static_cast<int>(Below(20000));
    PressOnFigure(document_, button, x);
    return "mouse Picture" + std::to_string(picture) + (button == kLeftButton ? " left " : " right ") +
           std::to_string(x);
  }

  std::string Spin() {
    const std::string name = "Spin(" + std::to_string(Below(8)) + ")";
    const bool up = Below(2) == 0;
    actions_.Spin(name, up);
    return "spin " + name + (up ? " up" : " down");
  }

  std::string OnControl() {
    const auto& controls = document_.design.sheet.Controls();
    const AnyControl& any = controls[Below(controls.size())];
    const std::string& name = ControlOf(any).Name;
    actions_.Hover(name);
    if (auto* const* box = std::get_if<CheckControl*>(&any)) {
      const bool on = !(*box)->Ticked();
      actions_.Check(name, on);
      return "check " + name + (on ? " on" : " off");
    }
    if (std::holds_alternative<ButtonControl*>(any)) return Say("click", name);
    if (auto* const* combo = std::get_if<ComboControl*>(&any);
        combo != nullptr && !(*combo)->List().empty() && Below(2) == 0) {
      return Pick(name, Any((*combo)->List()));
    }
    if (auto* const* pair = std::get_if<PairControl*>(&any);
        pair != nullptr && !(*pair)->List().empty() && Below(2) == 0) {
      return Pick(name, (*pair)->List()[Below((*pair)->List().size())].Caption);
    }
    const std::string text = Text();
    switch (Below(3)) {
      case 0: actions_.Edit(name, text); return "edit " + name + " " + text;
      case 1: actions_.Enter(name, text); return "enter " + name + " " + text;
      default: actions_.Type(name, text); return "type " + name + " " + text;
    }
  }

  Document& document_;
  Actions actions_;
  std::mt19937 random_;
};

}  // namespace pitchcraft
