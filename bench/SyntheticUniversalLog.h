#pragma once

#include <string>

namespace tarnview::bench {

/// A log of the built-in definition with so many lines, 17 columns, of about 80 bytes a line. The
/// same text for the same number.
std::string SyntheticUniversalLog(int samples);

}  // namespace tarnview::bench
