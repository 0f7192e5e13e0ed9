"""Random scripts: a person who mostly knows what to do, and sometimes does anything at all.

The walk keeps a rough idea of what the program shows (roof, page, units), so that most lines are accepted; where the
idea is wrong, a line is refused, and a refusal is compared like everything else.
"""

import math
import random

from . import names

# A line at which the program is closed and started again in the same folder.
SESSION = "# new session"


class Walk:
    def __init__(self, seed, index, count):
        self.random = random.Random(f"{seed}/{index}")
        self.lines = []
        self.metric = self.degrees = self.unequal = False
        self.saved = {}  # a file's name to the roof in it
        self.roof, self.page = "Common Gable", 0
        # Most people are sensible; some are tired; a few are cats on the keyboard.
        self.absurdity = self.random.choices([0.02, 0.12, 0.6], [60, 28, 12])[0]
        self.files = self.random.random() < 0.12
        self.Take(count)

    # --- The walk

    def Take(self, count):
        session = self.random.randrange(count) if self.random.random() < 0.08 else -1
        steps = []
        while len(steps) < count:
            if self.absurdity < self.random.random():
                steps += self.Sensible(first=not steps)
            else:
                steps += self.Absurd()
        steps = steps[:count]
        for place, line in enumerate(steps):
            self.lines.append(line)
            if place == session:
                self.lines += ["dump", SESSION]
            elif self.random.random() < (0.75 if line.startswith("page") else 0.22):
                self.lines.append("dump" if self.random.random() < 0.97 else "dump sheet menus Rafter1")
        self.lines.append("dump")
        if self.random.random() < 0.01:
            self.lines += ["click mnuFileExit", "dump"]

    def Sensible(self, first):
        if first:
            mode = self.Units() if self.Chance(0.08) else []
            mode += self.SlopeMode() if self.Chance(0.1) else []
            return mode + (self.PickRoof() if self.Chance(0.85) else self.TurnPage())
        if self.files and self.random.random() < 0.35:
            return self.FileWork()
        steps = names.ROOF_STEPS[self.roof] if self.Chance(0.4) else self.Common()
        return getattr(self, self.random.choices(list(steps), list(steps.values()))[0])()

    def Common(self):
        """What one does with any roof, and how often; a roof with more pages is leafed through more."""
        return {
            "PickRoof": 11, "Slope": 10, "Run": 9, "Overhang": 7, "HeelOrSeat": 9, "Lumber": 8,
            "TurnPage": 14 + 4 * names.ROOFS[self.roof][2], "Cut": 5, "SlopeMode": 2.5, "Units": 1.2, "SpinStep": 6,
            "Window": 3, "Pointer": 4, "FileWork": 2, "Paper": 4, "Forms": 1.5, "Increment": 1, "Views": 1.2,
        }

    def Any(self, items):
        return self.random.choice(items)

    def Chance(self, share):
        return self.random.random() < share

    # --- Texts

    def Length(self, low, high):
        """A text for a length between two numbers of inches, in the units of the sheet or, seldom, in others."""
        step = self.Any([12, 6, 1, 1, 1 / 2, 1 / 4, 1 / 16] if high > 40 else [1, 1 / 2, 1 / 4, 1 / 8])
        value = round(self.random.uniform(low, high) / step) * step or step
        if self.metric != self.Chance(0.04):
            return self.Any([f"{value * 25.4:.0f}", f"{value * 25.4:.0f}", f"{round(value * 2.54) * 10} mm",
                             f"{value * 2.54:.1f} cm", f"{value * 0.0254:.3f} m"])
        whole, part = divmod(round(value * 16), 16)
        feet, inches = divmod(whole, 12)
        divisor = math.gcd(part, 16)
        fraction = f"{part // divisor}/{16 // divisor}" if part else ""
        small = " ".join(word for word in (str(inches) if inches or not fraction else "", fraction) if word)
        if feet == 0:
            return self.Any([small, small + '"', f"{value:g}"])
        return self.Any([f"{feet}'", f"{feet}' {small}\"", f"{feet}' {small}\"", f"{feet}'{inches}",
                         f"{feet}' {inches}-{fraction or '1/2'}\"", f"{value:g}", f"{value:g}\""])

    def Rise(self, low=2, high=18):
        rise = self.random.randint(low * 2, high * 2) / 2 if self.Chance(0.3) else self.random.randint(low, high)
        if self.Chance(0.04):
            return f"{self.Any([25, 33, 50, 75, 100])}%"
        run = 12 if self.Chance(0.9) else self.Any([10, 24, 8, 1000])
        if self.metric:
            rise, run = round(rise * 1000 / 12 / 50) * 50 or 50, 1000 if self.Chance(0.9) else 100
        return f"{rise:g} | {run}" if self.Chance(0.8) else f"{rise:g}"

    def Angle(self, low=10, high=60):
        return self.Any([f"{self.random.randint(low, high)}", f"{self.random.uniform(low, high):.2f}",
                         f"{self.random.randint(low, high)}.0", f"{self.random.randint(low, high)}.5", "26.57"])

    def Text(self):
        return self.Any(names.ABSURD)

    def Put(self, control, text):
        verb = self.random.choices(["type", "enter", "edit"], [68, 24, 8])[0]
        return [f"{verb} {control} {text}"]

    # --- Steps of a sensible person

    def PickRoof(self):
        roof = self.random.choices(list(names.ROOF_WEIGHTS), list(names.ROOF_WEIGHTS.values()))[0]
        button = names.ROOFS[roof][0]
        by_button = self.page > 0 and self.Chance(0.7) or self.Chance(0.5)
        self.roof, self.page, self.unequal = roof, 0, False
        custom = ["click mnuGambrelCustom"] if roof == "Gambrel Roof" and self.Chance(0.7) else []
        unequal = self.EndSlope() if roof == "Hip" and self.Chance(0.5) else []
        return [f"press {button}" if by_button else f"pick cboType {roof}", *custom, *unequal]

    def TurnPage(self):
        pages = names.ROOFS[self.roof][2] + (1 if self.roof == "Hip" and self.unequal else 0)
        self.page = self.random.randrange(pages)
        return [f"page VSTab(0) {self.page}"]

    def SlopeOf(self, row, low=2, high=18):
        if self.degrees != self.Chance(0.03):
            control = f"cboDegrees({row})"
            if self.Chance(0.25):
                return [f"pick {control} {self.random.randint(1, 80)}"]
            return self.Put(control, self.Angle(low * 4, min(80, high * 4)))
        control = f"LWSlope({row})"
        if self.Chance(0.2):
            rise = self.random.randint(low, high)
            return [f"pick {control} {rise * 100}/1000" if self.metric else f"pick {control} {rise}/12"]
        return self.Put(control, self.Rise(low, high))

    def Slope(self):
        if self.roof == "Hip":
            self.unequal = False
        return self.SlopeOf(0)

    def EndSlope(self):
        if self.roof == "Hip" and self.Chance(0.12):
            return self.SlopeOnceMore()
        if self.roof == "Hip":
            self.unequal = True
        return self.SlopeOf(2, *((12, 30) if self.roof == "Gambrel Roof" else (2, 18)))

    def SlopeOnceMore(self):
        """Both slopes of a hip the same, or the same in other words."""
        self.unequal = False
        degrees, rise = self.random.randint(15, 50), self.random.randint(30, 140) / 10
        ways = [[f"{degrees}", f"{degrees}.0"], [f"{degrees}.3"] * 2] if self.degrees else [
            [f"{rise} | 12", f"{rise * 2:g} | 24"], [f"{rise} | 12"] * 2, ["50%", "6 | 12"], ["33%", "3.96"]]
        control = "cboDegrees" if self.degrees else "LWSlope"
        return [f"type {control}({row}) {text}" for row, text in zip((0, 2), self.Any(ways))]

    def Run(self):
        low, high = (180, 480) if self.roof == "Gambrel Roof" else (48, 300)
        return self.Put("FtSpan(0)", self.Length(low, high))

    def SecondRun(self):
        high = {"Dutch Hip": 150, "Gambrel Roof": 240}.get(self.roof, 400)
        return self.Put("FtSpan(2)", self.Length(24, high))

    def Overhang(self):
        return self.Put("FtOverhang(0)", self.Length(0, 30))

    def HeelOrSeat(self, row=0):
        what = self.Any(["Heel", "Seat"])
        text = self.Length(2, 9)
        field, box = f"Ft{what}({row})", f"chk{what}({row})"
        item = f"mnuSettings{what}Locked"
        return self.Any([
            [f"check {box} on", *self.Put(field, text)], [f"check {box} on"], [f"check {box} off"],
            self.Put(field, text), [f"click {item}"], [f"click {item}", *self.Put(field, text)],
        ])

    def Pair(self, control):
        if self.Chance(0.6):
            if control.startswith("LWFascia") or self.metric or self.Chance(0.3):
                thick, depth = self.Any([(1.5, 5.5), (0.75, 7.25), (1.5, 9.25), (1.125, 3.5), (3.5, 11.25)])
                if self.metric:
                    thick, depth = round(thick * 25.4), round(depth * 25.4)
                return self.Put(control, f"{thick:g} | {depth:g}")
            return [f"pick {control} {self.Any(names.LUMBER)}"]
        return [f"pick {control} {self.Any(names.LUMBER)}"]

    def Lumber(self):
        return self.Pair(self.Any(["LWFascia(0)", "LWRafter(0)"]))

    def HipLumber(self):
        return self.Pair("LWHipVal")

    def Ridge(self):
        return self.Pair("LWRidge")

    def Rear(self):
        turn = ["page VSTab(1) 1"] if self.Chance(0.3) else []
        step = self.Any([
            lambda: self.SlopeOf(1), lambda: self.Put("FtSpan(1)", self.Length(48, 300)),
            lambda: self.Put("FtOverhang(1)", self.Length(0, 30)), lambda: self.HeelOrSeat(1),
            lambda: self.Pair(self.Any(["LWFascia(1)", "LWRafter(1)"])),
            lambda: [f"spin {self.Any(names.SPINS[5:7])} up"],
            lambda: ["page VSTab(1) 0"], lambda: self.KneewallOf(1), lambda: self.HeelOrSeat(1),
        ])
        return turn + step()

    def Kneewall(self):
        return self.KneewallOf(0)

    def KneewallOf(self, row):
        box = f"chkKneewall({row})"
        field = self.Put(f"FtKneewall({row})", self.Length(24, 90))
        return self.Any([[f"check {box} on", *field], [f"check {box} on"], [f"check {box} off"], field])

    def Cut(self):
        if self.Chance(0.35):
            return [f"press {self.Any(names.BUTTONS[-3:] if self.roof == 'Gambrel Roof' else names.BUTTONS[-3:-1])}"]
        items = [item for item in names.CUT_ITEMS if self.Fits(item)]
        return [f"click {self.Any(items)}"]

    def Fits(self, item):
        """Whether an item for paper or cuts stands in a menu that this roof shows."""
        gambrel = self.roof == "Gambrel Roof"
        if "PopUp1" in item:
            return not gambrel
        return gambrel or not ("PopUp2" in item or "Gambrel" in item or "LevelCut" in item)

    def SlopeMode(self):
        self.degrees = not self.degrees
        return ["click mnuSettingsDegrees" if self.degrees else "click mnuSettingsRiseOverRun"]

    def Units(self):
        self.metric = not self.metric
        self.roof, self.page, self.unequal = "Common Gable", 0, False
        return [self.Any(["click mnuMetric", "click mnuImperial"])] + (self.PickRoof() if self.Chance(0.7) else [])

    def HipLayout(self):
        if self.unequal and self.Chance(0.35):
            return [f"click {self.Any(names.EQUAL_ITEMS)}"]
        return [f"click {self.Any(names.LAYOUT_ITEMS)}"]

    def LastCommon(self):
        field = self.Put("FtLastCommon", self.Length(100, 300))
        on, off = "check chkLastCommon on", "check chkLastCommon off"
        return self.Any([[on], [on, *field], field, [off]])

    def Spacing(self):
        pages = names.ROOFS[self.roof][2] + (1 if self.roof == "Hip" and self.unequal else 0)
        self.page = pages - 1
        if self.Chance(0.6):
            step = f"pick cboSpacing {self.Any(names.SPACINGS[self.metric])}"
        else:
            step = self.Put("cboSpacing", self.Length(8, 60))[0]
        return [f"page VSTab(0) {self.page}", step]

    def Ledger(self):
        if self.Chance(0.4):
            ledger = self.Any(["Use Ledger", "Don't use Ledger"])
            return [f"pick cboLedger {ledger}"]
        return [f"click {self.Any(names.LEDGER_ITEMS)}"]

    def RidgeLengths(self):
        high = 100 if self.roof == "Gambrel Roof" else 240
        return self.Put(f"FtRidge({self.random.randrange(2)})", self.Length(20, high))

    def Bay(self):
        if self.Chance(0.3):
            return ["click Command1"]
        angle = self.Any([22.5, 30, 45, 45, 45, 60, 90])
        projection = self.random.randint(12, 60)
        face = self.random.randint(36, 120)
        reach = 0 if angle == 90 else projection / math.tan(math.radians(angle))
        # Without half the projection more on each side the hips cross.
        face = max(face, math.ceil(2 * (math.hypot(reach, projection) - reach))) if self.Chance(0.9) else face
        back = face + 2 * reach
        scale = 25.4 if self.metric else 1
        entries = {"FtProjection": f"{projection * scale:g}", "FtFace": f"{face * scale:g}",
                   "FtBack": f"{back * scale:.4f}", "FtBayAngle": f"{angle:g}"}
        fields = list(entries)
        self.random.shuffle(fields)
        whole = self.Chance(0.7)
        reset = ["click Command1"] if whole or self.Chance(0.3) else []
        return reset + [self.Put(field, entries[field])[0].replace("edit ", "type ")
                        for field in fields[: 3 if whole else self.random.randint(1, 4)]]

    def Gambrel(self):
        roll = self.random.random()
        if roll < 0.3:
            return [f"click {self.Any(names.GAMBREL_ITEMS)}"]
        if roll < 0.65:
            # A lock matters with the next entry.
            entry = self.Any([self.SecondRun, self.RidgeLengths, self.RidgeLengths, self.Run, self.EndSlope,
                              self.Slope])
            return [f"check {self.Any(names.GAMBREL_LOCKS)} {self.Any(['on', 'on', 'on', 'off'])}", *entry()]
        if roll < 0.8:
            return ["click mnuGambrelCustom", *self.SlopeOf(0, 3, 9), *self.SlopeOf(2, 14, 30)]
        if roll < 0.9:
            return ["click mnuGambrelCustom", "click mnuGambrelWallSupportRaised", self.UpperFascia()]
        return [self.UpperFascia()]

    def UpperFascia(self):
        if self.Chance(0.7):
            return f"pick FTUpperFascia {self.Any(names.UPPER_FASCIA[self.metric])}"
        return self.Put("FTUpperFascia", self.Length(2, 9))[0]

    def SpinStep(self):
        spins = {"Gambrel Roof": [1, 2, 3, 4, 7, 7], "Blind Valley": [0, 3, 4], "Dual Slope": [0, 1, 5, 6],
                 "Dutch Hip": [0, 1, 2], "Octagon": [0, 1, 2], "Unequal Span Valley": [0, 1, 2], "Bay Roof": [1]}
        spin = self.Any(spins.get(self.roof, [0, 1]))
        return [f"spin Spin({spin}) {self.Any(['up', 'down'])}"] * self.random.randint(1, 3)

    def Increment(self):
        return [f"answer {self.Length(1, 12)}" if self.Chance(0.8) else "answer cancel", "click mnuSpinIncrement"]

    def Window(self):
        return [f"size {self.random.randint(6000, 30000)} {self.random.randint(5000, 20000)}"]

    def Pointer(self):
        picture = "Picture1" if self.page == 0 else "Picture3"
        if self.Chance(0.6):
            button = self.Any(["left", "right"])
            return [f"mouse {picture} {button} {self.random.randint(0, 9000)} {self.random.randint(0, 6000)}"]
        places = [picture, *names.CONTROLS, *names.MENU_ITEMS, *names.BUTTONS, *names.OTHER_CONTROLS]
        return [f"hover {self.Any(places)}"]

    def Views(self):
        return [f"click {self.Any(['mnuViewToolbar', 'mnuViewStatusBar', *names.HELP_ITEMS])}"]

    def Forms(self):
        return [self.Any(["answer ok", "answer cancel", "answer"]), f"click {self.Any(names.FORM_ITEMS)}"]

    # --- Files: every path is a plain name in the folder of the run

    def Save(self):
        name = self.Any(names.FILES)
        self.saved[name] = self.roof
        how = self.Any(["click mnufileSaveAs", "click mnufileSaveAs", "click mnuFileSave", "press Save"])
        others = self.random.sample(names.FILES, 3) if self.files and self.Chance(0.3) else []
        more = [f"answer {other}" for other in others]
        self.saved |= {answer.split()[1]: self.roof for answer in more}
        again = [line for answer in more for line in (answer, "click mnufileSaveAs")]
        return [f"answer {name if self.Chance(0.8) else name[0]}", how, *again]

    def Open(self):
        name = self.Any(list(self.saved) or ["a.pcf"])
        self.roof, self.page = self.saved.get(name, self.roof), self.page
        return [f"answer {name}", self.Any(["click mnuFileOpen", "press Open"])]

    def FileWork(self):
        roll = self.random.random()
        if roll < 0.4 or not self.saved:
            return self.Save()
        if roll < 0.65:
            return self.Open()
        if roll < 0.82:
            return [f"click mnuFileMRU({self.random.randrange(len(self.saved)) % 4})"]
        if roll < 0.9:
            self.roof, self.page, self.unequal = "Common Gable", 0, False
            return [self.Any(["answer Barn", "answer cancel"]), self.Any(["click mnuFileNew", "press New"])]
        if roll < 0.97:
            return [self.Any(["answer Shed 2", "answer cancel", "answer"]), "click mnuFileProjectName"]
        return [self.Any(["answer missing.pcf", "answer missing/a.pcf"]),
                self.Any(["click mnuFileOpen", "click mnufileSaveAs"])]

    def Paper(self):
        roll = self.random.random()
        if roll < 0.3:
            return ["answer d.dxf", f"click {self.Any([item for item in names.EXPORT_ITEMS if self.Fits(item)])}"]
        if roll < 0.4:
            return ["click mnuFileExportMetafile"]
        if roll < 0.65:
            return [self.Any(["answer p.pdf", "answer", "answer cancel"]),
                    self.Any(["press Print", *(f"click {item}" for item in names.PRINT_ITEMS if self.Fits(item))])]
        if roll < 0.75:
            return [self.Any(["answer s.pdf", "answer cancel"]),
                    f"click {self.Any([item for item in names.SETUP_ITEMS if self.Fits(item)])}"]
        return [f"picture {self.Any(['p.svg', 'p.svg', 'p.dxf', 'p.wmf', 'p.png'])}"]

    # --- Steps of anybody

    def Absurd(self):
        roll = self.random.random()
        if roll < 0.45:
            verb = self.Any(["type", "type", "enter", "edit"])
            return [f"{verb} {self.Any(names.TEXT_FIELDS)} {self.Text()}"]
        if roll < 0.53:
            return [f"check {self.Any(names.CHECK_BOXES)} {self.Any(['on', 'off'])}"]
        if roll < 0.62:
            item = self.Any([item for item in names.MENU_ITEMS if item != "mnuFileExit"])
            answer = [f"answer {self.Any(['a.pcf', 'cancel', '3', 'letters'])}"] if self.Chance(0.5) else []
            return [*answer, f"click {item}"]
        if roll < 0.69:
            return [f"press {self.Any(names.BUTTONS)}"]
        if roll < 0.75:
            self.roof = self.Any(list(names.ROOFS))
            return [f"pick cboType {self.roof}"]
        if roll < 0.82:
            return [f"page VSTab({self.random.randrange(2)}) {self.random.randrange(5)}"]
        if roll < 0.87:
            return [f"spin {self.Any(names.SPINS)} {self.Any(['up', 'down'])}"]
        if roll < 0.91:
            return [f"size {self.random.randint(1, 40000)} {self.random.randint(1, 25000)}"]
        if roll < 0.94:
            return [f"pick {self.Any(['LWRafter(0)', 'LWHipVal', 'LWRidge', 'LWFascia(0)'])} {self.Any(names.LUMBER)}"]
        if roll < 0.96:
            return ["click Command1"]
        return [self.Any(names.ABSURD_LINES)]


def ScriptOf(seed, index, count):
    return Walk(seed, index, count).lines
