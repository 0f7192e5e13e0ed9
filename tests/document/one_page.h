// The rule that screen, paper and file of one page show one drawing.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "page_under_test.h"
#include "support/page_forms.h"

namespace pitchcraft {

/// What a page gives, each form taken the way a person takes it.
struct ThreeForms {
  testing::PageForm Screen;
  std::optional<testing::SheetForm> Paper;  ///< none where nothing came out
  std::optional<testing::SheetForm> File;
  testing::Disagreements Presence;  ///< what is wrong with what came out, whatever it shows
};

/// A page that is blank gives nothing, and the person is told so.
inline ThreeForms TakeForms(PageUnderTest& page) {
  ThreeForms forms;
  const Recording screen = page.Screen();
  std::size_t said = page.Messages().size();
  const auto told = [&] { return std::exchange(said, page.Messages().size()) < page.Messages().size(); };

  const std::optional<PrintedPage> printed = page.Print();
  const bool printTold = told();
  const std::optional<std::string> dxf = page.Dxf();
  const bool fileTold = told();

  const auto broken = [&](const char* what) { forms.Presence.push_back(std::string("presence: ") + what); };
  if (page.Screen() != screen) broken("printing or exporting changed the screen");
  if (screen.empty() && printed) broken("a sheet of a page that is blank");
  if (screen.empty() && dxf) broken("a file of a page that is blank");
  if (!screen.empty() && !printed) broken("a drawing on the screen, nothing on paper");
  if (!screen.empty() && !dxf) broken("a drawing on the screen, nothing in a file");
  if (!printed && !printTold) broken("nothing was printed and nobody was told");
  if (!dxf && !fileTold) broken("nothing was exported and nobody was told");

  forms.Screen = testing::FormOfScreen(screen, page.DrawScale());
  if (printed) forms.Paper = testing::FormOfPaper(*printed, page.DrawScale());
  if (dxf) forms.File = testing::FormOfFile(*dxf);
  return forms;
}

/// All rules that the page shown breaks.
inline testing::Disagreements CheckPage(PageUnderTest& page) {
  const testing::PageFacts facts = page.Facts();
  const ThreeForms forms = TakeForms(page);
  testing::Disagreements found = forms.Presence;
  if (page.Screen().empty()) return found;
  const testing::Disagreements more = testing::Compare(
      facts, forms.Screen, forms.Paper ? &*forms.Paper : nullptr, forms.File ? &*forms.File : nullptr);
  found.insert(found.end(), more.begin(), more.end());
  return found;
}

}  // namespace pitchcraft
