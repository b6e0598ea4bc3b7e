#pragma once

#include <string>
#include <string_view>

namespace tarnview {

/// A section's lines, each "Key=Value" with CR LF, where two programs work with one file: as this
/// one read them, as it holds them now, and as the file holds them by now.
struct SectionVersions {
  std::string_view read, held, inFile;
};

/// Each key that this program changed, added or dropped is as it holds it; any other is as the file
/// holds it.
std::string MergeKeys(const SectionVersions& section);
/// The same for a section whose records count on from 1: all of them are one value.
std::string MergeWhole(const SectionVersions& section);

}  // namespace tarnview
