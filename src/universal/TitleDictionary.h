#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarnview {

/// What a title of a log's column is known as.
struct KnownTitle {
  std::string item;  ///< short name of a data item of the catalogue; "" for a title that is none
  std::string unit;  ///< of its values, where the log tells none; may be ""
  int score = 0;     ///< 0 for an unknown title; 100 where all words are those of an alias
};

/// The titles under which loggers of the field keep the data items: a plain table that a user may
/// add to. A line is "alias ; item ; unit"; "#" begins a comment. The last of two like aliases
/// counts.
class TitleDictionary {
 public:
  TitleDictionary() = default;
  /// UTF-8. Lines that are none of these are passed over.
  explicit TitleDictionary(std::string_view text);

  int Count() const { return static_cast<int>(entries_.size()); }
  /// A title without its unit. It is compared by words: case, blanks, signs and brackets do not
  /// matter, nor words of no meaning such as "(SAE)", nor their order ("Speed, engine"); a path
  /// ("engine/rpm") and a maker's word in front ("XYZ Engine Speed") may be there.
  KnownTitle Find(std::string_view title) const;
  /// Item names that stand in it, each once.
  std::vector<std::string> Items() const;

 private:
  const KnownTitle* Exactly(const std::vector<std::string>& words) const;
  KnownTitle FindWords(std::vector<std::string> words) const;

  std::unordered_map<std::string, KnownTitle> entries_;  ///< by the alias' words, joined by blanks
  std::unordered_map<std::string, KnownTitle> sorted_;   ///< the same by its words in order
};

/// Small letters; a capital behind a small letter begins a word, and so does a digit behind a
/// letter: "wboAFR1" is "wbo", "afr", "1".
std::vector<std::string> WordsOf(std::string_view title);

}  // namespace tarnview
