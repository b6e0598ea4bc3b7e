#include "ecu/NewFileNames.h"

#include <algorithm>

namespace tarnview {
namespace {

constexpr std::string_view kDigits = "abcdefghijklmnopqrstuvwxyz";
constexpr int kTries = 500;

}  // namespace

std::string CounterLetters(int counter) {
  const int base = static_cast<int>(kDigits.size());
  std::string letters;
  do {
    letters += kDigits[static_cast<std::size_t>(counter % base)];
    counter /= base;
  } while (counter > 0);
  std::reverse(letters.begin(), letters.end());
  return letters;
}

std::string AutoFileNames::Propose(Date today, const IsTaken& isTaken) {
  if (today != day_) {
    day_ = today;
    counter_ = 0;
  }
  for (int counter = counter_; counter < counter_ + kTries; ++counter) {
    const std::string name = DateText(today) + CounterLetters(counter);
    if (isTaken(name)) continue;
    counter_ = counter;
    return name;
  }
  return "";
}

std::string NameOfType(std::string_view name, std::string_view extension) {
  if (name.empty()) return "";
  const auto point = name.rfind('.');
  return std::string(name.substr(0, point)).append(".").append(extension);
}

}  // namespace tarnview
