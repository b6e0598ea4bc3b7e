#include <gtest/gtest.h>

#include <string>

#include "fields/TextLines.h"

namespace tarnview {
namespace {

TEST(TextLines, EndWithCRLFOrLFOrTheText) {
  std::string told;
  for (TextLines lines("a\r\nb\n\n\r\nc\rd\r"); !lines.AtEnd();)
    told += "[" + std::string(lines.Next()) + "]";
  EXPECT_EQ(told, "[a][b][][][c\rd]");
}

}  // namespace
}  // namespace tarnview
