// Runs every benchmark, then prints each figure beside its baseline measured
// in the same run. A benchmark named "<figure>/baseline" is the baseline of
// the benchmark named "<figure>"; a figure may register a target ratio with
// VORN_BENCH_TARGET so the table can say whether it is met. With
// --benchmark_repetitions=N every value in the table is the median of the N
// runs.
//
// The table follows a line "# vorn-bench summary" and has one line per
// figure, fields separated by blanks:
//   figure measured_ns baseline_ns ratio target status
// where baseline_ns and ratio are "-" for a figure without baseline, target
// is "-" or the largest ratio allowed, and status is "met", "MISSED" or "-".
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "BenchSupport.h"

namespace {
struct Result {
  std::vector<double> ns;  // real time per iteration of each repetition, nanoseconds
  std::string counters;    // items/bytes per second of the last repetition
  double Median() const {
    std::vector<double> sorted = ns;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t n = sorted.size();
    return n % 2 ? sorted[n / 2] : (sorted[n / 2 - 1] + sorted[n / 2]) / 2;
  }
};

class CollectingReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      // The figure's own name, without the "/real_time", "/iterations:N" or
      // "/repeats:N" that run options append, so that baselines still pair up.
      std::string figure = run.run_name.function_name;
      if (!run.run_name.args.empty()) figure += "/" + run.run_name.args;
      auto [it, added] = m_results.try_emplace(figure);
      if (added) m_order.push_back(figure);
      Result& r = it->second;
      r.ns.push_back(run.GetAdjustedRealTime() * Multiplier(run.time_unit));
      r.counters.clear();
      for (const auto& [name, counter] : run.counters) {
        char buf[96];
        std::snprintf(buf, sizeof buf, "%s%s=%.4g", r.counters.empty() ? "" : " ", name.c_str(),
                      static_cast<double>(counter));
        r.counters += buf;
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }
  const std::map<std::string, Result>& Results() const { return m_results; }
  const std::vector<std::string>& Order() const { return m_order; }

 private:
  static double Multiplier(benchmark::TimeUnit unit) {
    switch (unit) {
      case benchmark::kSecond:
        return 1e9;
      case benchmark::kMillisecond:
        return 1e6;
      case benchmark::kMicrosecond:
        return 1e3;
      default:
        return 1.0;
    }
  }
  std::map<std::string, Result> m_results;
  std::vector<std::string> m_order;
};

bool IsBaseline(const std::string& name) {
  static const std::string suffix = "/baseline";
  return name.size() > suffix.size() &&
         name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0;
}
}  // namespace

std::map<std::string, double>& VornBenchTargets() {
  static std::map<std::string, double> targets;
  return targets;
}

int main(int argc, char** argv) {
  VornBenchStartup(argc, argv);
  benchmark::Initialize(&argc, argv);
  CollectingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();

  std::printf("\n# vorn-bench summary\n");
  std::printf("%-40s %14s %14s %8s %7s %7s  %s\n", "figure", "measured_ns", "baseline_ns", "ratio",
              "target", "status", "counters");
  for (const std::string& name : reporter.Order()) {
    if (IsBaseline(name)) continue;
    const Result& r = reporter.Results().at(name);
    const double measured = r.Median();
    auto base = reporter.Results().find(name + "/baseline");
    auto target = VornBenchTargets().find(name);
    char baseText[32] = "-", ratioText[32] = "-", targetText[32] = "-", status[16] = "-";
    if (target != VornBenchTargets().end())
      std::snprintf(targetText, sizeof targetText, "%.2f", target->second);
    if (base != reporter.Results().end() && base->second.Median() > 0) {
      const double ratio = measured / base->second.Median();
      std::snprintf(baseText, sizeof baseText, "%.1f", base->second.Median());
      std::snprintf(ratioText, sizeof ratioText, "%.2f", ratio);
      if (target != VornBenchTargets().end())
        std::snprintf(status, sizeof status, "%s", ratio <= target->second ? "met" : "MISSED");
    }
    std::printf("%-40s %14.1f %14s %8s %7s %7s  %s\n", name.c_str(), measured, baseText, ratioText,
                targetText, status, r.counters.c_str());
  }
  VornBenchShutdown();
  return 0;
}
