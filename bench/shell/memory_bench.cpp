// How much memory the window keeps, whatever is done in it: resident memory over a long random walk, after
// warming up and at the end. bench_window_memory [ACTIONS]
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "../../tests/support/random_walk.h"
#include "document/null_surroundings.h"
#include "document/print.h"
#include "document/session_ends.h"
#include "shell/main_window.h"
#include "shell/program.h"
#include "shell/program_style.h"

namespace {

constexpr long kActions = 200000;
constexpr int kParts = 10;
constexpr int kPaintedEvery = 10;

double ResidentMegabytes() {
  std::ifstream file("/proc/self/statm");
  double total = 0;
  double resident = 0;
  file >> total >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// Keeps nothing, so that messages do not count as the window's memory.
class DeafDialogs final : public pitchcraft::Dialogs {
 public:
  void MsgBox(const std::string&, const std::string&) override {}
};

}  // namespace

int main(int argc, char** argv) {
  using namespace pitchcraft;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  UseProgramStyle();
  const QApplication application(argc, argv);
  // Lists and exports are written to the current folder.
  const QTemporaryDir scratch;
  if (!QDir::setCurrent(scratch.path())) return 1;
  SetUpApplication();
  const long asked = argc > 1 ? std::strtol(argv[1], nullptr, 10) : kActions;
  const long actions = asked > kParts ? asked : kActions;
  DeafDialogs dialogs;
  MemoryStore store;
  MainWindow window({dialogs, store, {}});
  window.Open();
  RandomWalk walk(window.Document(), 1);
  const auto run = [&](long count) {
    for (long i = 0; i < count; ++i) {
      walk.Step();
      window.ShowState();
      if (i % kPaintedEvery == 0) {
        QApplication::processEvents();
        window.repaint();
      }
    }
    return ResidentMegabytes();
  };
  const double first = run(actions / kParts);
  std::printf("after %ld actions (warm) %.2f MB\n", actions / kParts, first);
  double last = first;
  for (int part = 1; part < kParts; ++part) {
    last = run(actions / kParts);
    std::printf("after %ld actions %.2f MB\n", (part + 1) * (actions / kParts), last);
    std::fflush(stdout);
  }
  const double thousands = static_cast<double>(actions) * (kParts - 1) / kParts / 1000;
  std::printf("growth %.2f kB for 1000 actions, last / first: ratio %.3f\n",
              (last - first) * 1000 / thousands, last / first);
  return 0;
}
