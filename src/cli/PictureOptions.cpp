#include "cli/PictureOptions.h"

#include <cstdio>

#include "cli/PictureLibrary.h"

namespace tarnview {
namespace {

constexpr int kLeastSide = 50;
constexpr int kGreatestSide = 20000;  // pixels

/// "1400x800"; false for anything else.
bool ParseSize(const std::string& text, int& width, int& height) {
  char after = 0;
  return std::sscanf(text.c_str(), "%dx%d%c", &width, &height, &after) == 2 &&
         width >= kLeastSide && height >= kLeastSide && width <= kGreatestSide &&
         height <= kGreatestSide;
}

std::string CheckSize(const std::string& text) {
  int width = 0, height = 0;
  if (ParseSize(text, width, height)) return "";
  return "a size is WIDTHxHEIGHT in pixels, 50 to 20000";
}

std::string CheckPicture(const std::string& path) {
  for (const char* ending : {".png", ".svg", ".pdf"})
    if (path.ends_with(ending)) return "";
  return "a picture's name ends in .png, .svg or .pdf";
}

}  // namespace

void PictureOptions::AddTo(CLI::App& command) {
  command.add_option("--scheme", scheme, "1 grey, 2 black, 3 white")->check(CLI::Range(1, 3));
  command.add_option("--size", size, "WIDTHxHEIGHT in pixels (1400x800)")->check(CheckSize);
  command.add_option("--out", out, "Draw into this file: .png, .svg or .pdf")->check(CheckPicture);
}

bool DrawPicture(const ChartDescription& chart, const PictureOptions& options) {
  if (options.out.empty()) return true;
  int width = 0, height = 0;
  ParseSize(options.size, width, height);
  std::string error;
  PictureMaker* pictures = LoadPictureMaker(error);
  if (pictures && pictures->Draw(chart, options.out, width, height, error)) return true;
  std::fprintf(stderr, "tarnview-cli: cannot draw %s: %s\n", options.out.c_str(), error.c_str());
  return false;
}

}  // namespace tarnview
