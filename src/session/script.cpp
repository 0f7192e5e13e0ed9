#include "session/script.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "design/questions.h"
#include "document/forms.h"
#include "document/pages.h"
#include "document/session_ends.h"
#include "session/dump.h"
#include "session/script_line.h"

namespace pitchcraft {
namespace {

// Larger than any screen; a picture of this size still fits the layout's arithmetic.
constexpr int kLargestSize = 1'000'000;

Refusal NotUnderstood(std::string_view what) { return "not understood: " + std::string(what); }

// A control's name, then a text: `type`, `enter`, `edit` and `pick`.
struct TextVerb {
  std::string_view verb;
  Refusal (Actions::*action)(std::string_view, std::string_view);
};
constexpr TextVerb kTextVerbs[] = {
    {"type", &Actions::Type}, {"enter", &Actions::Enter}, {"edit", &Actions::Edit}, {"pick", &Actions::Pick}};

// A name alone, to the end of the line.
struct NameVerb {
  std::string_view verb;
  Refusal (Actions::*action)(std::string_view);
};
constexpr NameVerb kNameVerbs[] = {
    {"click", &Actions::Click}, {"press", &Actions::Press}, {"hover", &Actions::Hover}};

// A control's name and one of two words.
struct SwitchVerb {
  std::string_view verb;
  std::string_view on;
  std::string_view off;
  Refusal (Actions::*action)(std::string_view, bool);
};
constexpr SwitchVerb kSwitchVerbs[] = {{"check", "on", "off", &Actions::Check},
                                       {"spin", "up", "down", &Actions::Spin}};

struct FormReply {
  ScriptDialogs& dialogs;

