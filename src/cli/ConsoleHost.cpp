#include "cli/ConsoleHost.h"

#include <cstdio>

#include "base/Text.h"
#include "cli/PictureLibrary.h"
#include "ui/Chart.h"

namespace tarnview {
namespace {

/// Pixels of a picture that no window gives a size.
constexpr int kPictureWidth = 1400, kPictureHeight = 800;

}  // namespace

Reply ConsoleHost::Ask(const Box& box) {
  std::string line;
  for (char c : ShownAsUtf8(box.TextWithin(kMostDetailsTold))) {
    // A message is one line here: its line ends become blanks.
    if (c == '\r' || c == '\n')
      line += line.ends_with(' ') ? "" : " ";
    else
      line += c;
  }
  std::fprintf(stderr, "message %d: %s\n", box.id, line.c_str());
  return RecordingHost::Ask(box);
}

bool ConsoleHost::SavePicture(const Chart& chart, const std::string& path, std::string& error) {
  PictureMaker* maker = LoadPictureMaker(error);
  return maker && maker->Draw(chart.Data(), path, kPictureWidth, kPictureHeight, error);
}

}  // namespace tarnview
