// What all loaders of samples do alike.

#include <map>
#include <new>

#include "LoadedLog.h"
#include "base/FileSystem.h"
#include "loaders/FMLinkLog.h"
#include "loaders/LinkPlusLog.h"
#include "loaders/SampleLog.h"
#include "loaders/Tec2Log.h"
#include "loaders/Tec3Log.h"
#include "loaders/UTECCSVLog.h"
#include "loaders/UTECFixedLog.h"
#include "support/Table.h"

namespace tarnview {
namespace {

LoadOutcome LoadFMLink(std::string_view bytes, const LoadContext& context) {
  return LoadFMLinkLog(bytes, context, true);
}

const std::map<std::string, LoadedLog::Loader> kLoaders{
    {"na.txt", LoadFMLink},       {"tec2.dat", LoadTec2Log},
    {"tec3.dat", LoadTec3Log},    {"linkplus.txt", LoadLinkPlusLog},
    {"utec.csv", LoadUTECCSVLog}, {"utec-fixed.txt", LoadUTECFixedLog}};

std::string Example(const std::string& name) {
  return std::string(*RealFileSystem().Read(TARNVIEW_EXAMPLES "/" + name));
}

struct NoMemory : LoadProgress {
  void Stage(std::string_view, long expectedRows) override {
    if (expectedRows > 0) throw std::bad_alloc();
  }
  void Line(long) override {}
};

TEST(SampleLogs, WantOfMemoryIsNoWordAboutTheFile) {
  for (const auto& [name, load] : kLoaders) {
    NoMemory progress;
    LoadedLog around(load, "");
    const LoadContext context{around.log, around.catalogue.gcolFixedDataItems, around.settings,
                              around.tables, progress};
    EXPECT_THROW(load(Example(name), context), std::bad_alloc) << name;
  }
}

/// How many samples a log needs, how many it may have, and how often its progress is told: an
/// example's heading, then its first sample so many times.
TEST(SampleLogs, FewestAndMostSamples) {
  const auto tell = [](const TableRow& row) {
    const std::vector<std::string> lines = Split(Example(row.Text(0)), '\n');
    const auto headings = static_cast<std::size_t>(row.Int(1));
    std::string heading;
    for (std::size_t line = 0; line < headings; ++line) heading += lines[line] + "\n";
    const LoadedLog loaded(kLoaders.at(row.Text(0)),
                           Repeated(heading, lines[headings], row.Int(2)));
    return std::to_string(loaded.log.glngDataLog.Rows()) + " " + loaded.Outcome() + ", told " +
           std::to_string(loaded.progress.lines.size());
  };
  ExpectTable(tell, R"(
na.txt, 1, 2 -> 2 nothing, says 16, told 3
na.txt, 1, 3 -> 3 samples, says 16, told 4
na.txt, 1, 300000 -> 300000 samples, says 16, told 50
na.txt, 1, 300001 -> 300000 samples, says 16 51, told 50
tec2.dat, 2, 2 -> 2 nothing, plots from 0, air from 16, told 2
tec2.dat, 2, 3 -> 3 samples, plots from 0, air from 16, told 3
tec2.dat, 2, 300000 -> 300000 samples, plots from 0, air from 16, told 49
tec2.dat, 2, 300001 -> 300000 samples, plots from 0, air from 16, says 51, told 49
tec3.dat, 2, 2 -> 2 nothing, plots from 0, air from 16, told 2
tec3.dat, 2, 3 -> 3 samples, plots from 0, air from 16, told 3
linkplus.txt, 3, 2 -> 2 nothing, plots from 0, air from 16, told 2
linkplus.txt, 3, 3 -> 3 samples, plots from 0, air from 16, told 3
linkplus.txt, 3, 300000 -> 300000 samples, plots from 0, air from 16, told 48
linkplus.txt, 3, 300001 -> 300000 samples, plots from 0, air from 16, says 51, told 48
utec.csv, 2, 3 -> 3 nothing, plots from 0, air from 16, told 3
utec.csv, 2, 4 -> 4 samples, plots from 0, air from 16, told 4
utec.csv, 2, 300000 -> 300000 samples, plots from 0, air from 16, told 63
utec.csv, 2, 300001 -> 300000 samples, plots from 0, air from 16, says 51, told 63
utec-fixed.txt, 2, 2 -> 2 nothing, plots from 0, told 2
utec-fixed.txt, 2, 3 -> 3 samples, plots from 0, told 3
utec-fixed.txt, 2, 300001 -> 300000 samples, plots from 0, says 51, told 48
)");
}

}  // namespace
}  // namespace tarnview
