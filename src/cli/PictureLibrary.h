#pragma once

#include <string>

#include "cli/PictureMaker.h"

namespace tarnview {

/// Loads the library that draws (tarnview-pictures, beside the program), so that a command which
/// draws nothing never pays for a toolkit. nullptr if it cannot be loaded; then `error` says why.
/// Lives until the program ends.
PictureMaker* LoadPictureMaker(std::string& error);

}  // namespace tarnview
