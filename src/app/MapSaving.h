#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "app/Globals.h"
#include "app/RecentFiles.h"
#include "desk/StatusArea.h"
#include "ui/Host.h"

namespace tarnview {

/// Saves the zone settings of the open file as a MAP file, and sees that edited ones are not lost.
class MapSaving {
 public:
  /// `fileChanged` runs after the open file got another name.
  MapSaving(Globals& globals, Services& services, StatusArea& status, RecentFiles& recent,
            std::function<void()> fileChanged);

  /// A file was opened and held these bytes; only a MAP file is ever written over.
  void FileOpened(int fileType, std::string_view bytes);
  bool MaySave() const;
  bool MaySaveAs() const;

  // True: the file was written; else the user knows why.
  bool Save();
  bool SaveAs();
  /// False: the user does not want to lose edited zones.
  bool SaveChangesPrompt();

 private:
  Dialog ToOpenFile() const;
  bool MayOverwrite();
  bool Write();

  Globals& globals_;
  Services& services_;
  StatusArea& status_;
  RecentFiles& recent_;
  std::function<void()> fileChanged_;
  std::size_t bytesOnDisk_ = 0;  ///< a mark of what the file held when it was read or written last
  bool failed_ = false;          ///< the last save; Save As gets out of it
};

}  // namespace tarnview
