#pragma once

namespace tarnview {

/// Keeps the toolkit's own remarks ("XDG_RUNTIME_DIR not set") off standard error, but for the one
/// that says why it ends the program. To be called before the toolkit starts.
void SilenceRemarks();

}  // namespace tarnview
