#include "app/CommandLine.h"
#include "model/clsLogFamilies.h"

/// The one argument of the program, and what is made of it until a file is opened.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace tarnview;
  static const FileKinds kinds = SetUpLogFamilies();
  const CommandLineFile file = ParseCommandLine({reinterpret_cast<const char*>(data), size});
  const clsFileTypes& types = kinds.gcolFileTypes;
  const int type =
      file.fileType ? types.ValidateFileType(*file.fileType) : types.GuessFileType(file.path, 1);
  types.Item(type);
  return 0;
}
