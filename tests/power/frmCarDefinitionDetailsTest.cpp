#include <gtest/gtest.h>

#include "power/CarFile.h"
#include "power/frmCarDefinitionDetails.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

class CarDetails : public ::testing::Test {
 protected:
  void Open(const clsCarDef& car = {}) {
    window.emplace(
        host, frmCarDefinitionDetails::Surroundings{folder, files, clock, errors, messages}, car);
    window->Show();
  }
  void Answer(Answer::Kind kind, const std::string& path = "") {
    host.answers.push_back({kind, path});
  }
  std::string Questions() {
    std::string texts;
    for (const Box& box : host.messages) texts += box.text + "\n";
    host.messages.clear();
    return texts;
  }
  std::string Measures() const {
    return window->txtWheelRadius.Text() + " " + window->txtSetPointPower.Text() + " " +
           window->txtSetPointSpeed.Text() + " " + window->txtCarWeight.Text() + "+" +
           window->txtCarContentsWeight.Text() + "=" + window->txtTotalWeight.Text() + " " +
           window->txtTyreRPM.Text() + " " + window->txtFrontalArea.Text() + " " +
           window->lblCarWeight.Caption();
  }

  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, ""};
  Messages messages{host, [](int) { return ""; }};
  std::string folder = "/cars";
  std::optional<frmCarDefinitionDetails> window;
};

TEST_F(CarDetails, ShowsACarAndGivesItBackOnOK) {
  Open();
  EXPECT_EQ(Measures(), "11.50 100 115 2420+180=2600 887 2.00 Car Kerb Weight (lb)");
  EXPECT_EQ(window->txtGearRatios(2).Text() + " " + window->txtGearRatios(6).Text(), "1.330 4.100");
  EXPECT_EQ(
      window->cboTyreWidth.Text() + window->cboTyreProfile.Text() + window->cboWheelDiameter.Text(),
      "1856014");
  EXPECT_EQ(window->cboDefGear.Text(), "4th");
  window->txtName.Do({"type", {"Mine"}});
  window->txtGearRatios(6).Do({"type", {"3.9"}});
  window->cboWheelDiameter.Do({"choose", {"15"}});
  window->cboDefGear.Do({"choose", {"2nd"}});
  window->cmdOK.Do({"click", {}});
  EXPECT_TRUE(window->Accepted());
  EXPECT_EQ(window->ColItem().strName, "Mine");
  EXPECT_EQ(window->ColItem().dblDiffRatio, 3.9);
  EXPECT_EQ(window->ColItem().lngWheelDiameter, 15);
  EXPECT_EQ(window->ColItem().lngPowerRunGear, 1);
  EXPECT_EQ(Questions(), "");
}

TEST_F(CarDetails, EnterLeavesTheFieldFirst) {
  Open();
  window->optAeroCD.Do({"click", {}});
  window->txtCD.SetFocus();
  window->txtCD.Text = std::string("5");
  window->cmdOK.Press();
  EXPECT_EQ(window->ColItem().dblCD, 0.99);
}

TEST_F(CarDetails, ASizeThatNoTyreListHasIsKept) {
  clsCarDef car;
  car.lngTyreWidth = 187;
  Open(car);
  EXPECT_EQ(window->cboTyreWidth.Text(), "187");
  window->cmdOK.Press();
  EXPECT_EQ(window->ColItem().lngTyreWidth, 187);
}

TEST_F(CarDetails, OptionsEnableTheirOwnFields) {
  Open();
  const auto enabled = [this] {
    std::string text;
    for (Control* control : std::initializer_list<Control*>{
             &window->cboTyreWidth, &window->cboTyreProfile, &window->cboWheelDiameter,
             &window->txtTyreRPM, &window->txtWheelRadius, &window->txtSetPointPower,
             &window->txtSetPointSpeed, &window->txtCD, &window->txtFrontalArea})
      text += control->Enabled() ? "1" : "0";
    return text;
  };
  EXPECT_EQ(enabled(), "111001100");
  window->optRevsPerMile.Do({"click", {}});
  EXPECT_EQ(enabled(), "000101100");
  window->optRadius.Do({"click", {}});
  window->optAeroCD.Do({"click", {}});
  EXPECT_EQ(enabled(), "000010011");
  window->txtCD.Do({"type", {"1.2"}});
  window->txtFrontalArea.Do({"type", {"abc"}});
  EXPECT_EQ(window->txtCD.Text() + " " + window->txtFrontalArea.Text(), "0.99 0.01");
  window->cmdOK.Press();
  EXPECT_EQ(window->ColItem().lngTyreSizeMethod, kTyreRadius);
  EXPECT_TRUE(window->ColItem().blnUseCD);
}

