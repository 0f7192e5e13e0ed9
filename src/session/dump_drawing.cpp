#include "session/dump.h"

#include "design/questions.h"

namespace pitchcraft {
namespace {

Json PointOf(DrawnPoint point) { return Json::array({point.X, point.Y}); }

void AddPen(Json& dump, const DrawnPen& pen) {
  dump["color"] = static_cast<std::uint32_t>(pen.Color);
  dump["style"] = pen.Style;
  dump["width"] = pen.Width;
}

Json Boxed(const char* op, DrawnPoint from, DrawnPoint to) {
  return {{"op", op}, {"from", PointOf(from)}, {"to", PointOf(to)}};
}

struct OperationDump {
  Json operator()(const LineOp& line) const {
    Json dump = Boxed("line", line.From, line.To);
    AddPen(dump, line.Pen);
    return dump;
  }
  Json operator()(const TextOp& text) const {
    return {{"op", "text"},
            {"at", PointOf(text.At)},
            {"text", text.Text},
            {"height", text.Height},
            {"angle", text.Angle},
            {"align", text.Align},
            {"color", static_cast<std::uint32_t>(text.Color)},
            {"font", text.Font},
            {"bold", text.Bold},
            {"italic", text.Italic}};
  }
  Json operator()(const FillOp& fill) const {
    Json points = Json::array();
    for (const DrawnPoint& point : fill.Points) points.push_back(PointOf(point));
    return {{"op", "fill"},
            {"points", std::move(points)},
            {"color", static_cast<std::uint32_t>(fill.Brush.Color)},
            {"style", fill.Brush.Style}};
  }
  Json operator()(const EllipseOp& ellipse) const {
    Json dump = Boxed("ellipse", ellipse.From, ellipse.To);
    AddPen(dump, ellipse.Pen);
    return dump;
  }
  Json operator()(const ArcOp& arc) const {
    Json dump = Boxed("arc", arc.From, arc.To);
    dump["start"] = PointOf(arc.Start);
    dump["end"] = PointOf(arc.End);
    AddPen(dump, arc.Pen);
    return dump;
  }
  Json operator()(const RectangleOp& rectangle) const {
    Json dump = Boxed("rectangle", rectangle.From, rectangle.To);
    dump["corner"] = rectangle.Corner;
    AddPen(dump, rectangle.Pen);
    return dump;
  }
};

Json DumpPoints(const PointArray& points) {
  Json dump = Json::array();
  for (int i = 0; i < PointArray::kCount; ++i) {
    dump.push_back(Json::array({NumberOf(points(i).X), NumberOf(points(i).Y)}));
  }
  return dump;
}

Json DumpDimensionPoints(const std::vector<DimensionValue>& values) {
  Json dump = Json::array();
  for (const DimensionValue& value : values) {
    if (const Single* number = std::get_if<Single>(&value)) {
      dump.push_back(NumberOf(*number));
    } else {
      dump.push_back(std::get<std::string>(value));
    }
  }
  return dump;
}

}  // namespace

Json DumpDrawing(const Document& document) {
  const DraftingBoard& board = document.Board();
  const DrawingRecorder& canvas = board.Recorder;
  Json operations = Json::array();
  for (const DrawOp& operation : canvas.Operations())
    operations.push_back(std::visit(OperationDump{}, operation));
  return {
      {"Canvas", OnDesignPage(document.design) ? "Picture1" : "Picture3"},
      {"MinX", NumberOf(canvas.MinX())},
      {"MinY", NumberOf(canvas.MinY())},
      {"MaxX", NumberOf(canvas.MaxX())},
      {"MaxY", NumberOf(canvas.MaxY())},
      {"PointFactor", NumberOf(board.PointFactor)},
      {"Pts", DumpPoints(board.Pts)},
      {"DimensionPoints", DumpDimensionPoints(board.DimensionPoints)},
      {"operations", std::move(operations)},
  };
}

}  // namespace pitchcraft
