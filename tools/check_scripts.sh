#!/usr/bin/env bash
# Checks every script with shellcheck.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files -z run test .ci/run '*.sh' | xargs -0 shellcheck
