#!/usr/bin/env bash
# Makes the package, judges it, and tries it in a bare system of its own: check_package.sh [BUILD-FOLDER]
# What it needs is installed where that is allowed; what is missing all the same is named and passed over.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/cmake/packages.sh"
install_packages "${package_packages[@]}" || echo "package: going on with what is here"
build=${1:-$root/build}
work=$(mktemp -d)
trap 'rm -rf --one-file-system "$work"' EXIT
have() {
  command -v "$1" >/dev/null && return
  echo "package: $1 is not here, so its check is passed over"
  return 1
}

{ cmake "$build" && cmake --build "$build" --target manpages package; } >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
deb=$(ls -t "$build"/zelko_*.deb | head -1)
echo "package: $(basename "$deb"), $(dpkg-deb --field "$deb" Installed-Size) KB installed"

if have lintian; then
  # Not built from a source package of the distribution, so there is no bug to name.
  lintian --tag-display-limit 0 --allow-root --suppress-tags initial-upload-closes-no-bugs "$deb" | tee "$work/lintian" || true
  if grep -q '^E:' "$work/lintian"; then exit 1; fi
fi
if have desktop-file-validate; then desktop-file-validate "$root/assets/zelko.desktop"; fi
if have appstreamcli; then appstreamcli validate --no-net "$root/assets/zelko.metainfo.xml" >"$work/log" || { cat "$work/log"; exit 1; }; fi

if [ "$(id -u)" -ne 0 ]; then
  echo "package: a bare system needs root, so it is passed over"
elif have debootstrap; then
  "$root/tools/bare_system.sh" "$deb" "$root/assets/demo.txt" "$work/bare"
fi
echo "package: as it should be"
