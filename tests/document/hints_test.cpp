#include "document_test.h"

namespace pitchcraft {
namespace {

using HintsTest = DocumentTest;

struct HintRow {
  const char* roof;
  const char* control;
  const char* text;
};
const HintRow kRows[] = {
    {"Common Gable", "FtSpan(0)", "Enter the run of the COMMON rafter (do not subtract for the ridge board)"},
    {"Hip", "FtSpan(0)", "Enter the run of the MAIN ROOF COMMON rafter (don't subtract for the ridge board)"},
    {"Hip", "LWSlope(2)", "Enter the slope of the HIP END roof or select from the dropdown list"},
    {"Blind Valley", "FtSpan(0)", "Enter the total span of the blind valley"},
    {"Blind Valley", "FtRidge(1)", "Enter the ACTUAL ridge length."},
    {"Octagon", "FtSpan(2)", "Enter the run of the octagon HIP rafter (do not subtract for the ridge)"},
    {"Dutch Hip", "FtSpan(2)",
     "Enter the run of the DUTCH common rafter (do not subtract for the ledger board)"},
    {"Gambrel Roof", "FtSpan(2)", "The upper span cannot be changed for a regular gambrel roof"},
    {"Gambrel Roof", "FtRidge(1)",
     "Enter the height above plate of the lower section (including heel height)."},
    {"Gambrel Roof", "LWSlope(0)", "The upper slope cannot be changed for a regular gambrel roof"},
    {"Common Gable", "chkHeel(0)", "Lock the current heel dimension (overrides the default calculation)"},
    {"Common Gable", "mnuFileExit", "Exit Pitchcraft"},
    {"Common Gable", "Picture1", "Right click on the drawing to display popup menu."},
    {"Common Gable", "Spin(0)", "Right click on field to change increment."},
    {"Common Gable", "mnuFile", ""},
    {"Common Gable", "cboType", ""},
};

TEST_F(HintsTest, TellWhatToEnter) {
  for (const HintRow& row : kRows) {
    Pick("cboType", row.roof);
    Expect(actions.Hover(row.control));
    EXPECT_EQ(document.window.Status, row.text) << row.roof << " " << row.control;
  }
}

TEST_F(HintsTest, NothingUnknownCanBePointedAt) { EXPECT_TRUE(actions.Hover("FtNothing(0)")); }

}  // namespace
}  // namespace pitchcraft
