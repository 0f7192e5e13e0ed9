#!/usr/bin/env bash
# Runs a command as root: directly if root runs it, otherwise with sudo.
set -euo pipefail
if [ "$(id -u)" = 0 ]; then exec "$@"; else exec sudo "$@"; fi
