#!/usr/bin/env bash
# No text is handed to a shell, and no socket leaves this machine.
set -euo pipefail
cd "$(dirname "$0")/.."
found=$(grep -rnE '\b(system|popen|execlp|execvp|wordexp) *\(|\bAF_INET6?\b|QtNetwork|QTcpSocket|QUdpSocket|\bQProcess\b.*startCommand' src \
  --include='*.cpp' --include='*.h' | grep -vE '^\S+:\s*//' || true)
if [ -n "$found" ]; then
  echo "$found"
  echo "reach: a shell or the network"
  exit 1
fi
echo "reach: no shell, no network"
