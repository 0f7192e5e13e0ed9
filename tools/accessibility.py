#!/usr/bin/env python3
"""accessibility.py PROGRAM DRIVER: walks the window like a screen reader, through the accessibility bus.

Checks for each page of each roof type that everything shown has a name and a fitting role, that every field reads what the driver
reports for it, that Tab reaches every field, and that what takes no focus is also in a menu or a list. Prints a row for each page and
every violation; the exit status is 1 if there is any. tools/check_accessibility.sh provides display, bus and settings.
"""
import json
import re
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

FIELD_ROLES = ("text", "combo box", "check box", "spin button")
BUTTON_ROLES = ("push button", "radio button")
# Controls in a strip above the sheet; all others are on the sheet itself.
BAY_STRIP = ("FtProjection", "FtFace", "FtBack", "FtBayAngle", "Command1")
TAB_STRIP = ("FTUpperFascia", "cboLedger", "cboSpacing")
DROP_DOWNS = ("cboType", "cboLedger")
REAR_SPINS = ("Spin(5)", "Spin(6)")
TAB_KEYCODE = 23
PATIENCE = 15  # seconds


class Violations:
    def __init__(self):
        self.count = 0
        self.where = ""

    def add(self, text):
        self.count += 1
        print(f"  VIOLATION {self.where}: {text}")


