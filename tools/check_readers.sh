#!/usr/bin/env bash
# tools/check_readers.sh FILE|FOLDER...: opens every .dxf, .wmf and .pdf in the programs that people use for
# them, prints a row for each, and fails if any is read wrongly. `tools/packages.sh readers` installs the
# programs.
#   dxf: ezdxf finds nothing to repair and measures the dimensions; LibreCAD and LibreOffice show it, with every letter
#   wmf: wmf2svg and LibreOffice show it, with every letter
#   pdf: every font is embedded and there is text
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
[ $# -gt 0 ] || { echo "usage: $0 FILE|FOLDER..." >&2; exit 2; }

for program in librecad soffice wmf2svg pdftotext pdftoppm pdffonts iconv; do
  command -v "$program" >/dev/null || { echo "$0: $program is missing: tools/packages.sh readers" >&2; exit 2; }
done
# The library belongs to the system's Python, which may not be the first on the path.
python=""
for candidate in python3 /usr/bin/python3; do
  if "$candidate" -c 'import ezdxf' 2>/dev/null; then python=$candidate && break; fi
done
[ -n "$python" ] || { echo "$0: python3-ezdxf is missing: tools/packages.sh readers" >&2; exit 2; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work XDG_CONFIG_HOME=$work/config LC_ALL=C.UTF-8
reader() { timeout --kill-after=5 "$@" >>"$work/log" 2>&1 </dev/null; }

mapfile -t files < <(find "$@" -type f \( -name '*.dxf' -o -name '*.wmf' -o -name '*.pdf' \) | LC_ALL=C sort)
[ ${#files[@]} -gt 0 ] || { echo "$0: no .dxf, .wmf or .pdf there" >&2; exit 2; }

# LibreOffice starts slowly, so it runs once for all files of a kind, under names that cannot clash.
mkdir "$work/in" "$work/dxf" "$work/wmf" "$work/lines"
for i in "${!files[@]}"; do cp "${files[i]}" "$work/in/$i.${files[i]##*.}"; done
for kind in dxf wmf; do
  inputs=("$work/in/"*".$kind")
  [ -e "${inputs[0]}" ] || continue
  reader $((60 + 10 * ${#inputs[@]})) soffice "-env:UserInstallation=file://$work/profile" --headless \
    --convert-to pdf --outdir "$work/$kind" "${inputs[@]}" || true
done

letters() { pdftotext "$1" - 2>/dev/null || true; }
# The share of a page's picture that is not background.
ink() {
  pdftoppm -gray -scale-to 800 -singlefile "$1" "$work/page" 2>/dev/null || { echo 0; return; }
  "$python" "$here/readers.py" ink "$work/page.pgm"
}

# Each sets `said` and fails if the file is read wrongly.
check_dxf() {
  local number=$1 whole=$work/lines/$1 lettersThere=0 ezdxf
  ezdxf=$("$python" "$here/readers.py" dxf "$work/in/$number.dxf" "$whole" 2>>"$work/log") ||
    { said="ezdxf: ${ezdxf:-does not read it}"; return 1; }
  said=$ezdxf
  # LibreCAD puts the PDF next to the file, whatever name it is given.
  reader 60 librecad dxf2pdf -a "$work/in/$number.dxf" || true
  [ -s "$work/in/$number.pdf" ] || { said+="; LibreCAD does not read it"; return 1; }
  # A file without figures is a blank page, which LibreOffice does not open.
  if [[ $ezdxf = *"0 figures"* ]]; then return 0; fi
  said+="; LibreCAD $(ink "$work/in/$number.pdf")% ink"
  [[ $said != *" 0% ink" ]] || return 1
  [ -s "$work/dxf/$number.pdf" ] || { said+="; LibreOffice does not read it"; return 1; }
  lettersThere=$(letters "$work/dxf/$number.pdf" | "$python" "$here/readers.py" letters "$whole") ||
    { said+="; LibreOffice $lettersThere"; return 1; }
  said+="; LibreOffice $lettersThere"
}

check_wmf() {
  local number=$1 whole=$work/lines/$1 lettersThere=0
  reader 30 wmf2svg -o "$work/$number.svg" "$work/in/$number.wmf" || { said="wmf2svg does not read it"; return 1; }
  # wmf2svg copies the texts in the file's own encoding.
  iconv -f cp1252 -t utf-8 "$work/$number.svg" | "$python" "$here/readers.py" svg "$whole"
  said="wmf2svg $(wc -l <"$whole") texts"
  [ -s "$work/wmf/$number.pdf" ] || { said+="; LibreOffice does not read it"; return 1; }
  lettersThere=$(letters "$work/wmf/$number.pdf" | "$python" "$here/readers.py" letters "$whole") ||
    { said+="; LibreOffice $lettersThere"; return 1; }
  said+="; LibreOffice $lettersThere, $(ink "$work/wmf/$number.pdf")% ink"
  [[ $said != *" 0% ink" ]] || return 1
}

check_pdf() {
  local fonts loose lettersThere
  fonts=$(pdffonts "$work/in/$1.pdf" 2>>"$work/log" | tail -n +3) || { said="cannot be read"; return 1; }
  # Columns are counted from the end, because the name may contain blanks: emb sub uni object ID.
  loose=$(awk '$(NF-4) != "yes"' <<<"$fonts" | grep -c . || true)
  lettersThere=$(letters "$work/in/$1.pdf" | tr -d '[:space:]' | wc -m)
  said="$(grep -c . <<<"$fonts" || true) fonts, $loose not embedded; $lettersThere letters"
  [ -n "$fonts" ] && [ "$loose" = 0 ] && [ "$lettersThere" -gt 0 ]
}

failed=0
for i in "${!files[@]}"; do
  said=""
  result=pass
  case ${files[i]} in
    *.dxf) check_dxf "$i" || result=FAIL ;;
    *.wmf) check_wmf "$i" || result=FAIL ;;
    *.pdf) check_pdf "$i" || result=FAIL ;;
  esac
  [ "$result" = pass ] || failed=1
  printf '%s  %-40s  %s\n' "$result" "$(basename "${files[i]}")" "$said"
done
exit "$failed"
