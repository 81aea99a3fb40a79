#!/usr/bin/env bash
# Runs every fuzz target of fuzz/targets.txt for SECONDS each, one after the
# other, and prints one line per target: executions, coverage points, corpus
# size and findings.
#
#   fuzz/run.sh SECONDS [TARGET...]   fuzz (all targets, or those named)
#   fuzz/run.sh --merge [TARGET...]   add the scratch inputs that reach new
#                                     edges to fuzz/corpus/<target>/
#
# Builds build/fuzz (clang, ASan + UBSan, libFuzzer, every library
# instrumented) when it is missing. New inputs go to the scratch corpus
# build/fuzz/corpus/<target>/; findings to build/fuzz/findings/<target>/;
# libFuzzer's output to build/fuzz/logs/<target>.log.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
tree=build/fuzz

usage() {
  echo "usage: fuzz/run.sh SECONDS [TARGET...] | fuzz/run.sh --merge [TARGET...]" >&2
  exit 2
}
[ $# -ge 1 ] || usage
mode=run
if [ "$1" = "--merge" ]; then
  mode=merge
else
  [[ "$1" =~ ^[0-9]+$ ]] || usage
  seconds=$1
fi
shift
wanted=("$@")

# ---- the build ------------------------------------------------------------------------
if ! command -v clang++ >/dev/null; then
  echo "fuzz/run.sh: clang++ not found; on Debian: apt-get install clang libclang-rt-14-dev" >&2
  exit 1
fi
if [ ! -f $tree/build.ninja ]; then
  launcher=()
  command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  CC=clang CXX=clang++ cmake -S . -B $tree -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DVORN_FUZZ=ON -DVORN_SANITIZE=address,undefined -DVORN_BUILD_TESTS=OFF \
    -DVORN_BUILD_EXAMPLES=OFF -DVORN_BUILD_TOOLS=OFF "${launcher[@]}" >/dev/null
fi
cmake --build $tree -j2 --target fuzzers

# A smaller quarantine than ASan's 256 MB, so that freed images do not count
# against the memory limits.
export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1:allocator_may_return_null=1:quarantine_size_mb=64}"
export LSAN_OPTIONS="suppressions=$root/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"

# Runs a fuzzer, under Xvfb when it needs a display and there is none.
run_target() {
  local display=$1
  shift
  if [ "$display" = yes ] && [ -z "${DISPLAY:-}" ]; then
    xvfb-run -a -s "-screen 0 1280x1024x24" "$@"
  else
    "$@"
  fi
}

summary=()
while read -r name source display rss rest; do
  [[ -z "$name" || "$name" == \#* ]] && continue
  if [ ${#wanted[@]} -gt 0 ] && [[ ! " ${wanted[*]} " == *" $name "* ]]; then continue; fi
  fuzzer=$tree/fuzz/${name}_fuzzer
  committed=fuzz/corpus/$name
  scratch=$tree/corpus/$name
  mkdir -p "$scratch" "$committed" $tree/findings/$name $tree/logs
  dict=()
  [ -f fuzz/$name.dict ] && dict=(-dict=fuzz/$name.dict)

  if [ $mode = merge ]; then
    # Edges only (no hit counts), so that the committed set stays small.
    before=$(ls "$committed" | wc -l)
    run_target "$display" "$fuzzer" -merge=1 -use_counters=0 -max_len=4096 -rss_limit_mb="$rss" \
      "$committed" "$scratch" >$tree/logs/$name.merge.log 2>&1
    echo "$name: $(($(ls "$committed" | wc -l) - before)) inputs added to $committed"
    continue
  fi

  log=$tree/logs/$name.log
  findings_before=$(ls $tree/findings/$name | grep -vc '^slow-unit-' || true)
  echo "== $name: ${seconds}s" >&2
  set +e
  run_target "$display" "$fuzzer" "$scratch" "$committed" "${dict[@]}" -max_total_time="$seconds" \
    -rss_limit_mb="$rss" -timeout=10 -max_len=4096 -print_final_stats=1 \
    -artifact_prefix=$tree/findings/$name/ >"$log" 2>&1
  status=$?
  set -e
  execs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
  rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -1)
  peak=$(sed -n 's/^stat::peak_rss_mb: *//p' "$log" | tail -1)
  cov=$(grep -o 'cov: [0-9]*' "$log" | tail -1 | cut -d' ' -f2)
  corp=$(grep -o 'corp: [0-9]*' "$log" | tail -1 | cut -d' ' -f2)
  # Crashes, leaks, time-outs and out-of-memory; a slow unit (over 10 s, by
  # the wall clock) is reported beside them, not counted.
  findings=$(($(ls $tree/findings/$name | grep -vc '^slow-unit-' || true) - findings_before))
  slow=$(grep -c 'Test unit written to .*slow-unit-' "$log" || true)
  [ $status -ne 0 ] && [ "$findings" -eq 0 ] && findings="exit $status"
  summary+=("$(printf '%-9s %12s execs %7s/s  %5s coverage points  corpus %5s  peak %5s MB  findings %s  slow units %s' \
    "$name" "${execs:-?}" "${rate:-?}" "${cov:-?}" "${corp:-?}" "${peak:-?}" "$findings" "$slow")")
done <fuzz/targets.txt

if [ $mode = run ]; then
  echo
  printf '%s\n' "${summary[@]}"
fi
