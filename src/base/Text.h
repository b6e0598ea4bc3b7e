#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnview {

// Texts are Windows-1252 bytes, and those that came from a file in UTF-8 are left so.

std::string_view Trim(std::string_view text);  ///< blanks at both ends
/// All characters with a code below 33 at both ends.
std::string_view TrimControlCharacters(std::string_view text);
/// If `text` is longer than `chars`: one `chars` off its start, then one off its end.
std::string_view TrimSpecifiedChars(std::string_view text, std::string_view chars);
/// One leading and one trailing double quote.
std::string_view StripQuotes(std::string_view text);

constexpr bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
constexpr char AsciiUpper(char c) {
  if (c >= 'a' && c <= 'z') return static_cast<char>(c - 'a' + 'A');
  return c;
}
/// The text; `instead` where it is empty.
inline std::string OrElse(std::string_view text, std::string_view instead) {
  if (text.empty()) text = instead;
  return std::string(text);
}
/// The text where it is wanted, else none.
inline std::string TextIf(bool wanted, std::string_view text) {
  if (!wanted) text = {};
  return std::string(text);
}
/// The text behind a lead; an empty text has none.
std::string WithLead(std::string_view lead, std::string_view text);
/// "1 sample", "2 samples".
std::string Counted(std::size_t count, std::string_view one);
/// In the text's own encoding: UTF-8 where all of it reads as such, else Windows-1252.
std::string Upper(std::string_view text);
/// Upper case as UTF-8, so that one word is the same in either encoding.
std::string CaseKey(std::string_view text);
bool SameIgnoringCase(std::string_view a, std::string_view b);
/// An empty text has no parts.
std::vector<std::string> Split(std::string_view text, char delimiter);
std::string Join(const std::vector<std::string>& parts, std::string_view delimiter);

/// Sorts the rows from `firstRow` on by the text of one column, ascending.
void Sort2DStringArray(std::vector<std::vector<std::string>>& table, std::size_t sortColumn,
                       std::size_t firstRow = 0);

/// Windows-1252 bytes as UTF-8, for the edges of the program (JSON, the toolkit), and back ('?' for
/// what it lacks).
std::string ToUtf8(std::string_view text);
std::string FromUtf8(std::string_view text);
/// ToUtf8 of a text that is only shown and may hold a path, whose bytes are the platform's: what is
/// a character of UTF-8 already, of more than one byte, stays.
std::string ShownAsUtf8(std::string_view text);

/// At most `most` bytes and "..." behind what was cut, which ends with a whole character of UTF-8.
std::string Shortened(std::string_view text, std::size_t most);

/// Takes the next line off the front of `rest`, without its end (CR LF, LF; the last line needs
/// none). False at the end of the text.
bool TakeLine(std::string_view& rest, std::string_view& line);

}  // namespace tarnview
