#!/usr/bin/env bash
# Builds the benchmarks (release tree build/bench) and runs them; the output
# ends with a summary table, also written to build/bench/summary.txt.
#
#   bench/run.sh              every figure, three repetitions, medians
#   bench/run.sh --quick      every figure once and briefly (smoke check)
#   bench/run.sh ARGS...      extra arguments go to the benchmark binary,
#                             e.g. --benchmark_filter=Assets
#
# Convention for benchmark files (bench/*.cpp, picked up by the CMake glob,
# nothing to add here):
#   - register a figure as BENCHMARK(...)->Name("<Family>/<Figure>");
#   - register what it is compared with, measured in the same run, as
#     BENCHMARK(...)->Name("<Family>/<Figure>/baseline");
#   - optionally state the allowed ratio figure/baseline with
#     VORN_BENCH_TARGET("<Family>/<Figure>", ratio) from BenchSupport.h.
# Figures pair with their baselines by name alone.
#
# Summary table: after the line "# vorn-bench summary", a header line, then
# one line per figure with blank-separated fields
#   figure measured_ns baseline_ns ratio target status [counters...]
# times in nanoseconds per iteration (medians over the repetitions);
# baseline_ns, ratio, target and status are "-" where they do not apply;
# status is "met" or "MISSED" against the target.
set -euo pipefail
cd "$(dirname "$0")/.."
quick=0
args=()
for a in "$@"; do
  if [ "$a" = "--quick" ]; then quick=1; else args+=("$a"); fi
done
if [ "$quick" = 1 ]; then
  args=(--benchmark_min_time=0.01 "${args[@]}")
else
  args=(--benchmark_repetitions=3 "${args[@]}")
fi
bash scripts/deps.sh
launcher=()
if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
cmake -S . -B build/bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DVORN_BUILD_BENCH=ON \
  -DVORN_BUILD_TESTS=OFF -DVORN_BUILD_EXAMPLES=OFF -DVORN_BUILD_TOOLS=OFF "${launcher[@]}" >/dev/null
nice cmake --build build/bench -j "${VORN_BENCH_JOBS:-2}" --target vorn_bench
run=(build/bench/bench/vorn_bench "${args[@]}")
if [ -z "${DISPLAY:-}" ]; then run=(xvfb-run -a -s "-screen 0 1280x1024x24" "${run[@]}"); fi
"${run[@]}" | tee build/bench/output.txt
sed -n '/^# vorn-bench summary/,$p' build/bench/output.txt >build/bench/summary.txt
