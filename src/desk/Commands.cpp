#include "desk/Commands.h"

namespace tarnview {

std::vector<Command> Joined(std::initializer_list<std::vector<Command>> lists) {
  std::vector<Command> rows;
  for (const std::vector<Command>& list : lists) rows.insert(rows.end(), list.begin(), list.end());
  return rows;
}

void Commands::Bind(std::vector<Command> rows) {
  rows_ = std::move(rows);
  for (const Command& row : rows_) {
    if (!row.run) continue;
    const auto handler = [this, run = row.run, procedure = row.control->name + "_Click"] {
      TrapEvent(errors_, module_, procedure.c_str(), run);
    };
    if (auto* item = dynamic_cast<MenuItem*>(row.control)) item->Click = handler;
    if (auto* button = dynamic_cast<CommandButton*>(row.control)) button->Click = handler;
  }
  Update();
}

void Commands::Update() {
  for (const Command& row : rows_) row.control->Enabled = row.run && (!row.mayRun || row.mayRun());
}

}  // namespace tarnview
