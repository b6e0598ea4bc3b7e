#include "desk/Messages.h"

#include <algorithm>
#include <iterator>

namespace tarnview {
namespace {

/// The messages of a file that is not of the kind that it was opened as.
struct WrongFile {
  Message id;
  int fileType;
  int lengthFrom;  ///< file type whose description's length, less one, is where the name is cut
};

constexpr WrongFile kWrongFiles[] = {
    {Message::NotAnFMLinkLog, 1, 1},
    {Message::NotALinkPlusLog, 5, 5},
    {Message::NotATec2Log, 3, 3},
    {Message::NotATec3Log, 4, 4},
    {Message::NotAMapFile, 2, 2},
    {Message::NotAUTECCSVLog, 6, 6},
    // Kept as it has always read: "That doesn't look like a UTEC Fixed-Width  file to me.", with
    // two blanks.
    {Message::NotAUTECFixedLog, 7, 6},
};

/// What went wrong here is of use to whoever mends it.
constexpr Message kOwnFailures[] = {Message::SomethingWentWrong, Message::HelpFailed,
                                    Message::SettingsNotWritten};

}  // namespace

Messages::Messages(Host& host, std::function<std::string(int)> fileTypeDescription)
    : host_(host), fileTypeDescription_(std::move(fileTypeDescription)) {}

void Messages::ShowMessage(Message id, bool nonModal, const std::string& extra) {
  const bool ownFailure =
      std::find(std::begin(kOwnFailures), std::end(kOwnFailures), id) != std::end(kOwnFailures);
  if (Failed && ownFailure) Failed(id, BoxOf(id, extra).text);
  if (nonModal && ShowNonModal)
    ShowNonModal(id, BoxOf(id, extra).text);
  else
    host_.Ask(BoxOf(id, extra));
}

void Messages::ShowMessageWithOffer(Message id, const std::string& extra, const std::string& offer,
                                    std::function<void()> take) {
  Box box = BoxOf(id, extra);
  box.offer = offer;
  box.takeOffer = std::move(take);
  host_.Ask(box);
}

bool Messages::AskQuestion(Question id, bool defaultNo) {
  int style = kBoxYesNo | kBoxQuestion;
  if (defaultNo) style |= kBoxSecondIsDefault;
  return Tell(QuestionText(id), style) == Reply::Yes;
}

TellMessage Messages::Teller() {
  return [this](Message id, const std::string& extra) { ShowMessage(id, false, extra); };
}

Reply Messages::Tell(const std::string& text, int style) {
  return host_.Ask({0, text, style, kApplicationTitle});
}

Box Messages::BoxOf(Message id, const std::string& extra) const {
  Box box{static_cast<int>(id), Text(id), Style(id), kApplicationTitle};
  if (extra.empty()) return box;
  box.text += "\r\n\r\n";
  box.detailsFrom = box.text.size();
  box.text += extra;
  return box;
}

std::string Messages::Text(Message id) const {
  if (const MessageRow* row = FindMessage(id)) return row->text;
  const auto wrong = std::find_if(std::begin(kWrongFiles), std::end(kWrongFiles),
                                  [id](const auto& row) { return row.id == id; });
  if (wrong == std::end(kWrongFiles)) return "Unknown error.";
  const auto description = [this](int type) -> std::string {
    if (fileTypeDescription_) return fileTypeDescription_(type);
    return "";
  };
  std::size_t length = description(wrong->lengthFrom).size();
  if (length > 0) --length;
  return "That doesn't look like a " + description(wrong->fileType).substr(0, length) +
         " file to me.\r\nPlease ensure correct file type is chosen when opening a file.";
}

int Messages::Style(Message id) {
  const MessageRow* row = FindMessage(id);
  if (!row) return kBoxExclamation;
  return static_cast<int>(row->icon);
}

}  // namespace tarnview
