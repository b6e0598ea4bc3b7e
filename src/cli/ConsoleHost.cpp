#include "cli/ConsoleHost.h"

#include <cstdio>

#include "base/Text.h"

namespace tarnview {

Reply ConsoleHost::Ask(const Box& box) {
  std::string line;
  for (char c : ToUtf8(box.text)) {
    // A message is one line here: its line ends become blanks.
    if (c == '\r' || c == '\n')
      line += line.ends_with(' ') ? "" : " ";
    else
      line += c;
  }
  std::fprintf(stderr, "message %d: %s\n", box.id, line.c_str());
  return RecordingHost::Ask(box);
}

}  // namespace tarnview
