#!/usr/bin/env bash
# Includes point down the floors, never up, and never in a circle; Qt and speech stay in their folders.
set -euo pipefail
cd "$(dirname "$0")/../src"

# The floor of a file by its place.
floor_of() {
  case $1 in
    platform/* | speech/* | stats/numbers/*) echo 1 ;;
    parts/*) echo 4 ;;
    voice/*) echo 2 ;;
    store/*) echo 3 ;;
    editor/*) echo 5 ;;
    files/* | tablejobs/* | stats/* | scoring/* | printing/* | dial/*) echo 6 ;;
    app/*) echo 7 ;;
    *) echo "no floor for $1" >&2; exit 1 ;;
  esac
}

bad=0
edges=$(mktemp)
trap 'rm -f "$edges"' EXIT
while IFS=: read -r file included; do
  if [ ! -e "$included" ]; then
    echo "floors: $file includes $included, which is not there"
    bad=1
    continue
  fi
  if [ "$(floor_of "$file")" -lt "$(floor_of "$included")" ]; then
    echo "floors: $file includes $included of a higher floor"
    bad=1
  fi
  case $file in *.h) echo "$file $included" >>"$edges" ;; esac
done < <(grep -rnoE '^#include "[^"]+"' --include='*.h' --include='*.cpp' . |
         sed -E 's|^\./([^:]+):[0-9]+:#include "([^"]+)"|\1:\2|')

if ! tsort <"$edges" >/dev/null 2>&1; then
  echo "floors: headers include each other in a circle"
  bad=1
fi
if grep -rlE '#include <Q[A-Z]' --include='*.h' --include='*.cpp' . | grep -vE '^\./(platform/qt|app/desktop|speech)/'; then
  echo "floors: Qt outside its folder"
  bad=1
fi
if grep -rlE '#include <(mecab|speech-dispatcher|libspeechd)' --include='*.h' --include='*.cpp' . | grep -vE '^\./speech/'; then
  echo "floors: speech libraries outside their folder"
  bad=1
fi
[ "$bad" -eq 0 ] && echo "floors: includes point down, without circles"
exit "$bad"
