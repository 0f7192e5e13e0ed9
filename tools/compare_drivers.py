#!/usr/bin/env python3
"""Compares two builds of pitchcraft-cli over many random scripts, every member of every dump.

    tools/compare_drivers.py OLD NEW                       10,000 scripts, two at a time
    tools/compare_drivers.py OLD NEW --scripts 500 --stats and what the scripts reached
    tools/compare_drivers.py OLD NEW --only 4711           one script, with its lines
    tools/compare_drivers.py OLD NEW --only 4711 --shrink  and the fewest lines that still differ without a reason
    tools/compare_drivers.py OLD NEW --script examples/*.txt

A script depends on --seed, its number and --lines alone. Each runs through both drivers in one empty folder that
stands for the program's; dumps, messages, dialogs, refusals, exit status and the files that are left must agree. What
only NEW has is listed as added and is no difference. Where something differs, the script runs again with a dump after
every line, and each difference is held against the reasons in tools/comparing/rules.py (or --reasons FILE). A script is
reported where its first difference has no reason. `# new session` in a script closes the program and starts it again.

The exit status is 0 where every difference has a reason, else 1.
"""

import argparse
import collections
import concurrent.futures
import importlib.util
import os
import pathlib
import re
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

from comparing import leaves, names, reach, runs  # noqa: E402
from comparing.reasons import Examiner, LinesBetween, Short, Verdict  # noqa: E402
from comparing.shrink import Shrink  # noqa: E402
from comparing.walk import ScriptOf  # noqa: E402

SHOWN = 20  # unexplained scripts that are printed,
ALIKE = 3  # of those with one first difference no more than these
BATCH = 20  # scripts a worker takes at a time

worker = {}


def ReasonsOf(path):
    description = importlib.util.spec_from_file_location("reasons_table", path)
    module = importlib.util.module_from_spec(description)
    description.loader.exec_module(module)
    return module.REASONS


def StartWorker(options, folder):
    own = pathlib.Path(folder) / str(os.getpid())
    own.mkdir()
    worker["drivers"] = runs.Drivers({"old": options.old, "new": options.new}, own)
    worker["reasons"] = ReasonsOf(options.reasons)


class Outcome:
    """One script's verdict and what it was made of."""

    def __init__(self, index, lines):
        self.index, self.lines = index, lines
        self.dumps = self.leaves = 0
        self.verdict = Verdict()
        self.reached = collections.Counter()


def Compare(options, index, lines):
    drivers = worker["drivers"]
    outcome = Outcome(index, lines)
    steps = runs.Dense(lines) if options.dense else runs.Sparse(lines)
    old, new = drivers.Run("old", steps), drivers.Run("new", steps)
    outcome.verdict.note = old.troubles + new.troubles
    for moment in old.moments:
        if moment.raw:
            outcome.dumps += 1
            outcome.leaves += leaves.CountLeaves(moment.Dump())
    if options.stats:
        outcome.reached = reach.ReachedBy(lines, old)
    if (old.output, old.statuses, old.files) == (new.output, new.statuses, new.files):
        return outcome
    found = AsItStands(old, new, outcome.verdict.added)
    if found:
        examiner = Examiner(drivers, worker["reasons"], lines)
        outcome.verdict = examiner.Examine()
        outcome.verdict.note += old.troubles + new.troubles
        NoticeWhatHides(examiner, found)
    return outcome


def AsItStands(old, new, added):
    """The differences without more dumps than the script has, with the lines that they belong to."""
    found = [(left.origin, one) for left, right in zip(old.moments, new.moments)
             for one in runs.CompareMoments(left, right, added)]
    last = old.moments[-1].origin
    if len(old.moments) != len(new.moments):
        found.append((last, leaves.Difference("dumps", len(old.moments), len(new.moments))))
    return found + [(last, one) for one in leaves.CompareFiles(old.files, new.files, added)]


def NoticeWhatHides(examiner, found):
    """A difference that a dump after every line makes go away is worse than one that stays."""
    verdict = examiner.verdict
    if verdict.kind == "unexplained":
        return
    for place, one in found:
        of_dump = not one.path.startswith(("event", "exit", "file"))
        if verdict.kind == "equal" or of_dump and not examiner.Differs(place, one):
            verdict.note += "only without a dump after every line"
            examiner.Unexplained(place, [one])
            return


def CompareBatch(options, indices):
    return [Compare(options, index, ScriptOf(options.seed, index, options.lines)) for index in indices]


def AllOutcomes(options, folder):
    """The outcomes as they come, with a line about the progress now and then."""
    batches = [range(first, min(first + BATCH, options.scripts)) for first in range(0, options.scripts, BATCH)]
    begin = told = time.monotonic()
    done = 0
    with concurrent.futures.ProcessPoolExecutor(options.jobs, None, StartWorker, (options, folder)) as pool:
        for job in concurrent.futures.as_completed([pool.submit(CompareBatch, options, batch) for batch in batches]):
            for outcome in job.result():
                done += 1
                yield outcome
            now = time.monotonic()
            if now - told > 10:
                told = now
                print(f"{done} of {options.scripts} scripts, {done / (now - begin):.1f} a second", file=sys.stderr)
    print(f"{done} scripts in {time.monotonic() - begin:.0f} s, {done / (time.monotonic() - begin):.1f} a second")


