#!/usr/bin/env bash
# Creates the locale de_DE.UTF-8, which writes numbers with a decimal comma, unless it exists.
set -euo pipefail
locale -a | grep -qixE 'de_DE\.utf-?8' || "$(dirname "$0")/as_root.sh" localedef -i de_DE -f UTF-8 de_DE.UTF-8
