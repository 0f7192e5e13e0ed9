#!/usr/bin/env python3
"""Prints src/drawing/arial_advances.h: the advance widths of an Arial-metric face, regular, bold and italic.

Usage: arial_metrics.py REGULAR.ttf BOLD.ttf ITALIC.ttf BOLDITALIC.ttf | clang-format > src/drawing/arial_advances.h
Needs python3-fonttools.
"""
import sys

from fontTools.ttLib import TTFont

FIRST, LAST = 0x20, 0xFF
EXTRA = [0x2013, 0x2014, 0x2018, 0x2019, 0x201A, 0x201C, 0x201D, 0x201E, 0x2022, 0x2026, 0x20AC, 0x2212, 0x221E]
FACES = ("Regular", "Bold", "Italic", "BoldItalic")


def advances(path, codes):
    font = TTFont(path)
    assert font["head"].unitsPerEm == 2048, "the table is in 1/2048 em"
    cmap, widths = font.getBestCmap(), font["hmtx"]
    return [widths[cmap[code]][0] if code in cmap else 0 for code in codes]


def rows(values, width=16):
    for start in range(0, len(values), width):
        yield ", ".join(str(value) for value in values[start:start + width]) + ","


def main(paths):
    codes = list(range(FIRST, LAST + 1))
    tables = [(name, advances(path, codes), advances(path, EXTRA)) for name, path in zip(FACES, paths)]
    print("// Advance widths of an Arial-metric face in 1/2048 em. Written by tools/arial_metrics.py; not edited by hand.")
    print("#pragma once\n\n#include <cstdint>\n\nnamespace pitchcraft::arial {\n")
    print(f"inline constexpr char32_t kFirst = {FIRST:#x};\ninline constexpr char32_t kLast = {LAST:#x};")
    print(f"inline constexpr int kExtraCount = {len(EXTRA)};")
    print("inline constexpr char32_t kExtra[kExtraCount] = {" + ", ".join(f"{code:#x}" for code in EXTRA) + "};\n")
    print(f"struct Advances {{\n  std::uint16_t Latin[kLast - kFirst + 1];\n  std::uint16_t Extra[kExtraCount];\n"
          "  std::uint16_t Average;  ///< of the letters and figures, for a sign that is not in the table\n};\n")
    for name, latin, extra in tables:
        letters = [latin[code - FIRST] for code in codes if chr(code).isalnum() and code < 0x7F]
        print(f"inline constexpr Advances k{name} = {{")
        print("    {\n        " + "\n        ".join(rows(latin)) + "\n    },")
        print("    {" + ", ".join(map(str, extra)) + "},")
        print(f"    {round(sum(letters) / len(letters))}}};\n")
    print("}  // namespace pitchcraft::arial")


if __name__ == "__main__":
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    main(sys.argv[1:])
