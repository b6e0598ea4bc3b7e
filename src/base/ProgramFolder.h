#pragma once

#include <string>

namespace tarnview {

/// The folder of the running executable, with a separator at its end; "" if it cannot be told.
std::string ProgramFolder();

/// A folder of the user's own for what the program keeps, with a separator at its end; "" if there
/// is none.
std::string UserFolder();

}  // namespace tarnview
