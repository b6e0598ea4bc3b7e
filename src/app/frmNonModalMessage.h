#pragma once

#include <functional>
#include <string>

#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/TextBox.h"

namespace tarnview {

/// A message that does not hold the program up.
class frmNonModalMessage : public Form {
 public:
  /// `unloaded(ID)` takes the window out of its collection.
  frmNonModalMessage(Host& itsHost, std::function<void(int)> unloaded);

  TextBox txtMessage{*this, "txtMessage"};
  CommandButton cmdClose{*this, "cmdClose", "&OK"};

  std::string MessageText() const { return txtMessage.Text; }
  void MessageText(const std::string& text) { txtMessage.Text = text; }
  int ID = 0;  ///< running number in the collection of such windows

 protected:
  void Form_Unload() override;

 private:
  std::function<void(int)> unloaded_;
};

}  // namespace tarnview
