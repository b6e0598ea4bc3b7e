#pragma once

#include <functional>
#include <string>

#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"

namespace tarnview {

/// What About tells of the current Universal definition.
struct DefinitionDetails {
  std::string strName;
  std::string strVersion;
  std::string strComments;
};

class frmAbout : public Form {
 public:
  /// `startSysInfo` runs the system's information tool.
  frmAbout(Host& itsHost, const DefinitionDetails& definition, std::function<void()> startSysInfo);

  Label lblTitle{*this, "lblTitle", "Tarnview"};
  Label lblVersion{*this, "lblVersion"};
  Label lblDescription{*this, "lblDescription"};
  Frame fraDLD{*this, "fraDLD", "Universal Data Log Definition"};
  Label lblDLDName{*this, "lblDLDName"};
  Label lblDLDVersion{*this, "lblDLDVersion"};
  Label lblDLDComments{*this, "lblDLDComments"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdSysInfo{*this, "cmdSysInfo", "&System Info..."};
};

}  // namespace tarnview
