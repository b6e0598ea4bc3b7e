#include <gtest/gtest.h>

#include <string>

#include "fields/TextLines.h"

namespace tarnview {
namespace {

TEST(TextLines, EndWithCRLFOrLFOrTheText) {
  std::string told;
  // What stands before the text is none of it.
  TextLines lines(std::string_view("x\r\na\r\nb\n\n\r\nc\rd\r").substr(2));
  for (; !lines.AtEnd(); told += "[" + std::string(lines.Current()) + "]") lines.Next();
  EXPECT_EQ(told, "[][a][b][][][c\rd]");
  EXPECT_THROW(lines.Skip(1), RuntimeError);
}

}  // namespace
}  // namespace tarnview
