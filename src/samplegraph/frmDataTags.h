#pragma once

#include "model/clsLogTags.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/ListView.h"

namespace tarnview {

/// The tags of the log that is open. It stays while other logs are loaded.
class frmDataTags : public Form {
 public:
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    /// The stretch that the range boxes hold, as a tag; false if that is none within the log.
    virtual bool CurrentRange(clsLogTag& tag) const = 0;
    /// Writes the stretch into the range boxes and draws it.
    virtual void ShowRange(const clsLogTag& tag) = 0;
  };

  frmDataTags(Host& itsHost, clsLogTags& tags, MainWindow& mainWindow);

  ListView lvwTags{*this, "lvwTags", {{"From", true}, {"To", true}}};
  CommandButton cmdNew{*this, "cmdNew", "&New"};
  CommandButton cmdShow{*this, "cmdShow", "&Show..."};
  CommandButton cmdDelete{*this, "cmdDelete", "&Delete"};
  CommandButton cmdClose{*this, "cmdClose", "&Close"};

  /// Adds the range of the main window as a tag.
  void NewDataTag();
  /// Refills the list and selects a row: the first if `lngSelect` is below 1, the last if it is beyond the end.
  void PopulateList(int lngSelect);

 protected:
  void Form_Load() override;

 private:
  void cmdShow_Click();
  void cmdDelete_Click();

  clsLogTags& tags_;
  MainWindow& mainWindow_;
};

}  // namespace tarnview
