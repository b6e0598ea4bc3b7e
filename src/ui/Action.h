#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace tarnview {

/// One thing that a user does to a control: a verb ("click", "type", "row", ...) and its words.
struct Action {
  std::string verb;
  std::vector<std::string> words;

  /// Word n from 0; throws CannotDo when the action has fewer.
  const std::string& Word(std::size_t n) const;
  /// Word n as a whole number; throws CannotDo when it is none.
  int Number(std::size_t n) const;
  /// Word n as a number such as "12.5"; throws CannotDo when it is none.
  double Decimal(std::size_t n) const;
};

/// An action that this control, in this state, does not allow: no such row, a disabled button, a
/// wrong verb.
class CannotDo : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace tarnview
