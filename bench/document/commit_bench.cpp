// What a commit costs, from the typed text to the finished recording, compared with painting that recording;
// and how many commits of a script the driver handles in a second. They are timed alternately in one run, and
// the medians are compared.
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "document/null_surroundings.h"
#include "document/print.h"
#include "document/session_ends.h"
#include "platform/font_setup.h"
#include "platform/painter_canvas.h"
#include "roofs/roof_types.h"
#include "session/script.h"

namespace pitchcraft {
namespace {

constexpr int kRounds = 60;
constexpr int kCommitsPerRound = 20;
constexpr int kImageWidth = 1920;
constexpr int kImageHeight = 1080;
constexpr double kTwipsPerPixel = 15;

double Seconds(std::chrono::steady_clock::duration time) {
  return std::chrono::duration<double>(time).count();
}

double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2), values.end());
  return values[values.size() / 2];
}

/// A document on a screen of 1920 by 1080.
struct Bench {
  NullSurroundings around;
  Document document{around.Get()};
  Actions actions{document};
  QImage image{kImageWidth, kImageHeight, QImage::Format_ARGB32_Premultiplied};

  Bench() {
    document.window.Place = {0, 0, static_cast<int>(kImageWidth * kTwipsPerPixel),
                             static_cast<int>(kImageHeight * kTwipsPerPixel)};
    Start(document);
    actions.Enter("LWSlope(0)", "6 | 12");
  }

  double CommitSeconds(const char* field, int round) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < kCommitsPerRound; ++i) {
      actions.Type(field, std::to_string(120 + (round * kCommitsPerRound + i) % 97));
    }
    return Seconds(std::chrono::steady_clock::now() - start) / kCommitsPerRound;
  }

  double PaintSeconds() {
    const auto start = std::chrono::steady_clock::now();
    image.fill(Qt::black);
    QPainter painter(&image);
    PainterCanvas canvas(painter, {kImageWidth * kTwipsPerPixel, kImageHeight * kTwipsPerPixel, false},
                         document.Meter(), 1 / kTwipsPerPixel);
    document.Board().Recorder.Play(canvas);
    painter.end();
    return Seconds(std::chrono::steady_clock::now() - start);
  }
};

void CompareWithPainting() {
  Bench bench;
  std::vector<double> commits, paints;
  for (int round = 0; round < kRounds; ++round) {
    commits.push_back(bench.CommitSeconds("FtSpan(0)", round));
    paints.push_back(bench.PaintSeconds());
  }
  const double commit = Median(commits), paint = Median(paints);
  std::printf("commit to recording, rafter   %8.1f us\n", commit * 1e6);
  std::printf("painting it at 1920 x 1080    %8.1f us\n", paint * 1e6);
  std::printf("ratio commit / painting       %8.3f   (aim: at most 0.25)\n\n", commit / paint);
}

void CommitsOfEachRoof() {
  std::printf("commit on each roof type\n");
  for (const RoofType* type : RoofTypes()) {
    const RoofType::Facts& row = type->About();
    Bench bench;
    bench.actions.Pick("cboType", row.Item);
    const bool bay = row.Code == Roof::kBay;
    if (bay) {
      for (const auto& [field, text] :
           {std::pair("FtBack", "300"), {"FtFace", "150"}, {"FtBayAngle", "45"}}) {
        bench.actions.Type(field, text);
      }
    }
    std::vector<double> commits;
    for (int round = 0; round < kRounds; ++round)
      commits.push_back(bench.CommitSeconds(bay ? "FtOverhang(0)" : "FtSpan(0)", round));
    std::printf("  %-22s %8.1f us\n", std::string(row.Item).c_str(), Median(commits) * 1e6);
  }
}

void CommitsOfAScript() {
  std::ostringstream output;
  MemoryStore store;
  ScriptDialogs dialogs(output);
  Document document({dialogs, store, {}});
  Start(document);
  Script script(document, dialogs, output, [](const Document&, const std::string&) { return std::nullopt; });
  constexpr int kLines = 20000;
  std::string text;
  for (int i = 0; i < kLines; ++i) text += "type FtSpan(0) " + std::to_string(120 + i % 97) + "\n";
  std::istringstream input(text);
  const auto start = std::chrono::steady_clock::now();
  script.Run(input);
  const double seconds = Seconds(std::chrono::steady_clock::now() - start);
  std::printf("\ncommits of a script a second  %8.0f   (aim: 10000)\n", kLines / seconds);
}

}  // namespace
}  // namespace pitchcraft

int main() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  pitchcraft::EnsureGui();
  pitchcraft::CompareWithPainting();
  pitchcraft::CommitsOfEachRoof();
  pitchcraft::CommitsOfAScript();
  return 0;
}
