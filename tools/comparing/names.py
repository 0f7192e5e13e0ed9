"""What a script can name: roofs with their pages and rows, menu items, tool buttons, lists and texts."""

# Item of cboType, tool button, code, pages of VSTab(0). A hip has a fifth page while its slopes differ.
ROOFS = {
    "Common Gable": ("Gable", 0, 2),
    "Common Shed": ("Shed", 3, 2),
    "Dual Slope": ("Dual", 4, 3),
    "Hip": ("Hip", 1, 4),
    "Valley": ("Valley", 2, 2),
    "Unequal Span Valley": ("Unequal Span Valley", 10, 3),
    "Bay Roof": ("Bay", 5, 5),
    "Dutch Hip": ("Dutch Hip", 8, 5),
    "Blind Valley": ("Blind Valley", 11, 4),
    "Octagon": ("Octagon", 9, 4),
    "Gambrel Roof": ("Gambrel", 13, 3),
}
ITEM_OF_CODE = {code: item for item, (_, code, _) in ROOFS.items()}
BASTARD_HIP = 16  # as a rafter's type

# How often a walk turns to a roof: those with more to go wrong come oftener.
ROOF_WEIGHTS = {
    "Common Gable": 6, "Common Shed": 5, "Dual Slope": 8, "Hip": 19, "Valley": 5, "Unequal Span Valley": 7,
    "Bay Roof": 11, "Dutch Hip": 12, "Blind Valley": 9, "Octagon": 9, "Gambrel Roof": 13,
}

# Fields beyond slope, run, overhang, heel, seat, fascia and rafter, with what a hand does there (methods of Walk).
ROOF_STEPS = {
    "Common Gable": {"Kneewall": 6, "Ridge": 3, "HeelOrSeat": 4},
    "Common Shed": {"Kneewall": 6, "Ridge": 3, "HeelOrSeat": 4},
    "Dual Slope": {"Rear": 18, "Kneewall": 2, "Ridge": 1},
    "Hip": {"EndSlope": 10, "HipLayout": 9, "LastCommon": 6, "Spacing": 5, "HipLumber": 3, "Ridge": 2},
    "Valley": {"HipLumber": 3, "Ridge": 2},
    "Unequal Span Valley": {"SecondRun": 6, "HipLumber": 3, "Ridge": 2},
    "Bay Roof": {"Bay": 16, "HipLumber": 3, "Ridge": 2},
    "Dutch Hip": {"SecondRun": 7, "Ledger": 8, "HipLumber": 3, "Ridge": 2},
    "Blind Valley": {"EndSlope": 7, "RidgeLengths": 9, "HipLumber": 2, "Ridge": 4},
    "Octagon": {"SecondRun": 6, "Spacing": 6, "HipLumber": 3},
    "Gambrel Roof": {"Gambrel": 24, "EndSlope": 5, "SecondRun": 6, "RidgeLengths": 6, "Cut": 4, "SpinStep": 3,
                     "Ridge": 2},
}

BUTTONS = ["New", "Open", "Save", "Print", *(button for button, _, _ in ROOFS.values()), "Plumb", "Square", "Level"]

