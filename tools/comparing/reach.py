"""What the scripts reach: an account of how varied they are."""

import collections

from . import names

KINDS = ("roof", "page", "drawing", "mode", "control", "menu", "button", "verb", "refused", "dialog", "message")
CONTROL_VERBS = {"type", "enter", "edit", "pick", "check", "spin"}


def ReachedBy(lines, run):
    """What one script reached, each once. A line counts where it was not refused."""
    refused = {event.get("line") for moment in run.moments for event in moment.events if event["event"] == "error"}
    found = set()
    for place, line in enumerate(lines):
        verb, _, rest = line.partition(" ")
        if place + 1 in refused:
            found.add(("refused", verb))
            continue
        found.add(("verb", verb))
        if verb in CONTROL_VERBS:
            found.add(("control", rest.split(" ")[0]))
        elif verb == "click":
            found.add(("menu" if rest in names.MENU_ITEMS else "control", rest))
        elif verb == "press":
            found.add(("button", rest))
    for moment in run.moments:
        for event in moment.events:
            if event["event"] == "message":
                found.add(("message", f"{event['title']}: {event['text']}"[:90]))
            elif event["event"] == "dialog":
                found.add(("dialog", event["kind"]))
        found |= PlacesOf(moment)
    return collections.Counter(found)


def PlacesOf(moment):
    dump = moment.Dump()
    if "document" not in dump:
        return set()
    document = dump["document"]
    roof = names.ITEM_OF_CODE.get(document["RoofType"], str(document["RoofType"]))
    if roof == "Hip" and dump["Rafter1"]["RafterType"] == names.BASTARD_HIP:
        roof = "Hip, unequal"
    page = f"{roof}, page {document['CurrentTab']}"
    found = {("roof", roof), ("page", page)}
    found.add(("drawing", f"{page}, drawn" if dump["drawing"]["operations"] else f"{page}, blank"))
    if document["UnitRun"] == 1000:
        found.add(("mode", f"metric, {roof}"))
    if dump["menus"]["mnuSettingsDegrees"]["Checked"]:
        found.add(("mode", f"degrees, {roof}"))
    return found


def Print(reached, scripts, contract):
    for kind in KINDS:
        rows = sorted((name, count) for (of, name), count in reached.items() if of == kind)
        print(f"\n{kind}: scripts that reach it, of {scripts}")
        for name, count in rows:
            print(f"  {count:>6} {100 * count / scripts:5.1f} %  {name}")
    for kind, wanted in (("menu", contract.MENU_ITEMS), ("control", contract.CONTROLS), ("button", contract.BUTTONS)):
        missing = [name for name in wanted if not reached[kind, name]]
        print(f"{kind} never reached: {', '.join(missing) or 'none'}")
