#!/usr/bin/env bash
# Builds the benchmarks (release) and prints every figure beside its
# baseline. Extra arguments go to the benchmark binary
# (e.g. --benchmark_filter=Assets).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVORN_BUILD_BENCH=ON >/dev/null
cmake --build build/release -j "$(nproc)" --target vorn_bench
if [ -n "${DISPLAY:-}" ]; then
  build/release/bench/vorn_bench "$@"
else
  xvfb-run -a -s "-screen 0 1280x1024x24" build/release/bench/vorn_bench "$@"
fi
