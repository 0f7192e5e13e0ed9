"""Runs a script through a driver and cuts what came out into moments: a dump and the events that led to it."""

import dataclasses
import json
import os
import pathlib
import re
import shutil
import subprocess

from . import leaves
from .walk import SESSION

MEMBERS = {"title", "status", "document", "sheet", "menus", "toolbar", "tabs", "Rafter1", "Rafter2", "drawing"}
SECONDS = 120  # no honest script takes as long
# A PDF names the time at which it was made.
PDF_TIMES = re.compile(rb"/(CreationDate|ModDate) \(D:[^)]*\)|<xmp:\w+Date>[^<]*<|uuid:[-0-9a-f]+|/ID \[[^]]*\]")


def IsDump(line):
    words = line.split()
    return bool(words) and words[0] == "dump" and set(words[1:]) <= MEMBERS


@dataclasses.dataclass
class Step:
    """A line as it is handed to the driver."""

    text: str
    origin: int | None  # the line of the script that it stands for; None for a helper's line
    dump: str = ""  # "whole" makes a moment; "keep" and "drop" end a stretch of events that counts or does not


@dataclasses.dataclass
class Moment:
    origin: int
    events: list
    raw: bytes = b""  # a dump, or empty at the end of a session
    status: object = None
    parsed: dict | None = None

    def Dump(self):
        if self.parsed is None:
            self.parsed = json.loads(self.raw) if self.raw else {}
        return self.parsed


@dataclasses.dataclass
class Run:
    moments: list
    files: dict
    output: bytes
    statuses: list
    troubles: str  # standard error of sessions that ended badly
    helperFailed: bool = False
    helped: list = dataclasses.field(default_factory=list)  # events of the helpers' lines


class Drivers:
    """Both programs and the folder in which they work, one after the other, so that every path is the same."""

    def __init__(self, programs, folder):
        self.programs = programs
        self.folder = pathlib.Path(folder) / "data"
        runtime = pathlib.Path(folder) / "runtime"
        runtime.mkdir(mode=0o700, parents=True, exist_ok=True)
        self.environment = {"PATH": os.environ.get("PATH", ""), "HOME": str(folder), "LC_ALL": "C.UTF-8",
                            "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": str(runtime),
                            # Without it the entries of a PDF's dictionaries change places from run to run.
                            "QT_HASH_SEED": "0"}
        self.started = 0

    def Run(self, which, steps, withFiles=True):
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir()
        run = Run([], {}, b"", [], "")
        for session in Sessions(steps):
            self.RunSession(self.programs[which], session, run)
        if withFiles:
            run.files = FilesIn(self.folder)
        return run

    def RunSession(self, program, steps, run):
        self.started += 1
        script = "".join(step.text + "\n" for step in steps).encode()
        try:
            done = subprocess.run([program, "run", "--data", "."], input=script, capture_output=True, check=False,
                                  cwd=self.folder, env=self.environment, timeout=SECONDS)
            output, status, errors = done.stdout, done.returncode, done.stderr
        except subprocess.TimeoutExpired as late:
            output, status, errors = late.stdout or b"", "no end", b""
        run.output += output
        run.statuses.append(status)
        if status not in (0, 1, 2):
            run.troubles += errors.decode(errors="replace")[-2000:]
        CutIntoMoments(steps, output, status, run)


def Sessions(steps):
    sessions = [[]]
    for step in steps:
        if step.text == SESSION:
            sessions.append([])
        else:
            sessions[-1].append(step)
    return sessions


def CutIntoMoments(steps, output, status, run):
    dumps = iter([step for step in steps if step.dump])
    events = []
    kept = 0  # of the events, how many count already
    for line in output.splitlines():
        # A driver that is killed may leave half a line.
        if not (line.startswith(b'{"event":"dump"') and line.endswith(b"}")):
            try:
                event = json.loads(line)
            except ValueError:
                event = {"event": "garbage", "text": line.decode(errors="replace")}
            if event.get("event") != "dump":
                events.append(event)
                continue
        step = next(dumps, None)
        if step is None:
            events.append({"event": "dump", "text": "one more than asked for"})
        elif step.dump == "whole":
            run.moments.append(Moment(step.origin, Counted(events, steps), line))
            events, kept = [], 0
        elif step.dump == "drop":
            # An error of the script's own line comes with a line number; one of a helper's is lost with it.
            run.helperFailed |= any(event["event"] == "error" for event in events[kept:])
            run.helped += events[kept:]
            del events[kept:]
        kept = len(events)
    last = steps[-1].origin if steps else 0
    run.moments.append(Moment(last if last is not None else 0, Counted(events, steps), b"", status))


def Counted(events, steps):
    """The events with the line numbers of the script instead of those of the steps."""
    for event in events:
        if event["event"] == "error" and 0 < event.get("line", 0) <= len(steps):
            origin = steps[event["line"] - 1].origin
            event["line"] = None if origin is None else origin + 1
    return events


def FilesIn(folder):
    files = {}
    for path in sorted(folder.rglob("*")):
        if path.is_file():
            content = path.read_bytes()
            if content.startswith(b"%PDF"):
                content = PDF_TIMES.sub(b"", content)
            files[str(path.relative_to(folder))] = content
    return files


def Sparse(lines):
    """The script as it stands. A dump belongs to the last line before it that is none."""
    steps = []
    origin = -1
    for place, line in enumerate(lines):
        if IsDump(line):
            steps.append(Step(line, origin, "whole"))
        else:
            origin = place
            steps.append(Step(line, place))
    return steps


def Helper(text):
    """A line that is not the script's; what it brings does not count."""
    return [Step("dump title", None, "keep"), Step(text, None), Step("dump title", None, "drop")]


def Dense(lines, instead=None, upTo=None):
    """A whole dump after every line, so that an event or a difference is known by its line.

    `instead` gives for some lines what is run in their place, `upTo` leaves out what follows a line and its dump.
    """
    steps = [Step("dump", -1, "whole")]
    for place, line in enumerate(lines if upTo is None else lines[: upTo + 1]):
        if IsDump(line):
            continue
        if line == SESSION:
            steps += [Step(line, place), Step("dump", place, "whole")]
            continue
        for text in (instead or {}).get(place, [line]):
            steps += [Step(line, place)] if text == line else Helper(text)
        steps.append(Step("dump", place, "whole"))
    return steps


def CompareMoments(old, new, added):
    found = []
    if old.events or new.events:
        found += leaves.CompareEvents(old.events, new.events, added)
    if old.status != new.status:
        found.append(leaves.Difference("exit", old.status, new.status))
    if old.raw != new.raw:
        if not old.raw or not new.raw:
            found.append(leaves.Difference("dump", *("there" if one.raw else "(missing)" for one in (old, new))))
        else:
            found += leaves.CompareDumps(old.Dump(), new.Dump(), added)
    return found
