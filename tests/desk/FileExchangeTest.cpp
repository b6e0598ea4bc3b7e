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
  EXPECT_STORY(story, R"(
save "" -> [save "Save As" of Cars (*.car) cancel], started /cars as ""
save . -> [save "Save As" of Cars (*.car) cancel], started /cars as ""
save .. -> [save "Save As" of Cars (*.car) cancel], started /cars as ""
save a/b -> [save "Save As" of Cars (*.car) cancel], started /cars as ""
answer cancel; save Mine -> [save "Save As" of Cars (*.car) cancel], started /cars as "/cars/Mine.car"
answer ok; save Mine -> [save "Save As" of Cars (*.car) ok], started /cars as "/cars/Mine.car", file 2026
answer file /other/x; save Mine -> [save "Save As" of Cars (*.car) /other/x], started /cars/Mine.car as "/cars/Mine.car"
put /other/x.car text; answer file /other/x.car; load -> [open "Load" of Cars (*.car) /other/x.car], started /other/x.car as "", took /other/x.car: text
put /other/x.car bad; answer file /other/x.car; load -> [open "Load" of Cars (*.car) /other/x.car], [15 ok], started /other/x.car as ""
answer file /none.car; load -> [open "Load" of Cars (*.car) /none.car], [15 ok], started /other/x.car as ""
answer cancel; load -> [open "Load" of Cars (*.car) cancel], started /none.car as ""
disk full; answer ok; save Mine -> [save "Save As" of Cars (*.car) ok], [19 ok], started /none.car as "/none.car"
)");
}

}  // namespace
}  // namespace tarnview
