#pragma once

#include <string>

#include "ui/ChartDescription.h"

namespace tarnview {

/// Draws charts into files. It lies in a module of its own, tarnview-pictures, which is loaded when
/// a picture is asked for: the toolkit's start would cost every other command.
class PictureMaker {
 public:
  virtual ~PictureMaker() = default;

  /// The ending of `path` (.png, .svg, .pdf) says what is written; sizes in pixels, 1 to 16384.
  /// False: nothing was written, and `error` says why.
  virtual bool Draw(const ChartDescription& chart, const std::string& path, int width, int height,
                    std::string& error) = 0;
};

/// The module's one entry; what it returns lives as long as the module.
extern "C" {
using PictureMakerEntry = PictureMaker* (*)();
}
inline constexpr const char* kPictureMakerEntry = "TarnviewPictures";

}  // namespace tarnview
