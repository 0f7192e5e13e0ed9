// The document: two rafters, the sheet, the menus, and the handlers of everything that a person can do with
// them.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/rafter.h"
#include "core/run_time_error.h"
#include "document/drawing_forms.h"
#include "document/form_layout.h"
#include "document/picture_box.h"
#include "document/surroundings.h"
#include "drawing/arial_meter.h"
#include "drawing/drafting_board.h"
#include "drawings/drawing_context.h"
#include "measure/measure_converter.h"
#include "sheet/menus.h"
#include "sheet/roof_types.h"
#include "sheet/sheet.h"
#include "sheet/tool_bar.h"
#include "storage/project_keys.h"
#include "storage/recent_files.h"
#include "storage/settings.h"

namespace pitchcraft {

enum class OptionsPage;

/// The keys that a field's handler tells apart.
inline constexpr int kKeyTab = 9;
inline constexpr int kKeyEnter = 13;

inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

/// The one window's document, with the preferences as variables of its own, without the window. A person's
/// action reaches one handler here; the handler changes plain state and calculates; the calculation's event
/// writes the results into the sheet and records the drawing. Whoever shows the document takes its state
/// afterwards. Every handler traps the errors of the run time, shows them under its own name and goes on.
class Document : public Preferences {
 public:
  explicit Document(const Surroundings& surroundings);
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  // --- The shared variables
  // ---------------------------------------------------------------------------------------
  int RoofType = roof::kGable;  ///< code of the table of roof types
  int UnitRun = 12;  ///< run of the slope triangle: 12 imperial, 1000 metric; tells the unit system
  double UnitHipRun = 16.970562;  ///< hip run for one UnitRun of common run
  double UnitHipRatio = 16.970562 / 12;
  bool CalcEnabled = false;  ///< on at the very end of start-up
  int LoadingProject = 0;    ///< 1 while a project is being opened
  int CurrentTab = 0;        ///< page of Tabs(0)
  int HelpContext = 0;       ///< help topic of the roof type
  int BayEditMode = 0;       ///< which bay dimension was solved: 1 projection, 2 face, 3 back, 4 angle
  Single SavedGableSpan;     ///< Span before the gambrel was entered; 0 when nothing is saved
  Single SavedGableSlope;
  std::string ProjectName = "Untitled";
  std::string ProjectFile;
  static constexpr int kTitleLength = 60;  ///< letters of a path in the title
  bool PrintAllBlack = false;

  Rafter Rafter1;  ///< the main, front, bottom or short-valley rafter
  Rafter Rafter2;  ///< the rear, top, long-valley or Dutch rafter
  Sheet sheet;
  Menus menus;
  ToolBar toolBar;
  MeasureConverter measures;
  ArialMeter meter;
  RecentFileList RecentFiles;  ///< the four files at the end of the File menu
  DraftingBoard board;         ///< recording, points and dimensions of the drawing shown
  PictureBox Picture1;         ///< drawing of the design page
  PictureBox Picture3;         ///< drawing of all other pages
  std::string Title;           ///< of the window
  std::string StatusText;      ///< first pane of the status bar
  std::string
      FocusRequest;  ///< control that a handler gave the focus to; whoever shows the document clears it
  bool DrawingExists = true;    ///< false when the page shown has no drawing yet: its recording is empty
  bool CloseRequested = false;  ///< the window is to close
  bool DialogIsActive = false;  ///< another window has the focus and must keep it
  Area Window{1000, 1000, 6500, 6500};  ///< place and size, twips
  WordRoom Words;                       ///< what the window's font needs; the driver has none

  bool Imperial() const { return UnitRun == 12; }
  double DrawScale() const { return Imperial() ? 10.0 : 1.0; }
  FormLayout Layout() const;

  // --- The window's life
  // ------------------------------------------------------------------------------------------
  void Form_Load();
  void Form_Resize();
  void Form_Unload();

  // --- Dispatch
  // ---------------------------------------------------------------------------------------------------
  /// Configures both rafters for the roof type, names the pages and calculates. FromFile: keep what a project
  /// brought.
  void CalculateRoof(bool FromFile);
  void Rafter1_Calculated();
  void Rafter2_Calculated();

  // --- Roof type and pages
  // ----------------------------------------------------------------------------------------
  void cboType_Click(int = 0);
  /// Shows page NewTab of Tabs(0) (Index 0) or brings the menus in line with page NewTab of Tabs(1) (Index
  /// 1).
  void VSTab_Switch(int Index, int OldTab, int NewTab);
  void SwitchTab(int Index, int OldTab, int NewTab) { VSTab_Switch(Index, OldTab, NewTab); }
  void SetHelpContext();

