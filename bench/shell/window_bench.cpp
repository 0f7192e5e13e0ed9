// How long an action blocks the window: every script of the examples, line by line, with all the layout and
// painting that follows. Nothing may take longer than a person would notice.
#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "document/null_surroundings.h"
#include "document/print.h"
#include "document/session_ends.h"
#include "session/script.h"
#include "shell/main_window.h"
#include "shell/program.h"
#include "shell/program_style.h"

namespace pitchcraft {
namespace {

constexpr double kNoticed = 50;  // ms
constexpr int kRounds = 5;

struct TimedStep {
  double milliseconds = 0;
  std::string what;
};

/// What the window itself does at the end of an action.
void Show(MainWindow& window) {
  window.ShowState();
  QApplication::processEvents();
  window.repaint();
}

void Play(const std::filesystem::path& example, std::vector<TimedStep>& steps) {
  std::ostringstream output;
  ScriptDialogs dialogs(output);
  MemoryStore store;
  MainWindow window({dialogs, store, {}});
  Script script(window.Document(), dialogs, output,
                [](Document&, const std::string&) { return std::nullopt; });
  window.Open();
  window.resize(1280, 900);
  QApplication::processEvents();
  std::ifstream lines(example);
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (line.empty() || line[0] == '#' || line.starts_with("dump")) continue;
    const auto begin = std::chrono::steady_clock::now();
    script.RunLine(line);
    Show(window);
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begin;
    steps.push_back(
        {taken.count(), example.filename().string() + ":" + std::to_string(number) + ": " + line});
  }
  // A refused line would be quick for the wrong reason.
  if (output.str().find("\"error\"") != std::string::npos) {
    std::fprintf(stderr, "bench_window: %s\n", output.str().c_str());
    std::exit(1);
  }
}

}  // namespace
}  // namespace pitchcraft

int main(int argc, char** argv) {
  using namespace pitchcraft;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  UseProgramStyle();
  const QApplication application(argc, argv);
  // Lists and exports are written to the current folder.
  const QTemporaryDir scratch;
  if (!QDir::setCurrent(scratch.path())) return 1;
  SetUpApplication();
  std::vector<TimedStep> steps;
  for (int round = 0; round < kRounds; ++round) {
    for (const auto& entry : std::filesystem::directory_iterator(PITCHCRAFT_SOURCE_DIR "/examples")) {
      if (entry.path().extension() == ".txt") Play(entry.path(), steps);
    }
  }
  if (steps.size() < 100) return std::fputs("bench_window: there are too few examples\n", stderr), 1;
  std::sort(steps.begin(), steps.end(),
            [](const TimedStep& a, const TimedStep& b) { return a.milliseconds < b.milliseconds; });
  const TimedStep& slowest = steps.back();
  std::printf("%zu actions with paint: median %.2f ms, 99 %% below %.2f ms, slowest %.2f ms (%s)\n",
              steps.size(), steps[steps.size() / 2].milliseconds, steps[steps.size() * 99 / 100].milliseconds,
              slowest.milliseconds, slowest.what.c_str());
  std::printf("slowest / %.0f ms: ratio %.2f (aim below 1)\n", kNoticed, slowest.milliseconds / kNoticed);
  return 0;
}
