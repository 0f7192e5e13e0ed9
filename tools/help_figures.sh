#!/usr/bin/env bash
# Paints the figures of the pages of help anew. They are stored, so that the pages need no reader of SVG.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v rsvg-convert >/dev/null || { echo "$0: rsvg-convert is missing (package librsvg2-bin)" >&2; exit 2; }
for figure in docs/images/geometry/*.svg; do
  rsvg-convert --width 480 --background-color white "$figure" -o "docs/help/figures/$(basename "$figure" .svg).png"
done
