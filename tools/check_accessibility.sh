#!/usr/bin/env bash
# tools/check_accessibility.sh [PROGRAM [DRIVER]]: opens the window on a display and a bus of its own, with
# fresh settings, and walks it like a screen reader (tools/accessibility.py). `tools/packages.sh window
# accessibility` installs what it needs.
set -euo pipefail
cd "$(dirname "$0")/.."

program=$(realpath "${1:-build/asan/pitchcraft}")
driver=$(realpath "${2:-$(dirname "$program")/pitchcraft-cli}")
for needed in Xvfb dbus-run-session; do
  command -v "$needed" >/dev/null || { echo "$0: $needed is missing: tools/packages.sh window accessibility" >&2; exit 2; }
done
# The bindings belong to the system's Python.
python=/usr/bin/python3
"$python" -c 'import gi; gi.require_version("Atspi", "2.0")' 2>/dev/null ||
  { echo "$0: gir1.2-atspi-2.0 is missing: tools/packages.sh accessibility" >&2; exit 2; }
if [ ! -x "$program" ] || [ ! -x "$driver" ]; then echo "usage: $0 [PROGRAM [DRIVER]]" >&2; exit 2; fi

work=$(mktemp -d)
screen=
trap '[ -z "$screen" ] || kill "$screen"; rm -rf "$work"' EXIT
mkdir -m 700 "$work/home" "$work/run"
export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config XDG_DATA_HOME=$work/home/.local/share XDG_RUNTIME_DIR=$work/run
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
# Xvfb reports its display number once it is ready, and keeps running after its first client has left.
mkfifo "$work/number"
Xvfb -noreset -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/number" 2>"$work/screen.log" &
screen=$!
read -r -t 30 number <"$work/number" || { cat "$work/screen.log" >&2; exit 2; }
export DISPLAY=:$number
unset XAUTHORITY

# The log of the buses matters only if the walk does not finish.
status=0
timeout --kill-after=5 420 dbus-run-session -- \
  "$python" tools/accessibility.py "$program" "$driver" 2>"$work/log" || status=$?
[ "$status" -le 1 ] || cat "$work/log" >&2
if [ "$status" = 1 ]; then grep -v '^dbus-daemon\|^SpiRegistry' "$work/log" >&2 || true; fi
exit "$status"
