#pragma once

#include <string>
#include <string_view>

namespace tarnview {

// Both "\" and "/" separate. What these add is the separator that the path already uses, else the
// platform's own.

/// The text behind the last "." of the file's name; "" if it has none.
std::string GetExtension(std::string_view path);
/// Everything up to and with the last separator that stays when one at the end is dropped:
/// "C:\A\B\" gives "C:\A\".
std::string GetParentFolder(std::string_view path);
std::string AddBackslash(std::string_view path);
/// The name behind its folder; alone where there is none.
std::string PathIn(std::string_view folder, std::string_view name);
/// The name without its folder.
std::string FileTitle(std::string_view path);
/// No separator and no other character that a file's name cannot have on some desktop.
bool IsLegalFileName(std::string_view name);
/// `path` without its last extension and the point before it.
std::string WithoutExtension(std::string_view path);
/// At most `length` characters: the middle folders of a long path become "...".
std::string ShortPath(std::string_view path, std::size_t length = 50);

}  // namespace tarnview
