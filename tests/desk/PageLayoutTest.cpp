#include "desk/PageLayout.h"
#include "support/Table.h"
#include "ui/RecordingPage.h"

namespace tarnview {
namespace {

TEST(PageLayoutTest, APictureFillsTheWidthOrTheHeightAndKeepsItsShape) {
  // What, width and height of the page, where the picture may begin, and its own width and height.
  ExpectTable(
      [](const TableRow& row) {
        const PageRect at =
            PicturePlace(row.Number(1), row.Number(2), row.Number(3), row.Number(4), row.Number(5));
        return NumberText(at.left) + " " + NumberText(at.top) + " " + NumberText(at.width) + " x " +
               NumberText(at.height);
      },
      R"(
wide on a portrait page: the width, 12240, 15840, 3000, 1400, 700 -> 720 3000 10800 x 5400
on a landscape page: the height, 15840, 12240, 3520, 1000, 1000 -> 3920 3520 8000 x 8000
in another unit, 12240, 15840, 3000, 3, 1.5 -> 720 3000 10800 x 5400
no room between the margins, 1440, 15840, 3000, 1400, 700 -> 0 0 0 x 0
nor above the lower one, 12240, 15840, 15120, 1400, 700 -> 0 0 0 x 0
)");
}

/// Each text at its place, then the picture. A letter of 10 points is 100 twips wide, a line 200
/// high.
std::string Told(const DetailRows& rows, double width = 12240) {
  RecordingPage page;
  page.width = width;
  const PageLayout layout = LayOutPage(page, "Title", rows, 0.5);
  std::string told;
  const auto add = [&](double number) { told += FixedText(number, 0) + " "; };
  for (const PlacedText& text : layout.texts) {
    add(text.left);
    add(text.top);
    add(text.points);
    told += text.text + "\n";
  }
  add(layout.picture.left);
  add(layout.picture.top);
  add(layout.picture.width);
  return told + "\n";
}

TEST(PageLayoutTest, LabelsEndWhereValuesBeginAndTheBlockStandsInTheMiddle) {
  EXPECT_EQ(Told({{"File", "a.txt"}, {"Range", "1 to 9"}, {"", "2"}}), R"(5520 720 24 Title
5520 1320 10 File : 
6220 1320 10 a.txt
5420 1520 10 Range : 
6220 1520 10 1 to 9
6220 1720 10 2
720 2040 10800 
)");
  // A value that is too long goes on behind a separator, and a long label leaves it an inch.
  const std::string f = std::string(60, 'f'), n = std::string(70, 'n'), l = std::string(95, 'l');
  EXPECT_EQ(Told({{"File", "/" + f + "/" + n}}),
            "5520 720 24 Title\n2270 1320 10 File : \n2970 1320 10 /" + f + "/\n2970 1520 10 " + n +
                "\n720 1840 10800 \n");
  // 10,100 twips stand beside "File : ", the last separator among them.
  const std::string full = "a/" + std::string(98, 'f') + "/";
  EXPECT_EQ(Told({{"File", full + "gg"}}), "5520 720 24 Title\n720 1320 10 File : \n1420 1320 10 " +
                                               full + "\n1420 1520 10 gg\n720 1840 10800 \n");
  EXPECT_EQ(Told({{l, "123456789012345 one"}}),
            "5520 720 24 Title\n720 1320 10 " + l +
                " : \n10520 1320 10 12345678901234\n10520 1520 10 5 one\n720 1840 10800 \n");
}

TEST(PageLayoutTest, ManyDetailsGetSmallerAndNeverTakeThePicturesHalf) {
  const RecordingPage page;
  std::string told;
  for (const std::size_t count : {36u, 37u, 45u, 46u, 60u, 61u, 62u}) {
    const PageLayout layout = LayOutPage(page, "T", DetailRows(count, {"", "x"}), 0.5);
    told += std::to_string(count) + ": " + std::to_string(layout.texts.size() - 1) + " of " +
            std::to_string(layout.texts.back().points) + ", " + layout.texts.back().text + "\n";
    EXPECT_GT(layout.picture.height, 5000);
  }
  EXPECT_EQ(told, R"(36: 36 of 10, x
37: 37 of 8, x
45: 45 of 8, x
46: 46 of 6, x
60: 60 of 6, x
61: 60 of 6, ...
62: 60 of 6, ...
)");
  RecordingPage stamp;
  stamp.width = stamp.height = 100;
  EXPECT_EQ(LayOutPage(stamp, "T", {{"File", "long enough"}}, 0.5).picture.width, 0);
}

}  // namespace
}  // namespace tarnview
