#!/usr/bin/env bash
# tools/packages.sh PURPOSE...: installs the Debian packages for the purposes named, as far as they are missing.
# With all of them there it only asks dpkg: no network, no root. docs/dependencies.md says why each is needed.
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

[ $# -gt 0 ] || { echo "usage: $0 PURPOSE..., of: ${!list[*]}" >&2; exit 2; }
command -v dpkg-query >/dev/null || { echo "$0: this is for Debian 12; elsewhere see docs/dependencies.md" >&2; exit 1; }

wanted=()
for purpose in "$@"; do
  [ -n "${list[$purpose]:-}" ] || { echo "$0: unknown purpose '$purpose', of: ${!list[*]}" >&2; exit 2; }
  read -ra names <<<"${list[$purpose]}"
  wanted+=("${names[@]}")
done

# dpkg-query fails when it has never heard of a package; what it does print is still right.
installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null || true)
missing=()
for package in "${wanted[@]}"; do
  grep -qxF "$package installed" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "Installing ${missing[*]}"
./as_root.sh apt-get -qq update
# What it unpacks is of no interest; its errors are, and go to standard error.
./as_root.sh env DEBIAN_FRONTEND=noninteractive \
  apt-get -qq -y --no-install-recommends install "${missing[@]}" >/dev/null
