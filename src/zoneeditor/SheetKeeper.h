#pragma once

#include <string>

#include "zones/ZoneSheet.h"

namespace tarnview {

/// Who keeps the sheet that the parts of the editor show and change.
class SheetKeeper {
 public:
  virtual const ZoneSheet& Sheet() const = 0;
  /// What the sheet was when the editor opened.
  virtual const ZoneSheet& OpenedSheet() const = 0;
  /// One step of the history. Everything is shown anew, also where nothing changed.
  virtual void Do(std::string step, ZoneSheet after) = 0;
  /// A word to the user that needs no answer.
  virtual void Say(std::string text) = 0;

 protected:
  ~SheetKeeper() = default;
};

}  // namespace tarnview
