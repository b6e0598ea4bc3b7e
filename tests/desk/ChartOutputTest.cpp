#include <gtest/gtest.h>

#include "desk/ChartOutput.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

class ChartOutputTest : public ::testing::Test {
 protected:
  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, "/car/error.log"};
  Messages messages{host, [](int) { return ""; }};
  ChartOutput output{host, messages, errors};
  Form form{host, "frmAny", "Any"};
  Chart chart{form, "chAny"};
  const PrintDetails details{" Sample Graph", {{"File", "/logs/run.txt"}}};
};

TEST_F(ChartOutputTest, ACancelledDialogEndsQuietly) {
  output.Print(chart, details);
  output.SavePictureAs(chart, "/logs/run.txt");
  EXPECT_EQ(host.boxes.size(), 2u) << "the two dialogs";
  EXPECT_TRUE(host.messages.empty());
  EXPECT_TRUE(host.pages.empty());
  EXPECT_TRUE(host.pictures.empty());
  EXPECT_FALSE(files.FileExists("/car/error.log"));
}

TEST_F(ChartOutputTest, APageHasTitleDetailsAndPicture) {
  host.answers = {{Answer::Kind::Printer}};
  output.Print(chart, details);
  output.PrintPreview(chart, details);
  ASSERT_EQ(host.pages.size(), 2u);
  for (const RecordingPage& page : host.pages) {
    ASSERT_EQ(page.texts.size(), 3u);
    EXPECT_EQ(page.texts[0].text, "Tarnview Sample Graph");
    EXPECT_EQ(page.texts[1].text, "File : ");
    EXPECT_EQ(page.texts[2].text, "/logs/run.txt");
    EXPECT_EQ(page.pictures.size(), 1u);
  }
}

TEST_F(ChartOutputTest, APictureIsNamedAfterTheLogAndGetsTheEndingOfTheChosenKind) {
  host.answers = {
      {Answer::Kind::Ok}, {Answer::Kind::File, "/out/a.svg"}, {Answer::Kind::File, "/out/b", 0, 3}};
  for (int i = 0; i < 3; ++i) output.SavePictureAs(chart, "/logs/run.1.txt");
  EXPECT_EQ(host.pictures,
            (std::vector<std::string>{"/logs/run.1.png", "/out/a.svg", "/out/b.pdf"}));
}

TEST_F(ChartOutputTest, AFailureIsToldAndLogged) {
  host.refusal = "The disk is full.";
  host.answers = {{Answer::Kind::File, "/out/a.png"}, {Answer::Kind::Ok}, {Answer::Kind::Printer}};
  output.SavePictureAs(chart, "/logs/run.txt");
  output.Print(chart, details);
  ASSERT_EQ(host.messages.size(), 2u);
  EXPECT_EQ(host.messages[0].text,
            "Problem saving the picture /out/a.png.\r\n\r\nThe disk is full.");
  EXPECT_EQ(host.messages[1].text, "Problem printing the graph.\r\n\r\nThe disk is full.");
  EXPECT_NE(std::string_view(files.Read("/car/error.log").value_or("")).find("The disk is full."),
            std::string_view::npos);
}

}  // namespace
}  // namespace tarnview
