#!/usr/bin/env bash
# Installs the build tree into a temporary prefix, then builds and runs a
# small host program against the installation twice: through
# find_package(Vorn) and through pkg-config.
set -euo pipefail
build_dir=$1
consumer_src=$2
# The consumer is built the way the toolkit was: a minimal machine may have
# ninja but no make.
generator=${3:-Ninja}
cxx=${4:-c++}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix

cmake --install "$build_dir" --prefix "$prefix" >/dev/null

# 1. CMake package.
cmake -S "$consumer_src" -B "$work/cmake-build" -G "$generator" -DCMAKE_CXX_COMPILER="$cxx" \
  -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cmake-build" >/dev/null
out=$("$work/cmake-build/vorn_consumer")
echo "find_package consumer: $out"
[ "$out" = "consumer ok" ]

# 2. pkg-config.
export PKG_CONFIG_PATH="$prefix/lib/pkgconfig:$prefix/lib/x86_64-linux-gnu/pkgconfig:${PKG_CONFIG_PATH:-}"
skindir=$(pkg-config --variable=skindir vorn)
[ -f "$skindir/Generic/colours.txt" ] || { echo "pkg-config skindir '$skindir' holds no skin"; exit 1; }
"$cxx" -std=c++17 -o "$work/pc_consumer" "$consumer_src/consumer.cpp" $(pkg-config --cflags --libs vorn) \
  -DVORN_EXPECTED_SKIN_DIR="\"$skindir\""
out=$("$work/pc_consumer")
echo "pkg-config consumer: $out"
[ "$out" = "consumer ok" ]

# 3. The README's first host, on the installed skin it finds by itself, before
# and after the installation is moved.
cmake -S "$consumer_src/../../examples/firsthour" -B "$work/firsthour" -G "$generator" \
  -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/firsthour" >/dev/null
out=$(ASAN_OPTIONS=detect_leaks=0 "$work/firsthour/vorn-firsthour" --check)
echo "first hour, installed: $out"
[ "$out" = "first hour ok" ]
mv "$prefix" "$work/moved"
libdir=$(dirname "$(find "$work/moved" -name 'libvorn.so*' | head -n 1)")
out=$(LD_LIBRARY_PATH="$libdir" ASAN_OPTIONS=detect_leaks=0 "$work/firsthour/vorn-firsthour" --check)
echo "first hour, moved installation: $out"
[ "$out" = "first hour ok" ]
