#!/usr/bin/env bash
# bare_system.sh DEB SCRIPT FOLDER: a minimal system in FOLDER, from the package host of this one; DEB is installed there, plays
# SCRIPT without a display, is upgraded over itself, and removed. The user's folder must stay as it was.
set -euo pipefail
deb=$1 script=$2 bare=$3
read -r site release < <(apt-get indextargets --format '$(SITE) $(RELEASE)' | awk '$2 !~ /-/ && !seen++')
if ! debootstrap --variant=minbase "$release" "$bare" "$site" >"$bare.log" 2>&1; then
  tail -5 "$bare.log"
  echo "package: no bare system could be made here, so it is passed over"
  exit 0
fi
cp /etc/apt/sources.list "$bare/etc/apt/" 2>/dev/null || true
cp -r /etc/apt/sources.list.d /etc/apt/apt.conf.d "$bare/etc/apt/" 2>/dev/null || true
cp "$deb" "$bare/zelko.deb"
cp "$script" "$bare/demo.txt"
inside() { chroot "$bare" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 "$@"; }
quietly() { inside "$@" >"$bare.log" 2>&1 || { tail -20 "$bare.log"; return 1; }; }

quietly apt-get update
quietly apt-get install -y --no-install-recommends /zelko.deb
inside bash -c '
  set -e
  /usr/lib/zelko/launch --prepare /usr/share/zelko /root/.local/share/zelko
  zelko --replay /demo.txt --dir /root/.local/share/zelko サンプル住所録.txt >/heard.txt'
echo "package: installed in a bare system; its first sentence is: $(grep -m1 '^say ' "$bare/heard.txt")"
tail -1 "$bare/heard.txt" | grep -qx end

state() { (cd "$bare/root/.local/share/zelko" && sha256sum * | sha256sum); }
before=$(state)
quietly apt-get install -y --reinstall --no-install-recommends /zelko.deb
quietly apt-get remove -y zelko
[ "$before" = "$(state)" ] || { echo "package: the user's folder changed"; exit 1; }
left=$(inside find /usr /etc -iname '*zelko*' -not -path '*/dpkg/*')
[ -z "$left" ] || { echo "package: left behind: $left"; exit 1; }
echo "package: upgraded and removed; the user's folder is as it was"
