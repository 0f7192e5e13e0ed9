#!/usr/bin/env bash
# Checks that rooms use only the rooms below them, and that only the rooms at the edge use Qt.
set -euo pipefail
cd "$(dirname "$0")/../src"

# A room may use the rooms listed after it. Those must come before it in this table, so there can be no cycle.
table="
core     :
files    :
measure  : core
drawing  : core measure
output   : core measure drawing files
sheet    : core measure
drawings : core measure drawing output sheet
storage  : core measure sheet files
document : core measure drawing output sheet drawings storage files
ftcalc   : core measure Qt
platform : core measure drawing output sheet drawings storage document files Qt
shell    : core measure drawing output sheet drawings storage document platform files Qt
cli      : core measure drawing output sheet drawings storage document platform files Qt
gallery  : core measure drawing output sheet drawings storage document platform shell ftcalc files Qt
"

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

exit "$failed"
