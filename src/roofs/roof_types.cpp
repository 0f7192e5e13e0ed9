#include "roofs/roof_types.h"

#include <array>

#include "design/questions.h"

namespace pitchcraft {
namespace {

const std::array<const RoofType*, 11>& Table() {
  static const std::array<const RoofType*, 11> table{
      &GableRoof(),   &ShedRoof(),     &DualSlopeRoof(),
      &HipRoof(),     &ValleyRoof(),   &UnequalSpanValleyRoof(),
      &BayRoof(),     &DutchHipRoof(), &BlindValleyRoof(),
      &OctagonRoof(), &GambrelRoof()};
  return table;
}

template <typename Test>
const RoofType* First(Test test) {
  for (const RoofType* type : Table()) {
    if (test(type->About())) return type;
  }
  return nullptr;
}

}  // namespace

std::span<const RoofType* const> RoofTypes() { return Table(); }

const RoofType* RoofTypeByCode(Roof code) {
  if (code == Roof::kBastardHip) code = Roof::kHip;
  return First([code](const RoofType::Facts& facts) { return facts.Code == code; });
}

const RoofType* RoofTypeByItem(std::string_view item) {
  return First([item](const RoofType::Facts& facts) { return facts.Item == item; });
}

int ListIndexOfRoof(Roof code) {
  const RoofType* wanted = RoofTypeByCode(code);
  for (std::size_t i = 0; i < Table().size(); ++i) {
    if (Table()[i] == wanted) return static_cast<int>(i);
  }
  return -1;
}

// Every roof that a design can have is in the table.
const RoofType& RoofOf(const Design& design) { return *RoofTypeByCode(design.RoofType); }

PageFigure FigureShown(const Design& design) { return RoofOf(design).FigureOn(design, PageShown(design)); }

}  // namespace pitchcraft
