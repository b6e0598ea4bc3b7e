#include "desk/Help.h"

#include <cctype>
#include <string_view>

#include "base/Text.h"

namespace tarnview {
namespace {

constexpr const char* kLauncher = "HelpLauncher.htm";

/// A path as a page names it: "#", a blank or a letter beyond ASCII would end the name or change
/// it.
std::string UrlOf(const std::string& path) {
  constexpr std::string_view kPlain = "/:-._~";
  constexpr const char* kHex = "0123456789ABCDEF";
  std::string url;
  for (const char one : path) {
    const auto byte = static_cast<unsigned char>(one);
    if (one == '\\')
      url += '/';
    else if (byte < 0x80 && (std::isalnum(byte) || kPlain.find(one) != kPlain.npos))
      url += one;
    else
      url += {'%', kHex[byte >> 4], kHex[byte & 15]};
  }
  return url;
}

}  // namespace

void Help::ShowHelp(const std::string& topic) {
  const std::string contents = UrlOf(folder_ + "Contents.htm");
  const std::string instructions = UrlOf(folder_ + "Instructions.htm") + WithLead("#", topic);
  const std::string page =
      "<HEAD><title>Tarnview Instructions</title></HEAD>\r\n"
      "<frameset cols=\"216,1*\">\r\n"
      "<frame name=\"Frame2\" src=\"file://" +
      contents +
      "\">\r\n"
      "<frame name=\"Frame1\" src=\"file://" +
      instructions +
      "\">\r\n"
      "<noframes>\r\n"
      "<body lang=EN-GB style='tab-interval:36.0pt'>\r\n"
      "<div class=Section1>\r\n"
      "<p class=MsoNormal>This page uses frames, but your browser doesn't support them.</p>\r\n"
      "</div></body></noframes></frameset>\r\n";
  if (files_.FileExists(folder_ + "Contents.htm"))
    for (const std::string& folder : {folder_, writableFolder_})
      if (WriteLauncher(folder + kLauncher, page)) {
        programs_.ShellOpen(folder + kLauncher);
        return;
      }
  messages_.ShowMessage(Message::HelpFailed);
}

bool Help::WriteLauncher(const std::string& launcher, const std::string& page) {
  if (launcher == kLauncher) return false;
  if (files_.FileExists(launcher)) files_.DeleteFile(launcher);
  return files_.Write(launcher, page);
}

}  // namespace tarnview
