#!/usr/bin/env bash
# Checks that rooms use only the rooms below them, that only the rooms at the edge use Qt, and that the sources of one room do not
# include each other in a circle.
set -euo pipefail
cd "$(dirname "$0")/../src"

# A room may use the rooms listed after it. Those must come before it in this table, so there can be no cycle.
table="
core     :
files    :
measure  : core
drawing  : core
output   : core measure drawing files
sheet    : core measure
design   : core measure sheet
roofs    : core measure sheet design
drawings : core measure drawing output
storage  : core files sheet design roofs
document : core files measure drawing output sheet design roofs drawings storage
session  : core files design roofs storage document
platform : core measure drawing output files sheet storage document Qt
shell    : core measure drawing sheet design storage document platform Qt
cli      : drawing files document session platform Qt
ftcalc   : core measure Qt
gallery  : core sheet roofs document platform shell ftcalc Qt
"

# Rooms whose sources form no circle; a header and the source of the same name count as one. Still to be untangled: drawing, output,
# shell.
straight="core files measure sheet design roofs drawings storage document session platform ftcalc"

failed=0
fail() {
  echo "$*"
  failed=1
}

declare -A uses=()
while read -r room _ allowed; do
  [ -n "$room" ] || continue
  for used in $allowed; do
    [ "$used" = Qt ] || [ -n "${uses[$used]+known}" ] || fail "the table lets $room use $used, which is below it in the table"
  done
  uses[$room]=" $room $allowed "
done <<<"$table"

for folder in */; do
  [ -n "${uses[${folder%/}]+known}" ] || fail "src/$folder is not in the table of tools/check_layers.sh"
done

# file:line:#include "room/header.h" or <QHeader> or <QtModule/QHeader>
while IFS= read -r hit; do
  room=${hit%%/*}
  header=${hit##*#include }
  case $header in
    '<Q'*) used=Qt ;;
    '"'*/*) used=${header#\"} used=${used%%/*} ;;
    *) fail "src/$hit: name the header with its room" && continue ;;
  esac
  [[ "${uses[$room]:-}" == *" $used "* ]] || fail "src/$hit: $room may not use $used"
done < <(grep -rnE '^ *# *include *("|<Q)' --include='*.h' --include='*.cpp' . | sed -E 's|^\./||; s|# *include *|#include |')

# Who includes whom inside a room, "from to" a line, without the extensions.
edges() {
  { grep -HoE "^ *# *include *\"$1/[a-z0-9_]+\.h\"" "$1"/*.h "$1"/*.cpp || true; } |
    sed -E 's|^[^/]*/([a-z0-9_]+)\.[a-z]+:.*/([a-z0-9_]+)\.h"$|\1 \2|' | awk '$1 != $2' | sort -u
}

for room in $straight; do
  [ -d "$room" ] || fail "there is no room $room to look for circles in"
  # tsort says "input contains a loop:" and then the sources of the loop, one a line.
  if ! circle=$(edges "$room" | tsort 2>&1 >/dev/null); then
    circle=$(grep -v 'contains a loop' <<<"$circle" | sed 's/^tsort: //' | paste -sd' ')
    fail "src/$room: these include each other in a circle: $circle"
  fi
done

exit "$failed"
