#include <dlfcn.h>

#include "base/ProgramFolder.h"
#include "cli/PictureLibrary.h"

namespace tarnview {

PictureMaker* LoadPictureMaker(std::string& error) {
  const std::string path = ProgramFolder() + "tarnview-pictures.so";
  void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* entry = library ? dlsym(library, "TarnviewPictures") : nullptr;
  if (!entry) {
    const char* reason = dlerror();
    if (reason)
      error = reason;
    else
      error = "cannot load " + path;
    return nullptr;
  }
  return reinterpret_cast<PictureMaker* (*)()>(entry)();
}

}  // namespace tarnview
