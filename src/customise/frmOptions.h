#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/ErrorLog.h"
#include "customise/DataItemPage.h"
#include "customise/FindSetting.h"
#include "customise/OptionFields.h"
#include "customise/OptionPaths.h"
#include "customise/OptionsDraft.h"
#include "customise/PowerDefaults.h"
#include "desk/Messages.h"

namespace tarnview {

/// The one window in which every setting is found: four pages over one draft.
class frmOptions : public OptionsControls {
 public:
  struct Surroundings {
    FileSystem& files;
    ErrorLog& errors;
    Messages& messages;
  };
  /// `fileType` is that of the log that is open, or the default one: its items are listed first.
  frmOptions(Host& itsHost, const Surroundings& around, OptionsDraft draft, int fileType);

  /// What the user made of it.
  OptionsDraft& Draft() { return draft_; }
  /// Another definition file was chosen than the window was opened with.
  bool DefinitionChanged() const {
    return Accepted() && Opened(DefinitionFile) != loadedDefinition_;
  }

 protected:
  void Form_Load() override;

 private:
  void SetUpLists();
  void SetUpCaptions();
  void BindFields();
  void StepAngle(int field, int by);
  const std::string& Opened(int path) const { return opened_[static_cast<std::size_t>(path)]; }
  bool ValidatePath(int index);
  bool LoadDataLogDefinitionLocal();
  void UpdateGenericDescriptions();
  bool ValidatePaths();
  void cmdOK_Click();

  Surroundings around_;
  OptionsDraft draft_;
  int firstFamily_;
  OptionFields fields_{*this};
  PowerDefaults power_{*this};
  DataItemPage items_{*this, draft_};
  OptionPaths paths_{*this, around_.files, around_.messages};
  std::vector<std::string> opened_;  ///< the paths that the window was opened with
  std::string loadedDefinition_;     ///< the file of the draft's definition
  std::optional<FindSetting> find_;
};

}  // namespace tarnview
