#include <cmath>
#include <sstream>

#include "base/Numbers.h"
#include "support/Table.h"
#include "ui/HeatColours.h"
#include "ui/SurfaceScene.h"

namespace tarnview {
namespace {

/// A map of two rows and three columns, highest at the front right.
Surface SmallMap(int rotation, int elevation) {
  Surface surface;
  surface.rows = {"100", "200"};
  surface.columns = {"00", "05", "10"};
  surface.rowTitle = "MAP";
  surface.columnTitle = "RPM";
  surface.values = {0, 10, 20, 30, 40, 50};
  surface.height = {0, 50, 2, "0", "Fuel"};
  surface.view = {rotation, elevation, 1};
  return surface;
}

/// Every character is 6 wide.
SceneRoom Room(double width = 600, double height = 400) {
  return {width, height, 40, 12,
          [](const std::string& text) { return 6.0 * static_cast<double>(text.size()); }};
}

/// Each label with its centre.
std::string Labels(const SurfaceScene& scene) {
  std::string told;
  for (const SceneLabel& label : scene.labels)
    told +=
        label.text + " " + FixedText(label.centre.x, 0) + "," + FixedText(label.centre.y, 0) + "; ";
  return told;
}

TEST(SurfaceEye, LooksFromTheFrontOverTheTopAndFromBehindAndNeverFromBelow) {
  // Where the front, the right side and the top are on the screen (right, up).
  const auto tell = [](const TableRow& row) {
    const SurfaceEye eye({row.Int(0), row.Int(1), 1});
    std::ostringstream seen;
    const auto place = [&](const char* name, double x, double y, double z) {
      const auto two = [](double value) { return std::round(value * 100) / 100 + 0.0; };
      seen << name << two(eye.Right(x, y)) << "," << two(eye.Up(x, y, z));
    };
    place("front ", 0, -1, 0);
    place(" right ", 1, 0, 0);
    place(" top ", 0, 0, 1);
    return seen.str();
  };
  ExpectTable(tell, R"(
0, 0 -> front 0,0 right 1,0 top 0,1 | 0, 90 -> front 0,-1 right 1,0 top 0,0 | 90, 90 -> front 1,0 right 0,1 top 0,0
0, 180 -> front 0,0 right -1,0 top 0,1 | 0, 150 -> front 0,0.5 right -1,0 top 0,0.87 | 0, 210 -> front 0,0.5 right -1,0 top 0,0.87
0, 300 -> front 0,-0.87 right 1,0 top 0,0.5 | 0, 359 -> front 0,-0.02 right 1,0 top 0,1 | 360, 450 -> front 0,-1 right 1,0 top 0,0
-90, 90 -> front -1,0 right 0,-1 top 0,0 | 20, 240 -> front -0.34,0.81 right -0.94,-0.3 top 0,0.5
)");
}

TEST(SurfaceEye, AHandTurnsItAndStopsAtTheFloorAndTheTop) {
  const auto tell = [](const TableRow& row) {
    const SurfaceView to = Turned({row.Int(0), row.Int(1), 2}, row.Number(2), row.Number(3));
    return std::to_string(to.rotation) + " " + std::to_string(to.elevation) +
           (to.zoom == 2 ? "" : " zoom");
  };
  // Rotation, elevation, how far to the right and up.
  ExpectTable(tell, R"(
20, 30, 15, 0 -> 35 30 | 350, 30, 15, 0 -> 5 30 | 5, 30, -15, 0 -> 350 30 | 0, 30, 0, -10 -> 0 40 | 0, 30, 0, 10 -> 0 20
0, 30, 0, 99 -> 0 0 | 0, 30, 0, -99 -> 0 90 | 0, 130, 0, -10 -> 0 120 | 0, 130, 0, 99 -> 0 180 | 0, 130, 0, -99 -> 0 91
0, 240, 0, -10 -> 0 250 | 0, 240, 0, 99 -> 0 180 | 0, 240, 0, -99 -> 0 269 | 0, 300, 0, -10 -> 0 290 | 0, 300, 0, 99 -> 0 0
0, 300, 0, -99 -> 0 270
)");
  EXPECT_EQ(Turned({0, 30, 1}, 1e300, 1e300).elevation, 0);
  EXPECT_DOUBLE_EQ(Zoomed({0, 0, 1}, 1).zoom, 1.15);
  EXPECT_EQ(Zoomed({0, 0, 3.9}, 5).zoom, 4);
  EXPECT_EQ(Zoomed({0, 0, 0.6}, -5).zoom, 0.5);
}

TEST(SurfaceScene, FacesComeFromTheBackToTheFront) {
  for (int rotation = 0; rotation < 360; rotation += 15)
    for (int elevation : {5, 60, 130, 240}) {
      const Surface map = SmallMap(rotation, elevation);
      const SurfaceEye eye(map.view);
      const SurfaceScene scene = MakeScene(map, Room());
      ASSERT_EQ(scene.faces.size(), 2u * 4 + 2 * (2 + 1));
      // Of two quarters of the ground that share an edge, the nearer one is painted later.
      double before = 1e9;
      int column = 0;
      for (std::size_t i = 0; i < 8; i += 4) {
        column = scene.faces[i].column + scene.faces[i + 3].column;
        const double back = eye.Back(column, 0);
        EXPECT_LE(back, before) << rotation << "," << elevation;
        before = back;
        EXPECT_GE(eye.Back(0, -scene.faces[i].row), eye.Back(0, -scene.faces[i + 2].row))
            << rotation;
      }
      for (std::size_t i = 8; i < scene.faces.size(); ++i)
        EXPECT_EQ(scene.faces[i].kind, SceneFace::Kind::Skirt);
    }
}

TEST(SurfaceScene, FillsItsRoomAndNothingBeyond) {
  for (int rotation = 0; rotation < 360; rotation += 10)
    for (int elevation : {0, 20, 45, 90, 130, 240}) {
      const SurfaceScene scene = MakeScene(SmallMap(rotation, elevation), Room());
      double left = 1e9, right = -1e9, top = 1e9, bottom = -1e9;
      for (const SceneLine& line : scene.walls)
        for (const ScenePoint& point : {line.from, line.to}) {
          left = std::min(left, point.x);
          right = std::max(right, point.x);
          top = std::min(top, point.y);
          bottom = std::max(bottom, point.y);
        }
      EXPECT_GE(left, 36) << rotation;
      EXPECT_LE(right, 564);
      EXPECT_GE(top, 40);
      EXPECT_LE(bottom, 400 - 12);
      EXPECT_TRUE(right - left > 527 || bottom - top > 297)
          << rotation << "," << elevation << " is small";
      for (const SceneLabel& label : scene.labels) {
        const double half = 3.0 * static_cast<double>(label.text.size());
        EXPECT_TRUE(label.centre.x >= half && label.centre.x <= 600 - half && label.centre.y <= 394)
            << label.text;
      }
    }
}

TEST(SurfaceScene, LabelsStandOnTheNearEdgesAndKeepClear) {
  // Rotation, elevation, width, height; of more columns, their labels.
  ExpectTable(
      [](const TableRow& row) {
        Surface map = SmallMap(row.Int(0), row.Int(1));
        if (row.Count() > 4) {
          map.columns = SplitAt(row.Text(4), " ");
          map.values.resize(2 * map.columns.size());
        }
        return Labels(MakeScene(map, Room(row.Number(2), row.Number(3))));
      },
      R"(
30, 40, 600, 400 -> 00 214,371; 05 356,318; 10 497,266; RPM 364,339; 100 95,255; 200 193,373; MAP 126,331; 25 95,204; 50 95,163; Fuel 107,146; 
# Rows are behind each other, or nearly.
0, 0, 600, 400 -> 00 36,306; 05 300,306; 10 564,306; RPM 300,324; 0 27,294; 25 24,208; 50 24,122; Fuel 36,105; 
0, 3, 600, 400 -> 00 36,314; 05 300,314; 10 564,314; RPM 300,332; 0 27,302; 25 24,217; 50 24,131; Fuel 36,114; 
0, 6, 600, 400 -> 00 36,323; 05 300,323; 10 564,323; RPM 300,341; 100 579,276; 200 579,311; 0 27,311; 25 24,225; 50 24,140; Fuel 36,123; 
# Heights are, from above.
0, 90, 600, 400 -> 00 60,370; 05 300,370; 10 540,370; RPM 300,388; 100 555,58; 200 555,358; MAP 579,208; 
20, 240, 600, 400 -> 00 483,279; 05 337,325; 10 191,371; RPM 344,346; 100 172,364; 200 106,207; MAP 114,296; 25 109,175; 50 109,150; Fuel 121,133; 
110, 60, 160, 120 -> Fuel 72,44; 
# Where labels would meet, some are left out, each in the same step.
0, 30, 300, 200, 0500 1000 1500 2000 2500 3000 3500 4000 4500 5000 5500 6000 -> 0500 66,170; 1500 96,170; 2500 127,170; 3500 158,170; 4500 188,170; 5500 219,170; RPM 150,188; 100 249,105; 200 249,158; MAP 273,132; 0 57,158; 25 54,134; 50 54,111; Fuel 66,94; 
0, 30, 500, 200, a_very_long_label another_very_long_label one_more_that_is_long the_last_one -> a_very_long_label 166,170; the_last_one 334,170; RPM 250,188; 100 349,105; 200 349,158; MAP 373,132; 0 157,158; 25 154,134; 50 154,111; Fuel 166,94; 
)");
  for (int rotation = 0; rotation < 360; rotation += 7) {
    const SurfaceScene scene = MakeScene(SmallMap(rotation, 25), Room(200, 160));
    for (std::size_t i = 0; i < scene.labels.size(); ++i)
      for (std::size_t j = 0; j < i; ++j) {
        const SceneLabel &a = scene.labels[i], &b = scene.labels[j];
        const double widths = 3.0 * static_cast<double>(a.text.size() + b.text.size());
        EXPECT_TRUE(std::abs(a.centre.x - b.centre.x) >= widths ||
                    std::abs(a.centre.y - b.centre.y) >= 12)
            << rotation << ": " << a.text << " covers " << b.text;
      }
  }
}

TEST(SurfaceScene, AClickPicksTheCellInFront) {
  for (int rotation : {0, 100, 200, 340}) {
    const Surface map = SmallMap(rotation, 60);
    const SurfaceScene scene = MakeScene(map, Room());
    for (int row = 1; row <= 2; ++row)
      for (int column = 1; column <= 3; ++column) {
        const auto mark = MarkOf(map, Room(), row, column);
        ASSERT_TRUE(mark);
        const auto found = CellAt(scene, 3, mark->at, 5);
        ASSERT_TRUE(found) << rotation;
        EXPECT_EQ(*found, std::pair(row, column)) << rotation;
        EXPECT_GE(mark->floor.y, mark->at.y);
      }
    EXPECT_FALSE(CellAt(scene, 3, {1, 1}, 5));
    EXPECT_FALSE(MarkOf(map, Room(), 3, 1) || MarkOf(map, Room(), 1, 4) ||
                 MarkOf(map, Room(), 0, 1));
  }
  // A hill at the front hides the cell behind it.
  Surface hill = SmallMap(0, 10);
  hill.values = {0, 0, 0, 50, 50, 50};
  const auto behind = MarkOf(hill, Room(), 1, 2);
  EXPECT_EQ(CellAt(MakeScene(hill, Room()), 3, behind->at, 5), std::pair(2, 2));
}

/// Of each face its cell, its kind (ground, locked, skirt), which of its edges are lined, height,
/// light and corners.
TEST(SurfaceScene, EachLineAndFaceHasItsPlace) {
  std::string told = "\n";
  Surface map = SmallMap(30, 40);
  map.values = {0, 50, 10, 40, 5, 30};
  map.locked = {false, false, false, true, false, false};
  const SurfaceScene scene = MakeScene(map, Room());
  for (const SceneLine& line : scene.walls)
    told += (line.edge ? "edge " : "line ") + FixedText(line.from.x, 0) + "," +
            FixedText(line.from.y, 0) + " " + FixedText(line.to.x, 0) + "," +
            FixedText(line.to.y, 0) + (&line == &scene.walls.back() ? "\n" : " | ");
  for (const SceneFace& face : scene.faces) {
    told += std::to_string(face.row) + "," + std::to_string(face.column) + " " +
            "gls"[static_cast<int>(face.kind)] + " ";
    for (const bool lined : face.lined) told += lined ? '|' : '.';
    told += " " + FixedText(face.height, 2) + " " + FixedText(face.light, 2) + " at";
    for (const ScenePoint& corner : face.corners)
      told += " " + FixedText(corner.x, 0) + "," + FixedText(corner.y, 0);
    told += "\n";
  }
  ExpectTold(told, R"(
line 210,358 107,244 | line 107,244 107,163 | line 351,306 249,192 | line 249,192 249,110 | line 493,253 390,139 | line 390,139 390,58 | line 107,244 390,139 | line 390,139 390,58 | line 210,358 493,253 | line 493,253 493,172 | line 107,204 390,99 | line 493,212 390,99 | line 107,163 390,58 | line 493,172 390,58 | edge 210,358 493,253 | edge 210,358 107,244 | edge 107,244 107,163 | edge 493,253 493,172 | edge 390,139 390,58
1,3 g ||.. 0.42 0.77 at 320,117 390,123 441,164 371,184
1,2 g |..| 0.66 0.80 at 249,110 320,117 371,184 300,204
2,3 g .||. 0.46 0.88 at 371,184 441,164 493,204 422,251
2,2 g ..|| 0.37 0.91 at 300,204 371,184 422,251 351,297
1,2 g ||.. 0.63 1.00 at 178,177 249,110 300,204 229,236
1,1 g |..| 0.34 0.99 at 107,244 178,177 229,236 159,269
2,2 g .||. 0.39 0.95 at 229,236 300,204 351,297 280,295
2,1 l ..|| 0.53 0.95 at 159,269 229,236 280,295 210,293
2,1 s |... 0.00 1.00 at 210,293 280,295 280,332 210,358
2,2 s |... 0.00 1.00 at 280,295 351,297 351,306 280,332
2,2 s |... 0.00 1.00 at 351,297 422,251 422,279 351,306
2,3 s |... 0.00 1.00 at 422,251 493,204 493,253 422,279
1,1 s |... 0.00 0.80 at 107,244 159,269 159,301 107,244
2,1 s |... 0.00 0.80 at 159,269 210,293 210,358 159,301
)");
}

TEST(SurfaceScene, OddTablesMakeNothingOrStandOnTheFloor) {
  Surface map = SmallMap(20, 240);
  map.values.pop_back();
  EXPECT_TRUE(MakeScene(map, Room()).faces.empty());
  EXPECT_FALSE(MarkOf(map, Room(), 1, 1));
  map = SmallMap(20, 240);
  map.rows.resize(1);
  map.values.resize(3);
  EXPECT_TRUE(MakeScene(map, Room()).labels.empty());
  map = SmallMap(20, 240);
  map.columns.resize(1);
  map.values.resize(2);
  EXPECT_TRUE(MakeScene(map, Room()).labels.empty());
  map = SmallMap(20, 240);
  map.values = {NAN, INFINITY, -INFINITY, 1e300, -7, 20};
  map.height.max = map.height.min;
  for (const SceneFace& face : MakeScene(map, Room(1, 1)).faces)
    for (const ScenePoint& corner : face.corners)
      EXPECT_TRUE(std::isfinite(corner.x) && std::isfinite(corner.y));
}

TEST(HeatColours, AreMixedByteByByte) {
  const auto colour = [](const TableRow& row) {
    char text[16];
    std::snprintf(text, sizeof text, "%06x", static_cast<unsigned>(HeatColourOf(row.Number(0))));
    return std::string(text);
  };
  ExpectTable(colour, R"(
-1 -> 894a3e | 0 -> 894a3e | 0.1 -> 8c5c36 | 0.25 -> 8e752c | 0.5 -> 899e1f | 0.77 -> 65c558 | 0.9 -> 47d489 | 1 -> 2cdeb4 | 2 -> 2cdeb4
)");
}

}  // namespace
}  // namespace tarnview
