#!/usr/bin/env bash
# tools/packages.sh PURPOSE...: installs the missing Debian packages for the given purposes. If none is
# missing, it only asks dpkg and needs neither network nor root. docs/dependencies.md says why each is needed.
set -euo pipefail
cd "$(dirname "$0")"

declare -A list=(
  [run]="g++ cmake ninja-build ccache qt6-base-dev nlohmann-json3-dev libcli11-dev fonts-liberation"
  [test]="libgtest-dev libgmock-dev librapidcheck-dev locales"
  [style]="clang-format clang-tidy shellcheck"
  [fuzz]="clang libclang-rt-14-dev"
  [bench]="libbenchmark-dev"
  [window]="xvfb"
  [accessibility]="at-spi2-core gir1.2-atspi-2.0 python3-gi dbus"
  [package]="dpkg-dev file"
  [readers]="python3-ezdxf librecad libwmf-bin libreoffice-draw poppler-utils"
)

[ $# -gt 0 ] || { echo "usage: $0 PURPOSE...; purposes: ${!list[*]}" >&2; exit 2; }
command -v dpkg-query >/dev/null || { echo "$0: this is for Debian 12; elsewhere see docs/dependencies.md" >&2; exit 1; }

wanted=()
for purpose in "$@"; do
  [ -n "${list[$purpose]:-}" ] || { echo "$0: unknown purpose '$purpose'; purposes: ${!list[*]}" >&2; exit 2; }
  read -ra names <<<"${list[$purpose]}"
  wanted+=("${names[@]}")
done

# dpkg-query fails for a package that it does not know; its output is still right.
installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null || true)
missing=()
for package in "${wanted[@]}"; do
  grep -qxF "$package installed" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "Installing ${missing[*]}"
./as_root.sh apt-get -qq update
# Shows errors, but not the progress of unpacking.
./as_root.sh env DEBIAN_FRONTEND=noninteractive \
  apt-get -qq -y --no-install-recommends install "${missing[@]}" >/dev/null
