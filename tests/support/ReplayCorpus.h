#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tarnview {

/// Gives each file of tests/fuzz/corpus/TARGET, and the file cut off in its middle, to a fuzz
/// target's entry.
inline void ReplayCorpus(const std::string& target,
                         int (*entry)(const unsigned char*, std::size_t)) {
  int files = 0;
  for (const auto& file : std::filesystem::directory_iterator(std::string(TARNVIEW_TESTS) +
                                                              "/fuzz/corpus/" + target)) {
    SCOPED_TRACE(file.path().string());
    std::ifstream stream(file.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    ASSERT_FALSE(bytes.empty());
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    EXPECT_EQ(entry(data, bytes.size()), 0);
    EXPECT_EQ(entry(data, bytes.size() / 2), 0);
    ++files;
  }
  EXPECT_GT(files, 0);
}

}  // namespace tarnview
