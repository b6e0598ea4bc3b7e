#include "desk/Commands.h"

namespace tarnview {

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
