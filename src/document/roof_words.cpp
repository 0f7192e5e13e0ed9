#include "document/roof_words.h"

#include "roofs/roof_types.h"

namespace pitchcraft {
namespace {

std::vector<std::string> CaptionsOn(std::span<const RoofPage> pages) {
  std::vector<std::string> captions;
  for (const RoofPage& page : pages) captions.emplace_back(page.Caption);
  return captions;
}

}  // namespace

RoofWords WordsOfAllRoofs() {
  RoofWords words;
  Design design;
  for (const RoofType* type : RoofTypes()) {
    design.RoofType = type->About().Code;
    // A gambrel calls its ridge row by what supports the upper roof.
    for (const GambrelSupport support : {GambrelSupport::kPurlins, GambrelSupport::kWall}) {
      design.Support = support;
      type->LayOut(design);
      for (const LabelControl& label : design.sheet.Label) words.RowCaptions.insert(label.Caption);
    }
    // A hip has other pages where its slopes differ.
    for (const double endSlope : {1, 2}) {
      design.Rafter1.Slope = 1;
      design.Rafter1.HipEndSlope = endSlope;
      words.Pages.push_back(CaptionsOn(type->Pages(design)));
    }
  }
  return words;
}

}  // namespace pitchcraft
