#pragma once

#include <string>
#include <string_view>

#include "universal/TextEncoding.h"

namespace tarnview {

/// Stands for a delimiter between quotes, where that is no thousands' sign.
inline constexpr char kQuotedDelimiter = '\x1F';

/// What the steps need to know of a log's form.
struct PlainForm {
  TextEncoding encoding = TextEncoding::Windows1252;
  char delimiter = ',';
  bool decimalComma = false;
};

/// One step on the way from a log's text to lines of plain fields, for a stretch of whole lines;
/// none of them adds a line or takes one away. Gives the text itself where there is nothing to be
/// done, else what it wrote to `out`.
using PlainStep = std::string_view (*)(std::string_view text, const PlainForm& form,
                                       std::string& out);

/// Bytes of two a character to Windows-1252.
std::string_view DecodeWide(std::string_view text, const PlainForm& form, std::string& out);
/// Lines that a carriage return alone ends.
std::string_view EndLines(std::string_view text, const PlainForm& form, std::string& out);
/// Fields without their double quotes; a delimiter between them becomes kQuotedDelimiter.
std::string_view TakeQuotes(std::string_view text, const PlainForm& form, std::string& out);
/// "1.234,5" becomes "1234,5".
std::string_view DropGroups(std::string_view text, const PlainForm& form, std::string& out);
/// A comma between digits becomes a point.
std::string_view PointForComma(std::string_view text, const PlainForm& form, std::string& out);
/// "1.5e-02" becomes "0.015000000": fields are read to their first letter.
std::string_view WriteExponents(std::string_view text, const PlainForm& form, std::string& out);
/// One delimiter for each run of blanks and tabs, none at the ends of a line.
std::string_view JoinRuns(std::string_view text, const PlainForm& form, std::string& out);

}  // namespace tarnview
