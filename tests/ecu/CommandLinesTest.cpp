#include <gtest/gtest.h>

#include "ecu/CommandLines.h"

namespace tarnview {
namespace {

Settings OwnPrograms(const std::string& port) {
  Settings settings;
  settings.gstrLogEXE = "C:\\My Link\\L.exe";
  settings.gstrConversionEXE = "C:\\MDOS\\C.exe";
  settings.gstrSerialComPort = port;
  return settings;
}

TEST(CommandLines, OfACapture) {
  EXPECT_EQ(CaptureCall(OwnPrograms("1"), NewFileType::DataLog).Text(), "C:\\My Link\\L.exe -t");
  EXPECT_EQ(CaptureCall(OwnPrograms("4"), NewFileType::DataLog).Text(),
            "C:\\My Link\\L.exe -p 4 -t");
  EXPECT_EQ(CaptureCall(OwnPrograms("1"), NewFileType::ZoneSettings).Text(),
            "C:\\My Link\\L.exe -m -t");
  EXPECT_EQ(CaptureCall(OwnPrograms("9"), NewFileType::ZoneSettings).Text(),
            "C:\\My Link\\L.exe -m -p 9 -t");
}

TEST(CommandLines, OfAConversionAreThePathAlone) {
  EXPECT_EQ(ConversionCall(OwnPrograms("4")), (ProgramCall{"C:\\MDOS\\C.exe", ""}));
}

TEST(CommandLines, OfAnUpload) {
  struct Row {
    UploadOptions options;
    const char* port;
    const char* arguments;
  };
  const Row rows[] = {
      // clang-format off
      {{}, "1", " -q -f TVW.map"},
      {{.blnPermanentlyStore = true}, "1", " -q -s -f TVW.map"},
      {{.blnVerify = true}, "1", " -q -c -f TVW.map"},
      {{}, "2", " -q -p 2 -f TVW.map"},
      {{.autoTune = AutoTuneMode::CoarseNoIdle}, "1", " -q -a coarse_no_idle -f TVW.map"},
      {{.autoTune = AutoTuneMode::FineNoIdle}, "1", " -q -a fine_no_idle -f TVW.map"},
      {{.autoTune = AutoTuneMode::FineWithIdle}, "1", " -q -a fine_with_idle -f TVW.map"},
      {{.blnVerbose = true}, "1", " -q -v -f TVW.map"},
      {{.blnChangesOnly = true, .strComparisonFile = "/a.map"}, "1", " -q -f TVW.map"},
      {{true, true, true, true, "", AutoTuneMode::FineNoIdle}, "3", " -q -s -c -p 3 -a fine_no_idle -v -f TVW.map"},
      // clang-format on
  };
  for (const Row& row : rows) {
    const ProgramCall call = UploadCall(OwnPrograms(row.port), row.options);
    EXPECT_EQ(call, (ProgramCall{"C:\\My Link\\L.exe", row.arguments}));
  }
}

}  // namespace
}  // namespace tarnview
