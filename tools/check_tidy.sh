#!/usr/bin/env bash
# tools/check_tidy.sh [FILE...]: clang-tidy over the files, or over every source of the program in the asan build. The
# tests are held by the warnings of the compiler and by running; they can be named here. With PITCHCRAFT_DEEP=1 its
# analyzer walks the paths, too, which takes more than twice the time; the sanitizers see the paths that the tests run.
set -euo pipefail
cd "$(dirname "$0")/.."
commands=build/asan/compile_commands.json
[ -f "$commands" ] || { echo "$0: cmake --preset asan comes first" >&2; exit 1; }

export checks="--checks=-clang-analyzer-*"
[ -z "${PITCHCRAFT_DEEP:-}" ] || checks="--checks="

# Quiet unless a file has something to say: clang-tidy counts the warnings that it does not show.
tidy() {
  local said
  # The build's flags are those of g++: what only it knows is no news here.
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
    # What the build generates is not ours to tidy.
    sed -nE 's/^ *"file": "(.*)",?$/\1/p' "$commands" | grep -E "^$PWD/src/" | sort -u
  fi
}
# shellcheck disable=SC2016 # $0 is for the inner shell: the file's name
sources "$@" | xargs -d '\n' -n 1 -P "$(nproc)" bash -c 'tidy "$0"'
