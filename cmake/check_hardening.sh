#!/usr/bin/env bash
# The programs that were built are position independent, bind at the start, and guard the stack and the buffers.
set -euo pipefail
bad=0
need() {
  grep -q "$2" <<<"$3" && return
  echo "hardening: $1 lacks $4"
  bad=1
}
for program in "$@"; do
  headers=$(readelf -hld "$program")
  symbols=$(readelf --dyn-syms -W "$program")
  need "$program" 'Type: *DYN' "$headers" "a position independent image"
  need "$program" 'GNU_RELRO' "$headers" "read-only relocations"
  need "$program" 'NOW' "$headers" "binding at the start"
  need "$program" '__stack_chk_fail' "$symbols" "guards on the stack"
  # A program that calls nothing with a guarded twin has no such symbol: what counts is how it was compiled.
  commands=$(dirname "$program")/compile_commands.json
  if grep '"command":' "$commands" | grep '/src/' | grep -qv -- '-D_FORTIFY_SOURCE='; then
    echo "hardening: $program has sources without guards on buffers"
    bad=1
  fi
done
[ "$bad" -eq 0 ] && echo "hardening: $# programs as the distribution wants them"
exit "$bad"
