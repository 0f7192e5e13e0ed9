"""Finds for every difference of a script the reason that explains it, or none."""

import collections
import dataclasses
import json

from . import leaves, runs


@dataclasses.dataclass(frozen=True)
class Reason:
    """Why two builds may differ.

    `explains(situation, difference)` looks at one difference. `instead(situation)` gives lists of lines: the old
    driver is run again with each of them in place of the line at hand, and if it then does what the new one does, that
    is the explanation, and the rest of the script is compared with this run. A reason that `taints` changes what is
    calculated from there on: what differs later follows from it, until a line after which nothing differs.
    """

    name: str
    sentence: str
    explains: object = None
    instead: object = None
    taints: bool = False


class Situation:
    """What a reason may look at: the script up to a line, both dumps after it, both before it, and the events."""

    def __init__(self, examiner, place, old, new, oldBefore, newBefore):
        self.examiner = examiner
        self.place = place
        self.lines = examiner.lines[: place + 1]
        self.line = self.lines[-1] if self.lines else ""
        self.old, self.new = old.Dump(), new.Dump()
        self.oldEvents, self.newEvents = old.events, new.events
        self.oldBefore = oldBefore.Dump() if oldBefore else {}
        self.newBefore = newBefore.Dump() if newBefore else {}
        document = self.old.get("document", {})
        self.roof = document.get("RoofType")
        self.page = document.get("CurrentTab")

    def Is(self, *verbs_and_names):
        """Whether the line begins with one of these, whole words."""
        return any(self.line == start or self.line.startswith(start + " ") for start in verbs_and_names)

    def OldAgain(self, extra=(), without=frozenset()):
        """The old driver's dump after this line once more, with helper lines before the dump or without some lines of
        the script; and what events the helper lines brought. None and none where a helper line was refused."""
        return self.examiner.OldAgain(self.place, tuple(extra), frozenset(without))

    def DrawnAgain(self, without=frozenset()):
        """What the old driver draws if the page shown is chosen again, and what it says then."""
        dump, events = self.OldAgain([f"page VSTab(0) {self.page}"], without)
        return (dump["drawing"] if dump else None), events

    def SameDrawing(self, drawing):
        """Whether a drawing is, leaf by leaf, the one that the new driver shows."""
        if drawing is None or "drawing" not in self.new:
            return False
        found = []
        leaves.Collect("drawing", drawing, self.new["drawing"], found, set())
        return not found


@dataclasses.dataclass
class Verdict:
    """What came of one script."""

    kind: str = "equal"  # equal, explained, unexplained
    first: collections.Counter = dataclasses.field(default_factory=collections.Counter)
    follows: collections.Counter = dataclasses.field(default_factory=collections.Counter)
    place: int = -1
    unexplained: list = dataclasses.field(default_factory=list)
    note: str = ""
    added: set = dataclasses.field(default_factory=set)


