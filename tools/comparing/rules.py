"""The reasons for which two builds of the driver may differ.

REASONS is a table of Reason rows, looked through from the top; the first that explains a difference has it. To add one,
copy this file, add a row, and give the copy with --reasons. A row looks at a Situation: `lines` and `line` (the script
up to here), `old` and `new` (the dumps after the line), `oldBefore` and `newBefore`, `oldEvents` and `newEvents`,
`roof` and `page`; and it may run the older driver again (`OldAgain`, `DrawnAgain`). It should prove what it says, not
only look at the path.
"""

import math
import re
import struct

from comparing.reasons import Reason

HIP, DUTCH_HIP, UNEQUAL_SPAN_VALLEY, BLIND_VALLEY = 1, 8, 10, 11
GAMBREL = 13
BASTARD_HIP = 16
OVERHANG_ENTRY = re.compile(r"(type|enter) FtOverhang\(0\)|spin Spin\(1\) ")
RIDGE_ENTRY = re.compile(r"(type|enter) FtRidge\(\d\)|spin Spin\([34]\) ")
JOB = re.compile(r"click (mnuFilePrint|mnuFileExport(DXF|Metafile)|mnuPopUp[12](Print|DXF))$|press Print$|picture ")
FILE_TROUBLE = {"Save Rafter", "Load Rafter", "mnuFileExportDXF_Click", "mnuFileExportMetafile_Click"}


def IsDrawing(difference):
    return difference.path.startswith("drawing")


def AsSingle(number):
    try:
        return struct.unpack("f", struct.pack("f", number))[0]
    except (OverflowError, TypeError, struct.error):
        return number


def AsNumber(text):
    found = re.match(r"\s*[-+]?(\d+\.?\d*|\.\d+)([eE][-+]?\d+)?", str(text))
    return float(found[0]) if found else 0.0


def IsPlainHip(dump):
    return bool(dump) and dump["document"]["RoofType"] == HIP and dump["Rafter1"]["RafterType"] != BASTARD_HIP


# --- R8, R10, R1: which picture shows


def OverhangWaits(situation, difference):
    """The picture is that of the same script without the entries of the overhang that wait."""
    if not IsDrawing(difference) or not IsPlainHip(situation.new):
        return False
    entries = [place for place, line in enumerate(situation.lines) if OVERHANG_ENTRY.match(line)]
    for count in range(1, min(4, len(entries)) + 1):
        without = entries[-count:]
        dump, _ = situation.OldAgain(without=without)
        if dump and situation.SameDrawing(dump["drawing"]) or situation.SameDrawing(situation.DrawnAgain(without)[0]):
            return True
    return False


def SlopeModeRedraws(situation, difference):
    return (IsDrawing(difference) and situation.Is("click mnuSettingsDegrees", "click mnuSettingsRiseOverRun")
            and situation.SameDrawing(situation.DrawnAgain()[0]))


def PageIsDrawn(situation, difference):
    """The picture, and what a drawing that fails tells."""
    if not situation.new or situation.new["document"]["CurrentTab"] != situation.page:
        return False
    if IsDrawing(difference):
        return situation.SameDrawing(situation.DrawnAgain()[0])
    if difference.path == "event message.title":
        return str(difference.new).startswith("Draw") and difference.new in [
            message["title"] for message in situation.DrawnAgain()[1]]
    message = difference.old or difference.new
    if difference.path != "event message" or not message["title"].startswith("Draw"):
        return False
    told = message in situation.DrawnAgain()[1]
    return told == (difference.old is None)


def DrawBeforeJob(situation):
    """What is printed, exported or written is the picture, so it shows there, too, that the page is drawn."""
    return [[f"page VSTab(0) {situation.page}", situation.line]] if JOB.match(situation.line) else []


# --- R13


def BlankHasNoPoints(situation, difference):
    """Both pictures are blank and differ only in the points of the picture before."""
    if not IsDrawing(difference) or not situation.new:
        return False
    visible = [{name: value for name, value in dump["drawing"].items() if name not in ("Pts", "PointFactor")}
               for dump in (situation.old, situation.new)]
    return visible[0] == visible[1] and not visible[0]["operations"]


# --- R2


def TurnToFirstPage(situation):
    if not situation.Is("pick cboType") or situation.oldBefore.get("document", {}).get("CurrentTab", 0) == 0:
        return []
    first = "page VSTab(0) 0"
    return [[first, situation.line], [situation.line, first]]


