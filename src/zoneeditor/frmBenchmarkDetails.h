#pragma once

#include <functional>
#include <string>

#include "base/Clock.h"
#include "base/FileSystem.h"
#include "desk/Messages.h"
#include "model/Settings.h"
#include "model/clsFileTypes.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/TextBox.h"
#include "zones/ZoneMap.h"

namespace tarnview {

/// Makes and changes one benchmark: its name, the file that it comes from, its zones.
class frmBenchmarkDetails : public Form {
 public:
  struct Surroundings {
    const clsFileTypes& types;
    const Settings& settings;
    FileSystem& files;
    Clock& clock;
    Messages& messages;
    /// Opens the zone editor on a map under a name; true where it was changed.
    std::function<bool(ZoneMap& map, const std::string& name)> editZones;
  };
  frmBenchmarkDetails(Host& itsHost, const Surroundings& surroundings, const clsBenchmark& ColItem);

  Label lblName{*this, "lblName", "&Name"};
  TextBox txtName{*this, "txtName"};
  Label lblFile{*this, "lblFile", "&File"};
  TextBox txtFile{*this, "txtFile"};
  CommandButton cmdBrowse{*this, "cmdBrowse", "&Browse..."};
  CommandButton cmdLoad{*this, "cmdLoad", "&Load"};
  CommandButton cmdSave{*this, "cmdSave", "&Save..."};
  CommandButton cmdZones{*this, "cmdZones", "&Zones..."};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// As the user left it.
  const clsBenchmark& ColItem() const { return benchmark_; }

 protected:
  void Form_Load() override;

 private:
  void Enable();
  void cmdBrowse_Click();
  bool Load();
  void cmdSave_Click();
  void cmdZones_Click();
  void cmdOK_Click();

  Surroundings around_;
  clsBenchmark benchmark_;
  bool toLoad_ = false;  ///< another file was chosen and is not loaded yet
};

}  // namespace tarnview