  // --- Fields of the sheet
  // ----------------------------------------------------------------------------------------
  void FtSpan_Commit(int Index);
  void FtSpan_Enter(int Index);
  void FtOverhang_Commit(int Index);
  void FtHeel_Edit(int Index);
  void FtHeel_Commit(int Index);
  void FtSeat_Edit(int Index);
  void FtSeat_Commit(int Index);
  void FtKneewall_Commit(int Index);
  void FtRidge_Commit(int Index);
  void FtLastCommon_Commit(int = 0);
  void FtLastCommon_Enter(int = 0);
  void chkHeel_Click(int Index);
  void chkSeat_Click(int Index);
  void chkKneewall_Click(int Index);
  void chkLastCommon_Click(int = 0);
  void LWFascia_Commit(int Index);
  void LWRafter_Commit(int Index);
  void LWRidge_Commit(int = 0);
  void LWHipVal_Commit(int = 0);
  void LWSlope_Click(int Index);
  void LWSlope_Commit(int Index);
  void LWSlope_KeyPress(int Index, int KeyAscii);
  void LWSlope_Enter(int Index) { LWSlope_KeyPress(Index, kKeyEnter); }
  void cboDegrees_Click(int Index);
  void cboDegrees_LostFocus(int Index);
  void cboSpacing_Click(int = 0);
  void FTUpperFascia_Click(int = 0);
  void cboLedger_Click(int = 0);
  void Spin_Step(int Index, bool up);
  /// The shortest overhang that a plumb fascia needs where the one entered is shorter, else 0.
  double CheckOverhang(int Index, const Rafter& Rafter) const;
  /// The pointer or the focus came to a field: the status bar tells what to enter.
  void Hint(std::string_view controlName);

  // --- Bay and gambrel dimensions
  // ---------------------------------------------------------------------------------
  void CalculateBayDimensions();
  void FtBay_Commit(int = 0);
  void Command1_Click(int = 0);
  /// `ChangedField` names what the person changed: "Lower Span", "Upper Slope", "Heel" and so on, in any
  /// case.
  void CalculateGambrelDimensions(std::string_view ChangedField);
  void chkUpperSlope_Click(int = 0) { GambrelLock_Click(0); }
  void chkLowerSlope_Click(int = 0) { GambrelLock_Click(1); }
  void chkUpperSpan_Click(int = 0) { GambrelLock_Click(2); }
  void chkUpperHeight_Click(int = 0) { GambrelLock_Click(3); }
  void chkLowerHeight_Click(int = 0) { GambrelLock_Click(4); }

  // --- Projects
  // -------------------------------------------------------------------------------------------------------
  /// Writes the project whole. False, and a message, where it could not be written.
  bool SaveRafter(const std::string& path);
  /// Brings the sheet to what the file holds. False, and a message, where the file is none or refused; the
  /// sheet then stays as far as it got.
  bool LoadRafter(const std::string& path);
  /// The file becomes the present project, and its name the project's where it could be loaded.
  bool OpenProject(const std::string& path);
  void mnuFileNew_Click(int = 0);
  void mnuFileOpen_Click(int = 0);
  void mnuFileSave_Click(int = 0);
  void mnufileSaveAs_Click(int = 0);
  void mnuFileProjectName_Click(int = 0);
  void mnuFileMRU_Click(int Index);

  // --- On paper and in files
  // --------------------------------------------------------------------------------------
  void mnuFilePageSetup_Click(int = 0);
  /// Prints the sheet of the page shown.
  void mnuFilePrint_Click(int = 0);
  void mnuFileExportDXF_Click(int = 0);
  void mnuFileExportMetafile_Click(int = 0);
  /// Write the drawing shown. Raise RunTimeError, the old file untouched; an error of a part of a DXF drawing
  /// is shown, and the rest is written.
  void ExportDxf(const std::string& path);
  void ExportMetafile(const std::filesystem::path& path) const;

