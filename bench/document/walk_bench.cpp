// Which actions are slow? Times each action of a random walk over all roof types and compares the slowest
// with the median.
#include <time.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "../../tests/support/random_walk.h"
#include "document/null_surroundings.h"
#include "document/print.h"
#include "document/session_ends.h"

namespace {

/// Processor time of this thread, so that other programs do not count.
double ProcessorSeconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace

int main() {
  using namespace pitchcraft;
  constexpr int kSteps = 50000;
  constexpr std::size_t kShown = 8;
  NullSurroundings around;
  Document document(around.Get());
  Start(document);
  RandomWalk walk(document, 1);
  std::vector<std::pair<double, std::string>> steps;
  steps.reserve(kSteps);
  for (int i = 0; i < kSteps; ++i) {
    const double start = ProcessorSeconds();
    std::string what = walk.Step();
    const double seconds = ProcessorSeconds() - start;
    steps.emplace_back(seconds, std::move(what));
  }
  std::sort(steps.begin(), steps.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
  const double median = steps[kSteps / 2].first;
  std::printf("%d actions, median %.1f us; the slowest:\n", kSteps, median * 1e6);
  for (std::size_t i = 0; i < kShown; ++i) {
    std::printf("  %9.1f us  %6.1f times the median  %s\n", steps[i].first * 1e6, steps[i].first / median,
                steps[i].second.substr(0, 60).c_str());
  }
  return 0;
}
