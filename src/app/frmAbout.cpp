#include "app/frmAbout.h"

#include "app/Version.h"

namespace tarnview {

frmAbout::frmAbout(Host& itsHost, const DefinitionDetails& definition,
                   std::function<void()> startSysInfo)
    : Form(itsHost, "frmAbout", "About Tarnview") {
  lblVersion.Caption = std::string("Version ") + kVersion;
  lblDescription.Caption = std::string(kDescription);
  lblDLDName.Caption = definition.strName;
  lblDLDVersion.Caption = definition.strVersion;
  lblDLDComments.Caption = definition.strComments;
  fraDLD.Visible = !definition.strName.empty();
  DefaultButton = CancelButton = &cmdOK;
  HelpTopic = "Start";
  cmdOK.Click = [this] { Unload(); };
  cmdSysInfo.Click = std::move(startSysInfo);
}

}  // namespace tarnview
