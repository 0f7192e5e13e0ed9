#!/usr/bin/env bash
# Checks that every source is formatted by .clang-format.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files -z '*.cpp' '*.h' | xargs -0 -r clang-format --dry-run -Werror
