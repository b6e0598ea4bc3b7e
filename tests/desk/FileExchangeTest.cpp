#include "base/RuntimeError.h"
#include "desk/FileExchange.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/Story.h"

namespace tarnview {
namespace {

/// A desktop that tells where a dialog starts and with which name.
struct Desktop : RecordingHost {
  bool Choose(Dialog& dialog) override {
    started = dialog.initialPath + " as \"" + dialog.path + "\"";
    return RecordingHost::Choose(dialog);
  }
  std::string started;
};

TEST(FileExchange, DialogsStartAtTheFileUsedLast) {
  Desktop host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, "/error.log"};
  Messages messages{host, [](int) { return ""; }};
  Form form{host, "frmAny", "Any"};
  form.Show();
  const std::string folder = "/cars";
  FileExchange exchange(form, {folder, files, clock, errors, messages},
                        {".car", "Cars (*.car)|*.car", true, Message::FileNotLoaded});
  std::string taken;
  Story story(host);
  story.Verb("disk", [&](const auto& words) { files.failWrites = words.at(0) == "full"; });
  story.Verb("save", [&](const auto& words) {
    exchange.Save(words.at(0), [](const Moment& now) { return std::to_string(now.year); });
  });
  story.Verb("load", [&](const auto&) {
    exchange.Load([&](std::string_view bytes, const std::string& path) {
      if (bytes == "bad") throw RuntimeError(5, "bad");
      taken = path + ": " + std::string(bytes);
    });
  });
  story.Verb("put", [&](const auto& words) { files.files[words.at(0)] = words.at(1); });
  story.Event("started", [&] { return std::exchange(host.started, ""); });
  story.Event("took", [&] { return std::exchange(taken, ""); });
  story.Event("file", [&] {
    const std::string text(files.Read("/cars/Mine.car").value_or(""));
    files.files.erase("/cars/Mine.car");
    return text;
  });
  EXPECT_STORY(story);
}

}  // namespace
}  // namespace tarnview
