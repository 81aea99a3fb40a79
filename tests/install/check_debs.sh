#!/usr/bin/env bash
# Builds the Debian packages of a build tree with CPack, checks what each one
# holds and depends on, then unpacks the library, skin and development
# packages into a scratch root and builds the outside host against them,
# through find_package(Vorn) and through pkg-config.
set -euo pipefail
build_dir=$1
consumer_src=$2
generator=${3:-Ninja}
cxx=${4:-c++}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

if ! (cd "$work" && cpack --config "$build_dir/CPackConfig.cmake" -B "$work/debs") \
    >"$work/cpack.log" 2>&1; then
  cat "$work/cpack.log"
  exit 1
fi
version=$(sed -n 's/^set(CPACK_PACKAGE_VERSION "\(.*\)")$/\1/p' "$build_dir/CPackConfig.cmake")

deb() { ls "$work/debs/$1"_*.deb; }
files() { dpkg-deb -c "$(deb "$1")" | awk '{print $6}'; }
fail() { echo "$*"; exit 1; }
has() {
  local pkg=$1 list
  shift
  list=$(files "$pkg")
  for f in "$@"; do grep -qx "./usr/$f" <<<"$list" || fail "$pkg lacks /usr/$f"; done
}
hasnt() {
  local pkg=$1 list
  shift
  list=$(files "$pkg")
  for f in "$@"; do ! grep -q "^\./usr/$f" <<<"$list" || fail "$pkg holds /usr/$f"; done
}
field() { dpkg-deb -f "$(deb "$1")" "$2"; }

has libvorn0 lib/libvorn.so.0 "lib/libvorn.so.$version" lib/libvornhost.so.0
hasnt libvorn0 lib/libvorn.so$ include/ lib/cmake/ share/
has libvorn-dev include/vorn/AssetManager.h include/vornhost/Bitmap.h lib/libvorn.so \
  lib/libvornhost.so lib/cmake/Vorn/VornConfig.cmake lib/cmake/Vorn/VornTargets.cmake \
  lib/pkgconfig/vorn.pc
hasnt libvorn-dev "lib/libvorn.so.0"
has vorn-skin-default share/vorn/skins/default/Generic/colours.txt
has vorn-tools bin/vorn-sts bin/vorn-gallery
hasnt vorn-tools lib/ include/

# No file in two packages: they must install side by side.
dup=$(for p in libvorn0 libvorn-dev vorn-skin-default vorn-tools; do files $p | grep -v '/$'; done |
      sort | uniq -d)
[ -z "$dup" ] || fail "files in more than one package: $dup"

# Dependencies: the linked system libraries, found by dpkg-shlibdeps, and the
# exact library version for the packages built from the same tree.
depends=$(field libvorn0 Depends)
for lib in libwx libpng libgl libc6 libstdc++6; do
  grep -qi "$lib" <<<"$depends" || fail "libvorn0 does not depend on $lib: $depends"
done
grep -qF "libvorn0 (= $version)" <<<"$(field libvorn-dev Depends)" || fail "libvorn-dev Depends"
grep -qF "libvorn0 (= $version)" <<<"$(field vorn-tools Depends)" || fail "vorn-tools Depends"
[ "$(field vorn-skin-default Architecture)" = all ] || fail "the skin is not architecture all"
dpkg-deb -I "$(deb libvorn0)" shlibs | grep -q "^libvorn 0 libvorn0" || fail "libvorn0 has no shlibs"

root=$work/root
for p in libvorn0 libvorn-dev vorn-skin-default vorn-tools; do dpkg-deb -x "$(deb $p)" "$root"; done
soname=$(objdump -p "$root/usr/lib/libvorn.so.$version" | awk '/SONAME/ {print $2}')
[ "$soname" = libvorn.so.0 ] || fail "SONAME is '$soname'"
echo "packages: $(cd "$work/debs" && echo *.deb)"

# The host, built against the unpacked packages.
cmake -S "$consumer_src" -B "$work/cmake-build" -G "$generator" -DCMAKE_CXX_COMPILER="$cxx" \
  -DCMAKE_PREFIX_PATH="$root/usr" >/dev/null
cmake --build "$work/cmake-build" >/dev/null
out=$("$work/cmake-build/vorn_consumer")
echo "find_package consumer: $out"
[ "$out" = "consumer ok" ]

export PKG_CONFIG_PATH="$root/usr/lib/pkgconfig"
skindir=$(pkg-config --variable=skindir vorn)
"$cxx" -std=c++17 -o "$work/pc_consumer" "$consumer_src/consumer.cpp" $(pkg-config --cflags --libs vorn) \
  -DVORN_EXPECTED_SKIN_DIR="\"$skindir\""
out=$("$work/pc_consumer")
echo "pkg-config consumer: $out"
[ "$out" = "consumer ok" ]

# The packaged tools find the packaged library by themselves.
"$root/usr/bin/vorn-sts" --help | grep -q "^usage: vorn-sts" || fail "packaged vorn-sts does not start"