def TurnedToFirstPage(situation, difference):
    where = ("document.CurrentTab", "tabs.VSTab(0).Page", "drawing", "sheet.txtSpacing.Vis", "sheet.cboSpacing.Vis")
    turned = bool(TurnToFirstPage(situation)) and situation.new["tabs"]["VSTab(0)"]["Page"] == 0
    return turned and difference.path.startswith(where)


# --- R3


def EqualSlopesByNumber(situation, _):
    """The older driver has a hip of unequal slopes whose two slopes are one 32-bit number."""
    old, new = situation.old, situation.new
    if not old or not IsPlainHip(new) or old["document"]["RoofType"] != HIP:
        return False
    slopes = [AsSingle(old["sheet"][f"LWSlope({row})"]["LeftValue"]) for row in (0, 2)]
    unequal = old["Rafter1"]["RafterType"] == BASTARD_HIP or "Hip End" in old["tabs"]["VSTab(0)"]["Caption"]
    return unequal and slopes[0] == slopes[1]


# --- R4


def ToldTwice(situation, difference):
    message = difference.old
    if difference.path != "event message" or difference.new is not None:
        return False
    return situation.oldEvents.count(message) > situation.newEvents.count(message) >= 1


# --- R5, R7, R11: values that stand beside the calculation


def RearDegreesFollow(situation, difference):
    """The record takes its end's degrees from the degrees."""
    return (difference.path in ("Rafter2.degrees", "Rafter2.HipEndDegrees")
            and situation.roof in (DUTCH_HIP, UNEQUAL_SPAN_VALLEY)
            and difference.new == situation.new["Rafter1"]["degrees"])


def MainDegreesFollow(situation, difference):
    if not difference.path.startswith("sheet.cboDegrees(2).") or situation.roof != BLIND_VALLEY:
        return False
    if not RIDGE_ENTRY.match(situation.line):
        return False
    slope = situation.new["sheet"]["LWSlope(2)"]["LeftValue"]
    shown = AsNumber(situation.new["sheet"]["cboDegrees(2)"]["Text"])
    if isinstance(slope, str):
        return False
    return abs(math.degrees(math.atan(slope / situation.new["document"]["UnitRun"])) - shown) < 0.006


def EntryWaits(situation, difference):
    if difference.path != "status":
        return False
    waits = situation.new.get("waiting") or situation.newBefore.get("waiting")
    return bool(waits) or IsPlainHip(situation.new) and bool(OVERHANG_ENTRY.match(situation.line))


# --- R6


def SolveOnceMore(situation):
    refused = any(event.get("title") == "Dutch Hip Dimensions" for event in situation.oldEvents)
    if not refused or situation.roof != DUTCH_HIP:
        return []
    # To choose the ledger that is chosen already calculates both rafters and changes nothing else.
    ledger = 0 if situation.old["menus"]["mnuDutchLedger(0)"]["Checked"] else 1
    return [[situation.line, f"click mnuDutchLedger({ledger})"]]


def SolvedOnceMore(situation, difference):
    return bool(SolveOnceMore(situation)) and difference.path.startswith(("Rafter2.", "sheet.Ft", "drawing"))


# --- R9


def JobKeepsType(situation, difference):
    """After the job the new driver has the type from before it, the older one has not."""
    found = re.fullmatch(r"(Rafter[12])\.RafterType", difference.path)
    return bool(found and JOB.match(situation.line)
                and difference.new == situation.newBefore[found[1]]["RafterType"] != difference.old)


# --- R12


def FileWorkFailed(situation, difference):
    """The older driver's status knows of lines that were refused and of pictures, not of the rest."""
    if difference.path != "exit" or (difference.old, difference.new) != (0, 1):
        return False
    moments = situation.examiner.new.moments
    events = [event for moment in moments for event in moment.events if event["event"] == "message"]
    return any(event["title"] in FILE_TROUBLE or event["title"].startswith(("Print", "Export")) for event in events)


# R14, R16: what a line no longer does

CUT_OR_SIZE = re.compile(r"size |click mnu(Settings|Gambrel|PopUp[12])(Plumb|Square|Level)|press (Plumb|Square|Level)$"
                         r"|click mnuView|click mnu(ViewOptions|FileDXFSettings|PopUp[12]DXFSettings)")
PAGE_LEAVES = re.compile(r"menus\.mnu(PopUp1Layout|PopUp1OverhangsEqual|HipLayoutOverhangsEqual|Separator1[579])"
                         r"|Rafter[12]\.|drawing|sheet\.")


def ValueAt(dump, path):
    for name in re.findall(r"[^.\[\]()]+(?:\([^)]*\))?", path):
        if not isinstance(dump, dict) or name not in dump:
            return None
        dump = dump[name]
    return dump


