#include <gtest/gtest.h>

#include "desk/PageLayout.h"
#include "ui/RecordingPage.h"

namespace tarnview {
namespace {

TEST(PageLayoutTest, APictureFillsTheWidthOrTheHeightAndKeepsItsShape) {
  const struct {
    double pageWidth, pageHeight, top, width, height;
    PageRect place;
  } rows[] = {
      // clang-format off
      {12240, 15840, 3000, 1400, 700, {720, 3000, 10800, 5400}},   // wide, on a portrait page: the width
      {15840, 12240, 3520, 1000, 1000, {3920, 3520, 8000, 8000}},  // on a landscape page: the height
      {12240, 15840, 3000, 3, 1.5, {720, 3000, 10800, 5400}},      // in another unit
      {1440, 15840, 3000, 1400, 700, {}},                          // no room between the margins
      {12240, 15840, 15120, 1400, 700, {}},                        // nor above the lower one
      // clang-format on
  };
  for (const auto& row : rows) {
    const PageRect at = PicturePlace(row.pageWidth, row.pageHeight, row.top, row.width, row.height);
    EXPECT_DOUBLE_EQ(at.left, row.place.left) << row.width;
    EXPECT_DOUBLE_EQ(at.top, row.place.top);
    EXPECT_DOUBLE_EQ(at.width, row.place.width);
    EXPECT_DOUBLE_EQ(at.height, row.place.height);
  }
}

TEST(PageLayoutTest, LabelsEndWhereValuesBeginAndTheBlockStandsInTheMiddle) {
  const RecordingPage page;  // a letter of 10 points is 100 twips wide, one of 24 is 240
  const PageLayout layout =
      LayOutPage(page, "Title", {{"File", "a.txt"}, {"Range", "1 to 9"}, {"", "2"}}, 0.5);
  ASSERT_EQ(layout.texts.size(), 6u);
  EXPECT_DOUBLE_EQ(layout.texts[0].left, (12240 - 5 * 240) / 2.0);
  EXPECT_EQ(layout.texts[0].points, 24);
  const double left = (12240 - (5 + 3 + 6) * 100) / 2.0;
  const struct {
    const char* text;
    double left, line;
  } rows[] = {{"File : ", left + 100, 0},
              {"a.txt", left + 800, 0},
              {"Range : ", left, 1},
              {"1 to 9", left + 800, 1},
              {"2", left + 800, 2}};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(layout.texts[i + 1].text, rows[i].text);
    EXPECT_DOUBLE_EQ(layout.texts[i + 1].left, rows[i].left) << rows[i].text;
    EXPECT_DOUBLE_EQ(layout.texts[i + 1].top, layout.texts[1].top + 200 * rows[i].line)
        << rows[i].text;
  }
  EXPECT_DOUBLE_EQ(layout.picture.top, layout.texts.back().top + 200 + 120)
      << "a line of 6 points lies between";
}

TEST(PageLayoutTest, AValueThatIsTooLongGoesOnInTheNextLineBehindASeparator) {
  const RecordingPage page;
  const std::string folder(60, 'f'), name(70, 'n');
  const PageLayout layout = LayOutPage(page, "T", {{"File", "/" + folder + "/" + name}}, 0.5);
  ASSERT_EQ(layout.texts.size(), 4u);
  EXPECT_EQ(layout.texts[2].text, "/" + folder + "/");
  EXPECT_EQ(layout.texts[3].text, name);
  for (const PlacedText& text : layout.texts) EXPECT_GE(text.left, 720);
}

TEST(PageLayoutTest, ManyDetailsGetSmallerAndNeverTakeThePicturesHalf) {
  const RecordingPage page;
  const auto laid = [&](std::size_t count) {
    return LayOutPage(page, "T", DetailRows(count, {"", "x"}), 0.5);
  };
  EXPECT_EQ(laid(30).texts.back().points, 10);
  EXPECT_EQ(laid(40).texts.back().points, 8);
  EXPECT_EQ(laid(2000).texts.back().points, 6);
  EXPECT_EQ(laid(2000).texts.back().text, "...");
  EXPECT_GT(laid(2000).picture.height, 5000);
  RecordingPage stamp;
  stamp.width = stamp.height = 100;
  EXPECT_EQ(LayOutPage(stamp, "T", {{"File", "long enough"}}, 0.5).picture.width, 0);
}

}  // namespace
}  // namespace tarnview