  void operator()(IncrementForm* form) const {
    const auto reply = dialogs.Answer(IncrementForm::kName, IncrementForm::kTitle, form->Increment.Text());
    if (!reply) return;
    form->Increment.SetText(*reply);
    form->Accepted = true;
  }
  void operator()(OptionsForm* form) const {
    if (dialogs.Answer(OptionsForm::kName, OptionsForm::kTitle, "")) form->Apply();
  }
  template <typename Form>
  void operator()(Form*) const {
    dialogs.Answer(Form::kName, Form::kTitle, "");
  }
};

}  // namespace

void PrintEvent(std::ostream& output, const Json& event) {
  output << event.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

void ScriptDialogs::MsgBox(const std::string& title, const std::string& text) {
  PrintEvent(output_, {{"event", "message"}, {"title", title}, {"text", text}});
}

std::optional<std::string> ScriptDialogs::OpenFile(const FileDialog& dialog) {
  return Answer("open", dialog.Title, dialog.Name);
}

std::optional<std::string> ScriptDialogs::SaveFile(const FileDialog& dialog) {
  return Answer("save", dialog.Title, dialog.Name);
}

std::optional<std::string> ScriptDialogs::Input(const InputBox& box) {
  return Answer("input", box.Title, box.Name);
}

void ScriptDialogs::ShowForm(const AnyForm& form) { std::visit(FormReply{*this}, form); }

std::optional<std::string> ScriptDialogs::Answer(const char* kind, const std::string& title,
                                                 const std::string& name) {
  std::optional<std::string> answer;
  if (!answers.empty()) {
    answer = std::move(answers.front());
    answers.pop_front();
  }
  Json event{{"event", "dialog"}, {"kind", kind}, {"title", title}, {"name", name}, {"answer", nullptr}};
  if (answer) event["answer"] = *answer;
  PrintEvent(output_, event);
  return answer;
}

Script::Script(Document& document, ScriptDialogs& dialogs, std::ostream& output, PictureWriter writePicture)
    : document_(document),
      dialogs_(dialogs),
      output_(output),
      writePicture_(std::move(writePicture)),
      actions_(document) {}

int Script::Run(std::istream& input) {
  std::string line;
  while (!document_.window.CloseRequested && std::getline(input, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    RunLine(line);
  }
  return status_;
}

void Script::RunLine(std::string_view line) {
  ++line_;
  const std::string_view trimmed = Trimmed(line);
  if (trimmed.empty() || trimmed.front() == '#') return;
  const std::string_view verb = TakeWord(line);
  if (const Refusal refusal = Perform(verb, line)) Error(*refusal, kNotUnderstood);
}

Refusal Script::Perform(std::string_view verb, std::string_view rest) {
  for (const TextVerb& row : kTextVerbs) {
    if (row.verb != verb) continue;
    const std::string_view name = TakeWord(rest);
    return (actions_.*row.action)(name, rest);
  }
  for (const NameVerb& row : kNameVerbs) {
    if (row.verb == verb) return (actions_.*row.action)(Trimmed(rest));
  }
  for (const SwitchVerb& row : kSwitchVerbs) {
    if (row.verb != verb) continue;
    const std::string_view name = TakeWord(rest);
    const std::string_view word = Trimmed(rest);
    if (word != row.on && word != row.off) return NotUnderstood(word);
    return (actions_.*row.action)(name, word == row.on);
  }
  if (verb == "page") {
    const std::string_view name = TakeWord(rest);
    int page = 0;
    if (!ReadNumber(Trimmed(rest), page)) return NotUnderstood(rest);
    return actions_.Page(name, page);
  }
  if (verb == "mouse") return Mouse(rest);
  if (verb == "size") return Size(rest);
  if (verb == "answer") return Answer(rest);
  if (verb == "picture") return Picture(rest);
  if (verb == "dump") return Dump(rest);
  if (verb == "calculate") return actions_.Calculate();
  return NotUnderstood(verb);
}

Refusal Script::Mouse(std::string_view rest) {
  const std::string_view name = TakeWord(rest);
  const std::string_view button = TakeWord(rest);
  int x = 0;
  int y = 0;
  const bool numbers = ReadNumber(TakeWord(rest), x) && ReadNumber(Trimmed(rest), y);
  if (!numbers || (button != "left" && button != "right"))
    return NotUnderstood("mouse PICTURE left|right X Y");
  if (name != "Picture1" && name != "Picture3") return std::string(name) + " is no picture";
  const int shown = OnDesignPage(document_.design) ? 1 : 3;
  const int picture = name == "Picture1" ? 1 : 3;
  if (picture != shown) return std::string(name) + " is hidden";
  PressOnFigure(document_, button == "left" ? kLeftButton : kRightButton, x);
  return std::nullopt;
}

Refusal Script::Size(std::string_view rest) {
  int width = 0;
  int height = 0;
  if (!ReadNumber(TakeWord(rest), width) || !ReadNumber(Trimmed(rest), height))
    return NotUnderstood("size WIDTH HEIGHT");
  const auto fits = [](int size) { return size > 0 && size <= kLargestSize; };
  if (!fits(width) || !fits(height)) return "no window has this size";
  document_.window.Place.Width = width;
  document_.window.Place.Height = height;
  FollowSize(document_);
  return std::nullopt;
}

Refusal Script::Answer(std::string_view rest) {
  if (Trimmed(rest) == "cancel") {
    dialogs_.answers.emplace_back(std::nullopt);
  } else {
    dialogs_.answers.emplace_back(std::string(rest));
  }
  return std::nullopt;
}

Refusal Script::Picture(std::string_view rest) {
  const std::string file(Trimmed(rest));
  if (file.empty()) return NotUnderstood("picture FILE");
  if (const auto failure = writePicture_(document_, file)) Error(*failure, kWorkFailed);
  return std::nullopt;
}

Refusal Script::Dump(std::string_view rest) {
  const std::vector<std::string>& known = DumpMembers();
  std::vector<std::string> members;
  for (std::string_view word = TakeWord(rest); !word.empty(); word = TakeWord(rest)) {
    if (std::find(known.begin(), known.end(), word) == known.end()) return NotUnderstood(word);
    members.emplace_back(word);
  }
  PrintEvent(output_, DumpOf(document_, members));
  return std::nullopt;
}

void Script::Error(const std::string& text, int status) {
  status_ = std::max(status_, status);
  PrintEvent(output_, {{"event", "error"}, {"line", line_}, {"text", text}});
}

}  // namespace pitchcraft
