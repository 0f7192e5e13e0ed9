#!/usr/bin/env bash
# Every source is laid out as .clang-format says.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files -z '*.cpp' '*.h' | xargs -0 -r clang-format --dry-run -Werror
