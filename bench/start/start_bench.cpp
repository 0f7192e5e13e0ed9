// Starts both windows alternately and compares their times to the first picture: by the clock, and in
// processor time, which a busy machine does not distort.
#include <sys/resource.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kRuns = 21;

/// In milliseconds.
struct Cost {
  double clock = 0;
  double processor = 0;
};

/// The runs of one program.
struct Starts {
  std::vector<Cost> costs;
  int widgets = 0;
};

double ProcessorOfChildren() {
  rusage usage{};
  getrusage(RUSAGE_CHILDREN, &usage);
  const auto milliseconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
  };
  return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

/// Both start as on a first day, without the settings of this machine's user.
QProcessEnvironment FirstDay(const QString& home) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) environment.insert(name, home);
  return environment;
}

/// From the start of the program to its first picture, at which it ends. False if no picture appeared.
bool Run(const QString& program, const QString& home, Starts& starts) {
  const double before = ProcessorOfChildren();
  QElapsedTimer timer;
  timer.start();
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.setProcessEnvironment(FirstDay(home));
  process.start(program, {});
  const bool done = process.waitForFinished(30000);
  const double clock = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  starts.costs.push_back({clock, ProcessorOfChildren() - before});
  starts.widgets = process.readAll().trimmed().split('\n').last().toInt();
  return done && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

double Median(const std::vector<Cost>& costs, double Cost::*which) {
  std::vector<double> times;
  for (const Cost& cost : costs) times.push_back(cost.*which);
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

void Print(const char* what, const Starts& real, const Starts& bare, double Cost::*which) {
  const double window = Median(real.costs, which);
  const double plain = Median(bare.costs, which);
  std::printf("start to first paint, %s: window %.1f ms, bare window %.1f ms, ratio %.2f (aim 1.3)\n", what,
              window, plain, window / plain);
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QString folder = QCoreApplication::applicationDirPath();
  const QTemporaryDir home;
  Starts real;
  Starts bare;
  for (int run = 0; run <= kRuns; ++run) {
    if (!Run(folder + "/bench_start_bare", home.path(), bare) ||
        !Run(folder + "/bench_start_real", home.path(), real)) {
      std::fputs("bench_start: a window did not appear\n", stderr);
      return 1;
    }
    if (run > 0) continue;
    // The first start includes reading from the disk.
    real.costs.clear();
    bare.costs.clear();
  }
  std::printf("widgets: window %d, bare window %d\n", real.widgets, bare.widgets);
  Print("by the clock", real, bare, &Cost::clock);
  Print("processor", real, bare, &Cost::processor);
  return 0;
}
