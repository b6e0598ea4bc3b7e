#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarnview {

/// How the characters of a log are written.
enum class TextEncoding { Windows1252, Utf8, Utf16LE, Utf16BE };

struct EncodingGuess {
  TextEncoding encoding = TextEncoding::Windows1252;
  std::size_t mark = 0;  ///< bytes of a byte order mark
  int score = 0;         ///< 0 to 100; 0: the bytes are no text
  const char* why = "";
};

/// From the first bytes of a file; a character may be cut at their end.
EncodingGuess GuessEncoding(std::string_view head);

/// As definitions name it: "WINDOWS-1252", "UTF-8", "UTF-16LE", "UTF-16BE".
std::string_view EncodingName(TextEncoding encoding);
/// Any case; nothing for another name.
std::optional<TextEncoding> EncodingOfName(std::string_view name);

/// A text as Windows-1252 bytes, '?' for what that lacks. A byte order mark at its start is let be.
std::string PlainBytes(std::string_view text, TextEncoding encoding);

}  // namespace tarnview
