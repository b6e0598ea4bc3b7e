#include <algorithm>
#include <cstdio>
#include <memory>

#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/LogSession.h"
#include "model/LocateSample.h"

namespace tarnview {
namespace {

/// Output goes out in pieces of about this many bytes.
constexpr std::size_t kPiece = 1 << 16;

void AddField(std::string& out, const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) {
    out += text;
    return;
  }
  out += '"';
  for (char c : text) out += c == '"' ? std::string("\"\"") : std::string(1, c);
  out += '"';
}

struct TableOptions : LogOptions {
  bool raw = false;
};

class Table {
 public:
  Table(const OpenLog& log, std::vector<int> items, bool raw)
      : log_(log), items_(std::move(items)), raw_(raw) {}

  void Print(std::int64_t from, std::int64_t to) {
    AddLine([&](int seq) { AddField(out_, ToUtf8(log_.gcolDataItems->Item(seq).strShortName)); });
    const auto indexOf = [&](std::int64_t sample) {
      const auto wanted = static_cast<std::int32_t>(sample);
      return LocateSample(log_, static_cast<std::int32_t>(sample - log_.glngFirstSampleTime),
                          wanted);
    };
    for (std::int32_t row = indexOf(from), last = indexOf(to); row <= last; ++row) {
      if (log_.Sample(row) < from || log_.Sample(row) > to) continue;
      AddLine([&](int seq) { AddCell(seq, row); });
      if (out_.size() > kPiece) Flush();
    }
    Flush();
  }

  void PrintAll() {
    AddLine([&](int seq) { AddField(out_, ToUtf8(log_.gcolDataItems->Item(seq).strShortName)); });
    for (std::int32_t row = 0; row < log_.glngDataLog.Rows(); ++row) {
      AddLine([&](int seq) { AddCell(seq, row); });
      if (out_.size() > kPiece) Flush();
    }
    Flush();
  }

 private:
  template <class AddOne>
  void AddLine(AddOne&& addOne) {
    for (std::size_t i = 0; i < items_.size(); ++i) {
      if (i > 0) out_ += ',';
      addOne(items_[i]);
    }
    out_ += '\n';
  }
  void AddCell(int seq, std::int32_t row) {
    if (raw_)
      out_ += std::to_string(log_.glngDataLog(seq - 1, row));
    else if (log_.glngDataLog.IsLogged(seq - 1, row))
      AddField(out_, ToUtf8(log_.FormatDataItem(seq, row)));
  }
  void Flush() {
    std::fwrite(out_.data(), 1, out_.size(), stdout);
    out_.clear();
  }

  const OpenLog& log_;
  std::vector<int> items_;
  bool raw_;
  std::string out_;
};

int PrintTable(const TableOptions& options) {
  LogSession session(options);
  if (!session.Open() || !session.Log().gblnSamplesLoaded) return kFailed;
  Table table(session.Log(), session.Items(true), options.raw);
  if (session.HasRange()) {
    frmDataLogViewer& window = session.Window();
    window.PlotRangeFrom.Text = std::to_string(session.Log().glngFirstSampleTime);
    window.PlotRangeTo.Text = std::to_string(session.Log().glngLastSampleTime);
    session.EnterRange();
    table.Print(window.PlotFrom(), window.PlotTo());
  } else {
    table.PrintAll();
  }
  std::fflush(stdout);
  return kDone;
}

}  // namespace

void AddTableCommand(CLI::App& program, int& status) {
  CLI::App* command =
      program.add_subcommand("table", "Prints the samples of a log as comma-separated values");
  command->footer("Example:\n  tarnview-cli table run.txt --items 1,63,3,5 --from 100 --to 200");
  auto options = std::make_shared<TableOptions>();
  options->AddTo(*command);
  command->add_flag("--raw", options->raw, "The stored integers instead of the values shown");
  command->callback([options, &status] { status = PrintTable(*options); });
}

}  // namespace tarnview
