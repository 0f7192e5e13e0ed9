"""Two JSON values side by side, down to every leaf."""

import dataclasses
import difflib
import json
import re

# What is likelier a cause comes first: a wrong record also shows in the sheet and in the drawing.
ORDER = ["document", "Rafter1", "Rafter2", "tabs", "sheet", "menus", "toolbar", "title", "status", "drawing"]

INDEX = re.compile(r"\[\d+\]")


@dataclasses.dataclass(frozen=True)
class Difference:
    path: str
    old: object
    new: object
    drawings: object = None  # of a drawing, which is one difference however many leaves differ: both as a whole

    def Key(self):
        if self.drawings is not None:
            return "drawing", *self.drawings
        return self.path, json.dumps(self.old, sort_keys=True), json.dumps(self.new, sort_keys=True)


def CountLeaves(value):
    """How many values that hold no others."""
    count = 0
    for child in value.values() if type(value) is dict else value:
        kind = type(child)
        count += CountLeaves(child) if kind is dict or kind is list else 1
    return count


def Same(old, new):
    """One value, one type: true is not 1, and -0 is not 0. An integer and a number of the same size are one."""
    if old != new or (type(old) is bool) != (type(new) is bool):
        return False
    return old != 0 or isinstance(old, str) or str(float(old)) == str(float(new))


def Collect(path, old, new, found, added):
    """Collects the differences between two values; members that only the new one has go to `added`."""
    if type(old) is dict and type(new) is dict:
        if old.get("op") != new.get("op"):
            return found.append(Difference(path, old, new))
        for key, value in old.items():
            if key in new:
                Collect(f"{path}.{key}" if path else key, value, new[key], found, added)
            else:
                found.append(Difference(f"{path}.{key}" if path else key, value, "(missing)"))
        if len(new) > len(old) or new.keys() != old.keys():
            added.update(INDEX.sub("[]", f"{path}.{key}") for key in new if key not in old)
    elif type(old) is list and type(new) is list:
        if len(old) != len(new):
            found.append(Difference(f"{path}.length", len(old), len(new)))
        for place, (left, right) in enumerate(zip(old, new)):
            if type(left) in (dict, list) or not Same(left, right):
                Collect(f"{path}[{place}]", left, right, found, added)
    elif type(old) in (dict, list) or type(new) in (dict, list) or not Same(old, new):
        found.append(Difference(path, old, new))
    return None


def CompareDumps(old, new, added):
    found = []
    for member in [*(name for name in ORDER if name in old), *(name for name in old if name not in ORDER)]:
        if member not in new:
            found.append(Difference(member, "...", "(missing)"))
            continue
        texts = repr(old[member]), repr(new[member])
        if texts[0] == texts[1]:
            continue
        inside = []
        Collect(member, old[member], new[member], inside, added)
        if member == "drawing" and inside:
            inside = [dataclasses.replace(inside[0], drawings=(hash(texts[0]), hash(texts[1])))]
        found += inside
    added.update(f"dump.{member}" for member in new if member not in old)
    return found


# What the older driver prints; an event of another kind is an addition.
KNOWN_EVENTS = {"message", "dialog", "printed", "error", "dump", "garbage"}


def CompareEvents(old, new, added):
    """Events in the order in which they came; one that stands on one side alone is a difference as a whole."""
    added.update(f"event {event['event']}" for event in new if event["event"] not in KNOWN_EVENTS)
    new = [event for event in new if event["event"] in KNOWN_EVENTS]
    found = []
    if [event["event"] for event in old] == [event["event"] for event in new]:
        for left, right in zip(old, new):
            Collect(f"event {left['event']}", left, right, found, added)
        return found
    left = [json.dumps(event, sort_keys=True) for event in old]
    right = [json.dumps(event, sort_keys=True) for event in new]
    for what, a, b, c, d in difflib.SequenceMatcher(None, left, right, autojunk=False).get_opcodes():
        if what == "equal":
            continue
        found += [Difference(f"event {event['event']}", event, None) for event in old[a:b]]
        found += [Difference(f"event {event['event']}", None, event) for event in new[c:d]]
    return found


def CompareFiles(old, new, added):
    """The files that a run left behind, by name; texts by line, settings by key."""
    found = []
    added.update(f"file {ending}" for ending in {Ending(name) for name in new if name not in old})
    for name, content in old.items():
        if name not in new:
            found.append(Difference(f"file {name}", "...", "(missing)"))
        elif content != new[name]:
            CompareFile(name, content, new[name], found, added)
    return found


def Ending(name):
    return "*" + name[name.rindex("."):] if "." in name else name


def CompareFile(name, old, new, found, added):
    try:
        if name.endswith(".json"):
            return Collect(f"file {name}", json.loads(old), json.loads(new), found, added)
        left, right = old.decode().splitlines(), new.decode().splitlines()
    except ValueError:
        return found.append(Difference(f"file {name}", f"{len(old)} bytes", f"{len(new)} other bytes"))
    for place, (one, other) in enumerate(zip(left, right)):
        if one != other:
            return found.append(Difference(f"file {name} line {place + 1}", one, other))
    return found.append(Difference(f"file {name} lines", len(left), len(right)))
