#include <gtest/gtest.h>

#include "zoneeditor/EditorWorld.h"
#include "zoneeditor/RandomHand.h"
#include "zoneeditor/frmBenchmarkDetails.h"
#include "zoneeditor/frmCopyBench.h"
#include "zoneeditor/frmLoadBenchmark.h"
#include "zoneeditor/frmOffset.h"
#include "zones/ZoneNames.h"

namespace tarnview {
namespace {

const ChipIdentity kThird{1.8, MakeDate(2005, 2, 10), 3};

ZoneMap MapWith(int zones, int flags) {
  ZoneMap map;
  map.zones.fill(static_cast<std::int16_t>(zones));
  map.zones[4] = 50;
  map.zones[5] = static_cast<std::int16_t>(flags);
  map.zones[240] = 0;
  map.chip = kThird;
  map.intAtmosphericPressure = 101;
  return map;
}

class frmZoneDataTest : public ::testing::Test, protected EditorWorld {
 protected:
  frmZoneDataTest() {
    for (const char* name : {"Street", "Track"}) {
      clsBenchmark benchmark;
      benchmark.strName = name;
      benchmark.ChipDate = kThird.datChipDate;
      SetMap(benchmark, MapWith(name[0] == 'S' ? 90 : 200, 2));
      benchmarks.AddDirect(benchmark);
    }
    settings.gstrDefaultBenchmark = "Track";
  }
  frmZoneData& OpenMap(int flags = 2) {
    ZoneEditorParameters parameters;
    parameters.map = MapWith(100, flags);
    parameters.fileName = "a.map";
    parameters.mayUpload = true;
    return Open(parameters);
  }
  void Do(const char* control, int index, const Action& action) {
    window->Find(control, index)->Do(action);
  }
  /// The last step, and which raw zones differ from the map that was opened.
  std::string Told() const {
    const ZoneMap map = window->Map();
    std::string told = window->History().UndoName() + ":";
    for (std::size_t zone = 0; zone < 256; ++zone)
      if (map.zones[zone] != MapWith(100, 2).zones[zone])
        told += " " + ZoneName(static_cast<int>(zone)) + "=" + std::to_string(map.zones[zone]);
    return told;
  }
  std::string Text(SheetGrid grid, int row, int column) const {
    return window->Grids.At(grid).Text(row, column);
  }
  std::string Boxes() {
    std::string texts;
    for (const Box& box : host.messages) texts += std::to_string(box.style) + " " + box.text + "\n";
    host.messages.clear();
    return texts;
  }
};

TEST_F(frmZoneDataTest, OpensWithoutAChange) {
  OpenMap();
  EXPECT_FALSE(window->Changed()) << Told();
  EXPECT_EQ(window->Caption(), "Tarnview Zone Data - a.map");
  EXPECT_EQ(window->cboBenchmark.Entries(), (std::vector<std::string>{"Street", "Track"}));
  EXPECT_EQ(window->cboBenchmark.Text(), "Track");
  EXPECT_EQ(window->fraData(0).Caption() + "/" + window->fraData(1).Caption() + "/" +
                window->fraData(5).Caption(),
            "This MAP File/Selected Benchmark/Difference");
  EXPECT_EQ(
      Text(SheetGrid::Fuel, 0, 1) + Text(SheetGrid::Fuel, 6, 0) + Text(SheetGrid::Fuel, 1, 16),
      "00220 kPa 600100");
  EXPECT_EQ(Text(SheetGrid::Fuel, 6, 1) + Text(SheetGrid::FuelBenchmark, 6, 3) +
                Text(SheetGrid::FuelDifference, 1, 1),
            "200100");
  EXPECT_TRUE(window->Grids.At(SheetGrid::Ignition).At(6, 2).blackedOut);
  EXPECT_EQ(Text(SheetGrid::BoostTargets, 0, 0) + Text(SheetGrid::BoostTargets, 0, 11), "kPa75");
  EXPECT_EQ(Text(SheetGrid::FuelByRPM, 1, 0) + Text(SheetGrid::AirFuelTargets, 2, 0), "ValConv");
  EXPECT_EQ(window->Fields.txtChipDate.Text(), "10-Feb-2005");
  EXPECT_TRUE(window->cmdUpload.Visible);
  EXPECT_FALSE(window->cmdUpload.Enabled);
}

TEST_F(frmZoneDataTest, FieldsAndBoxesAreSteps) {
  const struct {
    const char* control;
    int index;
    Action action;
    const char* told;
  } cases[] = {
      {"txtZone", 2, {"type", {"7250"}}, "Rev Limit (RPM) 10000 to 7300: z2=73"},
      {"txtZone", 3, {"type", {"off"}}, "MAP Limit (kPa) 100 to OFF: z3=255"},
      {"updZone", 13, {"step", {"down"}}, "Knock Thr. 100 to 99: z13=99"},
      {"updZone", 2, {"step", {"down"}}, "Rev Limit (RPM) 10000 to 9000: z2=90"},
      {"txtTrim", -1, {"type", {"1.3"}}, "Trim 20.00 to 1.25: z21=25"},
      {"txtZone", 21, {"type", {"-4"}}, "Trim (deg.) 80 to -4: z21=16"},
      {"chkMisc", 0, {"click", {}}, "EGR Enabled on: z5=10"},
      {"chkBoost", 0, {"click", {}}, "TPS Target Cont. on: z5=6"},
      {"cboMAPID", -1, {"choose", {"NA2"}}, "MAP ID NA2: z5=32"},
      {"cboAutoTune", 0, {"choose", {"L3"}}, "Auto Tuning L3: z5=131 z800=4"},
      {"txtChipDate", -1, {"type", {"31-Feb-2003"}}, ":"},
      {"txtAtmos", -1, {"type", {"85"}}, "Atmospheric Pressure 85:"},
      {"txtNotes", -1, {"type", {"a\nb"}}, "Notes:"},
      {"grdData", 0, {"cell", {"2", "4", "300"}}, "zf215 100 to 255: z51=255"},
      {"grdData", 3, {"cell", {"1", "1", "x"}}, "zi100 100 to 0: z128=0"},
      {"grdData", 7, {"cell", {"1", "4", "7"}}, "z25 100 to 7: z25=7"},
  };
  for (const auto& c : cases) {
    OpenMap();
    Do(c.control, c.index, c.action);
    EXPECT_EQ(Told(), c.told);
    if (window->mnuEditUndo.Enabled()) window->mnuEditUndo.Do({"click", {}});
    EXPECT_FALSE(window->Changed()) << c.told;
  }
  Do("txtNotes", -1, {"type", {"a\nb"}});
  EXPECT_EQ(window->Map().strNotes, "a\r\nb");
  Do("txtChipDate", -1, {"type", {"nonsense"}});
  EXPECT_EQ(window->Fields.txtChipDate.Text(), "10-Feb-2005");
  Do("txtChipDate", -1, {"type", {"2001-01-31"}});
  EXPECT_EQ(window->Fields.txtChipDate.Text(), "31-Jan-2001");
  EXPECT_TRUE(window->Fields.chkAutoTune1.Visible);
  EXPECT_FALSE(window->Find("txtZone", 4)->Enabled);
}

TEST_F(frmZoneDataTest, GridsAndTheirMenus) {
  OpenMap();
  const auto popup = [&](int grid, MenuItem& entry) {
    Do("grdData", grid, {"popup", {}});
    entry.Do({"click", {}});
  };
  Do("grdData", 0, {"range", {"6", "4", "6", "1"}});
  host.work = [](Form& form) {
    form.Find("txtOffset")->Do({"type", {"300"}});
    form.Find("cmdOK")->Do({"click", {}});
  };
  popup(0, window->mnuApplyOffset);
  EXPECT_EQ(Told(), "Offset +255 on 2 fuel cells: z114=255 z115=255");
  EXPECT_EQ(Text(SheetGrid::FuelDifference, 6, 3), "-55");
  EXPECT_EQ(window->Grids.At(SheetGrid::FuelDifference).At(6, 3).colour, 255);
  EXPECT_EQ(window->Grids.At(SheetGrid::Fuel).At(6, 3).mark, GridCell::Mark::Raised);
  Do("grdData", 2, {"range", {"6", "3", "6", "3"}});
  popup(2, window->mnuCopyOffset);
  EXPECT_EQ(Told(), "Apply difference on 1 fuel cell: z114=200 z115=255");
  EXPECT_EQ(Text(SheetGrid::FuelDifference, 6, 3), "");
  Do("grdData", 4, {"range", {"1", "1", "1", "2"}});
  popup(4, window->mnuCopytoDatalog);
  EXPECT_EQ(Told(), "Copy 2 ignition cells from Track: z114=200 z115=255 z128=200 z129=200");
  window->cboSteps.Do({"choose", {"#1"}});
  EXPECT_EQ(Told(), "Offset +255 on 2 fuel cells: z114=255 z115=255");
  Do("cboBenchmark", -1, {"choose", {"Street"}});
  EXPECT_EQ(settings.gstrDefaultBenchmark, "Street");
  EXPECT_EQ(Text(SheetGrid::FuelBenchmark, 1, 1) + Text(SheetGrid::FuelDifference, 1, 1), "90-10");
}

TEST_F(frmZoneDataTest, KeysAndTheClipboard) {
  OpenMap();
  Grid& fuel = window->Grids.At(SheetGrid::Fuel);
  const auto key = [&](const char* keys) { window->Press(*ParseKeys(keys)); };
  fuel.SetFocus();
  fuel.SelectRange({1, 1}, {1, 2});
  key("Plus");
  key("Shift+Minus");
  EXPECT_EQ(Told(), "Offset -10 on 2 fuel cells: z32=91 z33=91");
  key("Ctrl+Shift+C");
  EXPECT_EQ(host.clipboard, "\t00\t05\n20 kPa 100\t91\t91\n");
  host.clipboard = "1\t2\n3\t4\n";
  fuel.Select({2, 15});
  key("Ctrl+V");
  EXPECT_EQ(Told(), "Paste 4 fuel cells: z32=91 z33=91 z62=1 z63=2 z78=3 z79=4");
  fuel.Select({2, 16});
  key("Ctrl+V");
  EXPECT_EQ(window->lblStatus.Caption(), "What was copied does not fit there; nothing was pasted.");
  host.clipboard = "1,5 x\n";
  key("Ctrl+V");
  EXPECT_EQ(window->lblStatus.Caption(), "\"1,5 x\" is no number; nothing was pasted.");
  EXPECT_EQ(window->History().Done(), 3u);
  host.clipboard = "9";
  fuel.SelectRange({6, 1}, {6, 3});
  key("Ctrl+V");
  EXPECT_EQ(Told(), "Paste 1 fuel cell: z32=91 z33=91 z62=1 z63=2 z78=3 z79=4 z114=9");
  fuel.SelectRange({1, 1}, {1, 3});
  key("Ctrl+I");
  EXPECT_EQ(window->History().UndoName(), "Interpolate 3 fuel cells");
  EXPECT_EQ(Text(SheetGrid::Fuel, 1, 2), "96");
  key("Ctrl+M");
  EXPECT_EQ(window->History().UndoName(), "Smooth 3 fuel cells");
  window->mnuEditReset.Do({"click", {}});
  EXPECT_EQ(Told(), "Reset 3 fuel cells: z62=1 z63=2 z78=3 z79=4 z114=9");
  key("Ctrl+Z");
  key("Ctrl+Shift+Z");
  EXPECT_EQ(window->History().UndoName(), "Reset 3 fuel cells");
}

TEST_F(frmZoneDataTest, BoostTargets) {
  OpenMap();
  Do("grdData", 6, {"cell", {"1", "1", "90"}});
  EXPECT_EQ(Boxes(), "36 Would you like to copy the first boost target to all the rest? \n");
  EXPECT_EQ(Told(), ":");
  host.answers = {{Answer::Kind::No}};
  Do("grdData", 6, {"cell", {"1", "1", "120"}});
  EXPECT_EQ(Told(), "z725 100 to 120: z725=120");
  host.messages.clear();
  host.answers = {{Answer::Kind::No}, {Answer::Kind::Yes}, {Answer::Kind::Yes}};
  Do("radBoost", 1, {"click", {}});
  EXPECT_EQ(
      Boxes(),
      "36 Confirm change to specifying wastegate duty cycles (existing data will be erased) ?\n");
  EXPECT_TRUE(window->radBoost(0).Value());
  EXPECT_EQ(Told(), "z725 100 to 120: z725=120");
  Do("radBoost", 1, {"click", {}});
  EXPECT_EQ(Text(SheetGrid::BoostTargets, 0, 0) + Text(SheetGrid::BoostTargets, 1, 5), "Pct0");
  Do("grdData", 6, {"cell", {"1", "1", "200"}});
  EXPECT_EQ(Text(SheetGrid::BoostTargets, 1, 11), "99");
  EXPECT_EQ(window->History().Done(), 3u);
}

TEST_F(frmZoneDataTest, NormallyAspirated) {
  OpenMap(0);
  for (const char* name : {"fraBoost", "fraBoostTargets"})
    EXPECT_FALSE(window->Find(name)->Enabled) << name;
  EXPECT_FALSE(window->Find("txtZone", 3)->Enabled);
  EXPECT_FALSE(window->Find("chkBoost", 0)->Enabled);
  EXPECT_FALSE(window->Grids.At(SheetGrid::BoostTargets).Enabled);
  EXPECT_EQ(Text(SheetGrid::Fuel, 6, 0) + Text(SheetGrid::Fuel, 6, 1), "97 kPa 600100");
}

TEST_F(frmZoneDataTest, ClosingAsksForChanges) {
  OpenMap();
  EXPECT_TRUE(window->Unload());
  OpenMap();
  Do("txtZone", 6, {"type", {"1"}});
  EXPECT_FALSE(window->Unload());
  EXPECT_EQ(Boxes(), "292 Are you sure you want to throw away those changes?\n");
  window->Fields.txtNotes.SetFocus();
  window->Fields.txtNotes.Text = std::string("n");
  window->cmdOK.Press();
  EXPECT_TRUE(window->Accepted());
  EXPECT_TRUE(window->Changed());
  EXPECT_EQ(window->Map().strNotes, "n");
  EXPECT_EQ(Boxes(), "");
}

TEST_F(frmZoneDataTest, UploadNeedsTheUsersOwnChip) {
  OpenMap();
  host.answers = {{Answer::Kind::Yes}};
  Do("cmdDefault", -1, {"click", {}});
  EXPECT_EQ(Boxes(),
            "292 Are you sure you want to overwrite your current chip type and date with those "
            "from the data log?\n");
  EXPECT_EQ(settings.gintDefaultChipVersion, 3);
  EXPECT_EQ(DateText(settings.gdatDefaultChipDate), "2005-02-10");
  EXPECT_TRUE(window->cmdUpload.Enabled);
  Do("cboEngineSize", -1, {"choose", {"1.6"}});
  EXPECT_FALSE(window->cmdUpload.Enabled);
}

TEST_F(frmZoneDataTest, CopyAndDetailsOfTheComparison) {
  OpenMap();
  host.work = [](Form& form) {
    form.Find("chkOptions", 2)->Do({"click", {}});
    form.Find("chkOptions", 9)->Do({"click", {}});
    form.Find("cmdOK")->Do({"click", {}});
  };
  window->cmdCopyBenchmark.Press();
  EXPECT_EQ(Told(),
            "Copy Idle, Ignition from Track: z8=200 z13=200 z18=200 z19=200 z20=200 z21=200 "
            "z800=16 z855=200");
  std::string seen;
  host.work = [&](Form& form) {
    auto& details = dynamic_cast<frmZoneData&>(form);
    seen = details.Caption() + " " + details.fraData(0).Caption() + " " +
           details.cmdCancel.Caption() + " " + details.Grids.At(SheetGrid::Fuel).Text(1, 1) + " " +
           std::to_string(details.tabZoneData2.Tabs().size());
    EXPECT_FALSE(details.Find("txtZone", 6)->Enabled);
    EXPECT_FALSE(details.cmdOK.Visible);
    EXPECT_FALSE(details.fraNotesTab.Visible) << "without notes";
    EXPECT_FALSE(details.Grids.At(SheetGrid::FuelBenchmark).Enabled);
    EXPECT_FALSE(details.Grids.At(SheetGrid::Fuel).BeginEdit("1"));
  };
  window->cmdDetails.Press();
  EXPECT_EQ(seen, "Tarnview Zone Data - Track (benchmark) This Benchmark &Close 200 3");
}

TEST_F(frmZoneDataTest, TheLogsOwnSetsComeFirst) {
  ZoneEditorParameters parameters;
  parameters.map = MapWith(100, 2);
  parameters.fileName = "a.txt";
  parameters.comparison = ComparisonZones{MapWith(110, 2).zones, MapWith(120, 2).zones};
  settings.gstrDefaultBenchmark = "gone";
  Open(parameters);
  EXPECT_EQ(window->cboBenchmark.Text(), "Lambda/Knock Zone Changes");
  EXPECT_EQ(window->cboBenchmark.Entries().size(), 4u);
  EXPECT_EQ(window->fraData(0).Caption(), "This Datalog");
  EXPECT_EQ(Text(SheetGrid::FuelDifference, 1, 1), "10");
  Do("cboBenchmark", -1, {"choose", {"Original Zone Settings"}});
  EXPECT_EQ(Text(SheetGrid::FuelDifference, 1, 1), "20");
}

TEST_F(frmZoneDataTest, TenThousandRandomEditsAreUndoneAndRedone) {
  constexpr std::size_t kEdits = 10000;
  OpenMap(2 + 0x91);
  const ZoneMap opened = window->Map();
  RandomHand hand(*window, host);
  while (window->History().Done() < kEdits) {
    hand.Try();
    host.work = nullptr;
  }
  const ZoneMap last = window->Map();
  ASSERT_NE(last, opened);
  while (window->mnuEditUndo.Enabled()) window->mnuEditUndo.Do({"click", {}});
  EXPECT_EQ(window->Map(), opened);
  EXPECT_EQ(window->History().Done(), 0u);
  while (window->mnuEditRedo.Enabled()) window->mnuEditRedo.Do({"click", {}});
  EXPECT_EQ(window->Map(), last);
  EXPECT_EQ(window->History().Done(), kEdits);
}

TEST_F(frmZoneDataTest, ABenchmarksFileIsTextAsAnyEditorLeavesIt) {
  std::string map = MapText(MapWith(100, 2), {});
  files.files["mark.map"] = "\xEF\xBB\xBF" + map.substr(map.find(" 100"));
  std::erase(map, '\n');
  files.files["cr.map"] = map;
  for (const char* path : {"mark.map", "cr.map"}) {
    frmLoadBenchmark loading(host, files, settings, messages);
    loading.FileToLoad = path;
    loading.Run();
    ASSERT_TRUE(loading.SuccessfulLoad()) << path;
    EXPECT_EQ(MapOf(loading.LoadedBenchmark()).zones, MapWith(100, 2).zones) << path;
  }
}

TEST(frmCopyBench, EverythingTicksWhatThereIs) {
  RecordingHost host;
  frmCopyBench window(host, kThird.datChipDate, MakeDate(2001, 3, 1), true);
  const auto told = [&] {
    std::string ticks;
    for (const auto& box : window.chkOptions) ticks += box->Value() ? '1' : '0';
    return ticks;
  };
  window.chkOptions(0).Do({"click", {}});
  EXPECT_EQ(told(), "1110001111111");
  window.chkOptions(9).Do({"click", {}});
  EXPECT_EQ(told(), "0110001101111");
  EXPECT_EQ(window.Names(),
            "Start, Idle, Auto Tuning, Miscellaneous, Fuel, Fuel Zones, Ignition Zones, General "
            "Information");
}

}  // namespace
}  // namespace tarnview
