// Any bytes as the settings file: what is written of them is read back and written the same.

#include <cstdlib>

#include "../support/FixedClock.h"
#include "../support/MemoryFileSystem.h"
#include "../support/RecordingProcesses.h"
#include "app/SettingsFile.h"
#include "ui/RecordingHost.h"

namespace tarnview {

inline std::string ReadAndWritten(std::string text) {
  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  RecordingProcesses processes;
  EXEFunctions programs(processes, host);
  ErrorLog errors(files, clock, "");
  Messages messages(host, {});
  Services services{host, files, clock, programs, errors, messages};
  Globals globals;
  globals.gstrINIFile = "Tarnview.ini";
  files.files["Tarnview.ini"] = std::move(text);
  SettingsFile file(globals, services);
  file.LoadINIFileNew();
  globals.catalogue.gcolUniversalDataItems = globals.catalogue.gcolFixedDataItems.Duplicate();
  file.LoadPresets();
  file.WriteINIFile("written", [](const char*) {});
  return files.files["written"];
}

}  // namespace tarnview

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const std::string once = tarnview::ReadAndWritten({reinterpret_cast<const char*>(data), size});
  if (tarnview::ReadAndWritten(once) != once) std::abort();
  return 0;
}
