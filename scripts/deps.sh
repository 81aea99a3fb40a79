#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the gallery need.
# Only asks apt when something is missing, so repeated runs are quick.
set -euo pipefail
packages=(
  g++ cmake ninja-build pkg-config git
  libwxgtk3.2-dev libglu1-mesa-dev libgl1-mesa-dri libpng-dev zlib1g-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  xvfb xauth fonts-dejavu-core
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
