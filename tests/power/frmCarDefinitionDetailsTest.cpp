#include "power/CarTold.h"
#include "power/frmCarDefinitionDetails.h"
#include "support/DeskTest.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

class CarDetails : public DeskTest {
 protected:
  CarDetails() {
    story.Verb("open", [this](const auto&) { Open(); });
    story.Fact("car", [this] {
      if (!window) return std::string();
      return std::string(window->Accepted() ? "accepted" : "") + CarTold(window->ColItem());
    });
  }
  void Open(const clsCarDef& car = {}) {
    window.emplace(
        host, frmCarDefinitionDetails::Surroundings{folder, files, clock, errors, messages}, car);
    window->Show();
  }

  std::string folder = "/cars";
  std::optional<frmCarDefinitionDetails> window;
};

TEST_F(CarDetails, ShowsACarAndGivesItBackOnOK) {
  Open();
  ExpectWhole(*window, TARNVIEW_TESTS);
  EXPECT_STORY(story);
}

TEST_F(CarDetails, ASizeThatNoTyreListHasIsKept) {
  clsCarDef car;
  car.lngTyreWidth = 187;
  Open(car);
  EXPECT_EQ(window->cboTyreWidth.Text(), "187");
  window->cmdOK.Press();
  EXPECT_EQ(window->ColItem().lngTyreWidth, 187);
}

TEST_F(CarDetails, OtherUnitsAskToConvertAndChangeTheLabelsInAnyCase) {
  Open();
  EXPECT_STORY(story);
}

TEST_F(CarDetails, AChangedFormAsksBeforeItIsLeft) { EXPECT_STORY(story); }

TEST_F(CarDetails, SavesAndLoadsFilesOfItsFields) {
  Open();
  files.files["/cars/other.car"] =
      "Car Definition Details:\nName=Other\nUnits=M\nTyre Size Method=3\nTyre Width=187\n";
  files.files["/cars/none.car"] = "Name=Other\n";
  // A file that is none leaves the fields; the units of one that is ask nothing.
  EXPECT_STORY(story);
  const std::string text = files.files["/cars/mine.car"];
  EXPECT_NE(text.find("Name=Mine\r\nDescription=New Car Definition\r\nUnits=I\r\n"),
            std::string::npos)
      << text;
}

}  // namespace
}  // namespace tarnview
