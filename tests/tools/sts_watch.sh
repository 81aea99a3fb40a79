#!/usr/bin/env bash
# vorn-sts --watch on a copied skin: renders a script, renders it again after
# it is broken (error images, the parser's message, still running), and again
# after it is fixed, then stops after those rounds.
set -euo pipefail
sts=$1
skin_src=$2
work=$(mktemp -d)
trap 'kill "$pid" 2>/dev/null || true; rm -rf "$work"' EXIT
cp -r "$skin_src/." "$work/skin"
script=$work/skin/Generic/button_push.sts
cp "$script" "$work/good.sts"

"$sts" --watch --watch-rounds 2 -o "$work/out" "$work/skin/" button_push.sts >"$work/log" 2>&1 &
pid=$!
wait_for() {  # pattern: polls the log for up to 60 s
  for _ in $(seq 600); do
    grep -q "$1" "$work/log" && return 0
    kill -0 "$pid" 2>/dev/null || break
    sleep 0.1
  done
  echo "no '$1' in the log:"; cat "$work/log"; exit 1
}
wait_for "watching"
first=$(md5sum <"$work/out/button_push.sts.png")

sed -i '0,/^map /s/^map \([^ ]*\) .*/map \1/' "$script"
wait_for "Image Script Parser"
wait_for "1 of 1 scripts failed"
broken=$(md5sum <"$work/out/button_push.sts.png")
[ "$broken" != "$first" ] || { echo "the sheet did not change"; exit 1; }

cp "$work/good.sts" "$script"
wait "$pid" || { echo "vorn-sts ended badly:"; cat "$work/log"; exit 1; }
[ "$(md5sum <"$work/out/button_push.sts.png")" = "$first" ] || { echo "not restored"; exit 1; }
echo "vorn-sts --watch: rendered, broke, restored"
