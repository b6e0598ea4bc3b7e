// Any bytes as the settings file: what is written of them is read back and written the same.

#include <array>
#include <cstdlib>
#include <functional>

#include "../support/FixedClock.h"
#include "../support/MemoryFileSystem.h"
#include "../support/RecordingProcesses.h"
#include "app/SettingsFile.h"
#include "ui/RecordingHost.h"

namespace tarnview {

/// The program's settings, made once for all inputs. Of the items there are no more than the first
/// few: each has the same keys, and all of them would be nine tenths of the work.
class SettingsUnderTest {
 public:
  SettingsUnderTest() { Forget(); }

  std::string ReadAndWritten(std::string text) {
    files_.files["Tarnview.ini"] = std::move(text);
    {
      SettingsFile file(globals_, services_);
      file.LoadINIFileNew();
      file.LoadPresets();
      file.WriteINIFile("written", [](const char*) {});
    }
    std::string written = std::move(files_.files["written"]);
    Forget();
    return written;
  }

 private:
  static clsLogDataItems FewItems() {
    constexpr int kFew = 6;
    const clsLogDataItems all = BuildDataItemCatalogue().gcolFixedDataItems.Duplicate();
    clsLogDataItems few;
    for (int item = 1; item <= kFew; ++item) few.AddDirect(all.Item(item));
    return few;
  }
  /// Nothing of an input stays: what did would be looked through as a leak, at a high price.
  void Forget() {
    globals_.settings = {};
    globals_.gcolSampleGraphPresets = {};
    globals_.gcolScatterGraphPresets = {};
    globals_.gcolCarDefs = {};
    globals_.gcolBenchmarks = {};
    globals_.catalogue.gcolFixedDataItems = items_.Duplicate();
    globals_.catalogue.gcolUniversalDataItems = items_.Duplicate();
    host_.messages.clear();
    files_.files.clear();
    files_.accesses.clear();
  }
  static Globals OfTheFile() {
    Globals globals;
    globals.gstrINIFile = "Tarnview.ini";
    return globals;
  }

  const clsLogDataItems items_ = FewItems();
  RecordingHost host_;
  MemoryFileSystem files_;
  FixedClock clock_;
  RecordingProcesses processes_;
  EXEFunctions programs_{processes_, host_};
  ErrorLog errors_{files_, clock_, ""};
  Messages messages_{host_, {}};
  Services services_{host_, files_, clock_, programs_, errors_, messages_};
  Globals globals_ = OfTheFile();
};

}  // namespace tarnview

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static tarnview::SettingsUnderTest settings;
  static std::array<std::size_t, 4096> known;  // by hash: what is read back the same
  const std::string once = settings.ReadAndWritten({reinterpret_cast<const char*>(data), size});
  const std::size_t hash = std::hash<std::string>()(once);
  if (known[hash % known.size()] == hash) return 0;
  if (settings.ReadAndWritten(once) != once) std::abort();
  known[hash % known.size()] = hash;
  return 0;
}