# Items under the menus, each but the separators; what opens a dialog stands in DIALOG_ITEMS too.
MENU_ITEMS = [
    "mnuFileNew", "mnuFileOpen", "mnuFileSave", "mnufileSaveAs", "mnuFileProjectName", "mnuFileExportMetafile",
    "mnuFileExportDXF", "mnuFileDXFSettings", "mnuFilePageSetup", "mnuFilePrint", "mnuFileMRU(0)", "mnuFileMRU(1)",
    "mnuFileMRU(2)", "mnuFileMRU(3)", "mnuFileExit", "mnuSettingsHeelLocked", "mnuSettingsSeatLocked",
    "mnuSettingsPlumbCut", "mnuSettingsSquareCut", "mnuSettingsLevelCut", "mnuSettingsRiseOverRun",
    "mnuSettingsDegrees", "mnuImperial", "mnuMetric", "mnuViewOptions", "mnuViewToolbar", "mnuViewStatusBar",
    "mnuTools", "mnuDutchLedger(0)", "mnuDutchLedger(1)", "mnuHipLayoutCenter", "mnuHipLayoutCorners",
    "mnuHipLayoutCornersFlush", "mnuHipLayoutJackMeasurement", "mnuHipLayoutOverhangsEqual", "mnuGambrelRegular",
    "mnuGambrelCustom", "mnuGambrelPurlins", "mnuGambrelWallSupport", "mnuGambrelWallSupportRaised",
    "mnuGambrelPlumb", "mnuGambrelSquare", "mnuGambrelLevel", "mnuHelpcontents", "mnuHelpGlossary",
    "mnuHelpSearch", "mnuHelpTips", "mnuHelpAbout", "mnuPopUp1PrintSetup", "mnuPopUp1Print",
    "mnuPopUp1DXFSettings", "mnuPopUp1DXF", "mnuPopUp1PlumbCut", "mnuPopUp1SquareCut", "mnuPopUp1Ledger(0)",
    "mnuPopUp1Ledger(1)", "mnuPopUp1LayoutCenter", "mnuPopUp1LayoutCorner", "mnuPopUp1LayoutCornerFlush",
    "mnuPopUp1JackMeasurement", "mnuPopUp1OverhangsEqual", "mnuPopUp2PrintSetup", "mnuPopUp2Print",
    "mnuPopUp2DXFSettings", "mnuPopUp2DXF", "mnuPopUp2PlumbCut", "mnuPopUp2SquareCut", "mnuPopUp2LevelCut",
    "mnuPopup2GambrelRegular", "mnuPopup2GambrelCustom", "mnuPopup2GambrelPurlins", "mnuPopup2GambrelWallSupport",
    "mnuPopup2GambrelWallSupportRaised", "mnuSpinIncrement", "mnuSpinCancel",
]
EXPORT_ITEMS = ("mnuFileExportDXF", "mnuPopUp1DXF", "mnuPopUp2DXF")
PRINT_ITEMS = ("mnuFilePrint", "mnuPopUp1Print", "mnuPopUp2Print")
SETUP_ITEMS = ("mnuFilePageSetup", "mnuPopUp1PrintSetup", "mnuPopUp2PrintSetup")
FORM_ITEMS = ("mnuFileDXFSettings", "mnuPopUp1DXFSettings", "mnuPopUp2DXFSettings", "mnuViewOptions", "mnuHelpTips",
              "mnuHelpAbout")
CUT_ITEMS = ("mnuSettingsPlumbCut", "mnuSettingsSquareCut", "mnuSettingsLevelCut", "mnuGambrelPlumb",
             "mnuGambrelSquare", "mnuGambrelLevel", "mnuPopUp1PlumbCut", "mnuPopUp1SquareCut", "mnuPopUp2PlumbCut",
             "mnuPopUp2SquareCut", "mnuPopUp2LevelCut")
LAYOUT_ITEMS = ("mnuHipLayoutCenter", "mnuHipLayoutCorners", "mnuHipLayoutCornersFlush",
                "mnuHipLayoutJackMeasurement", "mnuHipLayoutOverhangsEqual", "mnuPopUp1LayoutCenter",
                "mnuPopUp1LayoutCorner", "mnuPopUp1LayoutCornerFlush", "mnuPopUp1JackMeasurement",
                "mnuPopUp1OverhangsEqual")
EQUAL_ITEMS = ("mnuHipLayoutOverhangsEqual", "mnuPopUp1OverhangsEqual")
LEDGER_ITEMS = ("mnuDutchLedger(0)", "mnuDutchLedger(1)", "mnuPopUp1Ledger(0)", "mnuPopUp1Ledger(1)")
GAMBREL_ITEMS = ("mnuGambrelCustom", "mnuGambrelCustom", "mnuGambrelRegular", "mnuGambrelPurlins",
                 "mnuGambrelWallSupport", "mnuGambrelWallSupportRaised", "mnuPopup2GambrelCustom",
                 "mnuPopup2GambrelRegular", "mnuPopup2GambrelPurlins", "mnuPopup2GambrelWallSupport",
                 "mnuPopup2GambrelWallSupportRaised")
