#!/usr/bin/env bash
# Usage: vornpack_test.sh VORNPACK
set -euo pipefail
pack=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

tree=$work/tree
mkdir -p "$tree/Generic/english/uk" "$tree/Linux/english" "$tree/Windows" "$tree/Linux/english/uk/deep"
printf 'root\r\n' >"$tree/root.txt"
printf 'no ext' >"$tree/README"
printf 'g' >"$tree/Generic/a.png"
printf 'gu' >"$tree/Generic/english/uk/a.png"
printf 'le' >"$tree/Linux/english/a.png"
printf 'w' >"$tree/Windows/w.txt"
printf 'x' >"$tree/Linux/english/uk/deep/x.txt"
head -c 5000 /dev/urandom >"$tree/Linux/blob.bin"

"$pack" create "$work/data1.vrk" "$tree/" Linux >"$work/create.out" 2>"$work/create.err" ||
  fail "create exited $?"
grep -q "^6 assets packed" "$work/create.out" || fail "create output: $(cat "$work/create.out")"
grep -q "deep" "$work/create.err" || fail "the ignored directory is not mentioned"

"$pack" list "$work/data1.vrk" >"$work/list.txt" || fail "list exited $?"
for line in "root.txt NONE NONE NONE 6" "README. NONE NONE NONE 6" "a.png Generic NONE NONE 1" \
  "a.png Generic english uk 2" "a.png Linux english NONE 2" "blob.bin Linux NONE NONE 5000"; do
  grep -qxF "$line" "$work/list.txt" || fail "missing list line [$line]: $(cat "$work/list.txt")"
done
[ "$(wc -l <"$work/list.txt")" -eq 6 ] || fail "list has $(wc -l <"$work/list.txt") lines"

"$pack" extract "$work/data1.vrk" "$work/out" >/dev/null || fail "extract exited $?"
cp -r "$tree" "$work/expected"
rm -rf "$work/expected/Windows" "$work/expected/Linux/english/uk"
diff -r "$work/expected" "$work/out" || fail "extracted tree differs"

# Without a platform every platform directory is packed.
"$pack" create "$work/all.vrk" "$tree" >/dev/null 2>&1 || fail "create without platform"
"$pack" list "$work/all.vrk" | grep -qxF "w.txt Windows NONE NONE 1" || fail "Windows not packed"

# Bad input: a message and a non-zero exit.
expect_refusal() {
  local status=0
  "$pack" "$@" >/dev/null 2>"$work/err" || status=$?
  [ "$status" -ne 0 ] || fail "accepted: $*"
  [ -s "$work/err" ] || fail "no message for: $*"
}
expect_refusal
expect_refusal bogus
expect_refusal list
expect_refusal list "$work/missing.vrk"
grep -q "^vornpack: cannot read archive" "$work/err" || fail "message: $(cat "$work/err")"
printf '\x02\x00' >"$work/short.vrk"
expect_refusal list "$work/short.vrk"
printf '\xff\xff\x00\x00abc' >"$work/long.vrk"
expect_refusal extract "$work/long.vrk" "$work/never"
[ ! -e "$work/never" ] || fail "extract of a bad archive wrote files"
expect_refusal create "$work/x.vrk" "$work/no-such-tree/"
mkdir -p "$work/spaces"
printf 'x' >"$work/spaces/a b.txt"
expect_refusal create "$work/x.vrk" "$work/spaces/"
grep -q "white space" "$work/err" || fail "message: $(cat "$work/err")"
echo "vornpack: all checks passed"
