#pragma once

#include <string>

#include "support/Accept.h"
#include "support/WindowFacts.h"
#include "ui/CommandButton.h"
#include "ui/Frame.h"
#include "ui/ListView.h"
#include "ui/MenuItem.h"
#include "ui/TextBox.h"

namespace tarnview {

/// What is told of a control besides what it holds: keys, tool tip, what cannot be written,
/// headings of numbers.
inline std::string Extras(const Control& control) {
  std::string told;
  if (const auto* item = dynamic_cast<const MenuItem*>(&control); item && !item->Shortcut.empty())
    told += " key " + item->Shortcut;
  if (const auto* text = dynamic_cast<const TextBox*>(&control)) {
    if (text->ReadOnly()) told += " read only";
    if (text->MultiLine) told += " of lines";
  }
  if (const auto* frame = dynamic_cast<const Frame*>(&control))
    if (!frame->BackgroundPicture().empty()) told += " picture " + frame->BackgroundPicture();
  if (const auto* list = dynamic_cast<const ListView*>(&control))
    for (const ListView::Column& column : list->Columns())
      if (column.rightAligned) told += " numbers in " + column.heading;
  if (!control.ToolTip().empty()) told += " tip " + control.ToolTip();
  return told;
}

/// A window as a text: which buttons Enter and Escape press, where F1 opens the manual, and its
/// controls in their order with all that they hold.
inline std::string WholeWindow(const Form& form) {
  const auto pressed = [](const CommandButton* button) {
    return button ? button->FullName() : "nothing";
  };
  std::string told = "Enter " + pressed(form.DefaultButton) + ", Escape " +
                     pressed(form.CancelButton) + ", F1 " + form.HelpTopic + "\n";
  const WindowFacts facts(form);
  for (const WindowFacts::Fact& fact : facts.All())
    if (!WindowFacts::IsUsual(fact)) told += fact.first + "=" + fact.second + "\n";
  for (const Control* control : form.Controls())
    if (const std::string extras = Extras(*control); !extras.empty())
      told += control->FullName() + extras + "\n";
  return told;
}

/// That the window is as tests/windows/NAME.txt tells, which TARNVIEW_ACCEPT=1 writes.
inline void ExpectWhole(const Form& form, const std::string& folder) {
  const std::string path = folder + "/windows/" + form.name + ".txt", came = WholeWindow(form);
  if (std::getenv("TARNVIEW_ACCEPT")) std::ofstream(path, std::ios::binary) << came;
  EXPECT_EQ(came, FileText(path)) << path;
}

}  // namespace tarnview
