#!/usr/bin/env bash
# Circles among the link units: a unit that needs a name which another defines, and the way back. Includes cannot show
# them. Prints the largest; ten units or more in one circle fail. Usage: check_circles.sh [build folder]
set -euo pipefail
cd "$(dirname "$0")/.."
objects=${1:-build}/CMakeFiles/zelko_core.dir/src
readonly too_large=10
[ -d "$objects" ] || { echo "circles: nothing is built in $objects" >&2; exit 1; }

# The objects of sources that are still there.
objects_in_use() {
  local object
  find "$objects" -name '*.cpp.o' | LC_ALL=C sort | while read -r object; do
    if [ -e "src/${object:$((${#objects} + 1)):-2}" ]; then echo "$object"; fi
  done
}

# Lines "unit D name" and "unit U name"; what every unit may define for itself (inline) ties nobody.
names() {
  objects_in_use | xargs nm -A -P |
    awk -v skip="${#objects}" '{
      split($1, place, ".cpp.o:")
      unit = substr(place[1], skip + 2)
      if ($3 == "U") print unit, "U", $2
      else if ($3 ~ /^[TDBRG]$/) print unit, "D", $2
    }'
}

# Strongly connected components (Tarjan 1972), the largest on one line; the exit status says whether it is too large.
names | awk -v tooLarge=$too_large '
  $2 == "D" { definer[$3] = $1 }
  $2 == "U" { needer[++uses] = $1; needed[uses] = $3 }
  { if (!($1 in known)) { known[$1]; unit[++units] = $1 } }
  function visit(at,    list, count, i, to, size, members) {
    number[at] = low[at] = ++visited
    stack[++depth] = at; onStack[at] = 1
    count = split(edges[at], list, " ")
    for (i = 1; i <= count; i++) {
      to = list[i]
      if (!(to in number)) { visit(to); if (low[to] < low[at]) low[at] = low[to] }
      else if (onStack[to] && number[to] < low[at]) low[at] = number[to]
    }
    if (low[at] != number[at]) return
    do {
      to = stack[depth--]; onStack[to] = 0
      members = to " " members; size++
    } while (to != at)
    if (size > 1) circles++
    if (size > largest) { largest = size; names = members }
  }
  END {
    for (i = 1; i <= uses; i++) {
      to = definer[needed[i]]
      if (to == "" || to == needer[i] || ((needer[i], to) in tied)) continue
      tied[needer[i], to]
      edges[needer[i]] = edges[needer[i]] " " to
    }
    for (i = 1; i <= units; i++) if (!(unit[i] in number)) visit(unit[i])
    if (units == 0) { print "circles: no units found"; exit 1 }
    if (circles == 0) print "circles: none among " units " units"
    else print "circles: " circles " among " units " units, the largest of " largest ": " names
    exit largest >= tooLarge
  }'
