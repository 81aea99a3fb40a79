// Runs every benchmark, then prints each figure beside its baseline measured
// in the same run. A benchmark named "<figure>/baseline" is the baseline of
// the benchmark named "<figure>"; a figure may register a target ratio with
// VORN_BENCH_TARGET so the table can say whether it is met.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "BenchSupport.h"

namespace {
struct Result {
  double ns = 0;         // real time per iteration, nanoseconds
  std::string counters;  // items/bytes per second when reported
};

class CollectingReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      Result r;
      r.ns = run.GetAdjustedRealTime() * Multiplier(run.time_unit);
      for (const auto& [name, counter] : run.counters) {
        char buf[96];
        std::snprintf(buf, sizeof buf, "%s%s=%.4g", r.counters.empty() ? "" : " ", name.c_str(),
                      static_cast<double>(counter));
        r.counters += buf;
      }
      // The figure's own name, without the "/real_time" or "/iterations:N"
      // that run options append, so that baselines still pair up.
      std::string figure = run.run_name.function_name;
      if (!run.run_name.args.empty()) figure += "/" + run.run_name.args;
      m_results[figure] = r;
      m_order.push_back(figure);
    }
    ConsoleReporter::ReportRuns(runs);
  }
  const std::map<std::string, Result>& Results() const { return m_results; }
  const std::vector<std::string>& Order() const { return m_order; }

 private:
  static double Multiplier(benchmark::TimeUnit unit) {
    switch (unit) {
      case benchmark::kSecond: return 1e9;
      case benchmark::kMillisecond: return 1e6;
      case benchmark::kMicrosecond: return 1e3;
      default: return 1.0;
    }
  }
  std::map<std::string, Result> m_results;
  std::vector<std::string> m_order;
};

std::string Human(double ns) {
  char buf[32];
  if (ns >= 1e9)
    std::snprintf(buf, sizeof buf, "%.3f s", ns / 1e9);
  else if (ns >= 1e6)
    std::snprintf(buf, sizeof buf, "%.3f ms", ns / 1e6);
  else if (ns >= 1e3)
    std::snprintf(buf, sizeof buf, "%.3f us", ns / 1e3);
  else
    std::snprintf(buf, sizeof buf, "%.1f ns", ns);
  return buf;
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

  std::printf("\n%-44s %14s %14s %9s  %s\n", "figure", "measured", "baseline", "ratio", "target");
  for (const std::string& name : reporter.Order()) {
    if (name.size() > 9 && name.compare(name.size() - 9, 9, "/baseline") == 0) continue;
    const Result& r = reporter.Results().at(name);
    auto base = reporter.Results().find(name + "/baseline");
    auto target = VornBenchTargets().find(name);
    std::string targetText = "-";
    if (target != VornBenchTargets().end()) {
      char buf[64];
      std::snprintf(buf, sizeof buf, "<= %.2fx", target->second);
      targetText = buf;
    }
    if (base != reporter.Results().end() && base->second.ns > 0) {
      const double ratio = r.ns / base->second.ns;
      const bool met = target == VornBenchTargets().end() || ratio <= target->second;
      std::printf("%-44s %14s %14s %8.2fx  %s%s %s\n", name.c_str(), Human(r.ns).c_str(),
                  Human(base->second.ns).c_str(), ratio, targetText.c_str(),
                  target == VornBenchTargets().end() ? "" : (met ? " (met)" : " (MISSED)"),
                  r.counters.c_str());
    } else {
      std::printf("%-44s %14s %14s %9s  %s %s\n", name.c_str(), Human(r.ns).c_str(), "-", "-",
                  targetText.c_str(), r.counters.c_str());
    }
  }
  VornBenchShutdown();
  return 0;
}
