"""The steps of check_readers.sh that need more than a shell.

dxf FILE TEXTS    audits a DXF file, prints what is in it, and writes its texts to TEXTS, one per line
svg TEXTS         writes the texts of the SVG on standard input to TEXTS, one per line
letters TEXTS     compares the letters on standard input with those of TEXTS, in any order, because rotated texts come out in pieces
ink FILE.pgm      prints how much of the picture, in per cent, is not in its most common grey
"""

import collections
import html
import re
import sys


def dxf(path, texts_path):
    import ezdxf

    document = ezdxf.readfile(path)
    audit = document.audit()
    counts = collections.Counter()
    texts = []
    measures = []
    for entity in document.modelspace():
        kind = entity.dxftype()
        counts[kind] += 1
        if kind == "TEXT":
            texts.append(entity.plain_text())
        if kind == "DIMENSION":
            measures.append(f"{entity.get_measurement():.6g}")
            shown = list(entity.virtual_entities())
            texts += [part.plain_text() for part in shown if part.dxftype() == "TEXT"]
            if not shown:
                print(f"dimension {len(measures)} shows nothing")
                return 1
    # ezdxf leaves the codes of single characters to the program that draws.
    texts = [re.sub(r"\\U\+([0-9A-F]{4})", lambda code: chr(int(code[1], 16)), text) for text in texts]
    with open(texts_path, "w", encoding="utf-8") as out:
        out.writelines(text + "\n" for text in texts)
    said = ", ".join(f"{count} {kind}" for kind, count in sorted(counts.items())) or "0 figures"
    if measures:
        said += f" ({', '.join(measures)})"
    print(f"{len(audit.errors)} errors, {len(audit.fixes)} repairs, {said}")
    return 1 if audit.errors or audit.fixes else 0


def svg(texts_path):
    found = re.findall(r"<text[^>]*>(.*?)</text>", sys.stdin.read(), re.DOTALL)
    with open(texts_path, "w", encoding="utf-8") as out:
        out.writelines(" ".join(html.unescape(text).split()) + "\n" for text in found)


def letters(texts_path):
    def count(text):
        return collections.Counter("".join(text.split()))

    with open(texts_path, encoding="utf-8") as file:
        wanted = count(file.read())
    shown = count(sys.stdin.read())
    missing = wanted - shown
    print(f"{(wanted - missing).total()} of {wanted.total()} letters", end="")
    print(f", without {''.join(missing)!r}" if missing else "")
    return 1 if missing else 0


def ink(path):
    with open(path, "rb") as file:
        data = file.read()
    pixels = data[re.match(rb"P5\s+\d+\s+\d+\s+\d+\s", data).end() :]
    share = 100 - 100 * collections.Counter(pixels).most_common(1)[0][1] / len(pixels)
    print(f"{share:.1f}" if share >= 0.05 else "0")


if __name__ == "__main__":
    sys.exit({"dxf": dxf, "svg": svg, "letters": letters, "ink": ink}[sys.argv[1]](*sys.argv[2:]))
