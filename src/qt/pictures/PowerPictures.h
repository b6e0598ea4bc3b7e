#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Program.h"
#include "power/frmCarDefinitionDetails.h"
#include "power/frmPowerBenchComments.h"
#include "power/frmPowerBenchDetails.h"
#include "power/frmSpeedGraph.h"

namespace tarnview {

/// The windows of power graphs, for those who look at all windows.
class PowerPictures {
 public:
  /// With a log that is open in the program, its runs are drawn, and the saved graph beside the log
  /// (".pow" in place of its ending) is the benchmark of the second.
  PowerPictures(Program& program, Clock& clock, FileSystem& files, ErrorLog& errors,
                Messages& messages, const std::string& log);

  std::vector<Form*> Forms();

 private:
  frmPowerGraph& OpenRun(const FoundRun& run);

  Program& program_;
  std::vector<frmPowerGraph*> graphs_;  ///< the main window's
  std::string workingDirectory_;
  std::unique_ptr<frmSpeedGraph> speedGraph_;
  std::unique_ptr<frmPowerBenchComments> comments_;
  std::unique_ptr<frmPowerBenchDetails> details_;
  std::unique_ptr<frmCarDefinitionDetails> car_;
};

}  // namespace tarnview