class Examiner:
    """Compares two drivers over one script, with a dump after each line."""

    def __init__(self, drivers, reasons, lines):
        self.drivers, self.reasons, self.lines = drivers, reasons, lines
        self.instead = {}
        self.again = {}
        self.plain = {}
        self.verdict = Verdict()

    def OldAgain(self, place, extra, without):
        key = (place, extra, without, len(self.instead))
        if key not in self.again:
            instead = {**self.instead, **{line: [] for line in without}}
            steps = [step for step in runs.Dense(self.lines, instead, upTo=place) if step.dump != "whole"]
            for text in extra:
                steps += runs.Helper(text)
            run = self.drivers.Run("old", [*steps, runs.Step("dump", place, "whole")], withFiles=False)
            dumps = [moment for moment in run.moments if moment.raw]
            self.again[key] = (dumps[-1].Dump(), run.helped) if dumps and not run.helperFailed else (None, [])
        return self.again[key]

    def Examine(self):
        self.new = self.drivers.Run("new", runs.Dense(self.lines))
        self.old = self.first = self.drivers.Run("old", runs.Dense(self.lines))
        self.known = {}  # differences of the moment before, by key, with their reasons
        self.taint = None
        # A driver that ends too early has fewer moments; the first pair that does not match then says so.
        for index in range(min(len(self.old.moments), len(self.new.moments))):
            if not self.AtMoment(index):
                return self.verdict
        self.AtEnd()
        return self.verdict

    def Differs(self, place, difference):
        """Whether a difference is there after a line as it came, before any reason."""
        if place not in self.plain:
            self.plain[place] = {one.Key() for old, new in zip(self.first.moments, self.new.moments)
                                 if old.origin == place for one in runs.CompareMoments(old, new, set())}
        return difference.Key() in self.plain[place]

    def AtMoment(self, index):
        old, new = self.old.moments[index], self.new.moments[index]
        found = runs.CompareMoments(old, new, self.verdict.added)
        fresh = [one for one in found if one.Key() not in self.known]
        if not found:
            if old.raw:
                self.known, self.taint = {}, None
            return True
        before = next((other for other in range(index - 1, -1, -1) if self.old.moments[other].raw), None)
        situation = Situation(self, old.origin, old, new, *((self.old.moments[before], self.new.moments[before])
                                                            if before is not None else (None, None)))
        if fresh and self.taint is None:
            emulated = self.Emulate(index, situation, fresh)
            if emulated is not None:
                found, fresh, situation = emulated
        if self.taint is None:
            reasons = self.ReasonsFor(situation, fresh)
            left = [one for one in fresh if one.Key() not in reasons]
            if left:
                self.Unexplained(old.origin, left)
                return False
            self.Count(reasons.values())
            self.taint = next((reason for reason in reasons.values() if reason.taints), None)
        else:
            reasons = self.Consequences(situation, found, fresh)
        if old.raw:
            # What lasts is no new difference; an event does not last.
            lasting = [one for one in found if not one.path.startswith(("event", "exit"))]
            known = self.known | reasons
            self.known = {one.Key(): known.get(one.Key(), self.taint) for one in lasting}
        return True

    def Consequences(self, situation, found, fresh):
        """Under a reason that taints, all that differs follows from it; it ends where the rest has other reasons."""
        self.verdict.follows[self.taint.name] += len(fresh)
        pictures_alone = all(one.path.startswith(("drawing", "status")) for one in found)
        reasons = self.ReasonsFor(situation, found) if pictures_alone else {}
        if len(reasons) == len({one.Key() for one in found}) and not any(reason.taints for reason in reasons.values()):
            self.taint = None
        return reasons

    def ReasonsFor(self, situation, differences):
        """The first reason for each difference that has one."""
        reasons = {}
        for one in differences:
            for reason in self.reasons:
                if reason.explains is not None and self.Ask(reason, reason.explains, situation, one):
                    reasons[one.Key()] = reason
                    break
        return reasons

    def Ask(self, reason, question, *about):
        """A reason that stumbles over a dump explains nothing, and says so."""
        try:
            return question(*about)
        except (KeyError, TypeError, ValueError, IndexError) as error:
            self.verdict.note = f"{reason.name} failed: {error!r}; "
            return None

    def Emulate(self, index, situation, fresh):
        """Looks for lines with which the old driver does what the new one does, and goes on with them."""
        place = situation.place
        for reason in self.reasons:
            for lines in (reason.instead and self.Ask(reason, reason.instead, situation)) or []:
                run = self.drivers.Run("old", runs.Dense(self.lines, {**self.instead, place: lines}))
                if run.helperFailed or len(run.moments) != len(self.new.moments):
                    continue
                found = runs.CompareMoments(run.moments[index], self.new.moments[index], set())
                still = [one for one in found if one.Key() not in self.known]
                there = Situation(self, place, run.moments[index], self.new.moments[index], None, None)
                there.oldBefore, there.newBefore = situation.oldBefore, situation.newBefore
                earlier, self.instead = self.instead, {**self.instead, place: lines}
                if len(self.ReasonsFor(there, still)) == len(still) and len(still) < len(fresh):
                    self.old = run
                    self.verdict.first[reason.name] += len(fresh) - len(still)
                    return found, still, there
                self.instead = earlier
        return None

    def Count(self, reasons):
        self.verdict.first.update(reason.name for reason in reasons)
        if self.verdict.first:
            self.verdict.kind = "explained"

    def Unexplained(self, place, differences):
        self.verdict.kind = "unexplained"
        self.verdict.place = place
        self.verdict.unexplained = differences
        return self.verdict

    def AtEnd(self):
        """Files: what the script wrote while something differed follows from that."""
        found = leaves.CompareFiles(self.old.files, self.new.files, self.verdict.added)
        if not found:
            return
        if self.verdict.first:
            self.verdict.follows[next(iter(self.verdict.first))] += len(found)
        else:
            self.Unexplained(len(self.lines) - 1, found)


def LinesBetween(lines, place):
    """The lines up to a place, without the dumps."""
    return [line for line in lines[: place + 1] if not runs.IsDump(line)]


def Short(value, width=300):
    text = value if isinstance(value, str) else json.dumps(value, ensure_ascii=False)
    return text if len(text) <= width else text[:width] + "..."
