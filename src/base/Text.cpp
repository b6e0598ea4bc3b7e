#include "base/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tarnview {
namespace {

template <class Drop>
std::string_view TrimWhere(std::string_view text, Drop drop) {
  while (!text.empty() && drop(text.front())) text.remove_prefix(1);
  while (!text.empty() && drop(text.back())) text.remove_suffix(1);
  return text;
}

/// Unicode of the bytes 0x80 to 0x9F in Windows-1252; the five unassigned ones stand for
/// themselves.
constexpr std::array<std::uint16_t, 32> kHighControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ByteOf(std::uint32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
  const auto found = std::find(kHighControls.begin(), kHighControls.end(), code);
  if (found == kHighControls.end()) return '?';
  return static_cast<char>(0x80 + (found - kHighControls.begin()));
}

constexpr std::uint32_t kIllFormed = 0xFFFD;

/// Of a character of UTF-8, in bytes; 0 for a byte that none begins with.
std::size_t LengthByLead(unsigned char lead) {
  constexpr struct {
    unsigned char below;
    std::size_t length;
  } kLeads[] = {{0x80, 1}, {0xC2, 0}, {0xE0, 2}, {0xF0, 3}, {0xF5, 4}};
  for (const auto& row : kLeads)
    if (lead < row.below) return row.length;
  return 0;
}

/// Takes one character off the front; an ill-formed byte counts as a character that Windows-1252
/// lacks.
std::uint32_t TakeCharacter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t length = LengthByLead(lead);
  if (length == 0 || length > text.size()) {
    text.remove_prefix(1);
    return kIllFormed;
  }
  std::uint32_t code = length == 1 ? lead : lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if ((next & 0xC0) != 0x80) {
      text.remove_prefix(i);
      return kIllFormed;
    }
    code = code << 6 | (next & 0x3Fu);
  }
  text.remove_prefix(length);
  return code;
}

void AddUtf8(std::string& out, std::uint32_t code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
    return;
  }
  if (code < 0x800) {
    out += static_cast<char>(0xC0 | code >> 6);
  } else {
    if (code < 0x10000) {
      out += static_cast<char>(0xE0 | code >> 12);
    } else {
      out += static_cast<char>(0xF0 | code >> 18);
      out += static_cast<char>(0x80 | (code >> 12 & 0x3F));
    }
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
  }
  out += static_cast<char>(0x80 | (code & 0x3F));
}

std::uint32_t CodeOf(char c) {
  const auto byte = static_cast<unsigned char>(c);
  if (byte >= 0x80 && byte < 0xA0) return kHighControls[byte - 0x80u];
  return byte;
}

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<signed char>(c) >= 0; });
}

bool IsWellFormed(std::string_view text) {
  while (!text.empty())
    if (TakeCharacter(text) == kIllFormed) return false;
  return true;
}

/// Small letters, every `step` from `first` to `last`, and how far above the capitals stand.
struct SmallLetters {
  std::uint32_t first, last, step;
  std::int32_t above;
};

constexpr SmallLetters kSmallLetters[] = {
    // clang-format off
    {'a', 'z', 1, 32},     {0xE0, 0xF6, 1, 32},   {0xF8, 0xFE, 1, 32},  {0xFF, 0xFF, 1, 0xFF - 0x178},
    {0x101, 0x12F, 2, 1},  {0x133, 0x137, 2, 1},  {0x13A, 0x148, 2, 1}, {0x14B, 0x177, 2, 1},
    {0x17A, 0x17E, 2, 1},                          // Latin
    {0x3B1, 0x3C1, 1, 32}, {0x3C3, 0x3CB, 1, 32},  // Greek
    {0x430, 0x44F, 1, 32}, {0x450, 0x45F, 1, 80},  // Cyrillic
    // clang-format on
};

std::uint32_t UpperCode(std::uint32_t code) {
  for (const SmallLetters& row : kSmallLetters)
    if (code >= row.first && code <= row.last && (code - row.first) % row.step == 0)
      return static_cast<std::uint32_t>(static_cast<std::int32_t>(code) - row.above);
  return code;
}