def wait_for(condition, what):
    """Returns the first true answer."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            answer = condition()
        except GLib.GError:  # a part has gone in the meantime
            answer = None
        if answer:
            return answer
        time.sleep(0.02)
    sys.exit(f"{sys.argv[0]}: gave up waiting for {what}")


def children(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child


def has(node, state):
    return node.get_state_set().contains(state)


def showing(node):
    """The node and everything below it, as far as they are showing."""
    if not has(node, Atspi.StateType.SHOWING):
        return
    yield node
    for child in children(node):
        yield from showing(child)


def text_of(node):
    if "Text" not in node.get_interfaces():
        return None
    return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))


def act(node):
    """Performs the first action of the node, which is what a click does."""
    if not Atspi.Action.do_action(node, 0):
        sys.exit(f"{sys.argv[0]}: {node.get_name()} refuses")


def press_tab():
    Atspi.generate_keyboard_event(TAB_KEYCODE, None, Atspi.KeySynthType.PRESSRELEASE)


def activate(frame):
    """There is no window manager: a click where it does nothing gives the window the keyboard."""
    bar = next(node for node in showing(frame) if node.get_role_name() == "status bar")
    place = Atspi.Component.get_extents(bar, Atspi.CoordType.SCREEN)
    Atspi.generate_mouse_event(place.x + place.width // 2, place.y + place.height // 2, "b1c")


# What the driver reports


def expected_fields(dump):
    """For each strip, its fields in the order of the sheet: role, value (None without one), and whether enabled."""
    pages = [tab["Page"] for tab in dump["tabs"].values()]
    fields = {"bay": [], "tabs": [], "sheet": []}
    for name, control in dump["sheet"].items():
        if not control["Visible"] or name.startswith(("Label", "txt", "VS", "Toolbar")):
            continue
        strip = "bay" if name in BAY_STRIP else "tabs" if name in TAB_STRIP else "sheet"
        if strip == "bay" and not dump["sheet"]["Toolbar1"]["Visible"]:
            continue
        if strip == "sheet":
            twin = name in REAR_SPINS or (
                name.endswith("(1)") and not name.startswith(("Spin", "FtRidge")))
            front = name != "cboType" and not twin
            if pages[0] != 0 or (twin and pages[1] != 1) or (front and pages[1] == 1):
                continue
        role = "text"
        values = [control.get("Text")]
        if "LeftText" in control:
            values = [control["LeftText"], control["RightText"]]
        elif name in DROP_DOWNS:
            role = "combo box"
        elif name.startswith("Spin"):
            role = "spin button"
        elif "Value" in control and "Caption" in control:
            role, values = "check box", [control["Value"] != 0]
        elif name == "Command1":
            role = "push button"
        fields[strip] += [(role, value, control["Enabled"]) for value in values]
    return fields


def ask_driver(driver, lines):
    with tempfile.TemporaryDirectory() as folder:
        run = subprocess.run([driver, "run", "--data", folder], input="\n".join(lines), capture_output=True, text=True, check=True)
    return [event for event in map(json.loads, run.stdout.splitlines()) if event["event"] == "dump"]


# What the bus reports


def shown_field(node):
    role = node.get_role_name()
    value = text_of(node) if role in ("text", "combo box") else None
    if role == "check box":
        value = has(node, Atspi.StateType.CHECKED)
    return role, value, has(node, Atspi.StateType.ENABLED)


def check_names(nodes, violations):
    for node in nodes:
        role = node.get_role_name()
        if not node.get_name().strip():
            violations.add(f"{role} without a name")
        if role in ("filler", "unknown", "invalid", ""):
            violations.add(f"'{node.get_name()}' has the role '{role}'")
    called = set()
    for node in nodes:
        if node.get_role_name() not in FIELD_ROLES + BUTTON_ROLES:
            continue
        name = node.get_role_name(), node.get_name()
        if name in called:
            violations.add(f"two of the role '{name[0]}' are called '{name[1]}'")
        called.add(name)


def check_captions(fields, nodes, violations):
    """Checks that the name of a field is the caption beside it."""
    captions = {node.get_name().rstrip(":") for node in nodes if node.get_role_name() == "label"}
    for field in fields:
        called = field.get_name().split(",")[0]
        if field.get_role_name() != "push button" and called not in captions:
            violations.add(f"no caption says '{called}'")


def check_tab(fields, nodes, violations):
    """Checks that Tab reaches every enabled field before it starts again. Returns their number."""
    stops = [field for field in fields if has(field, Atspi.StateType.FOCUSABLE) and has(field, Atspi.StateType.ENABLED)]
    # The page tabs and the drawing come between the last field and the first.
    places = stops + [node for node in nodes if node.get_role_name() in ("page tab list", "image", "graphic")]
    Atspi.Component.grab_focus(stops[0])
    wait_for(lambda: has(stops[0], Atspi.StateType.FOCUSED), "the focus")
    reached = set()
    focused = 0
    for _ in range(len(places) + 1):
        press_tab()

        def moved(before=focused):
            # Nearly always it is the next one, so try that first.
            for step in range(1, len(places)):
                at = (before + step) % len(places)
                if has(places[at], Atspi.StateType.FOCUSED):
                    return [at]
            return None

        focused = wait_for(moved, f"Tab after '{places[focused].get_name()}'")[0]
        reached.add(focused)
        if focused == 0:
            break
    for at, stop in enumerate(stops):
        if at not in reached:
            violations.add(f"Tab does not reach '{stop.get_name()}'")
    return len(reached & set(range(len(stops))))


def check_unfocusable(nodes, ways, violations):
    """Checks that a button without focus is also in a menu or a list, or opens the list of its own field."""
    for node in nodes:
        if node.get_role_name() not in FIELD_ROLES + BUTTON_ROLES or has(node, Atspi.StateType.FOCUSABLE):
            continue
        name = node.get_name()
        # F4 and the arrow keys do the same on the focused field.
        beside = name.endswith((", open the list", ", step")) or name.startswith("Scroll ")
        if not beside and name not in ways and name.split()[0] not in ways:
            violations.add(f"'{name}' cannot be reached by keyboard")


class Window:
    def __init__(self, program):
        self.process = subprocess.Popen([program])
        self.app = wait_for(self.find_app, "the program to appear on the bus")
        self.app.set_cache_mask(Atspi.Cache.NONE)  # nothing listens here to keep a cache up to date

    @staticmethod
    def find_app():
        for app in children(Atspi.get_desktop(0)):
            if app.get_name() == "Pitchcraft":
                return app
        return None

    def dialogs(self):
        return [top for top in children(self.app) if top.get_role_name() == "dialog" and has(top, Atspi.StateType.SHOWING)]

    def frame(self):
        for top in children(self.app):
            if top.get_role_name() == "frame" and has(top, Atspi.StateType.SHOWING):
                return top
        return None

    def close_start_forms(self, violations):
        """Checks and closes the dialogs at the start and returns their number. The splash closes by itself."""
        closed = 0
        while closed < 2:
            def form():
                for dialog in self.dialogs():
                    for node in showing(dialog):
                        if node.get_role_name() == "push button" and node.get_name() == "OK":
                            return dialog, node
                return None

            dialog, button = wait_for(form, "the dialogs at the start")
            check_names(list(showing(dialog)), violations)
            before = dialog.get_child_count(), dialog.get_name()
            act(button)
            wait_for(lambda: not any((d.get_child_count(), d.get_name()) == before for d in self.dialogs()), "a dialog to close")
            closed += 1
        return closed

    def part(self, role, name=None):
        frame = wait_for(self.frame, "the window")
        for node in showing(frame):
            if node.get_role_name() == role and (name is None or node.get_name() == name):
                return node
        return None

    def choose_page(self, caption):
        act(wait_for(lambda: self.part("page tab", caption), f"the page {caption}"))


def compare(fields, expected, strip, violations):
    shown = [shown_field(node) for node in fields]
    if shown == expected:
        return
    for at in range(max(len(shown), len(expected))):
        mine = shown[at] if at < len(shown) else "nothing"
        theirs = expected[at] if at < len(expected) else "nothing"
        if mine != theirs:
            violations.add(f"{strip}, field {at}: reads {mine}, the driver holds {theirs}")


def menu_items(node):
    for child in children(node):
        if child.get_role_name() in ("menu item", "check menu item", "menu"):
            yield re.sub(r"\.\.\.$", "", child.get_name())
        if child.get_role_name() != "separator":
            yield from menu_items(child)


def check_page(window, dump, ways, violations):
    """Returns three counts: what is showing, fields, and Tab stops."""
    frame = wait_for(window.frame, "the window")
    nodes = list(showing(frame))
    strips = {"Bay dimensions": "bay", "Pages and settings": "tabs", "Design sheet": "sheet"}
    expected = expected_fields(dump)
    fields = []
    found = dict.fromkeys(expected, ())
    for node in nodes:
        strip = strips.get(node.get_name())
        if strip is not None and node.get_role_name() in ("panel", "tool bar"):
            found[strip] = [
                part for part in showing(node)
                if part.get_role_name() in FIELD_ROLES or (strip == "bay" and part.get_role_name() == "push button")]
    for strip, parts in found.items():
        compare(list(parts), expected[strip], strip, violations)
    for strip in ("sheet", "tabs", "bay"):
        fields += found[strip]
    check_names(nodes, violations)
    check_captions(fields, nodes, violations)
    check_unfocusable(nodes, ways, violations)
    return len(nodes), len(fields), check_tab(fields, nodes, violations) if fields else 0


def main():
    program, driver = sys.argv[1:]
    start = ask_driver(driver, ["dump sheet"])[0]
    roofs = start["sheet"]["cboType"]["List"]
    violations = Violations()
    violations.where = "start"
    window = Window(program)
    try:
        print(f"{window.close_start_forms(violations)} dialogs at the start")
        activate(wait_for(window.frame, "the window"))
        ways = set(roofs) | set(menu_items(wait_for(lambda: window.part("menu bar"), "the menu bar")))
        print(f"{'roof':<20} {'page':<16} {'shows':>6} {'fields':>7} {'stops':>6}")
        for roof in roofs:
            violations.where = roof
            act(wait_for(lambda: window.part("radio button", roof), f"the button {roof}"))
            wait_for(lambda: (part := window.part("combo box", "Roof")) and text_of(part) == roof, roof)
            lines = [f"pick cboType {roof}"]
            first = ask_driver(driver, lines + ["dump sheet tabs"])[0]
            outer, inner = (tab["Caption"].split("|") for tab in first["tabs"].values())
            pages = [(0, at, caption) for at, caption in enumerate(outer)]
            if first["sheet"]["LWSlope(1)"]["Visible"]:
                pages += [(1, 1, inner[1]), (1, 0, inner[0])]
            for tab, at, caption in pages:
                if tab == 1:
                    window.choose_page(outer[0])
                    lines.append("page VSTab(0) 0")
                window.choose_page(caption)
                lines.append(f"page VSTab({tab}) {at}")
                violations.where = f"{roof}, {caption}"
                dump = ask_driver(driver, lines + ["dump sheet tabs"])[0]
                counts = check_page(window, dump, ways, violations)
                print(f"{roof:<20} {caption:<16} {counts[0]:>6} {counts[1]:>7} {counts[2]:>6}")
    finally:
        window.process.kill()
        window.process.wait()
    print(f"{violations.count} violations")
    return 1 if violations.count else 0


if __name__ == "__main__":
    sys.exit(main())
