#pragma once

#include <string>
#include <vector>

#include "ui/RecordingHost.h"

namespace tarnview {

class Control;

/// The user of a recording desktop, told in words: works any window by its controls' names. It
/// knows controls and not windows: what an action does to a control is the control's own affair.
class ScriptUser {
 public:
  using Words = std::vector<std::string>;
  explicit ScriptUser(RecordingHost& host) : host_(host) {}

  /// "key KEYS", "answer REPLY [PATH]", "close [WINDOW]", "popup CONTROL ENTRY"; false for another
  /// verb. Throws CannotDo.
  bool Do(const Words& words);
  /// "VERB CONTROL WORD...": an action of that control. Throws CannotDo.
  void Work(const Words& words);

  /// The window in front. Throws CannotDo where none is open.
  Form& Active();
  /// "NAME", or "NAME.2" for the second of that class; nullptr if it is not open.
  Form* FindWindow(const std::string& text);
  /// "NAME", or "WINDOW/NAME" in another window than the front one. Throws CannotDo.
  Control& FindControl(const std::string& text);

 private:
  void PressKey(const Words& words);
  void QueueAnswer(const Words& words);
  void Close(const Words& words);
  void Popup(const Words& words);

  RecordingHost& host_;
};

/// Word n from 0; throws CannotDo when there are fewer.
const std::string& WordAt(const ScriptUser::Words& words, std::size_t n);

}  // namespace tarnview
