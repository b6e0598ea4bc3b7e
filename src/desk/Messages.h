#pragma once

#include <functional>
#include <string>

#include "base/MessageTable.h"
#include "ui/Host.h"

namespace tarnview {

inline constexpr const char* kApplicationTitle = "Tarnview";
inline constexpr const char* kShortOfMemory = "There is not enough memory for that.";

/// The numbered messages and questions of the program.
class Messages {
 public:
  /// `fileTypeDescription(id)` gives the name of a file type ("FM Link Data Logs") for the
  /// wrong-file messages.
  Messages(Host& host, std::function<std::string(int)> fileTypeDescription);

  /// Shows a message in a box, or beside the program's own course where `nonModal`. `extra` (the
  /// bad item's name) follows behind an empty line.
  void ShowMessage(Message id, bool nonModal = false, const std::string& extra = "");
  /// The same in a box with one more button, "&Open Report" or the like.
  void ShowMessageWithOffer(Message id, const std::string& extra, const std::string& offer,
                            std::function<void()> take);
  /// A question with Yes and No; true on Yes. `defaultNo`: Enter presses No.
  bool AskQuestion(Question id, bool defaultNo = false);
  /// ShowMessage for a room that knows no windows.
  TellMessage Teller();
  /// A box of the program that has no number.
  Reply Tell(const std::string& text, int style);

  /// Text and style of a message; an unknown id gives "Unknown error." with style 48.
  std::string Text(Message id) const;
  static int Style(Message id);

  /// Told of each message that says that something of the program's own went wrong, for the error
  /// log.
  std::function<void(Message id, const std::string& text)> Failed;
  /// How a non-modal message is shown; the windows' room sets it. Unset, it is a box.
  std::function<void(Message id, const std::string& text)> ShowNonModal;

 private:
  Box BoxOf(Message id, const std::string& extra) const;

  Host& host_;
  std::function<std::string(int)> fileTypeDescription_;
};

}  // namespace tarnview
