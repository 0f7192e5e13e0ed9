#!/usr/bin/env bash
# Runs a command as root: as it is for root, through sudo for everyone else.
set -euo pipefail
if [ "$(id -u)" = 0 ]; then exec "$@"; else exec sudo "$@"; fi
