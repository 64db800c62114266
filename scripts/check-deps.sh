#!/usr/bin/env bash
# Proves that a fresh machine gets everything the configure step found: each CMake package
# recorded in the build's cache (<Name>_DIR) must belong to a Debian package that
# scripts/debian-packages.txt names or that those pull in without recommends. A machine
# where a package was installed by hand passes configure but fails here. (Libraries that
# FindOpenGL and the like pick up only when present are optional and not checked.)
# Usage: scripts/check-deps.sh <build folder>
set -euo pipefail
build="${1:-build}"
here="$(cd "$(dirname "$0")" && pwd)"
cache="$build/CMakeCache.txt"
[ -f "$cache" ] || { echo "check-deps: no $cache; configure first" >&2; exit 2; }

mapfile -t wanted < <(sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$here/debian-packages.txt")
# apt-cache needs the package lists; a machine that installed nothing may not have them.
if ! apt-cache show "${wanted[0]}" >/dev/null 2>&1; then apt-get update -qq; fi

# Everything the list installs: the packages and their dependencies, recursively.
closure="$(apt-cache depends --recurse --no-recommends --no-suggests --no-conflicts --no-breaks \
  --no-replaces --no-enhances "${wanted[@]}" | grep -v '^ ' | sed 's/:.*//' | sort -u)"

# What the configure step used: the CMake package folders under /usr.
mapfile -t used < <(sed -n 's/^[A-Za-z0-9_]*_DIR:PATH=\(\/usr\/.*\/cmake\/.*\)$/\1/p' "$cache" | sort -u)

# The package that owns a CMake package's config file (the folder itself may be shared).
owner_of() {
  local dir="$1" name config
  name="$(basename "$dir")"
  for config in "$dir/${name}Config.cmake" "$dir/$(tr 'A-Z' 'a-z' <<<"$name")-config.cmake" "$dir"; do
    [ -e "$config" ] || continue
    dpkg-query -S "$config" 2>/dev/null | head -n 1 | sed 's/:.*//' | tr ',' '\n' | sed 's/^ *//'
    return
  done
}

missing=()
for path in "${used[@]}"; do
  mapfile -t owners < <(owner_of "$path")
  found=""
  for owner in "${owners[@]}"; do grep -qx "$owner" <<<"$closure" && found="$owner"; done
  if [ -z "$found" ]; then missing+=("$path (from ${owners[*]:-no Debian package})"); fi
done

if ((${#missing[@]})); then
  echo "check-deps: the build uses what scripts/debian-packages.txt does not install:" >&2
  printf '  %s\n' "${missing[@]}" >&2
  exit 1
fi
echo "check-deps: all ${#used[@]} CMake packages the build found come from scripts/debian-packages.txt"
