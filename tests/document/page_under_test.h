// A document as the tests of one page's three forms see it: led by lines of a script, asked for what the page
// shown gives. What they know of the document stands here and nowhere else.
#pragma once

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "paper_test.h"
#include "support/golden.h"
#include "support/page_forms.h"

namespace pitchcraft {

/// A document that was just started, with a printer and a folder for its files.
class PageUnderTest {
 public:
  explicit PageUnderTest(const std::filesystem::path& folder)
      : folder_(folder), document_({dialogs_, store_, folder, &printer_}) {
    Start(document_);
  }

  /// One line of a script. False where it was refused.
  bool Do(std::string_view line) {
    const std::string_view verb = TakeWord(line);
    if (verb == "click") return Taken(actions_.Click(line));
    if (verb == "calculate") return Taken(actions_.Calculate());
    if (verb == "press") return Taken(actions_.Press(line));
    const std::string_view name = TakeWord(line);
    if (verb == "type") return Taken(actions_.Type(name, line));
    if (verb == "enter") return Taken(actions_.Enter(name, line));
    if (verb == "edit") return Taken(actions_.Edit(name, line));
    if (verb == "pick") return Taken(actions_.Pick(name, line));
    if (verb == "check") return Taken(actions_.Check(name, line == "on"));
    if (verb == "spin") return Taken(actions_.Spin(name, line == "up"));
    if (verb == "page") return Taken(actions_.Page(name, Number(line)));
    if (verb == "size") {
      document_.window.Place.Width = Number(name);
      document_.window.Place.Height = Number(line);
      FollowSize(document_);
      return true;
    }
    ADD_FAILURE() << "no such action: " << verb;
    return false;
  }

  testing::PageFacts Facts() const {
    const IndexTab& tab = document_.design.sheet.Tabs[0];
    return {document_.design.sheet.RoofList.Text(), tab.Pages(), static_cast<std::size_t>(tab.Page),
            document_.design.Metric};
  }
  const Recording& Screen() const { return document_.Board().Recorder.Operations(); }
  /// Drawing units for an inch or a millimetre.
  double DrawScale() const { return pitchcraft::DrawScale(document_.design); }

  /// The sheet of the page shown, or nothing.
  std::optional<PrintedPage> Print() {
    printer_.sheets.clear();
    actions_.Click("mnuFilePrint");
    if (printer_.sheets.empty()) return std::nullopt;
    return std::move(printer_.sheets.back());
  }
  /// The bytes of the page's DXF file, or nothing.
  std::optional<std::string> Dxf() {
    const std::filesystem::path file = folder_ / "page.dxf";
    std::filesystem::remove(file);
    dialogs_.answers.assign(1, file.string());
    actions_.Click("mnuFileExportDXF");
    dialogs_.answers.clear();
    if (!std::filesystem::exists(file)) return std::nullopt;
    return testing::ReadWhole(file.string());
  }
  /// The texts of the message boxes so far.
  const std::vector<std::string>& Messages() const { return dialogs_.messages; }

 private:
  static bool Taken(const Refusal& refusal) { return !refusal.has_value(); }
  static std::string_view TakeWord(std::string_view& line) {
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::string_view word = line.substr(0, end);
    line = Trimmed(line.substr(end));
    return word;
  }
  static int Number(std::string_view text) {
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
  }

  std::filesystem::path folder_;
  AnsweringDialogs dialogs_;
  MemoryStore store_;
  RecordingPrinter printer_;
  Document document_;
  Actions actions_{document_};
};

}  // namespace pitchcraft
