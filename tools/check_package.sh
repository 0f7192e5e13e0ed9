#!/usr/bin/env bash
# tools/check_package.sh [FOLDER]: builds the Debian package in FOLDER (build/package), checks its contents,
# and runs its programs from an unpacked tree.
set -euo pipefail
cd "$(dirname "$0")/.."
folder=${1:-build/package}
tools/packages.sh run package

cmake -S . -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr -DPITCHCRAFT_TESTS=OFF >/dev/null
cmake --build "$folder" --parallel "$(nproc)"
rm -f "$folder"/*.deb
cpack --config "$folder/CPackConfig.cmake" -B "$folder" >/dev/null
package=$(find "$folder" -maxdepth 1 -name 'pitchcraft_*.deb')
[ -n "$package" ] || { echo "$0: no package was made" >&2; exit 1; }

tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
failed=0
fail() {
  echo "$package: $*"
  failed=1
}

contents=$(dpkg-deb -c "$package" | awk '{print $6}')
for file in bin/pitchcraft bin/pitchcraft-cli bin/ftcalc share/applications/pitchcraft.desktop \
  share/applications/ftcalc.desktop share/mime/packages/pitchcraft.xml share/pitchcraft/help/index.html \
  share/icons/hicolor/scalable/apps/pitchcraft.svg share/icons/hicolor/128x128/apps/pitchcraft.png \
  share/doc/pitchcraft/README.md share/doc/pitchcraft/CONTRIBUTING.md; do
  grep -qxF "./usr/$file" <<<"$contents" || fail "usr/$file is missing"
done
while IFS= read -r page; do
  grep -qxF "./usr/share/pitchcraft/help/$page" <<<"$contents" || fail "the page $page is missing"
done < <(cd docs/help && find . -type f | sed 's|^\./||')
if grep -vE '^\./(usr/.*)?$' <<<"$contents"; then fail "there are files outside /usr"; fi

depends=$(dpkg-deb -f "$package" Depends)
for library in libc6 libqt6widgets6 libqt6network6 fonts-liberation; do
  grep -qE "(^|, )$library([ ,]|\$)" <<<"$depends" || fail "does not depend on $library: $depends"
done

dpkg-deb -x "$package" "$tree"
while IFS= read -r file; do
  if grep -qF -- "$PWD" "$file"; then fail "${file#"$tree"} contains the folder in which it was built"; fi
done < <(find "$tree" -type f)
if command -v desktop-file-validate >/dev/null; then
  desktop-file-validate "$tree"/usr/share/applications/*.desktop || fail "a menu entry is not valid"
fi
if command -v xmllint >/dev/null; then
  xmllint --noout "$tree/usr/share/mime/packages/pitchcraft.xml" \
    "$tree/usr/share/icons/hicolor/scalable/apps/pitchcraft.svg" || fail "a file is not valid XML"
fi
for program in pitchcraft pitchcraft-cli ftcalc; do
  version=$("$tree/usr/bin/$program" --version) || fail "$program does not run"
  echo "$version"
done
mkdir "$tree/data"
script=$PWD/examples/first-rafter.txt
(cd "$tree" && usr/bin/pitchcraft-cli run --data data "$script" >dump) || fail "the driver fails"
grep -q '"event":"dump"' "$tree/dump" || fail "the driver calculates nothing"

[ "$failed" = 0 ] || exit 1
echo "$package: $(wc -l <<<"$contents") entries; $depends"
