#include "universal/TextEncoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "base/Text.h"

namespace tarnview {
namespace {

struct Named {
  TextEncoding encoding;
  std::string_view name, mark;
};

constexpr Named kEncodings[] = {
    {TextEncoding::Windows1252, "WINDOWS-1252", ""},
    {TextEncoding::Utf8, "UTF-8", "\xEF\xBB\xBF"},
    {TextEncoding::Utf16LE, "UTF-16LE", "\xFF\xFE"},
    {TextEncoding::Utf16BE, "UTF-16BE", "\xFE\xFF"},
};

constexpr std::size_t kLookedAt = 1 << 14;

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

/// Bytes of the character that starts with this one; 0 for none.
std::size_t LengthOfUtf8(char first) {
  const auto byte = static_cast<unsigned char>(first);
  if (byte < 0x80) return 1;
  if (byte >= 0xC2 && byte < 0xE0) return 2;
  if (byte >= 0xE0 && byte < 0xF0) return 3;
  if (byte >= 0xF0 && byte < 0xF5) return 4;
  return 0;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = LengthOfUtf8(text[0]);
    if (length == 0) return false;
    const std::string_view rest = text.substr(1, length - 1);
    if (!std::all_of(rest.begin(), rest.end(), IsContinuation)) return false;
    text.remove_prefix(std::min(length, text.size()));
  }
  return true;
}

/// NULs at even and at odd places.
std::array<std::size_t, 2> CountNuls(std::string_view text) {
  std::array<std::size_t, 2> nuls{};
  for (std::size_t at = 0; at < text.size(); ++at) nuls[at % 2] += text[at] == '\0';
  return nuls;
}

void AddUtf8(std::string& out, std::uint32_t code) {
  if (code < 0x800) {
    out += static_cast<char>(0xC0 | code >> 6);
  } else {
    out += static_cast<char>(0xE0 | code >> 12);
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
  }
  out += static_cast<char>(0x80 | (code & 0x3F));
}

/// Half of a pair that stands for a character beyond 16 bits becomes one '?', its second half
/// nothing.
void AddUnit(std::string& out, std::uint32_t unit) {
  if (unit < 0x80)
    out += static_cast<char>(unit);
  else if (unit >= 0xD800 && unit < 0xDC00)
    out += '?';
  else if (unit < 0xDC00 || unit >= 0xE000) {
    std::string character;
    AddUtf8(character, unit);
    out += FromUtf8(character);
  }
}

/// Whole stretches of ASCII at a time, which nearly all of a log is.
std::string FromUtf16(std::string_view text, bool bigEndian) {
  std::string out(text.size() / 2, '\0');
  std::string other;
  const std::size_t high = bigEndian ? 0 : 1, units = text.size() / 2;
  std::size_t length = 0;
  for (std::size_t unit = 0; unit < units; ++unit) {
    const auto upper = static_cast<unsigned char>(text[unit * 2 + high]);
    const auto lower = static_cast<unsigned char>(text[unit * 2 + 1 - high]);
    if (upper == 0 && lower < 0x80) {
      out[length++] = static_cast<char>(lower);
      continue;
    }
    other.clear();
    AddUnit(other, static_cast<std::uint32_t>(upper << 8 | lower));
    if (!other.empty()) out[length++] = other[0];
  }
  out.resize(length);
  return out;
}

}  // namespace

EncodingGuess GuessEncoding(std::string_view head) {
  for (const Named& row : kEncodings)
    if (!row.mark.empty() && head.starts_with(row.mark))
      return {row.encoding, row.mark.size(), 100, "a byte order mark stands in front"};
  const std::string_view text = head.substr(0, kLookedAt);
  const auto nuls = CountNuls(text);
  const std::size_t many = text.size() / 5, few = text.size() / 50;
  if (nuls[1] > many && nuls[0] <= few)
    return {TextEncoding::Utf16LE, 0, 90, "every second byte is 0"};
  if (nuls[0] > many && nuls[1] <= few)
    return {TextEncoding::Utf16BE, 0, 90, "every first byte of two is 0"};
  if (nuls[0] + nuls[1] > 0) return {TextEncoding::Windows1252, 0, 0, "zero bytes: no text"};
  if (IsUtf8(text)) return {TextEncoding::Utf8, 0, 95, "all of it reads as UTF-8"};
  return {TextEncoding::Windows1252, 0, 80, "bytes that are no UTF-8"};
}

std::string_view EncodingName(TextEncoding encoding) {
  return kEncodings[static_cast<std::size_t>(encoding)].name;
}

std::optional<TextEncoding> EncodingOfName(std::string_view name) {
  for (const Named& row : kEncodings)
    if (SameIgnoringCase(row.name, name)) return row.encoding;
  return std::nullopt;
}

std::string PlainBytes(std::string_view text, TextEncoding encoding) {
  const std::string_view mark = kEncodings[static_cast<std::size_t>(encoding)].mark;
  if (!mark.empty() && text.starts_with(mark)) text.remove_prefix(mark.size());
  if (encoding == TextEncoding::Windows1252) return std::string(text);
  if (encoding != TextEncoding::Utf8) return FromUtf16(text, encoding == TextEncoding::Utf16BE);
  const bool ascii = std::none_of(text.begin(), text.end(),
                                  [](char c) { return static_cast<signed char>(c) < 0; });
  if (ascii) return std::string(text);
  return FromUtf8(text);
}

}  // namespace tarnview
