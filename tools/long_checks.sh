#!/usr/bin/env bash
# tools/long_checks.sh [SECONDS]: the checks that take too long for every change. Run it before a release and after a large change.
# It runs all of them, whatever fails, and counts at the end:
#   - every source under clang-tidy with its path analysis
#   - every test under the decimal comma, even those that neither read nor write text
#   - every target, benchmarks too, without precompiled headers: there a source must include what it uses
#   - each fuzz target for SECONDS (60)
#   - every page of every example in the programs that people use
#   - the Debian package
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
[[ $seconds =~ ^[1-9][0-9]*$ ]] || { echo "usage: $0 [SECONDS]" >&2; exit 2; }
. tools/count_checks.sh

tools/packages.sh run test style fuzz bench readers

build_plain() {
  cmake -S . -B build/plain -G Ninja -DCMAKE_BUILD_TYPE=Debug -DPITCHCRAFT_BENCH=ON &&
    cmake --build build/plain --parallel "$(nproc)"
}

# A finding is left in build/corpus as crash-..., timeout-... or leak-...
fuzz() {
  local name=$1 length=$2 options=()
  [ ! -f "fuzz/$name.dict" ] || options+=("-dict=fuzz/$name.dict")
  mkdir -p "build/corpus/$name"
  "build/fuzz/fuzz_$name" -max_total_time="$seconds" -max_len="$length" "${options[@]}" -print_final_stats=1 -verbosity=0 \
    -artifact_prefix=build/corpus/ "build/corpus/$name" "fuzz/corpus/$name"
}

check ./test
check env PITCHCRAFT_TEST_LOCALE=de_DE.UTF-8 ./test -LE comma
check tools/check_examples.sh
check env PITCHCRAFT_DEEP=1 tools/check_tidy.sh --all
check build_plain
check cmake --preset fuzz
check cmake --build --preset fuzz --parallel "$(nproc)"
check fuzz measure 200
check fuzz script 600
check fuzz project 4000
check fuzz list 4000
check tools/check_package.sh
count_checks
