#!/usr/bin/env bash
# Every C++ file stands as clang-format lays it out.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run -Werror
echo "format: $(git ls-files '*.h' '*.cpp' | wc -l) files as they should be"
