// Compares each calculation of the record with the same formulas in a plain loop. Both are timed in the same
// run; what counts is their ratio, printed last.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <numbers>
#include <vector>

#include "core/rafter.h"
#include "plain_rafter.h"

namespace pitchcraft::bench {
namespace {

constexpr int kRoofs = 64;

struct Procedure {
  const char* Name;
  Member Type;
  void (Rafter::*Record)();
  void (*Plain)(PlainRafter&);
};

const Procedure kProcedures[] = {
    {"Calculate, common", Member::kCommon, &Rafter::Calculate, PlainCalculate},
    {"Calculate, hip", Member::kHip, &Rafter::Calculate, PlainCalculate},
    {"CalculateBastardHip", Member::kBastardHip, &Rafter::CalculateBastardHip, PlainBastardHip},
    {"CalculateGambrel", Member::kGambrelBottom, &Rafter::CalculateGambrel, PlainGambrel},
    {"CalculateBay", Member::kBayCommon, &Rafter::CalculateBay, PlainBay},
    {"CalculateOctagon", Member::kOctagonHip, &Rafter::CalculateOctagon, PlainOctagon},
};

constexpr double kBayDegrees = 45;

double SlopeOf(int roof) { return 2.0 + roof * 0.17; }
double SpanOf(int roof) { return 100.0 + roof * 2.3; }
double HipRunFactor() { return 12 / std::cos(kBayDegrees / 2 * std::numbers::pi / 180); }
double LedgerRunFactor() { return 12 / std::sin(kBayDegrees * std::numbers::pi / 180); }

void SetUp(Rafter& r, const Procedure& procedure, int roof) {
  r.RafterType = procedure.Type;
  r.Slope = SlopeOf(roof);
  r.HipEndSlope = SlopeOf(roof) + 1;
  if (procedure.Type == Member::kGambrelBottom) r.HipValSlope = SlopeOf(roof) / 4;
  r.Span = SpanOf(roof);
  r.Overhang = 10.5;
  r.Thickness = 1.5;
  r.Depth = 7.25;
  r.FasciaHeight = 7.25;
  r.RidgeThickness = 1.5;
  r.RidgeDepth = 9.25;
  r.HipValThickness = 1.5;
  r.HipValDepth = 9.25;
  r.spacing = 16;
  r.degrees = 30;
  r.Back = 166;
  r.CenterLedgerSpan = 166;
  r.Face = 70;
  r.Projection = 48;
  r.BayAngle = kBayDegrees;
  r.HipRunFactor = HipRunFactor();
  r.LedgerRunFactor = LedgerRunFactor();
  r.Purlins = true;
}

void SetUp(PlainRafter& r, const Procedure& procedure, int roof) {
  r.type = static_cast<int>(procedure.Type);
  r.slope = static_cast<float>(SlopeOf(roof));
  r.endSlope = static_cast<float>(SlopeOf(roof) + 1);
  if (procedure.Type == Member::kGambrelBottom) r.hipSlope = static_cast<float>(SlopeOf(roof) / 4);
  r.span = static_cast<float>(SpanOf(roof));
  r.overhang = 10.5F;
  r.thickness = r.ridge = r.hipThickness = 1.5F;
  r.depth = r.fascia = 7.25F;
  r.ridgeDepth = r.hipDepth = 9.25F;
  r.spacing = 16;
  r.degrees = 30;
  r.back = 166;
  r.face = 70;
  r.projection = 48;
  r.bayAngle = static_cast<float>(kBayDegrees);
  r.hipRunFactor = static_cast<float>(HipRunFactor());
  r.ledgerRunFactor = static_cast<float>(LedgerRunFactor());
  r.purlins = true;
}

void RunRecord(benchmark::State& state, const Procedure& procedure) {
  const auto rafters = std::make_unique<Rafter[]>(kRoofs);
  for (int roof = 0; roof < kRoofs; ++roof) SetUp(rafters[roof], procedure, roof);
  for (auto _ : state) {
    for (int roof = 0; roof < kRoofs; ++roof) {
      Rafter& rafter = rafters[roof];
      rafter.OverhangsEqual = false;
      (rafter.*procedure.Record)();
      benchmark::DoNotOptimize(rafter);
    }
  }
  state.SetItemsProcessed(state.iterations() * kRoofs);
}

void RunPlain(benchmark::State& state, const Procedure& procedure) {
  std::vector<PlainRafter> rafters(kRoofs);
  for (int roof = 0; roof < kRoofs; ++roof) SetUp(rafters[roof], procedure, roof);
  for (auto _ : state) {
    for (PlainRafter& rafter : rafters) {
      rafter.overhangsEqual = false;
      procedure.Plain(rafter);
      benchmark::DoNotOptimize(rafter);
    }
  }
  state.SetItemsProcessed(state.iterations() * kRoofs);
}

// A comparison is worth nothing if the two calculate different things.
void CheckThatBothAgree(const Procedure& procedure) {
  for (int roof = 0; roof < kRoofs; ++roof) {
    Rafter record;
    PlainRafter plain{};
    SetUp(record, procedure, roof);
    SetUp(plain, procedure, roof);
    (record.*procedure.Record)();
    procedure.Plain(plain);
    const bool same = record.Length1 == plain.length1 && record.Length2 == plain.length2 &&
                      record.Seat == plain.seat && record.HipValSeat == plain.hipSeat &&
                      record.CommonDifference24 == plain.difference24 &&
                      record.LedgerLength2 == plain.ledger2 && std::string(record.Pitch) == plain.pitch &&
                      std::string(record.HipPitch) == plain.hipPitch;
    if (same) continue;
    std::fprintf(stderr, "%s and its plain loop differ on roof %d\n", procedure.Name, roof);
    std::exit(1);
  }
}

// Collects the times and finally prints those of each procedure next to those of its loop.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      const std::string name = run.benchmark_name();
      const bool median = run.aggregate_name == "median";
      const bool only = run.run_type == Run::RT_Iteration && times_.count(name) == 0;
      if (median || only) times_[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
  }

  void PrintRatios() {
    for (const Procedure& procedure : kProcedures) {
      const auto record = times_.find(std::string(procedure.Name) + ", record");
      const auto plain = times_.find(std::string(procedure.Name) + ", plain");
      if (record == times_.end() || plain == times_.end()) continue;
      std::printf("ratio %-22s %.2f of the plain loop\n", procedure.Name, record->second / plain->second);
    }
  }

 private:
  std::map<std::string, double> times_;
};

}  // namespace
}  // namespace pitchcraft::bench

int main(int argc, char** argv) {
  using namespace pitchcraft::bench;  // NOLINT(google-build-using-namespace)
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  for (const Procedure& procedure : kProcedures) {
    CheckThatBothAgree(procedure);
    const std::string name = procedure.Name;
    benchmark::RegisterBenchmark((name + ", plain").c_str(),
                                 [&procedure](benchmark::State& state) { RunPlain(state, procedure); });
    benchmark::RegisterBenchmark((name + ", record").c_str(),
                                 [&procedure](benchmark::State& state) { RunRecord(state, procedure); });
  }
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.PrintRatios();
}
