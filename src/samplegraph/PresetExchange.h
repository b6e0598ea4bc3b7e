#pragma once

#include <functional>
#include <string>

#include "base/Text.h"
#include "desk/FileExchange.h"
#include "model/Catalogue.h"
#include "model/clsLogFamilies.h"
#include "ui/ComboBox.h"
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

/// What the details windows of presets have in common: a name, a log family, and files to exchange
/// the preset with, of which the user is asked and told.
class PresetExchange {
 public:
  /// One kind of file.
  struct Kind {
    const char* extension;  ///< with its point
    const char* filter;     ///< of the dialogs
  };
  /// The boxes with what each preset has.
  struct Controls {
    TextBox& txtName;
    ComboBox& cboLogFamily;
  };
  PresetExchange(Form& window, const Controls& controls, const PresetSurroundings& surroundings,
                 const Kind& kind);
  PresetExchange(const PresetExchange&) = delete;
  PresetExchange& operator=(const PresetExchange&) = delete;

  int Family() const { return controls_.cboLogFamily.ListIndex() + 1; }
  void ShowHead(const std::string& name, int family);
  std::string Name() const { return std::string(Trim(controls_.txtName.Text())); }

  /// A preset needs a name; false where there is none, and the user was told.
  bool HasName();
  /// Asks about the log family and for the file, and writes the text.
  void Save(const std::function<std::string(bool blnWriteFamily, const Moment& now)>& text);
  /// Asks for the file and hands its bytes over; an error in it is told.
  void Load(const std::function<void(std::string_view bytes)>& take);
  /// Whether a preset of that family (0: of any) is to be taken although another one is selected.
  bool AgreesToFamily(int lngLogFamily);
  /// Tells which numbers of a file are no items of the family; an empty text tells nothing.
  void TellNotRelevant(const std::string& items);

 private:
  Controls controls_;
  PresetSurroundings around_;
  FileExchange files_;
};

}  // namespace tarnview