HELP_ITEMS = ("mnuTools", "mnuHelpcontents", "mnuHelpGlossary", "mnuHelpSearch", "mnuSpinCancel")

TEXT_FIELDS = [
    "LWSlope(0)", "cboDegrees(0)", "LWSlope(2)", "cboDegrees(2)", "FtSpan(0)", "FtSpan(2)", "FtRidge(0)",
    "FtRidge(1)", "FtOverhang(0)", "FtHeel(0)", "FtSeat(0)", "LWFascia(0)", "LWRidge", "LWRafter(0)", "LWHipVal",
    "FtKneewall(0)", "FtLastCommon", "LWSlope(1)", "cboDegrees(1)", "FtSpan(1)", "FtOverhang(1)", "FtHeel(1)",
    "FtSeat(1)", "LWFascia(1)", "LWRafter(1)", "FtKneewall(1)", "FTUpperFascia", "cboSpacing", "FtProjection",
    "FtFace", "FtBack", "FtBayAngle",
]
CHECK_BOXES = [
    "chkUpperSlope", "chkLowerSlope", "chkUpperSpan", "chkUpperHeight", "chkLowerHeight", "chkHeel(0)",
    "chkSeat(0)", "chkKneewall(0)", "chkLastCommon", "chkHeel(1)", "chkSeat(1)", "chkKneewall(1)",
]
GAMBREL_LOCKS = CHECK_BOXES[:5]
SPINS = [f"Spin({i})" for i in range(8)]
OTHER_CONTROLS = ["cboType", "cboLedger", "Command1", "Label(10)", "Label(23)", "txtSpacing", "Toolbar1"]
CONTROLS = [*TEXT_FIELDS, *CHECK_BOXES, *SPINS, "cboType", "cboLedger", "Command1"]

LUMBER = [f"{thick}x{depth}" for thick in ("1", "5/4", "2") for depth in (4, 6, 8, 10, 12)]
UPPER_FASCIA = {False: ['3 1/2"', '5 1/2"', '7 1/4"', '9 1/2"', '11 1/4"'], True: ["70", "89", "140", "184", "286"]}
SPACINGS = {False: ['12"', '16"', '19.2"', '24"', '48"'],
            True: ['12"', "400 mm", '16"', "450 mm", "600 mm", '24"', "1200 mm", "2400 mm"]}
FILES = ["a.pcf", "b.pcf", "c.pcf", "d.pcf", "e.pcf"]

ABSURD = [
    "0", "1", "6", "12", '16"', "24", "144", "12' 6 1/2\"", "45", "90", "22.5", "-3", "1e30", "1e-30", "0.001",
    "1000000", "", "letters", "nan", "1/0", "25%", "6 | 12", "9 | 12", "0 | 0", "1.5 | 7.25", "1e30 | 1e-30",
    "100 | 1000", "3600 mm", "120", "\u221e", "-0", "1e38", "1e39", "1e400", "6 |", "| 12", "|", "1,5", "1.250,5",
    "12\u2019 6\u201d", "\u00bd\"", "12''", "89.99", "90.01", "%", "33%", "12 | 0", "6.0", "06", " 6 ", "0x10",
    "9" * 60, "5' 13\"", "-1' 2\"", "16777217", "3.4028235e38",
]
ABSURD_LINES = [
    "", "# a remark", "bogus", "type", "type Nothing 6", "pick cboType Pyramid", "page VSTab(0) 9", "page VSTab(2) 0",
    "page VSTab(0) x", "size 0 0", "size 99999999 1", "mouse Picture2 left 1 1", "mouse Picture1 middle 1 1",
    "check LWSlope(0) on", "spin FtSpan(0) up", "spin Spin(0) sideways", "press Nothing", "hover Nothing",
    "click mnuFile", "click mnuSettings", "dump nothing", "picture", "picture a.xyz", "type Label(10) 6",
    "pick LWRafter(0) 9x9", "answer",
]
