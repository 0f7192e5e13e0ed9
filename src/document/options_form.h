// The options as a form: copies of what the document holds, until they are applied.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "sheet/measure_control.h"

namespace pitchcraft {

/// A list of the fields as a grid: one row "name|left|right" in three columns.
class ListGrid {
 public:
  static constexpr int kColumns = 3;
  using Row = std::array<std::string, kColumns>;

  /// Takes the rows "name|left|right" and counts as unchanged.
  void Load(const std::vector<std::string>& rows);
  int RowCount() const { return static_cast<int>(rows_.size()); }
  const std::string& Cell(int row, int column) const;
  /// What would end a row or a column of the file is no part of a text: a comma is a decimal point in a
  /// number and a blank in a name, as are bars and backslashes.
  void SetCell(int row, int column, std::string_view text);
  /// Adds a row below that one and gives its place; below none it is the first.
  int InsertRow(int below);
  void DeleteRow(int row);
  bool Changed() const { return rows_ != loaded_; }
  void Settle() { loaded_ = rows_; }
  /// The rows of the file. One that was inserted and never filled in is none.
  std::vector<std::string> FileRows() const;

  Row NewRow;  ///< what an inserted row begins with

 private:
  bool Has(int row) const { return row >= 0 && row < RowCount(); }

  std::vector<Row> rows_;
  std::vector<Row> loaded_;
};

/// The pages in the order of their tabs.
enum class OptionsPage { kColors, kSlopeList, kLumberList, kPrinting, kDxf };
inline constexpr std::array<const char*, 5> kOptionsPages{"Colors", "Slope List", "Lumber List", "Printing",
                                                          "DXF Settings"};

/// The rows of the colours.
enum ColorRow { kCtlBack, kCtlText, kCalcText, kBackground, kLine, kDimension, kText, kColorRows };
inline constexpr std::array<const char*, kColorRows> kColorRowNames{
    "Ctl Back Color", "Ctl Text Color",  "Calc Text Color", "Background Color",
    "Line Color",     "Dimension Color", "Text Color"};
enum DxfColorRow { kDxfBack, kDxfText, kDxfLine, kDxfDim, kDxfColorRows };
inline constexpr std::array<const char*, kDxfColorRows> kDxfColorRowNames{"DXF Background", "DXF Text Color",
                                                                          "DXF Line Color", "DXF Dim Color"};

inline constexpr int kThinnestLine = 1;
inline constexpr int kHeaviestLine = 10;
/// Beyond this a text is larger than any drawing.
inline constexpr double kLargestDxfText = 1e6;

struct OptionsForm {
  static constexpr const char* kName = "frmOptions";
  static constexpr const char* kTitle = "Options";

  OptionsPage Page = OptionsPage::kColors;
  bool SystemColors = false;
  bool PrintAllBlack = false;
  bool RotateFonts = false;
  MeasureControl DxfTextSize;
  ListGrid SlopeList;
  ListGrid LumberList;
  std::function<void()> Apply;  ///< hands the copies to the document

  const std::array<std::uint32_t, kColorRows>& Colors() const { return colors_; }
  const std::array<int, kDxfColorRows>& DxfColors() const { return dxfColors_; }
  int LineWidth() const { return lineWidth_; }
  /// What the document holds is taken as it is.
  void Load(const std::array<std::uint32_t, kColorRows>& colors,
            const std::array<int, kDxfColorRows>& dxfColors, int lineWidth);

  /// False, and nothing changes, for a number that is no colour: beyond 0xFFFFFF and no code of the system.
  bool SetColor(int row, std::uint32_t color);
  /// False, and nothing changes, for what is no colour number of a CAD program, 1 to 255; a background may be
  /// 0, too.
  bool SetDxfColor(int row, int color);
  void SetLineWidth(int width);
  /// The colour that a row comes out in: the fields follow the system where that is ticked.
  std::uint32_t ShownColor(int row) const;

 private:
  std::array<std::uint32_t, kColorRows> colors_{};
  std::array<int, kDxfColorRows> dxfColors_{};
  int lineWidth_ = kThinnestLine;
};

/// A colour that the lists offer.
struct NamedColor {
  const char* Name;
  std::uint32_t Color;  ///< 0xBBGGRR
};
const std::vector<NamedColor>& OfferedColors();
/// Its name where it is offered, else its red, green and blue.
std::string NameOfColor(std::uint32_t color);

/// The screen colour, 0xBBGGRR, of a colour number of CAD programs; 0 and what is none are black.
std::uint32_t ColorOfDxf(int number);
std::string NameOfDxfColor(int number);

}  // namespace pitchcraft
