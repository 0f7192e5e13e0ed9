#include "session/dump.h"

#include <gtest/gtest.h>

#include <limits>

#include "../support/number.h"
#include "core/rafter_members.h"
#include "script_runner.h"

namespace pitchcraft {
namespace {

Json FullDump(const std::string& script = {}) { return RunScript(script + "\ndump\n").events.back(); }

TEST(Dump, HoldsEveryMember) {
  const Json dump = FullDump();
  for (const char* member : {"title", "status", "document", "sheet", "menus", "toolbar", "tabs", "Rafter1",
                             "Rafter2", "drawing"}) {
    EXPECT_TRUE(dump.contains(member)) << member;
  }
  const Rafter rafter;
  EXPECT_EQ(dump["Rafter1"].size(), RafterMembers().size());
  for (const char* name :
       {"RoofType",        "UnitRun",         "UnitHipRun",  "UnitHipRatio",  "DrawScale",
        "CalcEnabled",     "LoadingProject",  "CurrentTab",  "HelpContext",   "BayEditMode",
        "SavedGableSpan",  "SavedGableSlope", "Spacing",     "MetricSpacing", "Increment",
        "MetricIncrement", "ProjectName",     "ProjectFile", "LineWidth",     "PrintAllBlack",
        "RotateFonts",     "BackColor",       "LineColor",   "DXFTextsize"}) {
    EXPECT_TRUE(dump["document"].contains(name)) << name;
  }
}

TEST(Dump, ControlsTellWhatTheyShow) {
  const Json sheet = FullDump()["sheet"];
  EXPECT_EQ(sheet["FtSpan(0)"]["Value"], 144.0);
  EXPECT_EQ(sheet["FtSpan(0)"]["Text"], "12' 0\"");
  EXPECT_EQ(sheet["FtSpan(0)"]["Top"], 840);
  EXPECT_EQ(sheet["FtSpan(0)"]["ForeColor"], 65535);
  EXPECT_EQ(sheet["LWRafter(0)"]["RightText"], "7 1/4\"");
  EXPECT_EQ(sheet["LWRafter(0)"]["List"].size(), 15U);
  EXPECT_EQ(sheet["LWRafter(0)"]["Locked"], false);
  EXPECT_EQ(sheet["cboType"]["List"].size(), 11U);
  EXPECT_EQ(sheet["chkHeel(0)"]["Value"], 0);
  EXPECT_EQ(sheet["Label(11)"]["Caption"], "Run:");
  EXPECT_EQ(sheet["Command1"]["Caption"], "&Reset");
  EXPECT_EQ(sheet["LWSlope(2)"]["Visible"], false);
}

TEST(Dump, MenusButtonsAndTabs) {
  const Json dump = FullDump("press Hip");
  EXPECT_EQ(dump["menus"]["mnuHipLayoutOverhangsEqual"]["Checked"], true);
  EXPECT_EQ(dump["menus"]["mnufileSaveAs"]["Caption"], "Save &As...");
  EXPECT_EQ(dump["toolbar"]["Hip"]["Pressed"], true);
  EXPECT_EQ(dump["toolbar"]["Unequal Span Valley"]["Visible"], true);
  EXPECT_EQ(dump["tabs"]["VSTab(0)"]["Caption"], "Design|Common|Hip Rafter|Layout");
  EXPECT_EQ(dump["tabs"]["VSTab(1)"]["Page"], 0);
}

TEST(Dump, BooleansOfTheRecordAreBooleans) {
  const Json rafter = FullDump("check chkHeel(0) on")["Rafter1"];
  EXPECT_EQ(rafter["HeelLocked"], true);
  EXPECT_EQ(rafter["SeatLocked"], false);
  EXPECT_EQ(rafter["OverhangsEqual"].type(), Json::value_t::boolean);
  EXPECT_EQ(rafter["Purlins"].type(), Json::value_t::boolean);
  EXPECT_EQ(rafter["RafterType"], 0);
}

TEST(Dump, WhatIsNoNumberIsAWord) {
  const Json rafter = FullDump("type LWSlope(0) 0 | 12")["Rafter1"];
  EXPECT_EQ(rafter["Seat"], "inf");
  EXPECT_EQ(NumberOf(-std::numeric_limits<double>::infinity()), "-inf");
  EXPECT_EQ(NumberOf(std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(Dump, ASingleComesBackAsTheSameSingle) {
  for (const float value : {0.1F, 16777216.0F, 1e30F, 1e-30F, 171.89772F, -5.4038305F, 8.105746F}) {
    const Json number = NumberOf(Single(static_cast<double>(value)));
    EXPECT_EQ(static_cast<float>(testing::NumberIn(number.dump())), value);
    EXPECT_LE(number.dump().size(), 16U) << number.dump() << " carries digits that a Single does not have";
  }
}

TEST(Dump, TheDrawingIsItsRecording) {
  const Json drawing = FullDump("type LWSlope(0) 6 | 12")["drawing"];
  EXPECT_EQ(drawing["Canvas"], "Picture1");
  EXPECT_LT(drawing["MinX"].get<double>(), drawing["MaxX"].get<double>());
  ASSERT_FALSE(drawing["operations"].empty());
  int lines = 0;
  int texts = 0;
  for (const Json& operation : drawing["operations"]) {
    if (operation["op"] == "line") {
      ++lines;
      EXPECT_EQ(operation["from"].size(), 2U);
      EXPECT_TRUE(operation.contains("color") && operation.contains("style") && operation.contains("width"));
    } else if (operation["op"] == "text") {
      ++texts;
      EXPECT_EQ(operation["font"], "Arial");
      EXPECT_TRUE(operation.contains("angle") && operation.contains("align") && operation.contains("bold"));
    }
  }
  EXPECT_GT(lines, 10);
  EXPECT_GT(texts, 3);
  // The upper end of the rafter: its run and rise with the overhang, ten units an inch.
  EXPECT_EQ(drawing["Pts"][0][0], 1537.5);
  EXPECT_EQ(drawing["Pts"][0][1], 768.75);
  EXPECT_EQ(FullDump("page VSTab(0) 1")["drawing"]["Canvas"], "Picture3");
}

}  // namespace
}  // namespace pitchcraft
