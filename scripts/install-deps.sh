#!/usr/bin/env bash
# Installs, from Debian's packages, whatever of the build and test dependencies is
# missing (the list is scripts/debian-packages.txt). Does nothing (and needs no network)
# when everything is already there.
set -euo pipefail
cd "$(dirname "$0")"

mapfile -t packages < <(sed -e 's/#.*//' -e '/^[[:space:]]*$/d' debian-packages.txt)

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
