// What all loaders of samples do alike.

#include <new>

#include "LogInWords.h"
#include "base/FileSystem.h"
#include "loaders/FMLinkLog.h"
#include "loaders/LinkPlusLog.h"
#include "loaders/SampleLog.h"
#include "loaders/Tec2Log.h"
#include "loaders/Tec3Log.h"
#include "loaders/UTECCSVLog.h"
#include "loaders/UTECFixedLog.h"

namespace tarnview {
namespace {

LoadOutcome LoadFMLink(std::string_view bytes, const LoadContext& context) {
  return LoadFMLinkLog(bytes, context, true);
}

const std::map<std::string, LoadedLog::Loader> kLoaders{
    {"na.txt", LoadFMLink},       {"tec2.dat", LoadTec2Log},
    {"tec3.dat", LoadTec3Log},    {"linkplus.txt", LoadLinkPlusLog},
    {"utec.csv", LoadUTECCSVLog}, {"utec-fixed.txt", LoadUTECFixedLog}};

const std::map<std::string, int> kHeadings{{"na.txt", 1}, {"linkplus.txt", 3}};

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

/// A log behind an example's name: HEAD are the example's headings, LINE its first sample.
std::string Told(const TableRow& row, std::string (*more)(const LoadedLog&) = nullptr) {
  const std::string& name = row.Text(0);
  std::string example = Example(name);
  std::erase(example, '\r');
  const std::vector<std::string> lines = Split(example, '\n');
  const std::ptrdiff_t headings = kHeadings.contains(name) ? kHeadings.at(name) : 2;
  const std::vector<std::string> head(lines.begin(), lines.begin() + headings);
  return TellOfLog(kLoaders.at(name), {row.Words().begin() + 1, row.Words().end()},
                   {{"HEAD", Join(head, "\n") + "\n"}, {"LINE", *(lines.begin() + headings)}},
                   more);
}

TEST(SampleLogs, WhatIsNoLogOrNotEnoughOfOne) {
  const auto tell = [](const TableRow& row) { return Told(row); };
  ExpectTable(tell, R"(
tec2.dat -> nothing, says 54 | tec2.dat, SECONDS -> nothing, says 54 | tec2.dat, , Seconds, 9*LINE -> nothing, says 54 | tec2.dat, HEAD -> nothing, says 54 | tec2.dat, HEAD, ~9 -> nothing, says 54 | tec2.dat, HEAD, 123456789012 -> nothing, says 54 | tec2.dat, HEAD, ~98 -> nothing | tec2.dat, HEAD, 9*LINE~97 -> nothing | tec2.dat, HEAD, 9*LINE~99 -> nothing | tec2.dat, HEAD, 9*LINE~98 -> samples, plots from 0, air from 16 | tec2.dat, HEAD, ~10000000 -> nothing
tec3.dat -> nothing, says 55 | tec3.dat, ,  SECONDS, 9*LINE -> nothing, says 55 | tec3.dat, HEAD, ~10 -> nothing, says 55 | tec3.dat, HEAD,     12.345  -> nothing, says 55 | tec3.dat, HEAD, 9*LINE~157 -> nothing | tec3.dat, HEAD, 9*LINE~156 -> samples, plots from 0, air from 16 | tec3.dat, HEAD, 9*LINE~155 -> nothing
linkplus.txt -> nothing, says 53 | linkplus.txt, 5* -> nothing, says 53 | linkplus.txt, 6*, Count|RPM, 9*1|2 -> nothing, says 53 | linkplus.txt, 5*, Count|RPM, 9*1|2 -> samples, plots from 0 | linkplus.txt, Counts|RPM, 9*1|2 -> nothing, says 53 | linkplus.txt, HEAD -> nothing | linkplus.txt, HEAD, 9*1 -> nothing | linkplus.txt, Count, 9* -> nothing | linkplus.txt, HEAD, 1~10000000 -> nothing
# A second heading of too few cells, one too many, a third too few; too few cells.
utec.csv -> nothing, says 59 | utec.csv, a,b, c, 2* -> nothing, says 59 | utec.csv, HEAD -> nothing, says 59 | utec.csv, RPM,MAP,AFR, ,, 9*1,2,3 -> nothing, says 59 | utec.csv, RPM,MAP,AFR, ,,,, 9*1,2,3 -> nothing, says 59 | utec.csv, RPM,MAP,AFR, ,,, 9*1,2 -> nothing, says 59 | utec.csv, RPM,MAP,AFR, ,,, 1,2,3, 9*1,2 -> nothing, plots from 0 | utec.csv, RPM,MAP,AFR, ,,, 9*1,2,3 -> samples, plots from 0 | utec.csv, HEAD, 1~10000000 -> nothing, says 59
utec-fixed.txt -> nothing, says 60 | utec-fixed.txt,  RPM TPS  MAP  MLP  MOD  AFR  KNOCK  -> nothing, says 60 | utec-fixed.txt, 9*SECONDS -> nothing, says 60 | utec-fixed.txt, HEAD -> nothing | utec-fixed.txt, 30*comment, HEAD, 9*LINE -> nothing, says 60 | utec-fixed.txt, 29*comment, HEAD, 9*LINE -> samples, plots from 0 | utec-fixed.txt, HEAD, 1~10000000 -> nothing
)");
}

std::string SamplesAndProgress(const LoadedLog& loaded) {
  return ", " + std::to_string(loaded.log.glngDataLog.Rows()) + " samples, told " +
         std::to_string(loaded.progress.lines.size()) + " times, of " +
         std::to_string(loaded.progress.expected);
}

/// How many samples a log needs, how many it may have, and how often its progress is told.
TEST(SampleLogs, FewestAndMostSamples) {
  const auto tell = [](const TableRow& row) { return Told(row, SamplesAndProgress); };
  ExpectTable(tell, R"(
na.txt, HEAD, 2*LINE -> nothing, says 16, 2 samples, told 3 times, of 2 | na.txt, HEAD, 3*LINE -> samples, says 16, 3 samples, told 4 times, of 3 | na.txt, HEAD, 300000*LINE -> samples, says 16, 300000 samples, told 51 times, of 287307 | na.txt, HEAD, 300001*LINE -> samples, says 16 51, 300000 samples, told 51 times, of 287308
tec2.dat, HEAD, 2*LINE -> nothing, plots from 0, air from 16, 2 samples, told 2 times, of 3 | tec2.dat, HEAD, 3*LINE -> samples, plots from 0, air from 16, 3 samples, told 3 times, of 4 | tec2.dat, HEAD, 300000*LINE -> samples, plots from 0, air from 16, 300000 samples, told 49 times, of 303062 | tec2.dat, HEAD, 300001*LINE -> samples, plots from 0, air from 16, says 51, 300000 samples, told 49 times, of 303063
tec3.dat, HEAD, 2*LINE -> nothing, plots from 0, air from 16, 2 samples, told 2 times, of 3 | tec3.dat, HEAD, 3*LINE -> samples, plots from 0, air from 16, 3 samples, told 3 times, of 4
linkplus.txt, HEAD, 2*LINE -> nothing, plots from 0, air from 16, 2 samples, told 2 times, of 3 | linkplus.txt, HEAD, 3*LINE -> samples, plots from 0, air from 16, 3 samples, told 3 times, of 4 | linkplus.txt, HEAD, 300000*LINE -> samples, plots from 0, air from 16, 300000 samples, told 49 times, of 304617 | linkplus.txt, HEAD, 300001*LINE -> samples, plots from 0, air from 16, says 51, 300000 samples, told 49 times, of 304618
utec.csv, HEAD, 3*LINE -> nothing, plots from 0, air from 16, 3 samples, told 3 times, of 3 | utec.csv, HEAD, 4*LINE -> samples, plots from 0, air from 16, 4 samples, told 4 times, of 4 | utec.csv, HEAD, 300000*LINE -> samples, plots from 0, air from 16, 300000 samples, told 64 times, of 231429 | utec.csv, HEAD, 300001*LINE -> samples, plots from 0, air from 16, says 51, 300000 samples, told 64 times, of 231430
utec-fixed.txt, HEAD, 2*LINE -> nothing, plots from 0, 2 samples, told 2 times, of 4 | utec-fixed.txt, HEAD, 3*LINE -> samples, plots from 0, 3 samples, told 3 times, of 5 | utec-fixed.txt, HEAD, 300001*LINE -> samples, plots from 0, says 51, 300000 samples, told 49 times, of 304169
)");
}

}  // namespace
}  // namespace tarnview
