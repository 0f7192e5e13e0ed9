// The options: copies, Apply, the lists and their files.
#include "form_dialogs.h"
#include "project_test.h"

namespace pitchcraft {
namespace {

class OptionsTest : public ProjectTest {
 protected:
  OptionsTest() { Start(document); }
  /// Opens the options, acts on them, closes them.
  void Options(const std::function<void(OptionsForm&)>& action, const char* item = "mnuViewOptions") {
    dialogs.On<OptionsForm>(action);
    const Refusal refusal = actions.Click(item);
    EXPECT_FALSE(refusal) << refusal.value_or("");
  }
  bool Exists(const char* name) const { return std::filesystem::exists(folder / name); }

  FormDialogs dialogs;
  MemoryStore store;
  Document document{{dialogs, store, folder}};
  Actions actions{document};
  Sheet& sheet = document.design.sheet;
};

TEST_F(OptionsTest, BeginWithWhatTheDocumentHolds) {
  Options([](OptionsForm& form) {
    EXPECT_EQ(form.Page, OptionsPage::kColors);
    EXPECT_EQ(form.Colors(), (std::array<std::uint32_t, 7>{0, 65535, 255, 0, 16777215, 255, 65535}));
    EXPECT_EQ(form.DxfColors(), (std::array<int, 4>{0, 14, 15, 12}));
    EXPECT_EQ(form.LineWidth(), 1);
    EXPECT_EQ(form.DxfTextSize.Text(), "2\"");
    EXPECT_EQ(form.SlopeList.RowCount(), 60);
    EXPECT_EQ(form.LumberList.RowCount(), 15);
    EXPECT_EQ(form.LumberList.Cell(11, 0), "2x6");
    EXPECT_EQ(form.LumberList.Cell(11, 2), "5.5");
  });
}

TEST_F(OptionsTest, DxfSettingsOpenOnTheirPage) {
  for (const char* item : {"mnuFileDXFSettings", "mnuPopUp1DXFSettings", "mnuPopUp2DXFSettings"}) {
    OptionsPage page{};
    Options([&](OptionsForm& form) { page = form.Page; }, item);
    EXPECT_EQ(page, OptionsPage::kDxf) << item;
  }
}

TEST_F(OptionsTest, CancelLeavesEverything) {
  Options([](OptionsForm& form) {
    EXPECT_TRUE(form.SetColor(kBackground, 0xFFFFFF));
    form.PrintAllBlack = form.SystemColors = form.RotateFonts = true;
    form.SetLineWidth(5);
    form.DxfTextSize.SetText("8");
    form.LumberList.DeleteRow(0);
  });
  EXPECT_EQ(document.preferences.BackColor, 0U);
  EXPECT_FALSE(document.PrintAllBlack || document.preferences.UseSystemColors ||
               document.preferences.RotateFonts);
  EXPECT_EQ(document.preferences.LineWidth, 1);
  EXPECT_EQ(double{document.preferences.DxfTextSize}, 2);
  EXPECT_FALSE(Exists("Lumber.dat"));
}

TEST_F(OptionsTest, ApplyTakesEffectWhileTheFormIsOpen) {
  document.design.sheet.Kneewall[0].SetValue(12);
  Options([this](OptionsForm& form) {
    EXPECT_TRUE(form.SetColor(kCtlBack, 0xC0FFFF));
    EXPECT_TRUE(form.SetColor(kCtlText, 0x800000));
    EXPECT_TRUE(form.SetColor(kLine, 0x00FF00));
    EXPECT_TRUE(form.SetDxfColor(kDxfDim, 3));
    form.PrintAllBlack = form.RotateFonts = true;
    form.SetLineWidth(4);
    form.DxfTextSize.SetText("4");
    form.Apply();
    EXPECT_EQ(sheet.Span[0].BackColor, 0xC0FFFFU);
    EXPECT_EQ(sheet.Slope[0].ForeColor, 0x800000U);
    EXPECT_EQ(sheet.Kneewall[0].ForeColor, kSystemGrayTextColor) << "off and grey";
    EXPECT_EQ(sheet.Kneewall[0].BackColor, 0xC0FFFFU);
    EXPECT_EQ(document.preferences.LineColor, 0x00FF00U);
    bool green = false;
    for (const auto& drawn : document.Board().Recorder.Operations()) {
      const auto* line = std::get_if<LineOp>(&drawn);
      green = green || (line != nullptr && line->Pen.Color == 0x00FF00);
    }
    EXPECT_TRUE(green) << "drawn again";
  });
  EXPECT_EQ(document.preferences.DxfDimColor, 3);
  EXPECT_EQ(document.preferences.LineWidth, 4);
  EXPECT_TRUE(document.PrintAllBlack && document.preferences.RotateFonts);
  EXPECT_EQ(double{document.preferences.DxfTextSize}, 4);
  EXPECT_EQ(double{document.preferences.DxfMetricTextSize}, 2);
  EXPECT_FALSE(store.Get("Colors", "LineColor", "")) << "stored at the end of the session";
  Close(document);
  EXPECT_EQ(store.Get("Pitchcraft", "Colors", "LineColor"), "65280");
}

TEST_F(OptionsTest, CalculatedFieldsKeepTheirOwnColor) {
  document.design.sheet.RoofList.SetListIndex(6);
  document.Act("cboType_Click", &RoofPicked);
  sheet.Projection.Calculated = true;
  Options([](OptionsForm& form) {
    EXPECT_TRUE(form.SetColor(kCalcText, 0x00FF00));
    form.Apply();
  });
  EXPECT_EQ(sheet.Projection.ForeColor, 0x00FF00U);
  EXPECT_EQ(sheet.Face.ForeColor, document.preferences.CtlForeColor);
}

TEST_F(OptionsTest, SystemColorsAreThoseOfTheFieldsAlone) {
  Options([](OptionsForm& form) {
    form.SystemColors = true;
    EXPECT_TRUE(form.SetColor(kBackground, 0x404040));
    form.Apply();
  });
  EXPECT_TRUE(document.preferences.UseSystemColors);
  EXPECT_EQ(document.preferences.CtlBackColor, kSystemWindowColor);
  EXPECT_EQ(document.preferences.CtlForeColor, kSystemWindowTextColor);
  EXPECT_EQ(document.preferences.CtlCalcColor, kSystemWindowTextColor);
  EXPECT_EQ(document.preferences.BackColor, 0x404040U);
}

TEST_F(OptionsTest, WhatIsNoColorIsRefused) {
  Options([](OptionsForm& form) {
    EXPECT_FALSE(form.SetColor(kLine, 0x1000000));
    EXPECT_FALSE(form.SetColor(kLine, 0x8000001F));
    EXPECT_FALSE(form.SetColor(kLine, 0xFFFFFFFF));
    EXPECT_FALSE(form.SetColor(-1, 0));
    EXPECT_FALSE(form.SetColor(7, 0));
    EXPECT_FALSE(form.SetDxfColor(kDxfText, 0));
    EXPECT_TRUE(form.SetDxfColor(kDxfBack, 0));
    EXPECT_FALSE(form.SetDxfColor(kDxfText, 256));
    EXPECT_FALSE(form.SetDxfColor(kDxfText, -3));
    EXPECT_FALSE(form.SetDxfColor(4, 3));
    form.SetLineWidth(1000);
    EXPECT_EQ(form.LineWidth(), kHeaviestLine);
    form.SetLineWidth(-1000);
    EXPECT_EQ(form.LineWidth(), kThinnestLine);
  });
}

TEST_F(OptionsTest, ATextsizeThatNoDrawingHasIsToldAndNotTaken) {
  for (const char* text : {"0", "-2", "inf", "nan", "1e30", "1e300", "", "x"}) {
    dialogs.messages.clear();
    Options([&](OptionsForm& form) {
      form.DxfTextSize.SetText(text);
      form.Apply();
      EXPECT_EQ(form.DxfTextSize.Value(), 2) << text;
    });
    EXPECT_EQ(dialogs.messages.size(), 1U) << text;
    EXPECT_EQ(double{document.preferences.DxfTextSize}, 2) << text;
  }
}

TEST_F(OptionsTest, ATextsizeThatIsNotTouchedIsNotRounded) {
  document.preferences.DxfTextSize = 2.0301;
  Options([](OptionsForm& form) { form.Apply(); });
  EXPECT_EQ(double{document.preferences.DxfTextSize}, double{Single(2.0301)});
}

TEST_F(OptionsTest, MetricHasItsOwnTextsizeAndLists) {
  ToggleUnits(document);
  Options([](OptionsForm& form) {
    EXPECT_EQ(form.SlopeList.RowCount(), 50);
    form.DxfTextSize.SetText("60 mm");
    form.SlopeList.SetCell(0, 0, "flat");
    form.Apply();
  });
  EXPECT_EQ(double{document.preferences.DxfMetricTextSize}, 60);
  EXPECT_EQ(double{document.preferences.DxfTextSize}, 2);
  EXPECT_TRUE(Exists("SlopeM.dat"));
  EXPECT_FALSE(Exists("Slope.dat"));
}

TEST_F(OptionsTest, AnEditedListIsBackedUpWrittenAndShown) {
  Write("Lumber.dat", "4x4|3.5|3.5\r\n6x6|5.5|5.5\r\n");
  Options([this](OptionsForm& form) {
    EXPECT_EQ(form.LumberList.RowCount(), 2);
    const int row = form.LumberList.InsertRow(0);
    EXPECT_EQ(row, 1);
    form.LumberList.SetCell(row, 0, "4x6");
    form.LumberList.SetCell(row, 1, "3.5");
    form.LumberList.SetCell(row, 2, "5.5");
    form.Apply();
    EXPECT_EQ(Read("Lumber.dat"), "4x4|3.5|3.5\r\n4x6|3.5|5.5\r\n6x6|5.5|5.5\r\n");
    EXPECT_EQ(Read("Lumber.old"), "4x4|3.5|3.5\r\n6x6|5.5|5.5\r\n");
    form.Apply();
    EXPECT_EQ(Read("Lumber.old"), "4x4|3.5|3.5\r\n6x6|5.5|5.5\r\n") << "nothing more was changed";
    form.LumberList.DeleteRow(0);
    form.Apply();
  });
  EXPECT_EQ(Read("Lumber.dat"), "4x6|3.5|5.5\r\n6x6|5.5|5.5\r\n");
  EXPECT_EQ(Read("Lumber.old"), "4x4|3.5|3.5\r\n4x6|3.5|5.5\r\n6x6|5.5|5.5\r\n");
  for (const PairControl* field : {&sheet.Common[0], &sheet.HipOrValley, &sheet.Fascia[1]}) {
    ASSERT_EQ(field->List().size(), 2U) << field->Name;
    EXPECT_EQ(field->List()[0].Caption, "4x6");
  }
  EXPECT_FALSE(Exists("Slope.dat")) << "the other list was not changed";
  EXPECT_EQ(double{document.design.Rafter1.Depth}, 7.25) << "the list changes no size";
}

TEST_F(OptionsTest, TheBackupBringsTheListBack) {
  Write("Slope.dat", "6/12|6|12\r\n");
  Options([](OptionsForm& form) {
    form.SlopeList.DeleteRow(0);
    form.Apply();
  });
  EXPECT_TRUE(sheet.Slope[0].List().empty());
  std::filesystem::rename(folder / "Slope.old", folder / "Slope.dat");
  FillLists(document);
  ASSERT_EQ(sheet.Slope[2].List().size(), 1U);
  EXPECT_EQ(sheet.Slope[2].List()[0].Left, 6);
}

TEST_F(OptionsTest, AnInsertedSlopeBeginsWithItsRun) {
  Options([](OptionsForm& form) {
    const int row = form.SlopeList.InsertRow(59);
    EXPECT_EQ(row, 60);
    EXPECT_EQ(form.SlopeList.Cell(row, 2), "12");
    EXPECT_EQ(form.LumberList.Cell(form.LumberList.InsertRow(-1), 2), "");
    EXPECT_EQ(form.SlopeList.FileRows().size(), 60U) << "a row that nobody filled in is none";
  });
}

TEST_F(OptionsTest, TextsOfAListCannotBreakItsFile) {
  Options([](OptionsForm& form) {
    ListGrid& list = form.LumberList;
    list.SetCell(0, 0, " 2x4, dry|grade\\1\r\n");
    list.SetCell(0, 1, "1,5");
    list.SetCell(0, 2, "3.5|");
    EXPECT_EQ(list.Cell(0, 0), "2x4  dry grade 1");
    EXPECT_EQ(list.Cell(0, 1), "1.5");
    EXPECT_EQ(list.Cell(0, 2), "3.5");
    list.SetCell(99, 0, "x");
    list.SetCell(0, 3, "x");
    list.DeleteRow(-1);
    list.DeleteRow(99);
    EXPECT_EQ(list.Cell(99, 0), "");
    EXPECT_EQ(list.RowCount(), 15);
    form.Apply();
  });
  EXPECT_EQ(sheet.Common[0].List()[0].Left, 1.5);
  EXPECT_EQ(sheet.Common[0].List()[0].Right, 3.5);
}

TEST_F(OptionsTest, AListThatCannotBeWrittenIsToldAndStaysChanged) {
  Write("Lumber.dat", "4x4|3.5|3.5\r\n");
  std::filesystem::create_directories(folder / "Lumber.old" / "in the way");
  Options([](OptionsForm& form) {
    form.LumberList.DeleteRow(0);
    form.SlopeList.DeleteRow(0);
    form.Apply();
    EXPECT_TRUE(form.LumberList.Changed());
    EXPECT_FALSE(form.SlopeList.Changed());
  });
  ASSERT_FALSE(dialogs.messages.empty());
  EXPECT_EQ(dialogs.messages[0], "Path/File access error - 75");
  EXPECT_TRUE(Exists("Slope.dat"));
}

TEST_F(OptionsTest, AListThatCannotBeReadIsToldAndTheOtherShows) {
  std::filesystem::create_directories(folder / "Slope.dat");
  Options([](OptionsForm& form) {
    EXPECT_EQ(form.SlopeList.RowCount(), 0);
    EXPECT_EQ(form.LumberList.RowCount(), 15);
  });
  EXPECT_EQ(dialogs.messages, std::vector<std::string>{"Path/File access error - 75"});
}

TEST(OptionsWithoutAFolder, AChangedListIsToldAndWrittenNowhere) {
  FormDialogs dialogs;
  MemoryStore store;
  Document document({dialogs, store, {}});
  Start(document);
  dialogs.On<OptionsForm>([](OptionsForm& form) {
    form.LumberList.DeleteRow(0);
    form.Apply();
  });
  ShowOptions(document);
  EXPECT_EQ(dialogs.messages, std::vector<std::string>{"Path not found - 76"});
  EXPECT_EQ(document.design.sheet.Common[0].List().size(), 15U);
}

TEST(OptionsColors, NumbersOfCadProgramsAsScreenColors) {
  EXPECT_EQ(ColorOfDxf(0), 0U);
  EXPECT_EQ(ColorOfDxf(1), 0x0000FFU);
  EXPECT_EQ(ColorOfDxf(7), 0xFFFFFFU);
  EXPECT_EQ(ColorOfDxf(10), 0x0000FFU) << "red";
  EXPECT_EQ(ColorOfDxf(11), 0xAAAAFFU) << "pale red";
  EXPECT_EQ(ColorOfDxf(12), 0x0000BDU) << "dark red";
  EXPECT_EQ(ColorOfDxf(50), 0x00FFFFU) << "yellow";
  EXPECT_EQ(ColorOfDxf(90), 0x00FF00U) << "green";
  EXPECT_EQ(ColorOfDxf(170), 0xFF0000U) << "blue";
  EXPECT_EQ(ColorOfDxf(255), 0xFFFFFFU);
  EXPECT_EQ(ColorOfDxf(256), 0U);
  EXPECT_EQ(ColorOfDxf(-1), 0U);
  EXPECT_EQ(NameOfDxfColor(1), "1  Red");
  EXPECT_EQ(NameOfDxfColor(12), "12");
  EXPECT_EQ(NameOfColor(0x0000FF), "Red");
  EXPECT_EQ(NameOfColor(0x030201), "1, 2, 3");
  EXPECT_EQ(NameOfColor(0x8000000D), "System color");
}

TEST(OptionsColors, EveryPageCanBeDrawnAgainByApply) {
  for (int roof = 0; roof <= 10; ++roof) {
    FormDialogs dialogs;
    MemoryStore store;
    Document document({dialogs, store, {}});
    Start(document);
    Actions actions(document);
    document.design.sheet.RoofList.SetListIndex(roof);
    document.Act("cboType_Click", &RoofPicked);
    dialogs.On<OptionsForm>([](OptionsForm& form) { form.Apply(); });
    const double span = document.design.Rafter1.Span;
    for (int page = 0; !actions.Page("VSTab(0)", page); ++page) {
      ShowOptions(document);
      EXPECT_EQ(PageShown(document.design), page);
    }
    EXPECT_EQ(double{document.design.Rafter1.Span}, span) << roof;
    EXPECT_TRUE(dialogs.messages.empty()) << roof << ": " << dialogs.messages[0];
  }
}

}  // namespace
}  // namespace pitchcraft
