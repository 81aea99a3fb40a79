#pragma once
#include <map>
#include <string>

// Ratio figure/baseline that a figure should stay within.
std::map<std::string, double>& VornBenchTargets();
#define VORN_BENCH_CONCAT2(a, b) a##b
#define VORN_BENCH_CONCAT(a, b) VORN_BENCH_CONCAT2(a, b)
#define VORN_BENCH_TARGET(name, ratio)                         \
  static const bool VORN_BENCH_CONCAT(vorn_target_, __LINE__) = \
      (VornBenchTargets()[name] = (ratio), true)

// Start-up and shut-down of whatever the benchmarks need (a wxApp for the
// image benchmarks); defined in BenchSupport.cpp.
void VornBenchStartup(int argc, char** argv);
void VornBenchShutdown();
