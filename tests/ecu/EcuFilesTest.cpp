#include <gtest/gtest.h>

#include <set>

#include "ecu/EcuFiles.h"
#include "ecu/ExitCodes.h"
#include "support/MemoryFileSystem.h"

namespace tarnview {
namespace {

TEST(EcuFiles, LieBesideTheirPrograms) {
  Settings settings;
  settings.gstrLogEXE = "C:\\Link\\L.exe";
  settings.gstrConversionEXE = "/mdos/C";
  const LoggerFiles logger(settings);
  const ConverterFiles converter(settings);
  EXPECT_EQ(logger.captured(NewFileType::DataLog), "C:\\Link\\miata.dat");
  EXPECT_EQ(logger.captured(NewFileType::ZoneSettings), "C:\\Link\\miata.map");
  EXPECT_EQ(logger.upload(), "C:\\Link\\TVW.map");
  EXPECT_EQ(logger.uploadCommand(), "C:\\Link\\vstrUploadCommand.txt");
  EXPECT_EQ(logger.description(), "C:\\Link\\NewDataLogDescription.txt");
  EXPECT_EQ(converter.binary(), "/mdos/miatatmp.bin");
  EXPECT_EQ(converter.text(), "/mdos/miatatmp.txt");
}

TEST(EcuFiles, HoldRecords) {
  EXPECT_EQ(NewDataLogDescription("C:\\Logs\\a.txt"),
            "[General]\r\nPath and Filename=C:\\Logs\\a.txt\r\n");
  EXPECT_EQ(UploadCommandRecord({"C:\\L.exe", " -q"}),
            "Tarnview Upload Command File\r\n\r\nC:\\L.exe -q\r\n");
}

TEST(ExitCodes, HaveTheirTexts) {
  const std::pair<int, const char*> kRows[] = {
      {0, "Normal exit., 0"},
      {-1, "Stop/Resume log data output command NAK'd., -1"},
      {-4, "Unknown Error, -4"},
      {-18, "Response to Modify command for map file loadtimed out., -18"},
      {-25, "Zone map verification failed., -25"},
      {-38, "Unknown Error, -38"},
      {-39, "Unrecognized response to Test communications readiness command for Reload., -39"},
      {1, "Unknown Error, 1"},
      {-119, "Unknown Error, -119"},
  };
  for (const auto& [code, text] : kRows) EXPECT_EQ(ExitCodeText(code), text);
  // Each code has a text of its own, but for those that the programs leave out.
  std::string unknown;
  std::set<std::string> texts;
  for (int code = -40; code <= 0; ++code) {
    const std::string text = ExitCodeText(code);
    if (text.starts_with("Unknown Error"))
      unknown += std::to_string(code) + " ";
    else
      texts.insert(text.substr(0, text.rfind(',')));
  }
  EXPECT_EQ(unknown, "-40 -38 -6 -5 -4 ");
  EXPECT_EQ(texts.size(), 36u);
}

}  // namespace
}  // namespace tarnview
