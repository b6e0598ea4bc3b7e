#pragma once

#include <string>

namespace tarnview::bench {

// Texts of logs with so many samples, of about 100 bytes a line. The same text for the same number.

std::string SyntheticTec2Log(int samples);
std::string SyntheticLinkPlusLog(int samples);
std::string SyntheticUTECCSVLog(int samples);

}  // namespace tarnview::bench
