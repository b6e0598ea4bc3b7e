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

/// "9*a,b" is nine lines of it; HEAD are an example's headings, LINE its first sample; "a~9" is cut
/// to nine characters, or as long by more of its last one.
std::string BadLines(std::string line, const std::string& head, const std::string& sample) {
  if (line == "HEAD") return head;
  const int times = line.find('*') == std::string::npos ? 1 : StringToLong(line);
  line.erase(0, line.find('*') + 1);
  const auto length = SplitAt(line, "~");
  line = length[0] == "LINE" ? sample : length[0];
  if (length.size() > 1) line.resize(std::stoul(length[1]), line.empty() ? ' ' : line.back());
  std::replace(line.begin(), line.end(), '|', '\t');
  return Repeated("", line, times);
}

TEST(SampleLogs, WhatIsNoLogOrNotEnoughOfOne) {
  const auto tell = [](const TableRow& row) {
    std::string example = Example(row.Text(0));
    std::erase(example, '\r');
    const std::vector<std::string> lines = Split(example, '\n');
    const std::size_t headings = row.Text(0) == "linkplus.txt" ? 3 : 2;
    const std::string head =
        Join(std::vector(lines.begin(), lines.begin() + static_cast<long>(headings)), "\n") + "\n";
    std::string text;
    for (std::size_t n = 1; n < row.Count(); ++n)
      text += BadLines(row.Text(n), head, lines[headings]);
    return LoadedLog(kLoaders.at(row.Text(0)), text).Outcome();
  };
  ExpectTable(tell, R"(
tec2.dat -> nothing, says 54 | tec2.dat, SECONDS -> nothing, says 54 | tec2.dat, , Seconds, 9*LINE -> nothing, says 54 | tec2.dat, HEAD -> nothing, says 54 | tec2.dat, HEAD, ~9 -> nothing, says 54 | tec2.dat, HEAD, 123456789012 -> nothing, says 54 | tec2.dat, HEAD, ~98 -> nothing | tec2.dat, HEAD, 9*LINE~97 -> nothing | tec2.dat, HEAD, 9*LINE~99 -> nothing | tec2.dat, HEAD, 9*LINE~98 -> samples, plots from 0, air from 16 | tec2.dat, HEAD, ~10000000 -> nothing
tec3.dat -> nothing, says 55 | tec3.dat, ,  SECONDS, 9*LINE -> nothing, says 55 | tec3.dat, HEAD, ~10 -> nothing, says 55 | tec3.dat, HEAD,     12.345  -> nothing, says 55 | tec3.dat, HEAD, 9*LINE~157 -> nothing | tec3.dat, HEAD, 9*LINE~156 -> samples, plots from 0, air from 16 | tec3.dat, HEAD, 9*LINE~155 -> nothing
linkplus.txt -> nothing, says 53 | linkplus.txt, 5* -> nothing, says 53 | linkplus.txt, 6*, Count|RPM, 9*1|2 -> nothing, says 53 | linkplus.txt, 5*, Count|RPM, 9*1|2 -> samples, plots from 0 | linkplus.txt, Counts|RPM, 9*1|2 -> nothing, says 53 | linkplus.txt, HEAD -> nothing | linkplus.txt, HEAD, 9*1 -> nothing | linkplus.txt, Count, 9* -> nothing | linkplus.txt, HEAD, 1~10000000 -> nothing
# A second heading of too few cells, one too many, a third too few; too few cells.
utec.csv -> nothing, says 59 | utec.csv, a,b, c, 2* -> nothing, says 59 | utec.csv, HEAD -> nothing, says 59 | utec.csv, RPM,MAP,AFR, ,, 9*1,2,3 -> nothing, says 59 | utec.csv, RPM,MAP,AFR, ,,,, 9*1,2,3 -> nothing, says 59 | utec.csv, RPM,MAP,AFR, ,,, 9*1,2 -> nothing, says 59 | utec.csv, RPM,MAP,AFR, ,,, 1,2,3, 9*1,2 -> nothing, plots from 0 | utec.csv, RPM,MAP,AFR, ,,, 9*1,2,3 -> samples, plots from 0 | utec.csv, HEAD, 1~10000000 -> nothing, says 59
utec-fixed.txt -> nothing, says 60 | utec-fixed.txt,  RPM TPS  MAP  MLP  MOD  AFR  KNOCK  -> nothing, says 60 | utec-fixed.txt, 9*SECONDS -> nothing, says 60 | utec-fixed.txt, HEAD -> nothing | utec-fixed.txt, 30*comment, HEAD, 9*LINE -> nothing, says 60 | utec-fixed.txt, 29*comment, HEAD, 9*LINE -> samples, plots from 0 | utec-fixed.txt, HEAD, 1~10000000 -> nothing
)");
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
           std::to_string(loaded.progress.lines.size()) + " times, of " +
           std::to_string(loaded.progress.expected);
  };
  ExpectTable(tell, R"(
na.txt, 1, 2 -> 2 nothing, says 16, told 3 times, of 2
na.txt, 1, 3 -> 3 samples, says 16, told 4 times, of 3
na.txt, 1, 300000 -> 300000 samples, says 16, told 50 times, of 292261
na.txt, 1, 300001 -> 300000 samples, says 16 51, told 50 times, of 292262
tec2.dat, 2, 2 -> 2 nothing, plots from 0, air from 16, told 2 times, of 3
tec2.dat, 2, 3 -> 3 samples, plots from 0, air from 16, told 3 times, of 4
tec2.dat, 2, 300000 -> 300000 samples, plots from 0, air from 16, told 49 times, of 306123
tec2.dat, 2, 300001 -> 300000 samples, plots from 0, air from 16, says 51, told 49 times, of 306124
tec3.dat, 2, 2 -> 2 nothing, plots from 0, air from 16, told 2 times, of 3
tec3.dat, 2, 3 -> 3 samples, plots from 0, air from 16, told 3 times, of 4
linkplus.txt, 3, 2 -> 2 nothing, plots from 0, air from 16, told 2 times, of 3
linkplus.txt, 3, 3 -> 3 samples, plots from 0, air from 16, told 3 times, of 4
linkplus.txt, 3, 300000 -> 300000 samples, plots from 0, air from 16, told 48 times, of 309232
linkplus.txt, 3, 300001 -> 300000 samples, plots from 0, air from 16, says 51, told 48 times, of 309233
utec.csv, 2, 3 -> 3 nothing, plots from 0, air from 16, told 3 times, of 3
utec.csv, 2, 4 -> 4 samples, plots from 0, air from 16, told 4 times, of 4
utec.csv, 2, 300000 -> 300000 samples, plots from 0, air from 16, told 63 times, of 235715
utec.csv, 2, 300001 -> 300000 samples, plots from 0, air from 16, says 51, told 63 times, of 235716
utec-fixed.txt, 2, 2 -> 2 nothing, plots from 0, told 2 times, of 4
utec-fixed.txt, 2, 3 -> 3 samples, plots from 0, told 3 times, of 5
utec-fixed.txt, 2, 300001 -> 300000 samples, plots from 0, says 51, told 48 times, of 308336
)");
}

}  // namespace
}  // namespace tarnview
