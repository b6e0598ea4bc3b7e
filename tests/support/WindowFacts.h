#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "ui/Chart.h"
#include "ui/Form.h"

namespace tarnview {

/// What a window shows, a fact a row in the order of its controls: "txtName" = "Spool Up",
/// "lvwTags[2]" = "[3200|3392]", "cmdOK enabled" = "true", "grdData(0)[1][2]" = "20".
class WindowFacts {
 public:
  using Fact = std::pair<std::string, std::string>;

  explicit WindowFacts(const Form& form) {
    Add("caption", form.Caption());
    for (const Control* control : form.Controls()) {
      const auto* chart = dynamic_cast<const Chart*>(control);
      for (const auto& [fact, value] : chart ? chart->FullDescription() : control->Facts())
        AddFact(control->FullName(), fact, value);
    }
  }
  const std::vector<Fact>& All() const { return facts_; }
  /// On, shown, and no tick at a menu's entry.
  static bool IsUsual(const Fact& fact) {
    const auto& [name, value] = fact;
    if (name.starts_with("mnu") && name.ends_with(" checked")) return value == "false";
    return value == "true" && (name.ends_with(" enabled") || name.ends_with(" visible"));
  }
  static std::string Text(const Value& value) {
    const Value::Held& held = value.Get();
    if (const auto* text = std::get_if<std::string>(&held)) return *text;
    if (const auto* flag = std::get_if<bool>(&held)) return *flag ? "true" : "false";
    if (const auto* whole = std::get_if<long long>(&held)) return std::to_string(*whole);
    if (const auto* number = std::get_if<double>(&held)) return NumberText(*number);
    if (const auto* list = std::get_if<List>(&held)) return Joined(*list);
    return "";
  }

 private:
  void Add(const std::string& name, const std::string& value) { facts_.emplace_back(name, value); }
  /// What a control mostly is has no name of its own; what says the same again is left out.
  void AddFact(const std::string& control, const std::string& fact, const Value& value) {
    if (fact == "text" || fact == "caption" || fact == "cells" || fact == "panels")
      return AddValue(control, value, 0);
    if (fact == "rows") return AddValue(control, value, 1);  // counted as scripts do
    if (fact == "tag" || (fact == "selected" && std::get_if<long long>(&value.Get()))) return;
    if (fact == "looks") return AddLooks(control, std::get<List>(value.Get()));
    const bool joined = fact == "list" || fact == "columns";
    if (const auto* list = std::get_if<List>(&value.Get()); list && joined)
      return Add(control + " " + fact, Joined(*list));
    AddValue(control + " " + fact, value, 0);
  }
  /// Of a grid's cells, by their places: "grdData(0)[6][1] locked".
  void AddLooks(const std::string& grid, const List& cells) {
    for (const Value& cell : cells) {
      const Object& facts = std::get<Object>(cell.Get());
      const std::string place = "[" + Text(facts[0].second) + "][" + Text(facts[1].second) + "]";
      for (std::size_t n = 2; n < facts.size(); ++n)
        AddValue(grid + place + " " + facts[n].first, facts[n].second, 0);
    }
  }
  void AddValue(const std::string& name, const Value& value, std::size_t first) {
    if (const auto* facts = std::get_if<Object>(&value.Get())) return AddObject(name, *facts);
    const auto* list = std::get_if<List>(&value.Get());
    if (!list) return Add(name, Text(value));
    if (AreNumbers(value)) return Add(name, Numbers(*list));
    if (list->size() > kMostInFull && AreNumbers(list->front())) return Add(name, Numbers(*list));
    Add(name + " count", std::to_string(list->size()));
    for (std::size_t n = 0; n < list->size(); ++n)
      AddValue(name + "[" + std::to_string(n + first) + "]", (*list)[n], 0);
  }
  void AddObject(const std::string& name, const Object& facts) {
    for (const auto& [fact, value] : facts) {
      const auto* texts = std::get_if<List>(&value.Get());
      if (fact == "text" && texts)
        Add(name, Joined(*texts));
      else if (fact != "tag")
        AddValue(name + " " + fact, value, 0);
    }
  }

  static std::string Joined(const List& list) {
    std::vector<std::string> texts;
    for (const Value& one : list) texts.push_back(Text(one));
    return "[" + Join(texts, "|") + "]";
  }
  static bool AreNumbers(const Value& value) {
    const auto isNumber = [](const Value& one) {
      return std::get_if<double>(&one.Get()) || std::get_if<long long>(&one.Get());
    };
    const auto* list = std::get_if<List>(&value.Get());
    return list && !list->empty() && std::all_of(list->begin(), list->end(), isNumber);
  }
  /// Of many, how many and the first and last.
  static std::string Numbers(const List& list) {
    if (list.size() <= kMostInFull) return Joined(list);
    return std::to_string(list.size()) + " from " + Text(list.front()) + " to " + Text(list.back());
  }

  static constexpr std::size_t kMostInFull = 6;
  std::vector<Fact> facts_;
};

}  // namespace tarnview