  // --- Menus
  // ------------------------------------------------------------------------------------------------------
  /// Runs the handler of the item. False where it has none: a holder, a separator, what is not available yet.
  bool ClickMenu(MenuItem& item);
  /// Whether the button can be pressed now; those of the File menu go by their item.
  bool ToolButtonEnabled(const ToolButton& button) const;
  void mnuFileExit_Click(int = 0) { CloseRequested = true; }
  void mnuSettingsHeelLocked_Click(int = 0);
  void mnuSettingsSeatLocked_Click(int = 0);
  void mnuSettingsPlumbCut_Click(int = 0);
  void mnuSettingsSquareCut_Click(int = 0);
  void mnuSettingsLevelCut_Click(int = 0);
  void mnuSettingsRiseOverRun_Click(int = 0);
  void mnuSettingsDegrees_Click(int = 0);
  void mnuImperial_Click(int = 0);
  void mnuMetric_Click(int = 0) { mnuImperial_Click(); }
  void mnuViewToolbar_Click(int = 0);
  void mnuViewStatusBar_Click(int = 0);
  void mnuTools_Click(int = 0);
  void mnuHelpcontents_Click(int = 0) { ShowHelp(HelpPlace::kContents); }
  void mnuHelpGlossary_Click(int = 0) { ShowHelp(HelpPlace::kGlossary); }
  void mnuHelpSearch_Click(int = 0) { ShowHelp(HelpPlace::kSearch); }
  /// The help of a place; of kTopic that of the roof type.
  void ShowHelp(HelpPlace place);
  void mnuDutchLedger_Click(int Index);
  void mnuHipLayoutCenter_Click(int = 0);
  void mnuHipLayoutCorners_Click(int = 0);
  void mnuHipLayoutCornersFlush_Click(int = 0);
  void mnuHipLayoutJackMeasurement_Click(int = 0);
  void mnuHipLayoutOverhangsEqual_Click(int = 0);
  void mnuSpinIncrement_Click(int = 0);
  void mnuSpinCancel_Click(int = 0) {}  ///< the popup closes by itself
  void mnuGambrelRegular_Click(int = 0);
  void mnuGambrelCustom_Click(int = 0);
  void mnuGambrelPurlins_Click(int = 0);
  void mnuGambrelWallSupport_Click(int = 0);
  void mnuGambrelWallSupportRaised_Click(int = 0);
  void mnuViewOptions_Click(int = 0);
  void mnuFileDXFSettings_Click(int = 0);
  void mnuHelpTips_Click(int = 0);
  void mnuHelpAbout_Click(int = 0);
  /// The forms of a start: what the user has not switched off. They belong to the window alone.
  void ShowStartForms();
  void tbToolBar_ButtonClick(std::string_view key);

  // --- The mouse on a drawing
  // -------------------------------------------------------------------------------------
  /// A press of a button on Picture1 (1) or Picture3 (3), x and y in twips from its left top. Gives the popup
  /// to show, or null.
  MenuItem* Picture_MouseDown(int picture, int button, int x, int y);

  /// Fill the lists of the fields, from the program's folder or with the usual rows.
  void DefaultLumberList();
  void DefaultSlopeList();

 private:
  friend class ProjectReader;  // plays a file through the handlers

  /// Runs one step; an error of the run time is shown under the procedure's name, and the next step follows.
  template <typename Step>
  void Try(const char* procedure, Step step) {
    try {
      step();
    } catch (const RunTimeError& error) {
      MsgBox(error.Message(), procedure);
    }
  }
  void MsgBox(const std::string& text, const std::string& title = "Pitchcraft");
  void Focus(const Control& control) { FocusRequest = control.Name; }
  void FocusSlope(std::size_t row);
  /// The page of the inner tab: 0 front roof, 1 rear roof.
  int RoofPage() const { return sheet.Tabs[1].Page; }

  // Start-up and layout.
  void ColorFields();
  void CreateRafters();
  void ShowStoredOptions(const Settings& stored);
  void TakeStoredSpacing(const Settings& stored);
  void LayOutPictures();
  void FillDegreeLists();

  // Dispatch.
  void StartRoof(bool FromFile);
  void NamePages();
  void StartBastardHip();
  void StartDualSlope(bool FromFile);
  void StartDutchHip();
  void ShowFrontRow();
  void ShowRow(std::size_t row, const Rafter& rafter);
  bool ChainRafter2();
  void RedrawAfterRafter1();

  // The roof type.
  void LeaveRoofType();
  void ResetMenus();
  void ResetRows();
  void SetUpRoofType();
  void SetUpHip();
  void SetUpBay();
  void SetUpGambrel();
  void CopySlopeRow(std::size_t from, std::size_t to);
  void ShowSlopeRow(std::size_t row);
  void ShowHipLayoutMenus(bool show);
  void ShowOverhangsEqualMenus(bool show);

  // Calculations that a field ends in.
  bool IsBastardByRafter() const { return Rafter1.RafterType == RafterType::kBastardHip; }
  bool SlopesDiffer() const;
  /// The calculation that fits the roof type after a field of row 0; `bastard` tells a hip's kind.
  void StandardTail(bool bastard);
  /// The calculation that fits the roof type after a lock.
  void FitCalculation();
  /// Rafter1.Calculate; a bastard hip takes OverhangsEqual from the menu first, since each run uses it up.
  void CalculateMain();
  void CalculateBastard();

  // Fields.
  void CommitMainSpan(double value);
  void CommitExtraSpan(double value);
  void CommitHeelOrSeat(int Index, bool isSeat);
  void LockClicked(int Index, bool isSeat);
  bool TakeTick(CheckControl& box, MeasureControl& field, LabelControl& label);
  void StorePair(const PairControl& field, int Index, Single Rafter::*left, Single Rafter::*right,
                 const char* changedField);
  void CommitBlindValleyRidge(int Index);
  double TheoreticalRise() const;
  double ActualRise() const;
  void FillBlindValleyRidges();
  void RedrawSpacing();

