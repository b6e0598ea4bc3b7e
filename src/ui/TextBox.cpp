#include "ui/TextBox.h"

#include "ui/Form.h"

namespace tarnview {

void TextBox::Perform(const Action& action) {
  if (action.verb != "type") return Control::Perform(action);
  if (ReadOnly) throw CannotDo(FullName() + " cannot be edited");
  Text = action.Word(0);
  form.SetFocus(nullptr);
}

}  // namespace tarnview
