#!/usr/bin/env bash
# Installs, from Debian's packages, whatever of the build and test dependencies is
# missing. Does nothing (and needs no network) when everything is already there.
set -euo pipefail

packages=(
  cmake ninja-build g++                       # build
  libgtest-dev libgmock-dev libbenchmark-dev  # tests and benchmarks
  qt6-base-dev qt6-tools-dev qt6-tools-dev-tools libgl-dev  # Qt 6 Widgets, Designer, UiTools
  libqt6opengl6-dev                           # needed by the Designer and UiTools CMake packages
  fonts-dejavu-core                           # text for the offscreen platform
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if ((${#missing[@]})); then
  echo "Installing: ${missing[*]}"
  SUDO=""
  [ "$(id -u)" -eq 0 ] || SUDO="sudo"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
