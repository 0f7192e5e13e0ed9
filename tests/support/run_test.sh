#!/usr/bin/env bash
# tests/support/run_test.sh LOCALE PROGRAM ...: runs a test under the locale, without a screen, with an empty home and an empty
# temporary folder, which are gone afterwards. PITCHCRAFT_TEST_LOCALE takes the place of every test's locale.
set -euo pipefail
locale=${PITCHCRAFT_TEST_LOCALE:-$1}
shift
[ -z "$(LC_ALL=$locale locale charmap 2>&1 >/dev/null)" ] ||
  { echo "$0: there is no locale $locale; tools/comma_locale.sh makes it" >&2; exit 2; }

# In memory where that has room: a file is written whole only when the disk says so, and the tests write thousands.
folder=${TMPDIR:-/tmp}
least=32768 # KiB
free=$(df --output=avail -k /dev/shm 2>/dev/null | tail -n 1) || free=0
if [ -w /dev/shm ] && [ "$free" -ge "$least" ]; then folder=/dev/shm; fi
scratch=$(mktemp -d "$folder/pitchcraft-test-XXXXXX")
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/home" "$scratch/tmp"
mkdir -m 700 "$scratch/run"

export LC_ALL=$locale TMPDIR=$scratch/tmp HOME=$scratch/home XDG_RUNTIME_DIR=$scratch/run
export XDG_CONFIG_HOME=$HOME/config XDG_DATA_HOME=$HOME/data XDG_CACHE_HOME=$HOME/cache
export QT_QPA_PLATFORM=offscreen UBSAN_OPTIONS=print_stacktrace=1
# What was freed is kept apart for a while, so that a late use is seen: with less of it a program that forks starts its child sooner.
export ASAN_OPTIONS=quarantine_size_mb=32
"$@"