  // Slopes.
  enum class SlopeEntry { kClick, kCommit, kKeyPress, kDegreesClick, kDegreesLeave };
  void NormalizeSlope(std::size_t row, bool readPercent);
  double DegreesOfRow(std::size_t row) const;
  void ShowDegreesOf(std::size_t row);
  void TakeDegrees(std::size_t row, SlopeEntry how);
  void ApplySlope(std::size_t row, SlopeEntry how);
  void ApplyMainSlope(SlopeEntry how);
  void ApplyPlainHipSlope(SlopeEntry how);
  void ApplyRearSlope(SlopeEntry how);
  void ApplySecondSlope(SlopeEntry how);
  void ApplyHipEndSlope(SlopeEntry how);
  void TakeGambrelSlopes();
  bool RowsDiffer(SlopeEntry how) const;

  // Solvers.
  bool SolveBayField();
  void HandBayToRafter(Rafter& rafter, double side);
  void RefuseCrossingHips();
  void SetBayField(MeasureControl& field, double value, int mode);
  double SolveRegularGambrel(bool knownField);
  double SolveCustomGambrel(const std::string& changed);
  double UpperSpanFromLowerHeight(double width);
  void DeriveUpperSlope(double upperSpan);
  void DeriveLowerSlope(double width, double upperSpan);
  void SetUpperBearing();
  void SetGambrelKind(bool regular);
  enum class GambrelSupport { kPurlins, kWall, kRaised };
  void SetGambrelSupport(GambrelSupport support);
  void ChooseGambrelSupport(GambrelSupport support);
  std::array<CheckControl*, 5> GambrelLocks();

  void GambrelLock_Click(std::size_t which);

  // Menus.
  template <typename Action>
  bool WithHandler(const MenuItem& item, Action action) const;
  void DisableItemsWithoutHandler();

  // Projects.
  ProjectParts Project() { return {RoofType, Rafter1, Rafter2, sheet, menus}; }
  bool RefuseProject(const char* why);
  void ShowProjectTitle(const std::string& name) { Title = "Pitchcraft - [" + name + "]"; }

  // Forms.
  void ShowForm(const AnyForm& form);
  MeasureConverter FineFormat() const;
  void ShowOptions(OptionsPage page);
  void FillOptions(OptionsForm& form);
  void ApplyOptions(OptionsForm& form);
  void TakeDxfTextSize(MeasureControl& field);

  // Settings commands.
  void SwitchUnits(bool metric);
  enum class FasciaCut { kPlumb, kSquare, kLevel };
  void SetFasciaCut(FasciaCut cut);
  void CheckFasciaCut(FasciaCut cut);
  void SetSlopeMode(bool riseOverRun);
  void ClearLocksAndKneewalls();
  void TakeDegreesOfFirstSlope();
  void SetHipLayout(int which);
  void ShowHipLayoutChecks(int which);
  void RedrawLayoutPage();
  void ShowPopUp1Items();

  // Pages and drawings.
  void Draw(Drawing drawing, const Rafter& rafter);
  void DrawPage(int page);
  /// Draws the page shown again, without moving the focus.
  void RepeatDrawing();
  void DrawHipPage(int page);
  void DrawBayPage(int page);
  void DrawDutchHipPage(int page);
  void DrawOctagonPage(int page);
  /// Draws with Rafter1 standing for another member, and puts its own type back.
  void DrawAs(RafterType type, Drawing drawing);
  void ClearPicture();
  void ShowSpacing();
  DrawingContext Context() const;
  HipLayoutOptions HipLayoutChoice() const;

  // On paper and in files.
  PageOutput OutputOfPage(OutputForm form) const;
  /// Runs `work`, which reports its own errors, with the rafter of the page in the type that the output
  /// takes.
  template <typename Work>
  void WithOutputRafter(const PageOutput& output, Work work) {
    Rafter& rafter = output.Rafter == 2 ? Rafter2 : Rafter1;
    if (output.TypeBefore >= 0) rafter.RafterType = static_cast<RafterType>(output.TypeBefore);
    work(rafter);
    if (output.TypeAfter >= 0) rafter.RafterType = static_cast<RafterType>(output.TypeAfter);
  }
  PrintContext OutputContext(int rafter) const;
  PrintContext PaperContext(int rafter, bool color) const;
  void PrintPage(const PageOutput& output, const Rafter& rafter);
  void SetUpWriter(DxfWriter& writer) const;
  void RequireDrawing() const;

  Surroundings surroundings_;
  bool degreesFailed_ = false;  ///< the list of degrees could not be read or made
  std::array<std::string, 2>
      keptFasciaHeight_;  ///< RightText of Fascia before the last change away from plumb
};

}  // namespace pitchcraft
