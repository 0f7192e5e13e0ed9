"""write_with_ezdxf.py FILE LINES TEXTS DIMENSIONS ROUNDS: writes the entities of dxf_bench.cpp and prints the milliseconds of each round."""

import sys
import time

import ezdxf

path = sys.argv[1]
lines, texts, dimensions, rounds = map(int, sys.argv[2:6])


def write(document):
    space = document.modelspace()
    for i in range(lines):
        space.add_line((i, 0.5 * i), (i + 7.25, 0.25 * i))
    for i in range(texts):
        space.add_text(f"Rafter {i}", dxfattribs={"insert": (i, 2 * i), "height": 4, "rotation": i % 90})
    for i in range(dimensions):
        space.add_linear_dim(base=(i, -10 - i), p1=(i, 0), p2=(100 + i, 10)).render()
    document.saveas(path)


for _ in range(rounds):
    empty = ezdxf.new("R12", setup=True)
    start = time.perf_counter()
    write(empty)
    print(1000 * (time.perf_counter() - start))
