#include "document/forms.h"

#include <random>

#include "core/number_text.h"
#include "files/whole_file.h"
#include "storage/settings.h"

namespace pitchcraft {
namespace {

constexpr std::size_t kLargestTips = std::size_t{1} << 20U;
constexpr const char* kNoFile =
    "That the TIPOFDAY.TXT file was not found?\n\nCreate a text file named TIPOFDAY.TXT using NotePad with 1 "
    "tip per line. Then place it in the same directory as the application. ";

/// One tip a line; nothing where the file cannot be read.
std::optional<std::vector<std::string>> LoadTips(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return std::nullopt;
  const std::optional<std::string> bytes = ReadWholeFile(file, kLargestTips);
  if (!bytes) return std::nullopt;
  constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
  std::string_view text = *bytes;
  if (text.starts_with(kUtf8Mark)) text.remove_prefix(kUtf8Mark.size());
  std::vector<std::string> tips;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view tip = Trimmed(text.substr(0, end));
    if (!tip.empty()) tips.emplace_back(tip);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return tips;
}

}  // namespace

DisclaimerForm::DisclaimerForm(KeyedStore& store)
    : store_(store), ticked_(ReadSettings(store).ShowDisclaimer != 1) {}

std::string DisclaimerForm::Text() {
  return "Pitchcraft is designed to perform dimensional calculations for many types of roofs. It does not "
         "perform any load bearing or other structural calculations.\n\nYou are solely responsible for "
         "ensuring that your designs are structurally sound and meet all applicable building codes, laws, "
         "etc.";
}

void DisclaimerForm::Click(bool ticked) {
  ticked_ = ticked;
  WriteShowDisclaimer(ticked ? 1 : 0, store_);
}

TipForm::TipForm(KeyedStore& store, const std::vector<std::filesystem::path>& folders, unsigned seed)
    : store_(store), text_(kNoFile), ticked_(ReadSettings(store).ShowTipsAtStartup == 1) {
  for (const std::filesystem::path& folder : folders) {
    if (folder.empty()) continue;
    const auto tips = LoadTips(folder / kFile);
    if (!tips) continue;
    tips_ = *tips;
    text_.clear();
    break;
  }
  std::mt19937 random(seed);
  if (!tips_.empty()) current_ = std::uniform_int_distribution<std::size_t>(0, tips_.size() - 1)(random);
  DisplayCurrentTip();
}

void TipForm::DisplayCurrentTip() {
  if (!tips_.empty()) text_ = tips_[current_];
}

void TipForm::NextTip() {
  current_ = current_ + 1 < tips_.size() ? current_ + 1 : 0;
  DisplayCurrentTip();
}

void TipForm::Click(bool ticked) {
  ticked_ = ticked;
  Unload();
}

void TipForm::Unload() const { WriteShowTips(ticked_ ? 1 : 0, store_); }

}  // namespace pitchcraft
