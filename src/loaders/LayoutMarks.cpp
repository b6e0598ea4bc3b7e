#include "loaders/LayoutMarks.h"

#include <initializer_list>

#include "base/Text.h"
#include "model/clsFileTypes.h"

namespace tarnview {
namespace {

/// A layout's line of headings: how it begins, blanks aside, and what stands in it; `without` does
/// not.
struct Mark {
  int fileType;
  int withinLines;
  std::string_view begins;
  std::initializer_list<std::string_view> holds;
  std::string_view without;
};

const Mark kMarks[] = {
    {kFMLinkLog, 1, "Sample ", {"RPM"}, ","},
    {kTec3Log, 2, "SECONDS", {"RPM", "TDUTY"}, ","},
    {kTec2Log, 2, "SECONDS", {"RPM", "GAMA"}, "TDUTY"},
    {kLinkPlusLog, 10, "Count\t", {"RPM", "MAP"}, ","},
    {kUTECCSVLog, 10, "TIME,", {"RPM", "SITE", "COUNT"}, "\t"},
    {kUTECFixedLog, 10, "RPM ", {"Site", "Count"}, ","},
};

bool Says(std::string_view line, const Mark& mark) {
  line = Trim(line);
  if (!line.starts_with(mark.begins) || line.find(mark.without) != std::string_view::npos)
    return false;
  for (const std::string_view text : mark.holds)
    if (line.find(text) == std::string_view::npos) return false;
  return true;
}

}  // namespace

int FileTypeByMarks(std::string_view head) {
  std::string_view rest = head, line;
  for (int number = 1; number <= 10 && TakeLine(rest, line); ++number)
    for (const Mark& mark : kMarks)
      if (number <= mark.withinLines && Says(line, mark)) return mark.fileType;
  return kUnknownFile;
}

}  // namespace tarnview
