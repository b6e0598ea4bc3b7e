#include "universal/TitleDictionary.h"

#include <algorithm>
#include <span>

#include "base/Text.h"

namespace tarnview {
namespace {

constexpr std::string_view kNoMeaning[] = {"sae",    "obd",   "the",      "of",  "ecu",    "signal",
                                           "actual", "value", "measured", "ist", "istwert"};
/// A quantity that is wanted, or a limit of one, is another than the quantity.
constexpr std::string_view kAnother[] = {"target",   "desired", "commanded", "requested", "max",
                                         "min",      "limit",   "delta",     "error",     "soll",
                                         "setpoint", "idle",    "diff",      "rate",      "learned",
                                         "lower",    "upper",   "avg",       "raw"};

bool IsOneOf(std::span<const std::string_view> words, const std::string& word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

enum class Letter { Small, Capital, Digit, Sign };

Letter LetterOf(char c) {
  const auto byte = static_cast<unsigned char>(c);
  if (c >= '0' && c <= '9') return Letter::Digit;
  if ((c >= 'A' && c <= 'Z') || (byte >= 0xC0 && byte < 0xDF && byte != 0xD7))
    return Letter::Capital;
  const bool small = (c >= 'a' && c <= 'z') || (byte >= 0xDF && byte != 0xF7);
  if (small) return Letter::Small;
  return Letter::Sign;
}

char SmallOf(char c) {
  if (LetterOf(c) != Letter::Capital) return c;
  return static_cast<char>(c + 32);
}

std::string Joined(const std::vector<std::string>& words) { return Join(words, " "); }

std::vector<std::string> Sorted(std::vector<std::string> words) {
  std::sort(words.begin(), words.end());
  return words;
}

/// The part of a path behind its last sign.
std::string_view LastOfPath(std::string_view title) {
  const auto sign = title.find_last_of("/:.|\\>");
  if (sign == std::string_view::npos) return std::string_view();
  return title.substr(sign + 1);
}

}  // namespace

std::vector<std::string> WordsOf(std::string_view title) {
  std::vector<std::string> words;
  Letter last = Letter::Sign;
  for (const char c : title) {
    const Letter letter = LetterOf(c);
    if (letter != Letter::Sign) {
      const bool grows = letter == last || (last == Letter::Capital && letter == Letter::Small);
      if (!grows || words.empty()) words.emplace_back();
      words.back() += SmallOf(c);
    }
    last = letter;
  }
  return words;
}

TitleDictionary::TitleDictionary(std::string_view text) {
  const std::string bytes = FromUtf8(text);
  std::string_view rest = bytes, line;
  while (TakeLine(rest, line)) {
    const auto parts = Split(line, ';');
    if (line.starts_with('#') || parts.size() < 2) continue;
    const auto words = WordsOf(parts[0]);
    if (words.empty()) continue;
    std::string unit;
    if (parts.size() > 2) unit = parts[2];
    const KnownTitle known{std::string(Trim(parts[1])), std::string(Trim(unit)), 100};
    entries_[Joined(words)] = known;
    if (words.size() > 1) sorted_[Joined(Sorted(words))] = known;
  }
}

const KnownTitle* TitleDictionary::Exactly(const std::vector<std::string>& words) const {
  const auto found = entries_.find(Joined(words));
  if (found == entries_.end()) return nullptr;
  return &found->second;
}

/// All words; without those of no meaning; without a last "1"; in another order; without words in
/// front. The speed of a satellite receiver serves where the log has no other.
KnownTitle TitleDictionary::FindWords(std::vector<std::string> words) const {
  if (const KnownTitle* known = Exactly(words)) return *known;
  std::erase_if(words, [](const std::string& word) { return IsOneOf(kNoMeaning, word); });
  int score = 95;
  for (;;) {
    if (const KnownTitle* known = Exactly(words)) return {known->item, known->unit, score};
    if (words.size() < 2 || words.back() != "1") break;
    words.pop_back();
    score = 90;
  }
  if (const auto found = sorted_.find(Joined(Sorted(words))); found != sorted_.end())
    return {found->second.item, found->second.unit, 85};
  for (std::size_t front = 1; front + 2 <= words.size() && front <= 3; ++front) {
    if (IsOneOf(kAnother, words[front - 1])) break;
    const std::vector<std::string> behind(words.begin() + static_cast<std::ptrdiff_t>(front),
                                          words.end());
    if (const KnownTitle* known = Exactly(behind)) return {known->item, known->unit, 60};
  }
  if (words.size() == 2 && words[0] == "gps")
    if (const KnownTitle* known = Exactly({words[1]})) return {known->item, known->unit, 50};
  return {};
}

KnownTitle TitleDictionary::Find(std::string_view title) const {
  KnownTitle known = FindWords(WordsOf(title));
  if (known.score > 60 || title.size() > 100) return known;
  KnownTitle last = FindWords(WordsOf(LastOfPath(title)));
  if (last.score > known.score) return {last.item, last.unit, last.score - 20};
  return known;
}

std::vector<std::string> TitleDictionary::Items() const {
  std::vector<std::string> items;
  for (const auto& [words, known] : entries_) items.push_back(known.item);
  std::sort(items.begin(), items.end());
  items.erase(std::unique(items.begin(), items.end()), items.end());
  return items;
}

}  // namespace tarnview
