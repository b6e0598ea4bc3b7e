#pragma once

#include <string>

#include "universal/clsDataLog.h"

namespace tarnview {

/// The text of a definition file that reads back as this definition: what differs from the default,
/// a line each. Characters that cannot stand in an attribute's line (its ends, line ends) are lost.
std::string DefinitionFileText(const clsDataLog& definition);

}  // namespace tarnview
