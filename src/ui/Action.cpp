#include "ui/Action.h"

#include <charconv>

namespace tarnview {

const std::string& Action::Word(std::size_t n) const {
  if (n >= words.size()) throw CannotDo("\"" + verb + "\" needs more words");
  return words[n];
}

int Action::Number(std::size_t n) const {
  const std::string& word = Word(n);
  int number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size()) throw CannotDo("\"" + word + "\" is no whole number");
  return number;
}

}  // namespace tarnview