TEST_F(CarDetails, OtherUnitsAskToConvertAndChangeTheLabelsInAnyCase) {
  Open();
  Answer(Answer::Kind::Yes);
  window->optUnits(1).Do({"click", {}});
  EXPECT_EQ(Questions(), "Convert field entries from imperial to metric as well?\n");
  EXPECT_EQ(Measures(), "292.10 75 185 1098+82=1180 551 0.19 Car Kerb Weight (kg)");
  Answer(Answer::Kind::No);
  window->optUnits(0).Do({"click", {}});
  EXPECT_EQ(Questions(), "Convert field entries from metric to imperial as well?\n");
  EXPECT_EQ(Measures(), "292.10 75 185 1098+82=1180 551 0.19 Car Kerb Weight (lb)");
  EXPECT_EQ(window->optRevsPerMile.Caption() + ", " + window->optRadius.Caption(),
            "Revs per Mile, Drive Wheel Radius (inches)");
}

TEST_F(CarDetails, AChangedFormAsksBeforeItIsLeft) {
  Open();
  window->cmdCancel.Press();
  EXPECT_EQ(Questions(), "");
  EXPECT_FALSE(window->Accepted());
  for (const bool keep : {false, true}) {
    Open();
    window->txtDesc.Do({"type", {"changed"}});
    Answer(keep ? Answer::Kind::Yes : Answer::Kind::No);
    window->cmdCancel.Press();
    EXPECT_EQ(Questions(), "Do you want to keep Car Definition changes?\n");
    EXPECT_EQ(window->Accepted(), keep);
    EXPECT_EQ(window->ColItem().strDesc, keep ? "changed" : "New Car Definition");
    EXPECT_FALSE(window->IsShown());
  }
}

TEST_F(CarDetails, SavesAndLoadsFilesOfItsFields) {
  Open();
  window->txtName.Do({"type", {"Mine"}});
  Answer(Answer::Kind::File, "/cars/mine");
  window->cmdSave.Press();
  EXPECT_EQ(host.boxes.size(), 1u);
  const std::string text = files.files["/cars/mine.car"];
  EXPECT_NE(text.find("Name=Mine\r\nDescription=New Car Definition\r\nUnits=I\r\n"),
            std::string::npos)
      << text;
  files.files["/cars/other.car"] =
      "Car Definition Details:\nName=Other\nUnits=M\nTyre Size Method=3\nTyre Width=187\n";
  Answer(Answer::Kind::File, "/cars/other.car");
  window->cmdLoad.Press();
  EXPECT_EQ(Questions(), "") << "a file's units ask nothing";
  EXPECT_EQ(window->txtName.Text() + " " + window->cboTyreWidth.Text(), "Other 187");
  EXPECT_TRUE(window->optRadius.Value());
  EXPECT_EQ(Measures(), "11.50 100 115 2420+180=2600 887 2.00 Car Kerb Weight (kg)");
}

TEST_F(CarDetails, AFileThatIsNoneTellsSoAndLeavesTheFields) {
  Open();
  files.files["/cars/none.car"] = "Name=Other\n";
  for (const char* path : {"/cars/none.car", "/cars/missing.car"}) {
    Answer(Answer::Kind::File, path);
    window->cmdLoad.Press();
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].id, 57);
    Questions();
    EXPECT_EQ(window->txtName.Text(), "New");
  }
}

}  // namespace
}  // namespace tarnview
