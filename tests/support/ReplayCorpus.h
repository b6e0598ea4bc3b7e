#pragma once

#include <gtest/gtest.h>

#include <string>

#include "base/FileSystem.h"

namespace tarnview {

/// Gives each file of tests/fuzz/corpus/TARGET, and the file cut off in its middle, to a fuzz
/// target's entry.
inline void ReplayCorpus(const std::string& target,
                         int (*entry)(const unsigned char*, std::size_t)) {
  const std::string folder = std::string(TARNVIEW_TESTS) + "/fuzz/corpus/" + target + "/";
  RealFileSystem disk;
  const std::vector<std::string> names = disk.List(folder, "*");
  EXPECT_FALSE(names.empty());
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    const std::string bytes(*disk.Read(folder + name));
    ASSERT_FALSE(bytes.empty());
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    EXPECT_EQ(entry(data, bytes.size()), 0);
    EXPECT_EQ(entry(data, bytes.size() / 2), 0);
  }
}

}  // namespace tarnview
