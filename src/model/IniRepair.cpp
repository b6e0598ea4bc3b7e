#include "model/IniRepair.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <set>

#include "base/Text.h"
#include "model/IniFile.h"

namespace tarnview {
namespace {

constexpr char kGone = '\0';
constexpr int kMostRecords = 300;  ///< that a damaged number is looked for among
constexpr int kMostKeys = 1000;    ///< damaged ones that are looked for; behind them they are lost

bool IsDamaged(std::string_view text) { return text.find(kGone) != std::string_view::npos; }

/// Of more damage than text nobody can tell what it was.
bool CanBeTold(std::string_view damaged) {
  return std::count(damaged.begin(), damaged.end(), kGone) <=
         static_cast<std::ptrdiff_t>(damaged.size() / 2);
}

/// Whether a text may have been that one before it was damaged.
bool MayBe(std::string_view damaged, std::string_view whole) {
  return std::equal(damaged.begin(), damaged.end(), whole.begin(), whole.end(),
                    [](char a, char b) { return a == b || a == kGone; });
}

std::string WithMarks(std::string_view damaged) {
  std::string text(damaged);
  std::replace(text.begin(), text.end(), kGone, '?');
  return text;
}

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

/// The name of a record's key, in front of its number and behind it.
using KeyHalves = std::pair<std::string, std::string>;

/// The keys that a section's records would have with each number in place of their own.
std::set<KeyHalves> RecordKeys(const IniTable& table, std::string_view section) {
  std::set<KeyHalves> keys;
  for (const IniRow& row : table.Rows()) {
    if (row.section != section || IsDamaged(row.key)) continue;
    const auto digits = std::find_if(row.key.begin(), row.key.end(), IsDigit);
    if (digits == row.key.end()) continue;
    keys.emplace(std::string(row.key.begin(), digits),
                 std::string(std::find_if_not(digits, row.key.end(), IsDigit), row.key.end()));
  }
  return keys;
}

class Repair {
 public:
  Repair(std::string_view text, const std::vector<std::string>& headings)
      : text_(text), table_(ReadINIFileToArray(text)), headings_(headings) {}

  std::string Run() {
    std::string_view rest = text_, line;
    while (TakeLine(rest, line)) {
      if (const auto repaired = IsDamaged(line) ? Line(line) : std::string(line))
        out_ += *repaired + "\r\n";
      if (line.starts_with('[') && line.ends_with(']') && !IsDamaged(line))
        section_ = line.substr(1, line.size() - 2);
    }
    return out_;
  }

 private:
  std::optional<std::string> Line(std::string_view line) {
    const bool canBeTold = CanBeTold(line);
    for (const std::string& heading : headings_) {
      if (!canBeTold || !MayBe(line, "[" + heading + "]")) continue;
      section_ = heading;
      return "[" + heading + "]";
    }
    if (line.starts_with('[')) return WithMarks(line);  // whose it was, nobody knows
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    const auto key = Key(line.substr(0, equals));
    const auto value = Value(line.substr(equals + 1));
    if (key && value) return std::optional(*key + "=" + *value);
    return std::nullopt;
  }

  std::optional<std::string> Key(std::string_view key) {
    if (!IsDamaged(key)) return std::string(key);
    if (!CanBeTold(key) || ++keys_ > kMostKeys) return std::nullopt;
    if (section_ != sectionOfRecords_) records_ = RecordKeys(table_, section_);
    sectionOfRecords_ = section_;
    for (const KeyHalves& halves : records_)
      if (auto whole = FreeKey(key, halves)) return whole;
    return std::nullopt;
  }

  /// The first number whose key the damaged one may have been and no record has.
  std::optional<std::string> FreeKey(std::string_view key, const KeyHalves& halves) const {
    const auto& [front, back] = halves;
    const std::size_t named = front.size() + back.size();
    if (named >= key.size() || !MayBe(key.substr(0, front.size()), front) ||
        !MayBe(key.substr(key.size() - back.size()), back))
      return std::nullopt;
    for (int n = 0; n <= kMostRecords; ++n) {
      const std::string number = std::to_string(n), whole = front + number + back;
      if (MayBe(key.substr(front.size(), key.size() - named), number) &&
          !table_.Find(section_, whole))
        return whole;
    }
    return std::nullopt;
  }

  static std::optional<std::string> Value(std::string_view value) {
    if (!IsDamaged(value)) return std::string(value);
    if (std::none_of(value.begin(), value.end(), [](unsigned char c) { return std::isalpha(c); }))
      return std::nullopt;
    return WithMarks(value);
  }

  const std::string_view text_;
  const IniTable table_;
  const std::vector<std::string>& headings_;
  std::string section_, out_;
  int keys_ = 0;  ///< damaged ones that were looked for
  std::optional<std::string> sectionOfRecords_;
  std::set<KeyHalves> records_;  ///< of that section
};

/// Line ends that lost one of their two characters.
std::string WithLineEnds(std::string_view text) {
  std::string whole(text);
  for (std::size_t at = 0; at + 1 < whole.size(); ++at) {
    if (whole[at] == '\r' && whole[at + 1] == kGone) whole[at + 1] = '\n';
    if (whole[at] == kGone && whole[at + 1] == '\n') whole[at] = '\r';
  }
  return whole;
}

}  // namespace

std::string WithoutDamage(std::string_view text, const std::vector<std::string>& headings) {
  if (!IsDamaged(text)) return std::string(text);
  const std::string whole = WithLineEnds(text);
  return Repair(whole, headings).Run();
}

}  // namespace tarnview
