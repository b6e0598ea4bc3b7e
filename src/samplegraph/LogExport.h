#pragma once

#include <string>
#include <vector>

#include "base/FileSystem.h"
#include "desk/StatusArea.h"
#include "model/OpenLog.h"
#include "samplegraph/PlotRange.h"
#include "ui/CheckBox.h"
#include "ui/ListView.h"

namespace tarnview {

/// The log's path with the extension ".csv"; of a log that has it itself, "_export.csv" behind its
/// name.
std::string GetExportPathFile(const std::string& strLogFile);

/// Writes the samples of the plot range to a comma-separated text, with the items of the list
/// beside the graph and values as the user sees them. The format knows no quoting.
class LogExport {
 public:
  struct Controls {
    ListView& lvwSampleDetails;
    CheckBox& chkShowCheckedOnly;
  };
  LogExport(const Controls& controls, const PlotRange& range, const OpenLog& log, FileSystem& files,
            StatusArea& status);

  /// What the dialog offers: the log's own name, then what was chosen for it last.
  std::string gstrExportPathFile;

  /// `fileType` is the name of the log's type. A file that cannot be written is a RuntimeError.
  void ExportDataLog(const std::string& strFile, const std::string& fileType);

 private:
  std::vector<int> Columns() const;

  Controls controls_;
  const PlotRange& range_;
  const OpenLog& log_;
  FileSystem& files_;
  StatusArea& status_;
};

}  // namespace tarnview
