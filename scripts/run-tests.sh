#!/usr/bin/env bash
# Builds and runs every test: a plain build (with the install check and the
# benchmarks compiled), then an AddressSanitizer + UndefinedBehaviorSanitizer
# build of the library and the suites. GUI tests run under Xvfb when there
# is no display.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
jobs=$(nproc)

run_ctest() {
  local dir=$1
  if [ -n "${DISPLAY:-}" ]; then
    ctest --test-dir "$dir" --output-on-failure -j "$jobs"
  else
    xvfb-run -a -s "-screen 0 1280x1024x24" ctest --test-dir "$dir" --output-on-failure -j "$jobs"
  fi
}

cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVORN_BUILD_BENCH=ON
cmake --build build/release -j "$jobs"
run_ctest build/release

cmake -S . -B build/asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVORN_SANITIZE=address,undefined \
  -DVORN_BUILD_EXAMPLES=OFF -DVORN_BUILD_BENCH=OFF
cmake --build build/asan -j "$jobs"
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1}"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
run_ctest build/asan
echo "All test suites passed (plain and ASan/UBSan builds)."
