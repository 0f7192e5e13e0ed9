#!/usr/bin/env bash
# tools/check_tidy.sh [FILE...]: runs clang-tidy over the files, or over every source of the program in the
# asan build. Tests are left out, since compiler warnings and running them check them well enough; name them
# here to check them too. PITCHCRAFT_DEEP=1 adds the path analysis, which takes more than twice as long; the
# sanitizers cover the paths that the tests run.
set -euo pipefail
cd "$(dirname "$0")/.."
commands=build/asan/compile_commands.json
[ -f "$commands" ] || { echo "$0: run cmake --preset asan first" >&2; exit 1; }

export checks="--checks=-clang-analyzer-*"
[ -z "${PITCHCRAFT_DEEP:-}" ] || checks="--checks="

# Prints only the output about files with findings; clang-tidy also counts the warnings that it does not show.
tidy() {
  local said
  # The flags of the build are for g++; those that clang does not know do not matter.
  said=$(clang-tidy --quiet "$checks" --extra-arg=-Wno-unknown-warning-option -p build/asan "$1" 2>&1) || {
    grep -vE '^[0-9]+ warnings? generated' <<<"$said"
    return 1
  }
}
export -f tidy

sources() {
  if [ $# -gt 0 ]; then
    printf '%s\n' "$@"
  else
    # Generated sources are not checked.
    sed -nE 's/^ *"file": "(.*)",?$/\1/p' "$commands" | grep -E "^$PWD/src/" | sort -u
  fi
}
# shellcheck disable=SC2016 # $0 is for the inner shell: the file's name
sources "$@" | xargs -d '\n' -n 1 -P "$(nproc)" bash -c 'tidy "$0"'
