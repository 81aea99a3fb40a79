#!/usr/bin/env bash
# Builds the toolkit and runs the gallery on the default skin. Without a
# display it runs under Xvfb and writes one screenshot per page to
# out/screenshots/.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build/release -j "$(nproc)" --target vorn-gallery
gallery=build/release/examples/gallery/vorn-gallery
if [ -n "${DISPLAY:-}" ] && [ "${1:-}" != "--screenshot" ]; then
  exec "$gallery" --skin assets/default/
fi
mkdir -p out/screenshots
xvfb-run -a -s "-screen 0 1280x1024x24" "$gallery" --skin assets/default/ --screenshot out/screenshots
echo "Screenshots written to out/screenshots/:"
ls -1 out/screenshots
