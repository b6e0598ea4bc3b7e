#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Customising.h"
#include "app/Program.h"
#include "app/frmAbout.h"
#include "app/frmFindINIFile.h"
#include "app/frmNonModalMessage.h"
#include "app/frmSplash.h"
#include "customise/frmLineFrequency.h"
#include "customise/frmLogDescription.h"
#include "customise/frmOptions.h"
#include "qt/pictures/PowerPictures.h"
#include "samplegraph/frmGoto.h"
#include "samplegraph/frmNewPresetName.h"
#include "samplegraph/frmPresetSampleDetails.h"
#include "scatter/frmPresetScatterDetails.h"
#include "scatter/frmScatterFilter.h"
#include "universal/BuiltInTitles.h"
#include "zoneeditor/frmBenchmarkDetails.h"
#include "zoneeditor/frmCopyBench.h"
#include "zoneeditor/frmGridGraph.h"
#include "zoneeditor/frmLoadBenchmark.h"
#include "zoneeditor/frmOffset.h"
#include "zoneeditor/frmZoneData.h"

namespace tarnview {

/// One of each window, for those who look at all of them: the walk over their controls, the
/// pictures.
class AllWindows {
 public:
  /// Loads them; with a log, the main window draws it, and the others hold something to show.
  /// Without a settings file every setting has its default, and none is ever written.
  explicit AllWindows(Host& host, const std::string& log = "",
                      const std::string& settingsFile = "");
  ~AllWindows();

  std::vector<Form*> Forms();
  /// The program behind the main window.
  Program& TheProgram() { return program_; }

 private:
  struct NoMainWindow;
  struct WholeDrive;

  void Fill();
  void MakeGraphWindows();
  void MakeScatterDetails(bool filled);
  void MakeScatterGraphs();
  void MakeEcuWindows(bool filled);
  void MakeOptions(bool filled);
  void MakeGridGraphs();
  ZoneEditorParameters ZonesToEdit() const;
  void MakeZoneEditors();
  void MakeZoneDialogs();

  RealFileSystem files_;
  RealClock clock_;
  RealProcesses processes_;
  ErrorLog errors_{files_, clock_, ""};
  Messages messages_;
  EXEFunctions programs_;
  Program program_;
  std::unique_ptr<NoMainWindow> mainWindow_;
  clsLogTags tagList_;
  frmSplash splash_;
  frmAbout about_;
  frmNonModalMessage message_;
  frmDataTags tags_;
  OpenLog oneSample_;  ///< stands in where no log is open
  // The windows that need a program which has started.
  std::unique_ptr<frmGoto> goto_;
  std::unique_ptr<frmNewPresetName> newPreset_;
  std::unique_ptr<MaintainedCollection<clsSampleGraphPresets>> presetList_;
  std::unique_ptr<frmMaint> maint_;
  std::unique_ptr<frmPresetSampleDetails> presetDetails_;
  std::unique_ptr<frmPresetScatterDetails> scatterDetails_;
  std::unique_ptr<frmScatterFilter> filter_;
  std::vector<Form*> scatterGraphs_;  ///< the main window's
  std::unique_ptr<PowerPictures> power_;
  std::vector<std::unique_ptr<frmGridGraph>> gridGraphs_;
  std::unique_ptr<WholeDrive> drive_;
  std::vector<std::unique_ptr<Form>> zoneWindows_;
  std::unique_ptr<DefinitionFiles> definitionFiles_;
  std::unique_ptr<frmFindINIFile> firstRun_;
  std::vector<std::unique_ptr<Form>> ecuWindows_;
  std::vector<std::unique_ptr<frmOptions>> options_;  ///< one for each page, where they are filled
  TitleDictionary titles_{BuiltInTitles()};
  std::unique_ptr<frmLogDescription> logDescription_;
  std::unique_ptr<frmLineFrequency> lineFrequency_;
};

}  // namespace tarnview
