"""Makes a script shorter as long as it still differs without a reason."""

from . import runs
from .reasons import Examiner, Short


def Shrink(drivers, reasons, outcome):
    """Prints the fewest lines, found by leaving out ever smaller stretches, and what then differs."""
    wanted = Kind(outcome.verdict)
    tries = 0

    def Verdict(lines):
        nonlocal tries
        tries += 1
        verdict = Examiner(drivers, reasons, lines).Examine()
        return verdict if verdict.kind == "unexplained" and Kind(verdict) == wanted else None

    lines = [line for line in outcome.lines if not runs.IsDump(line) and line and not line.startswith("# a")]
    best = Verdict(lines)
    if best is None:
        print("  not shrunk: with a dump after every line it has a reason, or none differs")
        return None
    lines = lines[: best.place + 1] if Verdict(lines[: best.place + 1]) else lines
    size = max(1, len(lines) // 2)
    while True:
        shorter = False
        place = len(lines)
        while place > 0:
            place = max(0, place - size)
            fewer = lines[:place] + lines[place + size:]
            verdict = Verdict(fewer) if fewer else None
            if verdict:
                lines, best, shorter = fewer, verdict, True
        if size == 1 and not shorter:
            break
        size = max(1, size // 2) if size > 1 else 1
    best = Verdict(lines)
    print(f"  shrunk to {len(lines)} lines in {tries} tries:")
    for line in lines:
        print(f"    {line}")
    for found in best.unexplained[:8]:
        print(f"  {found.path}\n    old {Short(found.old)}\n    new {Short(found.new)}")
    if len(best.unexplained) > 8:
        print(f"  and {len(best.unexplained) - 8} more")
    return lines


def Kind(verdict):
    """A difference of the same kind: the same member of the dump, the same kind of event."""
    return verdict.unexplained[0].path.split(".")[0].split("[")[0] if verdict.unexplained else None
