#include "samplegraph/PresetExchange.h"

namespace tarnview {
namespace {

/// Kept on purpose: it speaks of sample graphs for files of scatter graphs as well.
constexpr Message kNotLoaded = Message::SamplePresetNotLoaded;

}  // namespace

PresetExchange::PresetExchange(Form& window, const Controls& controls,
                               const PresetSurroundings& surroundings, const Kind& kind)
    : controls_(controls),
      around_(surroundings),
      files_(window,
             {around_.workingDirectory, around_.files, around_.clock, around_.errors,
              around_.messages},
             {kind.extension, kind.filter, false, kNotLoaded}) {
  controls_.cboLogFamily.SetList(around_.families.Descriptions());
}

void PresetExchange::ShowHead(const std::string& name, int family) {
  controls_.txtName.Text = name;
  controls_.cboLogFamily.SetListIndex(around_.families.ValidateLogFamily(family) - 1);
}

bool PresetExchange::HasName() {
  if (!Name().empty()) return true;
  around_.messages.ShowMessage(Message::NameMissing);
  controls_.txtName.SetFocus();
  return false;
}

void PresetExchange::Save(
    const std::function<std::string(bool blnWriteFamily, const Moment& now)>& text) {
  const bool withFamily = around_.messages.AskQuestion(Question::IncludeLogFamily);
  files_.Save(Name(), [&](const Moment& now) { return text(withFamily, now); });
}

void PresetExchange::Load(const std::function<void(std::string_view bytes)>& take) {
  files_.Load([&](std::string_view bytes, const std::string&) { take(bytes); });
}

bool PresetExchange::AgreesToFamily(int lngLogFamily) {
  return lngLogFamily == 0 || lngLogFamily == Family() ||
         around_.messages.AskQuestion(Question::PresetOfOtherFamily);
}

void PresetExchange::TellNotRelevant(const std::string& items) {
  if (!items.empty()) around_.messages.ShowMessage(Message::ItemsNotRelevant, false, items);
}

}  // namespace tarnview