def LeftAlone(situation, difference):
    """The line left the value as it was in the new driver."""
    return bool(situation.newBefore) and ValueAt(situation.newBefore, difference.path) == difference.new


def NoPageTurn(situation, difference):
    return bool(CUT_OR_SIZE.match(situation.line) and PAGE_LEAVES.match(difference.path)
                and LeftAlone(situation, difference))


OPENS = re.compile(r"click mnuFile(Open|MRU)|press Open$")


def OpeningShowsNoLayouts(situation, difference):
    """A project's cut turned the page in the older driver."""
    return bool(OPENS.match(situation.line) and difference.path.startswith("menus.") and difference.new is False)


def SpacingOnItsPages(situation, difference):
    if difference.path not in ("sheet.txtSpacing.Visible", "sheet.cboSpacing.Visible"):
        return False
    tab = situation.new["tabs"]["VSTab(0)"]
    caption = tab["Caption"].split("|")[tab["Page"]]
    return difference.new == (caption in ("Layout", "Longest Jack", "Octagon Layout"))


def RowsFromTheRecord(situation, difference):
    """What was typed and not committed is in the field, not in the rows of a sheet or file."""
    return (difference.path.startswith("file ") and bool(JOB.match(situation.line))
            and any(line.startswith("edit ") for line in situation.lines))


def SlopesOfTheRecord(situation, difference):
    """The older driver went by what stands in the two fields, which was not committed."""
    old, new = situation.old, situation.new
    if not old or not new or new["document"]["RoofType"] != HIP:
        return False
    record = new["Rafter1"]["HipEndSlope"] != new["Rafter1"]["Slope"]
    fields = old["sheet"]["LWSlope(0)"]["LeftValue"] != old["sheet"]["LWSlope(2)"]["LeftValue"]
    typed = any(line.startswith("edit LWSlope") for line in situation.lines)
    return typed and (record == (new["Rafter1"]["RafterType"] == BASTARD_HIP)) and (record != fields or difference.path.startswith(("Rafter1", "sheet", "drawing", "tabs", "event")))


def NoGambrel(situation, difference):
    gambrel = situation.line.startswith("click mnuPopup2Gambrel") and situation.roof != GAMBREL
    ledger = situation.line.startswith("click mnuPopUp1Ledger") and situation.roof != DUTCH_HIP
    return ((gambrel or ledger)
            and (IsDrawing(difference) or difference.path.startswith("event") or LeftAlone(situation, difference)))


def BetterWords(situation, difference):
    return difference.path == "event error.text" and "there is no control named" in str(difference.new)


REASONS = [
    Reason("R2", "a roof picked from the list on a later page turns to the first page",
           TurnedToFirstPage, instead=TurnToFirstPage, taints=True),
    Reason("R6", "after a refused Dutch run the solver runs once more",
           SolvedOnceMore, instead=SolveOnceMore, taints=True),
    Reason("R3", "a hip whose slopes are equal as 32-bit numbers is a plain hip", EqualSlopesByNumber, taints=True),
    Reason("R10", "the slope mode redraws at once", SlopeModeRedraws),
    Reason("R8", "the overhang of a plain hip waits everywhere", OverhangWaits),
    Reason("R13", "a blank picture has none of the points of the picture before", BlankHasNoPoints),
    Reason("R1", "the page shown is drawn", PageIsDrawn, instead=DrawBeforeJob),
    Reason("R4", "one message an action where a failing drawing was told twice", ToldTwice),
    Reason("R5", "the degrees of the second rafter follow those of the first", RearDegreesFollow),
    Reason("R7", "the degrees of a blind valley's main slope follow its slope", MainDegreesFollow),
    Reason("R9", "a print or an export leaves the rafter's type alone", JobKeepsType, taints=True),
    Reason("R11", "the status line tells of an entry that waits", EntryWaits),
    Reason("R12", "a save, open, export or print that failed gives status 1", FileWorkFailed),
    Reason("R14", "another size or another cut is no page turn", NoPageTurn, taints=True),
    Reason("R15", "a control that is not there is told in plain words", BetterWords),
    Reason("R16", "the popup of a gambrel or a Dutch hip does nothing on another roof", NoGambrel, taints=True),
    Reason("R17", "the spacing shows on its pages alone", SpacingOnItsPages),
    Reason("R18", "opening a project turns no page", OpeningShowsNoLayouts, taints=True),
    Reason("R19", "rows are taken from the record, not from what a field shows", RowsFromTheRecord),
    Reason("R20", "the unequal hip goes by the record's slopes, not by what is typed and waits", SlopesOfTheRecord,
           taints=True),
]
