#!/usr/bin/env bash
# tools/check_examples.sh [DRIVER]: writes every page of every example as DXF, metafile and print, and opens
# all of them in the programs that people use (tools/check_readers.sh). Pages without a drawing are left out.
set -euo pipefail
cd "$(dirname "$0")/.."

driver=$(realpath "${1:-build/asan/pitchcraft-cli}")
least=50 # the fewest files that all examples together make
again=()
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/out"
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work

for example in examples/*.txt; do
  name=$(basename "$example" .txt)
  mkdir "$work/$name"
  {
    cat "$example"
    for page in 0 1 2 3 4; do
      echo "page VSTab(0) $page"
      echo "picture $work/out/$name-$page.dxf"
      echo "picture $work/out/$name-$page.wmf"
      echo "answer $work/out/$name-$page.pdf"
      echo "click mnuFilePageSetup"
      echo "click mnuFilePrint"
    done
  } >"$work/$name.txt"
  # A page that the example's roof does not have is refused, which is no error here.
  "$driver" run --data "$work/$name" "$work/$name.txt" >"$work/$name.json" || [ $? -le 2 ]
done

# After a refused page, the page before it was written once more.
for file in "$work/out/"*-[1-4].wmf; do
  page=${file%.wmf}
  before=${page%-*}-$((${page##*-} - 1))
  if cmp -s "$file" "$before.wmf"; then again+=("$page"); fi
done
for page in "${again[@]}"; do rm -f "$page".*; done

count=$(find "$work/out" -type f | wc -l)
echo "$count files of $(find examples -name '*.txt' | wc -l) examples"
[ "$count" -ge "$least" ] || { echo "$0: that is too few" >&2; exit 1; }
tools/check_readers.sh "$work/out"