/// Upper case of a text that is well-formed UTF-8.
std::string UpperUtf8(std::string_view text) {
  std::string upper;
  while (!text.empty()) AddUtf8(upper, UpperCode(TakeCharacter(text)));
  return upper;
}

}  // namespace

std::string_view Trim(std::string_view text) {
  return TrimWhere(text, [](char c) { return c == ' '; });
}

std::string_view TrimControlCharacters(std::string_view text) {
  return TrimWhere(text, [](char c) { return static_cast<unsigned char>(c) < 33; });
}

std::string_view TrimSpecifiedChars(std::string_view text, std::string_view chars) {
  if (text.size() <= chars.size()) return text;
  if (text.starts_with(chars)) text.remove_prefix(chars.size());
  if (text.ends_with(chars)) text.remove_suffix(chars.size());
  return text;
}

std::string_view StripQuotes(std::string_view text) {
  if (text.starts_with('"')) text.remove_prefix(1);
  if (text.ends_with('"')) text.remove_suffix(1);
  return text;
}

std::string Upper(std::string_view text) {
  std::string upper(text);
  if (IsAscii(text)) {
    std::transform(upper.begin(), upper.end(), upper.begin(), AsciiUpper);
    return upper;
  }
  if (IsWellFormed(text)) return UpperUtf8(text);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](char c) { return ByteOf(UpperCode(CodeOf(c))); });
  return upper;
}

std::string CaseKey(std::string_view text) {
  if (IsAscii(text) || IsWellFormed(text)) return Upper(text);
  return UpperUtf8(ToUtf8(text));
}

std::string WithLead(std::string_view lead, std::string_view text) {
  if (text.empty()) return "";
  return std::string(lead) + std::string(text);
}

std::string Counted(std::size_t count, std::string_view one) {
  return std::to_string(count) + " " + std::string(one) + TextIf(count != 1, "s");
}

bool SameIgnoringCase(std::string_view a, std::string_view b) {
  if (IsAscii(a) != IsAscii(b)) return false;
  if (!IsAscii(a)) return CaseKey(a) == CaseKey(b);
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return AsciiUpper(x) == AsciiUpper(y); });
}

std::vector<std::string> Split(std::string_view text, char delimiter) {
  std::vector<std::string> parts;
  if (text.empty()) return parts;
  for (;;) {
    const auto end = text.find(delimiter);
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

std::string Join(const std::vector<std::string>& parts, std::string_view delimiter) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) text += delimiter;
    text += parts[i];
  }
  return text;
}

void Sort2DStringArray(std::vector<std::vector<std::string>>& table, std::size_t sortColumn,
                       std::size_t firstRow) {
  const auto cell = [sortColumn](const std::vector<std::string>& row) {
    if (sortColumn < row.size()) return std::string_view(row[sortColumn]);
    return std::string_view();
  };
  if (firstRow >= table.size()) return;
  std::stable_sort(table.begin() + static_cast<std::ptrdiff_t>(firstRow), table.end(),
                   [&](const auto& a, const auto& b) { return cell(a) < cell(b); });
}

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char c : text) AddUtf8(utf8, CodeOf(c));
  return utf8;
}

std::string FromUtf8(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) bytes += ByteOf(TakeCharacter(text));
  return bytes;
}

std::string ShownAsUtf8(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    std::string_view rest = text;
    const bool wellFormed = TakeCharacter(rest) != kIllFormed;
    const std::size_t length = text.size() - rest.size();
    if (wellFormed) {
      shown += text.substr(0, length);
      text = rest;
    } else {
      shown += ToUtf8(text.substr(0, 1));
      text.remove_prefix(1);
    }
  }
  return shown;
}

std::string Shortened(std::string_view text, std::size_t most) {
  if (text.size() <= most) return std::string(text);
  constexpr std::string_view kDots = "...";
  std::size_t end = most - kDots.size();
  const auto continues = [&] { return (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80; };
  for (int back = 0; back < 3 && end > 0 && continues(); ++back) --end;
  return std::string(text.substr(0, end)) + std::string(kDots);
}

bool TakeLine(std::string_view& rest, std::string_view& line) {
  if (rest.empty()) return false;
  const auto end = rest.find('\n');
  line = rest.substr(0, end);
  rest.remove_prefix(std::min(line.size() + 1, rest.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return true;
}

}  // namespace tarnview
