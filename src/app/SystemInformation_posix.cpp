#include "app/SystemInformation.h"

namespace tarnview {

std::string SystemInformationTool() { return ""; }

}  // namespace tarnview
