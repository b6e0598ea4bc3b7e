// Want of memory in the middle of a load is no word about the file.

#include <gtest/gtest.h>

#include <new>

#include "LoadedSampleLog.h"
#include "base/FileSystem.h"
#include "loaders/FMLinkLog.h"
#include "loaders/LinkPlusLog.h"
#include "loaders/Tec2Log.h"
#include "loaders/Tec3Log.h"
#include "loaders/UTECCSVLog.h"
#include "loaders/UTECFixedLog.h"

namespace tarnview {
namespace {

struct NoMemory : LoadProgress {
  void Stage(std::string_view, long expectedRows) override {
    if (expectedRows > 0) throw std::bad_alloc();
  }
  void Line(long) override {}
};

LoadOutcome LoadFMLink(std::string_view bytes, const LoadContext& context) {
  return LoadFMLinkLog(bytes, context, true);
}

TEST(ShortMemory, IsToldAsWhatItIs) {
  const struct {
    LoadedSampleLog::Loader load;
    const char* example;
  } kRows[] = {{LoadFMLink, "/na.txt"},       {LoadTec2Log, "/tec2.dat"},
               {LoadTec3Log, "/tec3.dat"},    {LoadLinkPlusLog, "/linkplus.txt"},
               {LoadUTECCSVLog, "/utec.csv"}, {LoadUTECFixedLog, "/utec-fixed.txt"}};
  const LoadedLog around("");
  for (const auto& row : kRows) {
    const auto bytes = RealFileSystem().Read(std::string(TARNVIEW_EXAMPLES) + row.example);
    NoMemory progress;
    OpenLog log;
    EXPECT_THROW(row.load(*bytes, {log, around.catalogue.gcolFixedDataItems, around.settings,
                                   around.tables, progress}),
                 std::bad_alloc)
        << row.example;
  }
}

}  // namespace
}  // namespace tarnview
