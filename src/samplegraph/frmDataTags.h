#pragma once

#include "model/clsLogTags.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/ListView.h"

namespace tarnview {

/// The tags of a log. It stays while other logs are loaded, with a copy of its own, and what it
/// does then changes that copy alone.
class frmDataTags : public Form {
 public:
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    /// The stretch that the range boxes hold, as a tag; false if that is none within the log.
    virtual bool CurrentRange(clsLogTag& tag) const = 0;
    /// Writes the stretch into the range boxes and draws it.
    virtual void ShowRange(const clsLogTag& tag) = 0;
    /// The open log has a tag more, or one less.
    virtual void TagsChanged() = 0;
  };

  /// `logTags`: of the log that is open.
  frmDataTags(Host& itsHost, clsLogTags& logTags, MainWindow& mainWindow);

  ListView lvwTags{*this, "lvwTags", {{"From", true}, {"To", true}}};
  CommandButton cmdNew{*this, "cmdNew", "&New"};
  CommandButton cmdShow{*this, "cmdShow", "&Show..."};
  CommandButton cmdDelete{*this, "cmdDelete", "&Delete"};
  CommandButton cmdClose{*this, "cmdClose", "&Close"};

  /// Adds the range of the main window as a tag of the open log, whose tags are then on show.
  void NewDataTag();
  /// Shows the tags of the open log, with the row `lngSelect` selected: the first if it is below 1,
  /// the last if it is beyond the end.
  void PopulateList(int lngSelect);
  /// The open log is about to go: its tags stay on show.
  void LogIsClosing() { ofOpenLog_ = false; }
  /// Shows the tags of the open log, where those of another are still on show.
  void FollowOpenLog() {
    if (!ofOpenLog_) PopulateList(1);
  }

 protected:
  void Form_Load() override;

 private:
  void FillList(int lngSelect);
  /// The place of the selected row's tag; 0 for none.
  int Selected() const;
  void cmdShow_Click();
  void cmdDelete_Click();

  clsLogTags& logTags_;
  clsLogTags shown_;        ///< as the rows
  bool ofOpenLog_ = false;  ///< they are those of the open log
  MainWindow& mainWindow_;
};

}  // namespace tarnview