def FirstPath(outcome):
    return re.sub(r"\[\d+\]", "[]", outcome.verdict.unexplained[0].path)


def PrintUnexplained(options, outcome):
    verdict = outcome.verdict
    line = outcome.lines[verdict.place] if 0 <= verdict.place < len(outcome.lines) else "(start)"
    print(f"\nscript {outcome.index} (--seed {options.seed} --lines {options.lines} --only {outcome.index}), "
          f"line {verdict.place + 1}: {line}")
    for text in LinesBetween(outcome.lines, verdict.place):
        print(f"    {text}")
    for found in verdict.unexplained[:5]:
        print(f"  {found.path}\n    old {Short(found.old)}\n    new {Short(found.new)}")
    if len(verdict.unexplained) > 5:
        print(f"  and {len(verdict.unexplained) - 5} more")
    if verdict.first:
        print(f"  before it: {', '.join(f'{name} x{count}' for name, count in verdict.first.items())}")
    if verdict.note:
        print(f"  note: {verdict.note.strip()}")


def PrintTable(options, outcomes):
    sentences = {reason.name: reason.sentence for reason in ReasonsOf(options.reasons)}
    first, follows, scripts = collections.Counter(), collections.Counter(), collections.Counter()
    for outcome in outcomes:
        first.update(outcome.verdict.first)
        follows.update(outcome.verdict.follows)
        scripts.update(set(outcome.verdict.first))
    bad = [outcome for outcome in outcomes if outcome.verdict.kind == "unexplained"]
    print(f"\n{'reason':<12}{'scripts':>8}{'first':>9}{'following':>11}  sentence")
    for name, sentence in sentences.items():
        if scripts[name]:
            print(f"{name:<12}{scripts[name]:>8}{first[name]:>9}{follows[name]:>11}  {sentence}")
    print(f"{'UNEXPLAINED':<12}{len(bad):>8}{sum(len(outcome.verdict.unexplained) for outcome in bad):>9}")
    where = collections.Counter(FirstPath(outcome) for outcome in bad)
    for path, count in where.most_common(12):
        print(f"    {count} x {path}")
    equal = sum(outcome.verdict.kind == "equal" and not outcome.verdict.first for outcome in outcomes)
    print(f"\n{len(outcomes)} scripts, {equal} without any difference; {sum(o.dumps for o in outcomes)} dumps, "
          f"{sum(o.leaves for o in outcomes)} values compared")


def Report(options, outcomes, added):
    """Prints what was found; the outcomes of scripts without differences carry no lines any more."""
    bad = sorted((o for o in outcomes if o.verdict.kind == "unexplained"), key=lambda o: o.index)
    alike = collections.Counter()
    shown = 0
    for outcome in bad:
        alike[FirstPath(outcome)] += 1
        if shown == SHOWN or alike[FirstPath(outcome)] > ALIKE:
            continue
        shown += 1
        PrintUnexplained(options, outcome)
        if options.shrink:
            Shrink(worker["drivers"], worker["reasons"], outcome)
    if len(bad) > shown:
        print(f"\n... and {len(bad) - shown} more without a reason")
    if added:
        print(f"\nadded by the new driver: {', '.join(sorted(added))}")
    PrintTable(options, outcomes)
    return 1 if bad else 0


def Options():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("old", type=os.path.abspath)
    parser.add_argument("new", type=os.path.abspath)
    parser.add_argument("--scripts", type=int, default=10000)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--lines", type=int, default=25, help="actions a script")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--reasons", default=pathlib.Path(__file__).resolve().parent / "comparing/rules.py")
    parser.add_argument("--only", type=int, help="the script of this number")
    parser.add_argument("--script", nargs="+", help="these scripts instead of random ones")
    parser.add_argument("--shrink", action="store_true", help="the fewest lines that still differ without a reason")
    parser.add_argument("--dense", action="store_true", help="a dump after every line from the start, not only where "
                        "something differs: finds what comes and goes between two dumps, takes longer")
    parser.add_argument("--stats", action="store_true", help="how many scripts reach each roof, page, control and item")
    options = parser.parse_args()
    for program in (options.old, options.new):
        if not os.access(program, os.X_OK):
            parser.error(f"{program} cannot be run")
    return options


def Main():
    options = Options()
    memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    with tempfile.TemporaryDirectory(prefix="pcmp", dir=memory) as folder:
        StartWorker(options, folder)
        if options.only is not None:
            lines = ScriptOf(options.seed, options.only, options.lines)
            print("\n".join(lines))
            outcomes = [Compare(options, options.only, lines)]
        elif options.script:
            texts = [pathlib.Path(path).read_text(encoding="utf-8").splitlines() for path in options.script]
            outcomes = [Compare(options, path, lines) for path, lines in zip(options.script, texts)]
        else:
            outcomes = AllOutcomes(options, folder)
        kept, added, reached = [], set(), collections.Counter()
        for outcome in outcomes:
            added |= outcome.verdict.added
            reached.update(outcome.reached)
            if outcome.verdict.kind != "unexplained":
                outcome.lines = outcome.reached = None
            kept.append(outcome)
        if options.stats:
            reach.Print(reached, len(kept), names)
        return Report(options, kept, added)


if __name__ == "__main__":
    sys.exit(Main())
