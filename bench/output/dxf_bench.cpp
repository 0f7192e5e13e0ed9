// Writing a DXF file with everything in the largest drawing: DxfWriter against ezdxf, the same entities, in
// one run. Both add their entities one by one and save them to a file. Starting Python is not counted.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "output/dxf_writer.h"

namespace pitchcraft {
namespace {

constexpr int kLines = 1000;
constexpr int kTexts = 300;
constexpr int kDimensions = 60;
constexpr int kRounds = 15;

void Tell(DxfWriter& writer) {
  for (int i = 0; i < kLines; ++i) writer.Line(i, 0.5 * i, i + 7.25, 0.25 * i);
  for (int i = 0; i < kTexts; ++i) writer.Text("Rafter " + std::to_string(i), i, 2.0 * i, 4, i % 90);
  for (int i = 0; i < kDimensions; ++i) writer.DimHorizontal(i, 0, 100 + i, 10, -10 - i);
}

template <typename Finish>
double Milliseconds(Finish finish) {
  const auto start = std::chrono::steady_clock::now();
  DxfWriter writer;
  Tell(writer);
  finish(writer);
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// The script's output: milliseconds per round, one line for each.
std::vector<double> OtherRounds(const std::string& path) {
  const std::string arguments = " '" PITCHCRAFT_BENCH_DIR "/write_with_ezdxf.py' '" + path + "' " +
                                std::to_string(kLines) + " " + std::to_string(kTexts) + " " +
                                std::to_string(kDimensions) + " " + std::to_string(kRounds);
  // The library belongs to the system's Python, which may not be the first on the path.
  const std::string command =
      "for p in python3 /usr/bin/python3; do \"$p\" -c 'import ezdxf' 2>/dev/null && "
      "exec \"$p\"" +
      arguments + "; done";
  std::vector<double> rounds;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return rounds;
  std::array<char, 128> line{};
  while (std::fgets(line.data(), line.size(), pipe) != nullptr) rounds.push_back(std::atof(line.data()));
  pclose(pipe);
  return rounds;
}

double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2), values.end());
  return values[values.size() / 2];
}

int Compare(const std::string& folder) {
  std::vector<double> saved;  // until it is on the disk, so that the file is whole even if the machine stops
  std::vector<double> told;   // until the bytes exist
  std::size_t size = 0;
  for (int i = 0; i < kRounds; ++i) {
    saved.push_back(Milliseconds([&](DxfWriter& writer) {
      writer.FileName = folder + "/ours.dxf";
      writer.Save();
    }));
    told.push_back(Milliseconds([&](DxfWriter& writer) { size = writer.Bytes().size(); }));
  }
  const std::vector<double> theirs = OtherRounds(folder + "/theirs.dxf");
  std::printf("%d lines, %d texts, %d dimensions; medians of %d files\n", kLines, kTexts, kDimensions,
              kRounds);
  std::printf("DxfWriter  %8.2f ms, %zu bytes; %.2f ms of it without the disk\n", Median(saved), size,
              Median(told));
  if (theirs.empty()) {
    std::puts("ezdxf is missing: tools/packages.sh readers");
    return 1;
  }
  std::printf("ezdxf      %8.2f ms, %ju bytes\n", Median(theirs),
              std::filesystem::file_size(folder + "/theirs.dxf"));
  std::printf("ezdxf takes %.0f times as long\n", Median(theirs) / Median(saved));
  return 0;
}

}  // namespace
}  // namespace pitchcraft

int main() {
  std::string folder = (std::filesystem::temp_directory_path() / "pitchcraft-dxf-XXXXXX").string();
  if (mkdtemp(folder.data()) == nullptr) return 1;
  const int status = pitchcraft::Compare(folder);
  std::filesystem::remove_all(folder);
  return status;
}
