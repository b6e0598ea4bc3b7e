#pragma once

#include <string>

namespace tarnview::bench {

/// The text of an FM Link log with so many samples: a drive that idles, cruises and pulls, a
/// summary line for every 16 log lines, the zone section and its settings line at the end. The same
/// text for the same number.
std::string SyntheticFMLinkLog(int samples);

}  // namespace tarnview::bench
