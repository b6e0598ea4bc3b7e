#include <windows.h>

#include "base/ProgramFolder.h"
#include "cli/PictureLibrary.h"

namespace tarnview {

PictureMaker* LoadPictureMaker(std::string& error) {
  const std::string path = ProgramFolder() + "tarnview-pictures.dll";
  const HMODULE library = LoadLibraryA(path.c_str());
  const FARPROC entry = library ? GetProcAddress(library, "TarnviewPictures") : nullptr;
  if (!entry) {
    error = "cannot load " + path;
    return nullptr;
  }
  return reinterpret_cast<PictureMaker* (*)()>(entry)();
}

}  // namespace tarnview
