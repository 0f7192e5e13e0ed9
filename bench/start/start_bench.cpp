// Starts both windows in turn, each from nothing to its first picture, and prints how their times compare.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kRuns = 21;

/// Milliseconds from the start of the program to its first picture, where it ends; below 0 when it failed.
double TimeOf(const QString& program) {
  QElapsedTimer timer;
  timer.start();
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, {});
  const bool done = process.waitForFinished(30000);
  const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  return done && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 ? time : -1;
}

double Median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QString folder = QCoreApplication::applicationDirPath();
  std::vector<double> real;
  std::vector<double> bare;
  for (int run = 0; run <= kRuns; ++run) {
    const double bareTime = TimeOf(folder + "/bench_start_bare");
    const double realTime = TimeOf(folder + "/bench_start_real");
    if (bareTime < 0 || realTime < 0) {
      std::fputs("bench_start: a window did not come up\n", stderr);
      return 1;
    }
    if (run == 0) continue;  // the first start reads the disk
    bare.push_back(bareTime);
    real.push_back(realTime);
  }
  std::printf(
      "start to first paint, median of %d: window %.1f ms, bare window %.1f ms, ratio %.2f (aim 1.3)\n",
      kRuns, Median(real), Median(bare), Median(real) / Median(bare));
  return 0;
}
