#include "zoneeditor/frmLoadBenchmark.h"

#include <algorithm>

#include "base/Paths.h"
#include "base/Text.h"
#include "base/TextFile.h"
#include "loaders/BenchmarkLog.h"

namespace tarnview {

frmLoadBenchmark::frmLoadBenchmark(Host& itsHost, FileSystem& files, const Settings& settings,
                                   Messages& messages)
    : Form(itsHost, "frmLoadBenchmark", "Loading Benchmark"),
      files_(files),
      settings_(settings),
      messages_(messages) {
  HelpTopic = "BenchmarkDetails";
}

void frmLoadBenchmark::Form_Load() { lblFile.Caption = FileTitle(FileToLoad); }

void frmLoadBenchmark::Run() {
  Show();
  Load();
  Unload();
}

void frmLoadBenchmark::Load() {
  const std::string path = Upper(FileToLoad);
  const bool map = path.ends_with("MAP");
  if (!map && !path.ends_with("TXT")) {
    messages_.ShowMessage(Message::OddKindOfFile);
    return;
  }
  const auto bytes = ReadText(files_, FileToLoad);
  if (!bytes) {
    messages_.Tell(UnreadFileError(files_, FileToLoad), kBoxExclamation);
    return;
  }
  const std::string_view text = *bytes;
  proProgInd.Max = std::max(static_cast<long>(text.size()), 1L);
  if (map) {
    proProgInd.Value = proProgInd.Max() / 2;
    Refresh();
    Take(ParseMap(text, settings_, false));
  } else {
    Take(ReadLog(text));
  }
  proProgInd.Value = proProgInd.Max();
}

MapReading frmLoadBenchmark::ReadLog(std::string_view bytes) {
  constexpr long kStep = 1 << 16;  ///< bytes between two pictures of the bar
  long done = 0, shown = 0;
  return ReadBenchmarkLog(bytes, settings_, [&](long length) {
    done += length;
    if (done - shown < kStep) return;
    shown = done;
    proProgInd.Value = std::min(done, proProgInd.Max());
    Refresh();
  });
}

void frmLoadBenchmark::Take(const MapReading& reading) {
  if (!reading.error.empty()) messages_.Tell(reading.error, kBoxExclamation);
  for (const Message message : reading.messages) messages_.ShowMessage(message);
  if (!reading.read) return;
  loaded_.emplace();
  SetMap(*loaded_, reading.map);
}

}  // namespace tarnview
