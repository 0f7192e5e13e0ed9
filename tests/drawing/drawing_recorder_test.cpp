// The recorder: its states, its extents, the size of a point, and how a recording is fitted into a target.
#include "drawing/drawing_recorder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "core/run_time_error.h"
#include "drawing/extents_canvas.h"
#include "open_recording.h"

namespace pitchcraft {
namespace {

using testing::Recorder;

std::string MessageOf(const std::function<void()>& step) {
  try {
    step();
  } catch (const RunTimeError& error) {
    return error.Description();
  }
  return "no error";
}

class MetaFile : public ::testing::Test {
 protected:
  /// Extents from the origin to (width, height).
  void Reach(double width, double height) { recorder.drawFX.MoveToPoint(width, height); }

  Recorder recorder;
  DrawingRecorder& meta = recorder.meta;
};

// States.

TEST_F(MetaFile, RefusesASecondRecording) {
  EXPECT_EQ(MessageOf([&] { meta.Open(); }), "Metafile dc already exists!");
}

TEST_F(MetaFile, IsEmptyThenOpenThenClosed) {
  const ArialMeter meter;
  DrawingRecorder fresh(meter);
  EXPECT_FALSE(fresh.IsOpen() || fresh.IsClosed());
  fresh.Open("roof.wmf");
  EXPECT_TRUE(fresh.IsOpen() && !fresh.IsClosed());
  EXPECT_EQ(fresh.Name, "roof.wmf");
  fresh.Close();
  EXPECT_TRUE(!fresh.IsOpen() && fresh.IsClosed());
  fresh.Close();
  EXPECT_TRUE(fresh.IsClosed());
  fresh.Discard();
  EXPECT_FALSE(fresh.IsOpen() || fresh.IsClosed());
}

TEST_F(MetaFile, PlaysNothingBeforeItIsClosed) {
  ExtentsCanvas target({1000, 1000}, recorder.meter);
  EXPECT_EQ(MessageOf([&] { meta.Play(target); }), "No metafile to play!");
  EXPECT_EQ(MessageOf([&] { meta.Finished(); }), "No metafile defined!");
  meta.Close();
  EXPECT_EQ(MessageOf([&] { meta.Play(target); }), "no error");
}

TEST_F(MetaFile, DropsAnOpenRecordingWhenDeleted) {
  recorder.drawFX.DrawLine(10, 10);
  meta.Discard();
  EXPECT_FALSE(meta.IsOpen());
  EXPECT_TRUE(meta.Operations().empty());
  EXPECT_EQ(meta.MaxX(), 0);
}

TEST_F(MetaFile, RecordsNothingWhileClosed) {
  meta.Close();
  recorder.drawFX.DrawLine(10, 10);
  recorder.textFX.TextLine("a", Single(0), Single(0));
  EXPECT_TRUE(meta.Operations().empty());
}

TEST_F(MetaFile, StartsAfreshWhenCleared) {
  recorder.drawFX.DrawLine(10, 10);
  meta.MapMode = kAnisotropic;
  meta.Clear();
  EXPECT_TRUE(meta.IsOpen());
  EXPECT_TRUE(meta.Operations().empty());
  EXPECT_EQ(meta.MapMode, kIsotropic);
  EXPECT_EQ(meta.MaxY(), 0);
}

TEST_F(MetaFile, TakesAFinishedRecordingOnlyWhenEmpty) {
  EXPECT_EQ(MessageOf([&] { meta.Load({}, 0, 0, 1, 1); }), "A metafile already exists!");
  meta.Discard();
  meta.Load({LineOp{}}, -1, -2, 3, 4);
  EXPECT_EQ(meta.Finished().size(), 1U);
  EXPECT_EQ(meta.MinY(), -2);
  EXPECT_EQ(MessageOf([&] { meta.Load({}, 0, 0, 1, 1); }), "A metafile already exists!");
}

TEST_F(MetaFile, RefusesACanvasWithoutSize) {
  EXPECT_EQ(MessageOf([&] { meta.SetCanvas({std::nan(""), 1}); }), "Not a valid canvas!");
}

TEST_F(MetaFile, LetsGoOfItsDrawingObjects) {
  meta.Destroy();
  EXPECT_EQ(recorder.drawFX.Canvas(), nullptr);
  EXPECT_EQ(recorder.textFX.Canvas(), nullptr);
}

// Extents.

TEST_F(MetaFile, OnlyWidensItsExtents) {
  meta.BoundsChanged(10, 20, -30, -40);  // left exceeds right, top exceeds bottom
  meta.BoundsChanged(1, 1, 2, 2);
  EXPECT_EQ(meta.MinX(), -30);
  EXPECT_EQ(meta.MaxX(), 10);
  EXPECT_EQ(meta.MinY(), -40);
  EXPECT_EQ(meta.MaxY(), 20);
}

TEST_F(MetaFile, KeepsTheOriginInside) {
  recorder.drawFX.DrawLine(1000, 1000, Single(1100), Single(1100));
  EXPECT_EQ(meta.MinX(), 0);
  EXPECT_EQ(meta.MinY(), 0);
  EXPECT_EQ(meta.MaxX(), 1100);
}

TEST_F(MetaFile, CountsTextsToo) {
  recorder.textFX.FontHeight = 100;
  recorder.textFX.TextLine("wide text", Single(0), Single(0));
  EXPECT_GT(meta.MaxX(), 300);
}

// Size of a point.

TEST_F(MetaFile, HasNoPointSizeWithoutCanvas) {
  Reach(100, 100);
  EXPECT_EQ(meta.CalcPointSize().Size, 0);
}

TEST_F(MetaFile, MakesTextTheSameSizeOnTheCanvas) {
  struct Row {
    double Width, Height, CanvasWidth, CanvasHeight;
  };
  const Row rows[] = {
      {1000, 500, 10000, 8000}, {1000, 500, 4000, 9000}, {500, 1000, 10000, 8000},
      {37, 4000, 5000, 5500},   {1000, 1000, 777, 777},
  };
  for (const Row& row : rows) {
    meta.Clear();
    Reach(row.Width, row.Height);
    meta.SetCanvas({row.CanvasWidth, row.CanvasHeight});
    const double size = meta.CalcPointSize().Size;
    // A text 240 twips high is 240 twips high on the canvas when it is played.
    const CanvasMap map = meta.FitInto(*meta.Target(), 1);
    EXPECT_NEAR(240 * size * map.ScaleX, 240, 1e-3) << row.Width << " x " << row.Height;
  }
}

TEST_F(MetaFile, TellsWhetherTheDrawingIsNarrowForItsCanvas) {
  Reach(500, 1000);
  meta.SetCanvas({1000, 1000});
  EXPECT_NEAR(meta.CalcPointSize().Ratio, 0.5, 1e-6);
  meta.SetCanvas({500, 1000});
  EXPECT_NEAR(meta.CalcPointSize().Ratio, 1, 1e-6);
  meta.SetCanvas({500, 2000});
  EXPECT_NEAR(meta.CalcPointSize().Ratio, 2, 1e-6);
}

TEST_F(MetaFile, CountsAZeroDenominatorAsOne) {
  meta.SetCanvas({0, 0});
  EXPECT_EQ(meta.CalcPointSize().Size, 0);
  Reach(30, 20);
  EXPECT_EQ(meta.CalcPointSize().Size, 30);
  EXPECT_TRUE(std::isfinite(meta.CalcPointSize().Ratio));
}

TEST_F(MetaFile, TurnsThePaperTheWayThatFitsBest) {
  Reach(1000, 700);
  meta.SetCanvas({12000, -16000, true});
  EXPECT_TRUE(meta.CalcPointSize().Landscape);
  EXPECT_NEAR(meta.CalcPointSize().Size, 1000.0 / 16000, 1e-6);
  meta.Clear();
  Reach(700, 1000);
  EXPECT_FALSE(meta.CalcPointSize().Landscape);
  EXPECT_NEAR(meta.CalcPointSize().Size, 1000.0 / 16000, 1e-6);
}

// Playing.

struct Sides {
  double Left, Top, Right, Bottom;
};

class Played : public MetaFile {
 protected:
  void ExpectPlayed(CanvasSize size, Sides sides, const PlayArea& area = {}, double unitsPerTwip = 1) {
    meta.Close();
    ExtentsCanvas target(size, recorder.meter, unitsPerTwip);
    meta.Play(target, area);
    EXPECT_NEAR(target.Left(), sides.Left, 1e-6);
    EXPECT_NEAR(target.Top(), sides.Top, 1e-6);
    EXPECT_NEAR(target.Right(), sides.Right, 1e-6);
    EXPECT_NEAR(target.Bottom(), sides.Bottom, 1e-6);
  }
  void DrawFrame(double left, double bottom, double right, double top) {
    recorder.drawFX.DrawLine(left, bottom, Single(right), Single(top));
  }
};

TEST_F(Played, CentresAWideDrawingVertically) {
  DrawFrame(0, 0, 2000, 1000);
  ExpectPlayed({1000, 1000}, {0, 250, 1000, 750});
}

TEST_F(Played, CentresATallDrawingHorizontally) {
  DrawFrame(0, 0, 1000, 2000);
  ExpectPlayed({1000, 1000}, {250, 0, 750, 1000});
}

TEST_F(Played, KeepsPlusYUp) {
  recorder.drawFX.MoveToPoint(1000, 1000);
  recorder.drawFX.DrawLine(0, 1000, Single(10), Single(1000));
  ExpectPlayed({500, 500}, {0, 0, 5, 0});
}

TEST_F(Played, IsTheSameOnAPageWhoseHeightIsNegative) {
  DrawFrame(-100, -200, 1900, 800);
  ExpectPlayed({1000, -1000}, {0, 250, 1000, 750});
}

TEST_F(Played, TakesTheBorderOffEverySide) {
  DrawFrame(0, 0, 1000, 1000);
  ExpectPlayed({1000, 1000}, {100, 100, 900, 900}, {0, 0, {}, {}, 100});
}

TEST_F(Played, FillsTheAreaThatIsGiven) {
  DrawFrame(0, 0, 1000, 1000);
  ExpectPlayed({5000, 5000}, {100, 300, 600, 800}, {100, 200, 500, 700, 0});
}

TEST_F(Played, CountsInTheUnitsOfTheTarget) {
  DrawFrame(0, 0, 2000, 1000);
  ExpectPlayed({15000, 15000}, {0, 250, 1000, 750}, {}, 1.0 / 15);
}

TEST_F(Played, StretchesWhenToldTo) {
  DrawFrame(0, 0, 2000, 1000);
  meta.MapMode = kAnisotropic;
  ExpectPlayed({1000, 1000}, {0, 0, 1000, 1000});
}

TEST_F(Played, DividesByNoZero) {
  const CanvasMap map = meta.FitInto({1000, 500}, 1);
  EXPECT_EQ(map.ScaleX, 500);
  EXPECT_TRUE(std::isfinite(map.OffsetX) && std::isfinite(map.OffsetY));
  const CanvasMap nothing = meta.FitInto({0, 0}, 1);
  EXPECT_EQ(nothing.ScaleX, 0);
}

TEST_F(Played, CanBePlayedAgainElsewhere) {
  DrawFrame(0, 0, 1000, 1000);
  ExpectPlayed({1000, 1000}, {0, 0, 1000, 1000});
  ExpectPlayed({200, 100}, {50, 0, 150, 100});
}

// Fonts.

TEST_F(MetaFile, MeasuresInDrawingUnits) {
  EXPECT_EQ(meta.FontSize(), 10);
  EXPECT_EQ(meta.FontHeight, 200);
  meta.FontHeight = 117;
  EXPECT_EQ(meta.TextHeight("x"), 117);
  EXPECT_NEAR(meta.TextWidth("0"), 117 * kEmPerCell * 1139 / 2048, 1e-9);
}

TEST_F(MetaFile, IsARecordingDevice) { EXPECT_EQ(DrawingRecorder::CanvasKind(), 5); }

}  // namespace
}  // namespace pitchcraft
