#pragma once

#include <string_view>

namespace tarnview {

/// The fixed layout (FileType) whose headings stand in the first lines of a text; 0 for none of
/// them.
int FileTypeByMarks(std::string_view head);

}  // namespace tarnview
