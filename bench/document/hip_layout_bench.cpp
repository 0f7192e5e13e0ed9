// What the layout of a hip roof costs, from the entered spacing to the finished recording, and how that grows
// with the number of jacks. The sizes are timed alternately in one run, and the medians are compared.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "document/actions.h"
#include "document/document.h"
#include "document/null_surroundings.h"
#include "document/print.h"
#include "document/session_ends.h"

namespace pitchcraft {
namespace {

constexpr int kRounds = 60;
constexpr int kCommitsPerRound = 20;
constexpr double kSpacing = 12;
constexpr int kLayoutPage = 3;

/// A hip roof with that many jacks on its two faces, on its layout page.
struct Layout {
  NullSurroundings around;
  Document document{around.Get()};
  Actions actions{document};
  std::vector<double> seconds;

  explicit Layout(int jacks) {
    Start(document);
    actions.Pick("cboType", "Hip");
    actions.Enter("LWSlope(0)", "6 | 12");
    actions.Click("mnuHipLayoutCenter");
    // The last place on each face is at the corner, where no wood is left.
    const double run = (jacks / 2 + 1) * kSpacing - document.design.Rafter1.Overhang;
    actions.Type("FtSpan(0)", std::to_string(run));
    actions.Page("VSTab(0)", kLayoutPage);
  }

  void Round() {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < kCommitsPerRound; ++i) actions.Type("cboSpacing", "12\"");
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    seconds.push_back(time.count() / kCommitsPerRound);
  }

  double Median() {
    std::nth_element(seconds.begin(), seconds.begin() + kRounds / 2, seconds.end());
    return seconds[kRounds / 2];
  }

  int Jacks() const {
    const HipLayout layout = LayOutHip(document.design.Rafter1, {});
    return static_cast<int>(layout.Rafters.size()) - 2;
  }
};

}  // namespace
}  // namespace pitchcraft

int main() {
  using pitchcraft::Layout;
  constexpr int kHundredFeet = 100;  // a run of 50 feet at 12" has 50 jacks on each face
  Layout ten(10);
  Layout hundredFeet(kHundredFeet);
  Layout thousand(1000);
  for (int round = 0; round < pitchcraft::kRounds; ++round) {
    for (Layout* layout : {&ten, &hundredFeet, &thousand}) layout->Round();
  }
  std::printf("commit to recording of a hip layout\n");
  for (Layout* layout : {&ten, &hundredFeet, &thousand}) {
    std::printf("  %5d jacks            %8.1f us\n", layout->Jacks(), layout->Median() * 1e6);
  }
  const double perJack = thousand.Median() / thousand.Jacks() / (hundredFeet.Median() / hundredFeet.Jacks());
  const double whole = thousand.Median() / ten.Median() / (double(thousand.Jacks()) / ten.Jacks());
  std::printf("growth, 10 to 1000 jacks  %8.3f   (1 is linear; aim: at most 1)\n", whole);
  std::printf("per jack, 100 to 1000     %8.3f   (aim: at most 1.2)\n", perJack);
  return 0;
}
