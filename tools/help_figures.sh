#!/usr/bin/env bash
# Draws the figures of the help pages again. They are stored as PNG, so that the pages need no SVG reader.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v rsvg-convert >/dev/null || { echo "$0: rsvg-convert is missing (package librsvg2-bin)" >&2; exit 2; }
for figure in docs/images/geometry/*.svg; do
  rsvg-convert --width 480 --background-color white "$figure" -o "docs/help/figures/$(basename "$figure" .svg).png"
done
