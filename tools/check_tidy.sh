#!/usr/bin/env bash
# tools/check_tidy.sh [--all | FILE...]: runs clang-tidy over the files, or over every source of the program, or, without
# arguments, over the sources that a change reaches: those that differ from the base, and those that include, directly or not, a
# header that does.
#
# The base is a commit at which every source was clean. With PITCHCRAFT_BASE=REVISION, for a server that knows which branch a
# change is for, it is the merge base with that revision, else the commit named in .ci/tidy-base. A run with --all that finds
# nothing writes its commit there; commit that file. Without such a commit, or if the rules have changed since, every source is
# checked, as with PITCHCRAFT_TIDY=all.
#
# Tests are left out, since compiler warnings and running them check them well enough; name them here to check them too.
# PITCHCRAFT_DEEP=1 adds the path analysis, which takes more than twice as long; the sanitizers cover the paths that the tests run.
set -euo pipefail
cd "$(dirname "$0")/.."
[ -f build/asan/compile_commands.json ] || { echo "$0: run cmake --preset asan first" >&2; exit 1; }

# clang-tidy cannot read the precompiled headers of g++, and without them it finds missing includes.
mkdir -p build/tidy
sed -E 's/ (-include [^ "]*cmake_pch\.hxx|-fpch-preprocess|-Winvalid-pch)//g' build/asan/compile_commands.json \
  >build/tidy/compile_commands.json

export checks="--checks=-clang-analyzer-*"
[ -z "${PITCHCRAFT_DEEP:-}" ] || checks="--checks="

# Prints only the output about files with findings; clang-tidy also counts the warnings that it does not show.
tidy() {
  local said
  # The flags of the build are for g++; those that clang does not know do not matter.
  said=$(clang-tidy --quiet "$checks" --extra-arg=-Wno-unknown-warning-option -p build/tidy "$1" 2>&1) || {
    grep -vE '^[0-9]+ warnings? generated' <<<"$said"
    return 1
  }
}
export -f tidy

# Generated sources are not checked.
every_source() { sed -nE "s|^ *\"file\": \"$PWD/(src/.*)\",?$|\1|p" build/tidy/compile_commands.json | LC_ALL=C sort -u; }

# The base; nothing if every source is to be checked.
base() {
  local commit
  if [ "${PITCHCRAFT_TIDY:-}" = all ]; then return; fi
  if [ -n "${PITCHCRAFT_BASE:-}" ]; then
    commit=$(git merge-base HEAD "$PITCHCRAFT_BASE") || return 0
  else
    commit=$(cat .ci/tidy-base 2>/dev/null) && git cat-file -e "$commit^{commit}" 2>/dev/null || return 0
  fi
  if git diff --quiet "$commit" -- .clang-tidy tools/check_tidy.sh; then echo "$commit"; fi
}

# The files under src/ that differ from a commit, and those that include one of them, directly or not.
reached_since() {
  {
    git diff --name-only "$1" -- src
    git ls-files --others --exclude-standard -- src
    # Then the includes, as lines of two words: a file and a header that it includes.
    grep -rE '^ *# *include *"' --include='*.h' --include='*.cpp' src | sed -E 's|^([^:]*):[^"]*"([^"]*)".*|\1 src/\2|'
  } | awk '
    NF == 1 { reached[$0]; next }
    { file[++count] = $1; header[count] = $2 }
    END {
      do {
        more = 0
        for (i = 1; i <= count; i++)
          if (header[i] in reached && !(file[i] in reached)) { reached[file[i]]; more = 1 }
      } while (more)
      for (name in reached) print name
    }' | LC_ALL=C sort
}

tested=
if [ "${1:-}" = --all ]; then
  mapfile -t sources < <(every_source)
  if git diff --quiet HEAD -- src .clang-tidy tools/check_tidy.sh; then tested=$(git rev-parse HEAD); fi
elif [ $# -gt 0 ]; then
  sources=("$@")
else
  commit=$(base)
  if [ -n "$commit" ]; then
    mapfile -t sources < <(LC_ALL=C comm -12 <(every_source) <(reached_since "$commit"))
    echo "${#sources[@]} of $(every_source | wc -l) sources are reached by the changes since ${commit:0:10}"
  else
    mapfile -t sources < <(every_source)
    echo "There is no base to compare with: all ${#sources[@]} sources"
  fi
fi

[ ${#sources[@]} -gt 0 ] || exit 0
# shellcheck disable=SC2016 # $0 is for the inner shell: the file's name
printf '%s\n' "${sources[@]}" | xargs -d '\n' -n 1 -P "$(nproc)" bash -c 'tidy "$0"'
if [ -n "$tested" ] && [ "$tested" != "$(cat .ci/tidy-base 2>/dev/null)" ]; then
  echo "$tested" >.ci/tidy-base
  echo "All ${#sources[@]} sources are clean; commit .ci/tidy-base, which now says so"
fi
