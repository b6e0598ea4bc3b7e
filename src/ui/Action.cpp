#include "ui/Action.h"

#include <charconv>
#include <cmath>

namespace tarnview {

const std::string& Action::Word(std::size_t n) const {
  if (n >= words.size()) throw CannotDo("\"" + verb + "\" needs more words");
  return words[n];
}

namespace {

template <class T>
T WholeWord(const std::string& word, const char* kind) {
  T number{};
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size())
    throw CannotDo("\"" + word + "\" is no " + kind);
  return number;
}

}  // namespace

int Action::Number(std::size_t n) const { return WholeWord<int>(Word(n), "whole number"); }

double Action::Decimal(std::size_t n) const {
  const double number = WholeWord<double>(Word(n), "number");
  if (!std::isfinite(number)) throw CannotDo("\"" + Word(n) + "\" is no number");
  return number;
}

}  // namespace tarnview
