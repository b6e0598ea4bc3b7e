#pragma once

#include <vector>

#include "ui/Control.h"

namespace tarnview {

/// A drop-down list; with `Editable` its text can also be typed.
class ComboBox : public Control {
 public:
  ComboBox(Form& owner, std::string itsName, bool editable = false, int itsIndex = -1);

  const bool Editable;
  Property<std::string> Text;
  Event<> Change;  ///< after each change of Text, by hand or from code
  Event<> Click;   ///< after an entry was chosen, by hand or from code

  void SetList(std::vector<std::string> entries);
  const std::vector<std::string>& Entries() const { return entries_; }
  /// From 0; -1 when Text is none of the entries. Of equal entries the one that was chosen, else
  /// the first.
  int ListIndex() const;
  /// Chooses an entry; an index outside the list empties Text.
  void SetListIndex(int entry);
  /// Chooses the first entry of this text; false, and nothing changes, where there is none.
  bool Choose(const std::string& text);

  std::string_view Kind() const override { return "combo box"; }
  bool TakesFocus() const override { return true; }
  void Describe(Object& facts) const override;

 protected:
  void Perform(const Action& action) override;

 private:
  std::vector<std::string> entries_;
  std::size_t chosen_ = 0;
};

/// The entry that "choose" means: a text, or "#" and an index from 0. Throws CannotDo.
int EntryOf(const std::vector<std::string>& entries, const Action& action);

}  // namespace tarnview
