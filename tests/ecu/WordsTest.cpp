// What the outside programs are called with, what their exit codes mean, and the names of new
// files.

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "ecu/CommandLines.h"
#include "ecu/EcuFiles.h"
#include "ecu/ExitCodes.h"
#include "ecu/NewFileNames.h"

namespace tarnview {
namespace {

Settings OwnPrograms(const char* port) {
  Settings settings;
  settings.gstrLogEXE = "C:\\My Link\\L.exe";
  settings.gstrConversionEXE = "/mdos/C";
  settings.gstrSerialComPort = port;
  return settings;
}

TEST(CommandLines, AreTheProgramAndItsOptionsInTheirOrder) {
  const NewFileType log = NewFileType::DataLog, map = NewFileType::ZoneSettings;
  EXPECT_EQ(CaptureCall(OwnPrograms("1"), log).Text(), "C:\\My Link\\L.exe -t");
  EXPECT_EQ(CaptureCall(OwnPrograms("4"), log).arguments, " -p 4 -t");
  EXPECT_EQ(CaptureCall(OwnPrograms("1"), map).arguments, " -m -t");
  EXPECT_EQ(CaptureCall(OwnPrograms("9"), map).arguments, " -m -p 9 -t");
  EXPECT_EQ(ConversionCall(OwnPrograms("4")), (ProgramCall{"/mdos/C", ""}));
  const std::pair<UploadOptions, const char*> kUploads[] = {
      {{}, " -q -p 2 -f TVW.map"},
      {{.blnPermanentlyStore = true}, " -q -s -p 2 -f TVW.map"},
      {{.blnVerify = true}, " -q -c -p 2 -f TVW.map"},
      {{.blnVerbose = true}, " -q -p 2 -v -f TVW.map"},
      {{.autoTune = AutoTuneMode::CoarseNoIdle}, " -q -p 2 -a coarse_no_idle -f TVW.map"},
      {{.autoTune = AutoTuneMode::FineWithIdle}, " -q -p 2 -a fine_with_idle -f TVW.map"},
      {{.blnChangesOnly = true, .strComparisonFile = "/a.map"}, " -q -p 2 -f TVW.map"},
      {{true, true, true, true, "", AutoTuneMode::FineNoIdle},
       " -q -s -c -p 2 -a fine_no_idle -v -f TVW.map"}};
  for (const auto& [options, arguments] : kUploads)
    EXPECT_EQ(UploadCall(OwnPrograms("2"), options).arguments, arguments);
  EXPECT_EQ(UploadCall(OwnPrograms("1"), {}).arguments, " -q -f TVW.map");
  EXPECT_EQ(LoggerFiles(OwnPrograms("1")).uploadCommand(), "C:\\My Link\\vstrUploadCommand.txt");
}

TEST(ExitCodes, HaveTheirTexts) {
  const std::map<int, const char*> known{
      {0, "Normal exit., 0"},
      {-1, "Stop/Resume log data output command NAK'd., -1"},
      {-18, "Response to Modify command for map file loadtimed out., -18"},
      {-25, "Zone map verification failed., -25"},
      {-39, "Unrecognized response to Test communications readiness command for Reload., -39"},
      {1, "Unknown Error, 1"},
      {-119, "Unknown Error, -119"}};
  for (const auto& [code, text] : known) EXPECT_EQ(ExitCodeText(code), text);
  // Each code has a text of its own, but for those that the programs leave out.
  std::string unknown;
  std::set<std::string> texts;
  for (int code = -40; code <= 0; ++code) {
    const std::string text = ExitCodeText(code);
    if (text.starts_with("Unknown Error")) unknown += std::to_string(code) + " ";
    texts.insert(text.substr(0, text.rfind(',')));
  }
  EXPECT_EQ(unknown, "-40 -38 -6 -5 -4 ");
  EXPECT_EQ(texts.size(), 37u);
}

TEST(NewFileNames, CountInLettersUpToFiveHundred) {
  const std::map<int, const char*> letters{{0, "a"},   {25, "z"},   {26, "ba"},  {51, "bz"},
                                           {52, "ca"}, {499, "tf"}, {675, "zz"}, {676, "baa"}};
  for (const auto& [counter, name] : letters) EXPECT_EQ(CounterLetters(counter), name);

  AutoFileNames names;
  std::set<std::string> taken;
  const auto propose = [&](int day) {
    return names.Propose(MakeDate(2026, 11, day),
                         [&](const std::string& name) { return taken.contains(name); });
  };
  const auto take = [&](int from, int to) {
    for (int n = from; n < to; ++n) taken.insert("2026-11-24" + CounterLetters(n));
  };
  EXPECT_EQ(propose(24), "2026-11-24a");
  EXPECT_EQ(propose(24), "2026-11-24a");
  names.Used();
  take(1, 3);
  EXPECT_EQ(propose(24), "2026-11-24d");
  taken.clear();
  EXPECT_EQ(propose(24), "2026-11-24d") << "it never goes back";
  EXPECT_EQ(propose(25), "2026-11-25a") << "but with the day";
  EXPECT_EQ(propose(24), "2026-11-24a");
  take(0, 499);
  EXPECT_EQ(propose(24), "2026-11-24tf");
  names.Used();
  take(500, 1000);
  EXPECT_EQ(propose(24), "");
  taken.erase("2026-11-24" + CounterLetters(999));
  EXPECT_EQ(propose(24), "2026-11-24" + CounterLetters(999));
}

TEST(NewFileNames, TakeTheExtensionOfTheirType) {
  const std::map<std::string, const char*> texts{{"run", "run.txt"},         {"run.map", "run.txt"},
                                                 {"run.1.dat", "run.1.txt"}, {"run.", "run.txt"},
                                                 {".map", ".txt"},           {"", ""}};
  for (const auto& [name, wanted] : texts) EXPECT_EQ(NameOfType(name, "txt"), wanted);
}

}  // namespace
}  // namespace tarnview
