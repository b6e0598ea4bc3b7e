#pragma once

#include <functional>
#include <string>

#include "base/Clock.h"
#include "base/ErrorLog.h"
#include "base/FileSystem.h"
#include "desk/Messages.h"
#include "model/Catalogue.h"
#include "model/clsLogFamilies.h"
#include "ui/Form.h"
#include "ui/TextBox.h"

namespace tarnview {

/// What the details window of a preset asks of the program.
struct PresetSurroundings {
  const clsLogFamilies& families;
  const Catalogue& catalogue;
  const std::string& workingDirectory;  ///< where the first file is looked for
  FileSystem& files;
  Clock& clock;
  ErrorLog& errors;
  Messages& messages;
};

/// How the details window of a preset exchanges it with files: the dialogs, the file used last
/// since the window opened, and what the user is asked and told.
class PresetExchange {
 public:
  /// One kind of file.
  struct Kind {
    const char* extension;  ///< with its point
    const char* filter;     ///< of the dialogs
  };
  PresetExchange(Form& window, TextBox& txtName, const PresetSurroundings& surroundings,
                 const Kind& kind)
      : window_(window), txtName_(txtName), around_(surroundings), kind_(kind) {}

  /// A preset needs a name; false where there is none, and the user was told.
  bool HasName();
  /// Asks about the log family and for the file, and writes the text.
  void Save(const std::function<std::string(bool blnWriteFamily, const Moment& now)>& text);
  /// Asks for the file and hands its bytes over; an error in it is told.
  void Load(const std::function<void(std::string_view bytes)>& take);
  /// Whether a preset of that family (0: of any) is to be taken although another one is selected.
  bool AgreesToFamily(int lngLogFamily, int selected);
  /// Tells which numbers of a file are no items of the family; an empty text tells nothing.
  void TellNotRelevant(const std::string& items);

 private:
  Dialog DialogFor(DialogKind kind, const char* title) const;
  std::string ProposedFile() const;

  Form& window_;
  TextBox& txtName_;
  PresetSurroundings around_;
  Kind kind_;
  std::string lastFile_;
};

}  // namespace tarnview
