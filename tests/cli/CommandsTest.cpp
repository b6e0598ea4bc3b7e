#include <sys/wait.h>

#include <cstdlib>

#include "cli/RunCli.h"
#include "support/ScratchFolder.h"

namespace tarnview {
namespace {

TEST(CommandLineProgram, TellsOfALog) {
  ExpectRuns(R"(
load turbo.txt, /title /engine_size /normally_aspirated /zones /changes/1 /changes/2 /samples -> 0 Tarnview - turbo.txt (FM Link Data Log) 1.8 false 256 from 22 to 64 256 from 22 to 64 nothing 6988
load none.txt, /ok /messages -> 1 false [{"id":15,"text":"File could not be loaded.","style":64}]; message 15: File could not be loaded.
load na.txt, /normally_aspirated /messages -> 0 true []
# a log without zones
load na.txt --type 3, /normally_aspirated /messages/1/id -> 1 false 12; message 54: That doesn't look like a Tec-2 Data Log file to me. Please ensure correct file type is chosen when opening a file.
load universal/torque.csv --definition "../data/Universal Data Log Formats/Torque.txt", /file_type /definition /samples -> 0 8 Torque 12
table na.txt --items 63,1 --from 2 --to 4, all -> 0 Sample,Secs/2,0.164/3,0.246/4,0.328/
table na.txt --items 63 --raw --to 1, all -> 0 Secs/819/
load turbo.txt, names -> 0 ok file_type title samples_loaded zones_loaded changes_loaded samples first_sample_time last_sample_time plot_from plot_to first_plot_sample lowest_air_temp tags engine_size chip_date chip_version atmospheric_pressure normally_aspirated zones changes definition messages
load universal/torque.csv --type auto --summary, names -> 0 ok file_type title samples_loaded zones_loaded changes_loaded samples first_sample_time last_sample_time plot_from plot_to first_plot_sample lowest_air_temp tags engine_size chip_date chip_version atmospheric_pressure normally_aspirated zones changes definition messages taken_as span items
load universal/torque.csv --type auto --summary --from 3 --to 7, /taken_as /span /plot_from /plot_to /items/0 /items/14 /items/15 -> 0 Universal: by its shape 2.75 3 7 {"id":1,"name":"Sample","long_name":"Sample No.","unit":"","title":"","values":12,"lowest":1,"highest":12} {"id":102,"name":"Longitude","long_name":"Longitude","unit":"","title":"Longitude","values":12,"lowest":-1.2345,"highest":-1.2345} {"id":103,"name":"Latitude","long_name":"Latitude","unit":"","title":"Latitude","values":12,"lowest":51.2345,"highest":51.2345}
table na.txt --from 2 --to 3, all -> 0 Sample,CAS Err,RPM,Dwell,MAP,Lambda,O2,O2 A,WGCM,WG%,EGR,Fuel P,Inj W,Inj %,Throttle,IAC,TPS,Neutral,Comp,Knock,IAdv,Volt,C Temp,Speed,Eng Fan,Cnd Fan,A/C,PRC,Ch Purge,Knock C,A Temp,Aux NS,Knock T,ATR,L3,A/F,Boost,Vacuum,Aux NF,Aux CS,Aux CF,Knock E,MAP Lmt,Rev Lmt,Power,Torque,PWOFF,GAMA,CR,EGOV,GPO1,TDUTY,TPWON,TPWOFF,AD1,AD2,AD3,AD4,GPO2,GFG,SIA,KNR,Secs,Zone,Idle Sp,Fuel ZV,Ign ZV,Tumble,L4,L3 Idle,MAF,MAF M,IAdv M,Fuel% M,BCL,LS,MLP,MAP D,MAF D,TPS D,MAF Hz,MAF M Hz,A/F Tgt/2,Off,0,Short,101.0,?,41,None,N/A,,,Off,0.00,0.0,Idle,55,10.00,On,Off,0,10.0,12.3,12,,Off,Off,Off,Off,Off,0,12.0,,44,0.0,,14.70,,,,,,False,False,False,,,0.00,0.00,0.000,0.00,0.00,0.00,0.00,0.00,0.00,0.00,0.00,0.00,0.00,0,0.0,0.0,0.164,600,+,83,8,Off,,,,,0.0,0.0,0,0,0,0,0,0,,,13.00/3,Off,0,Short,101.0,?,42,None,N/A,,,Off,0.00,0.0,Idle,55,10.00,On,Off,0,10.0,12.3,12,,Off,Off,Off,Off,Off,0,12.0,,44,0.0,,14.70,,,,,,False,False,False,,,0.00,0.00,0.000,0.00,0.00,0.00,0.00,0.00,0.00,0.00,0.00,0.00,0.00,0,0.0,0.0,0.246,600,+,83,8,Off,,,,,0.0,0.0,0,0,0,0,0,0,,,13.00/
table universal/torque.csv --type auto --items 63,3, all -> 0 RPM,Secs/900,0.000/1409,0.250/1918,0.500/2427,0.750/2936,1.000/3445,1.250/3955,1.500/4464,1.750/4973,2.000/5482,2.250/5991,2.500/6500,2.750/
table none.txt -> 1; message 15: File could not be loaded.
shape universal/torque.csv, names /found /score /encoding /delimiter /time /columns/3 /columns/5/factor -> 0 found score encoding delimiter decimal_sign quoted lines_before_titles lines_before_data titles units time columns why true 97 UTF-8 comma {"column":"Device Time","form":"DATE","step":0.25,"line_frequency":0} {"title":"Latitude","unit":"","item":103,"name":"Latitude","item_unit":"","factor":1,"offset":0,"decimals":4,"first_values":["51.2345","51.2345","51.2345"],"lowest":51.2345,"highest":51.2345,"why":"an item of its own"} 0.621371192237334
)");
}

TEST(CommandLineProgram, ZonesTellWhatADriveSaysOfThem) {
  // Of too few samples no value is told.
  ExpectRuns(R"(
zones turbo.txt --grid visits --json, /rows/5 /columns/15 /count/3 /value/3 -> 0 220 kPa 600 75 [0,0,0,0,0,0,24,10,0,5,18,8,1,5,4,0] [null,null,null,null,null,null,24,10,null,null,18,null,null,null,null,null]
zones turbo.txt --json, /shown/0 /boxes/0 -> 0 {"index":0,"name":"z0","label":"Overrun MAP","value":"25","unit":"","exists":true} {"label":"EGR Enabled","ticked":false,"exists":true}
zones turbo.txt --grid knock, /value/3 -> 0 [null,null,null,null,null,null,21,22,null,null,75,null,null,null,null,null]
zones turbo.txt --grid visits --type auto --from 300 --to 900, /count/0 /count/1 -> 0 [0,0,270,14,202,0,0,0,0,0,0,0,0,0,0,0] [0,0,0,12,55,0,0,0,0,0,0,0,0,0,0,0]
zones turbo.txt --grid knock --to a.map -> 2; --to: "a.map" is no number
zones turbo.txt --grid heat -> 2; --grid: heat not in {visits,error,knock}
zones utec.csv --type 6 --grid knock -> 1; message 16: Problem loading zone settings.
)");
}

TEST(CommandLineProgram, GraphTellsWhatTheChartReceives) {
  // "Sample" cannot be plotted, and item 47 is no item of this log.
  ExpectRuns(R"(
graph na.txt --items 1,3,47,20 --json --from 100 --to 1600 --fix-max 72, /from /thin_step /rows /y_axis /messages -> 0 100 3 501 {"max":70,"divisions":7} []
graph na.txt --items 1,3,47,20 --json --from 100 --to 1600, /y_axis /series/0/item /series/0/x /series/2 -> 0 {"max":35,"divisions":7} 20 501 from 8.192 to 131.072 nothing
graph na.txt --json --preset "None such" -> 1; tarnview-cli: this log has no preset graph "None such"
graph turbo.txt --json --items 3 --quick N, /from /to /rows /thin_step -> 0 1 1000 1000 1
graph na.txt --items 3 --json --to 60, /series/0/name /series/0/colour /series/0/style /series/0/width /series/0/y -> 0 RPM 4227072 1 3 60 from 0 to 13.52
)");
}

TEST(CommandLineProgram, ScatterRefusesAsTheWindowsDo) {
  ExpectRuns(R"(
scatter turbo.txt --json -> 1; message 3: You can't display more than 5000 samples on a Scatter Graph without a filter.
scatter turbo.txt --json --filter 3:99999: -> 1; message 46: No log data matches all the filters.
scatter turbo.txt --json --filter 3:9:5 -> 1; message 45: 'From' value greater than 'To' value.
scatter turbo.txt --json --filter 3:: -> 1; message 44: Filters tend to work best if at least one criteria has been entered!
scatter turbo.txt --json --filter 25:7: -> 1; message 42: Value not recognised.
scatter turbo.txt --json --filter 99:1: -> 1; tarnview-cli: no filter can be on data item 99
scatter turbo.txt --json --filter 3:1 -> 2; --filter: a filter is ITEM:FROM:TO, a bound may be empty
scatter turbo.txt --json --x 99 -> 1; tarnview-cli: the axes cannot be data items 99 and 1
scatter turbo.txt --json --colour-by 99 -> 1; tarnview-cli: the points cannot be coloured by data item 99
scatter none.txt --json -> 1; message 15: File could not be loaded.
scatter turbo.txt --json --to 300 --shape 4 --size-of-points 7 --colour 255, names -> 0 filters x_item y_item points messages
scatter turbo.txt --json --to 30 --density --colour-by 5 --x 3 --y 17, /colour_item /style /points -> 0 nothing nothing 30 from [0,10,1] to [230,10,30]
scatter turbo.txt --json --preset "None such" -> 1; tarnview-cli: this log has no preset scatter graph "None such"
scatter --json --filter 3:1000:1100 turbo.txt, /filters -> 0 ["RPM [RPM] from 1000 to 1100"]
scatter turbo.txt --json --size-of-points 11 -> 2; --size-of-points: Value 11 not in range 1 to 10
)");
}

TEST(CommandLineProgram, ScatterTellsAndExportsWhatTheWindowDoes) {
  const ScratchFolder folder;
  const std::string out = folder.Path("out.csv");
  const Ran ran = RunCli("scatter turbo.txt --x 3 --y 5 --filter 5:100: --to 900 --json --items " +
                         ("3,20 --filter 3:1:2000 --export \"" + out + "\""));
  ExpectTold(
      ran.Told("/x_item /y_item /filters /points"),
      R"(0 3 5 ["Sample [Sample No.] from 1 to 900","MAP [Manifold Air Pressure] from 100","RPM [RPM] from 1 to 2000"] [[188,100,23],[223,100,24],[245,100,25],[243,100,26],[226,100,27],[230,100,28],[197,100,29],[230,100,30],[236,100,31],[211,100,32],[195,100,33],[242,100,34]])");
  ExpectTold(
      OneLine(folder.Get("out.csv")),
      R"(TARNVIEW SCATTER GRAPH EXPORT FILE\r/Original Data Log Path and File Name: turbo.txt\r/Original Data Log File Type: FM Link Data Logs\r/\r/Filters:\r/Sample [Sample No.] from 1 to 900\r/MAP [Manifold Air Pressure] from 100\r/RPM [RPM] from 1 to 2000\r/\r/Sample,RPM,MAP,Knock\r/23,188,100.0,0\r/24,223,100.0,0\r/25,245,100.0,0\r/26,243,100.0,0\r/27,226,100.0,0\r/28,230,100.0,0\r/29,197,100.0,0\r/30,230,100.0,0\r/31,236,100.0,0\r/32,211,100.0,0\r/33,195,100.0,0\r/34,242,100.0,0\r/)");
}

TEST(CommandLineProgram, TellsOfADefinition) {
  ExpectRuns(R"(
definition -, /ok /messages /name /extension /columns /sample_presets /scatter_presets -> 0 true [] Hydra Nemesis 2.1 (MX-5 Miata) csv 19 6 12
definition - --full, /columns/18/dblConversionFactor /columns/18/blnMaxValueSet /columns/18/blnMinValueSet -> 0 -0.133333 true false
definition - --full, /sample_presets/0/colDataItems /scatter_presets/6/objFilters -> 0 [20,5,3,17,37,38] [{"dblTo":100,"dblFrom":60,"lngDataItemSeq":5}]
definition /no/such/file, /ok /messages/0/id -> 1 false 70; message 70: Error loading data log definition - file not found: /no/such/file
)");
}

TEST(CommandLineProgram, AnExportNeverGoesOverItsLog) {
  const ScratchFolder folder;
  std::filesystem::copy_file(TARNVIEW_EXAMPLES "/na.txt", folder.path / "own.txt");
  const std::string log = folder.Get("own.txt");
  ExpectRuns(R"(
export own.txt ./own.txt -> 1; message 0: The log that is open is never written over: ./own.txt Please choose another name.
)",
             folder.path.string());
  EXPECT_EQ(folder.Get("own.txt"), log);
}

TEST(CommandLineProgram, AResultThatCannotBeWrittenIsAFailure) {
  for (const std::string command :
       {" load " TARNVIEW_EXAMPLES "/na.txt", " --help",
        " graph " TARNVIEW_EXAMPLES "/na.txt --items 3 --out /no/such/folder/a.png"}) {
    const int status = std::system((TARNVIEW_CLI + command + " >/dev/full 2>/dev/null").c_str());
    EXPECT_EQ(WEXITSTATUS(status), kFailed) << command;
  }
}

TEST(CommandLineProgram, AWrongCommandLineSaysSoAndPrintsNothing) {
  ExpectRuns(R"(
, all -> 2 ; A subcommand is required
fly, all -> 2 ; A subcommand is required
load, all -> 2 ; LOG is required
load a --type 9, all -> 2 ; --type: 9 not in {1,2,3,4,5,6,7,8,auto}
graph a, all -> 2 ; graph: needs --out or --json
graph a --out a.bmp, all -> 2 ; --out: a picture's name ends in .png, .svg or .pdf
graph a --out a.png --size 49x50, all -> 2 ; --size: a size is WIDTHxHEIGHT in pixels, 50 to 20000
graph a --out a.png --size 50x49, all -> 2 ; --size: a size is WIDTHxHEIGHT in pixels, 50 to 20000
graph a --out a.png --size 20001x50, all -> 2 ; --size: a size is WIDTHxHEIGHT in pixels, 50 to 20000
graph a --out a.png --size 50x20001, all -> 2 ; --size: a size is WIDTHxHEIGHT in pixels, 50 to 20000
graph a --out a.png --size 50x20000, all -> 1 ; message 15: File could not be loaded.
graph a --out a.png --size 20000x50, all -> 1 ; message 15: File could not be loaded.
graph a --out a.png --size 1x1, all -> 2 ; --size: a size is WIDTHxHEIGHT in pixels, 50 to 20000
table na.txt --items abc, all -> 2 ; --items: "abc" is no data item's number; commas stand between them
table na.txt --items 3;5, all -> 2 ; --items: "3;5" is no data item's number; commas stand between them
table na.txt --items 3,, all -> 2 ; --items: "" is no data item's number; commas stand between them
table na.txt --items "", all -> 2 ; --items: a data item's number is missing
table na.txt --items 0, all -> 2 ; --items: no data item has the number 0
table na.txt --items 84, all -> 2 ; --items: no data item of this log has the number 84
graph na.txt --json --items 999, all -> 2 ; --items: no data item of this log has the number 999
table na.txt --from abc, all -> 2 ; --from: "abc" is no number
load na.txt --to 1x, all -> 2 ; --to: "1x" is no number
scatter na.txt --json --filter 3:abc:, all -> 2 ; --filter: "abc" is no number
scatter na.txt --json --filter 3:1:2b, all -> 2 ; --filter: "2b" is no number
drive no-such-script, all -> 2 ; tarnview-cli: cannot read no-such-script
)");
  EXPECT_EQ(RunCli("load --help").status, kDone);
}

}  // namespace
}  // namespace tarnview
