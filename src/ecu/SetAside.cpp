#include "ecu/SetAside.h"

namespace tarnview {

void SetAside::Take(const std::string& path) {
  if (!files_->FileExists(path)) return;
  if (auto bytes = files_->Read(path)) kept_.emplace_back(path, std::move(*bytes));
  files_->DeleteFile(path);
}

void SetAside::PutBack() {
  for (const auto& [path, bytes] : kept_) files_->Write(path, bytes);
  kept_.clear();
}

}  // namespace tarnview
