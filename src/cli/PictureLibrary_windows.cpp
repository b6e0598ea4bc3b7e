#include <windows.h>

#include "base/ProgramFolder.h"
#include "cli/PictureLibrary.h"

namespace tarnview {

PictureMaker* LoadPictureMaker(std::string& error) {
  const std::string path = ProgramFolder() + "tarnview-pictures.dll";
  const HMODULE library = LoadLibraryA(path.c_str());
  FARPROC entry = nullptr;
  if (library) entry = GetProcAddress(library, "TarnviewPictures");
  if (!entry) {
    error = "cannot load " + path;
    return nullptr;
  }
  return reinterpret_cast<PictureMaker* (*)()>(entry)();
}

}  // namespace tarnview
