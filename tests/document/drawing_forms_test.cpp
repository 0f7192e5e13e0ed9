// What each page gives on paper and in a file, as one table of expectations.
#include "document/drawing_forms.h"

#include <gtest/gtest.h>

#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

using D = Drawing;

struct Row {
  const char* name;
  OutputForm form;
  int roof;
  int page;
  OutputConditions conditions;
  Drawing drawing;
  int rafter;
  int before, after;
};

constexpr OutputForm kPaper = OutputForm::kPaper;
constexpr OutputForm kDxf = OutputForm::kDxf;
constexpr OutputConditions kPlain{};
constexpr OutputConditions kUnequal{true, false, false};
constexpr OutputConditions kDiagram{false, true, false};
constexpr OutputConditions kLedger{false, false, true};

const Row kRows[] = {
    {"a gable on its design page", kPaper, Roof::kGable, 0, kPlain, D::kRafter, 1, -1, -1},
    {"a shed on any page", kPaper, Roof::kShed, 4, kPlain, D::kRafter, 1, -1, -1},
    {"a valley", kDxf, Roof::kValley, 1, kPlain, D::kRafter, 1, -1, -1},
    {"a hip's plan", kPaper, Roof::kHip, 0, kPlain, D::kHipPlan, 1, -1, -1},
    {"a hip's common takes its own type for a moment", kPaper, Roof::kHip, 1, kPlain, D::kRafter, 1, 0, 1},
    {"a hip's common in a file", kDxf, Roof::kHip, 1, kPlain, D::kRafter, 1, 0, 1},
    {"a hip's rafter", kPaper, Roof::kHip, 2, kPlain, D::kRafter, 1, -1, -1},
    {"a hip's layout", kPaper, Roof::kHip, 3, kPlain, D::kHipLayout, 1, -1, -1},
    {"a hip has no fifth page", kPaper, Roof::kHip, 4, kPlain, D::kNone, 1, -1, -1},
    {"unequal slopes have one page more", kPaper, Roof::kHip, 4, kUnequal, D::kHipLayout, 1, -1, -1},
    {"their end common", kPaper, Roof::kHip, 2, kUnequal, D::kBastardHipRafters, 1, 17, 16},
    {"their hip in a file", kDxf, Roof::kHip, 3, kUnequal, D::kBastardHipRafters, 1, 16, 16},
    {"a dual slope's rear", kPaper, Roof::kDualSlope, 2, kPlain, D::kRafter, 2, -1, -1},
    {"a bay without dimensions", kPaper, Roof::kBay, 0, kDiagram, D::kBayDiagram, 1, -1, -1},
    {"a bay with dimensions", kPaper, Roof::kBay, 0, kPlain, D::kBayPlan, 1, -1, -1},
    {"a bay's ledger on paper goes by the page", kPaper, Roof::kBay, 3, kLedger, D::kBayRafter, 1, 12, 12},
    {"in a file it goes by the rafter", kDxf, Roof::kBay, 1, kLedger, D::kBayCenterLedger, 1, -1, -1},
    {"another bay page in a file", kDxf, Roof::kBay, 4, kPlain, D::kBayRafter, 1, -1, -1},
    {"a Dutch hip's common", kPaper, Roof::kDutchHip, 1, kPlain, D::kRafter, 1, -1, -1},
    {"a Dutch hip's hip changes no type", kPaper, Roof::kDutchHip, 3, kPlain, D::kBayRafter, 2, -1, -1},
    {"an octagon's hip", kDxf, Roof::kOctagon, 1, kPlain, D::kOctagonRafter, 1, 9, 18},
    {"an unequal valley's long one", kPaper, Roof::kUnequalSpanValley, 2, kPlain, D::kRafter, 2, -1, -1},
    {"a gambrel's top", kPaper, Roof::kGambrel, 2, kPlain, D::kGambrelRafter, 2, -1, -1},
    {"a roof of no type", kPaper, Roof::kBastardHip, 0, kPlain, D::kNone, 1, -1, -1},
    {"a page below the first", kPaper, Roof::kGable, -1, kPlain, D::kNone, 1, -1, -1},
};

TEST(OutputOf, GivesWhatThePageShows) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    const PageOutput output = OutputOf(row.form, row.roof, row.page, row.conditions);
    EXPECT_EQ(output.Drawing, row.drawing);
    EXPECT_EQ(output.Rafter, row.rafter);
    EXPECT_EQ(output.TypeBefore, row.before);
    EXPECT_EQ(output.TypeAfter, row.after);
  }
}

TEST(FormsOf, NamesEachDrawingOnce) {
  EXPECT_STREQ(FormsOf(D::kRafter).PrintName, "PrintRafter");
  EXPECT_STREQ(FormsOf(D::kBastardHipRafters).ExportName, "ExportBastardHipRafter");
  EXPECT_STREQ(FormsOf(D::kGambrelPreview).DrawName, "DrawGambrelPreview");
}

}  // namespace
}  // namespace pitchcraft
