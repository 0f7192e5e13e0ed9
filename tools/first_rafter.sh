#!/usr/bin/env bash
# tools/first_rafter.sh DRIVER FOLDER: runs the first rafter of examples/ in the folder and prints its
# results.
set -euo pipefail
driver=$(realpath "$1")
script=$(realpath "$(dirname "$0")/../examples/first-rafter.txt")
mkdir -p "$2"
folder=$(realpath "$2")

# The driver writes the script's pictures to the current folder.
cd "$folder"
"$driver" run --data "$folder" "$script" >results.jsonl

# The rafter's last dump, one member per line.
members=$(sed -nE 's/.*"Rafter1": *\{([^}]*)\}.*/\1/p' results.jsonl | tail -n 1 | tr ',' '\n' | tr -d '" ')
[ -n "$members" ] || { echo "$0: the driver printed no rafter" >&2; exit 1; }
while read -r member meaning; do
  value=$(sed -n "s/^$member://p" <<<"$members")
  LC_ALL=C printf '  %-10s %10.3f  %s\n' "$member" "$value" "$meaning"
done <<'TABLE'
Slope     rise in 12 of run
Span      run, wall to ridge
Rise      to the ridge
Length1   ridge to wall
Length2   with the overhang
PlumbCut  along the plumb line
Heel      plumb height above the seat
Seat      level length of the seat cut
TABLE

echo
sed -n 's/^picture *//p' "$script" | while read -r picture; do
  echo "The drawing is in $(realpath "$picture")"
done
