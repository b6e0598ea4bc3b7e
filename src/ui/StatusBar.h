#pragma once

#include <vector>

#include "ui/Control.h"

namespace tarnview {

/// A row of texts at the foot of a window; panels are numbered from 1.
class StatusBar : public Control {
 public:
  StatusBar(Form& owner, std::string itsName, int panels)
      : Control(owner, std::move(itsName)), panels_(static_cast<std::size_t>(panels)) {}

  const std::string& Panel(int panel) const { return panels_[static_cast<std::size_t>(panel - 1)]; }
  void SetPanel(int panel, std::string text) {
    panels_[static_cast<std::size_t>(panel - 1)] = std::move(text);
    Changed(What::Content);
  }
  int Count() const { return static_cast<int>(panels_.size()); }

  std::string_view Kind() const override { return "status bar"; }
  void Describe(Object& facts) const override { facts.emplace_back("panels", MakeList(panels_)); }

 private:
  std::vector<std::string> panels_;
};

}  // namespace tarnview
