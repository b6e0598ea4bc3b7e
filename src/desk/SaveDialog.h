#pragma once

#include <functional>
#include <string>

#include "ui/Host.h"

namespace tarnview {

/// Whether a file may be written over; if not, the user has been told why.
bool MaySaveTo(Host& host, const Dialog& chosen);

/// Asks where to save until it is a file that may be written over: not the log that is open, nor
/// one that its owner protects. What is wrong with a choice is told, and the dialog comes again.
/// `complete` may add to the chosen path. False: the user cancelled.
bool ChooseFileToSave(Host& host, Dialog& dialog,
                      const std::function<void(Dialog&)>& complete = {});

}  // namespace tarnview
