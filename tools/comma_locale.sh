#!/usr/bin/env bash
# Makes de_DE.UTF-8, where a number is written with a comma, unless it is there.
set -euo pipefail
locale -a | grep -qixE 'de_DE\.utf-?8' || "$(dirname "$0")/as_root.sh" localedef -i de_DE -f UTF-8 de_DE.UTF-8
