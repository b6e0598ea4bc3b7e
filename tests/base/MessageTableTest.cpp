#include <gtest/gtest.h>

#include "base/MessageTable.h"

namespace tarnview {
namespace {

/// Users and scripts know the messages by their numbers.
TEST(MessageTable, HasAMessageForEachNumberButThese) {
  std::string none;
  for (int number = 0; number <= 102; ++number)
    if (!FindMessage(static_cast<Message>(number))) none += std::to_string(number) + " ";
  EXPECT_EQ(none, "0 48 49 50 52 53 54 55 56 59 60 102 ");
  EXPECT_STREQ(QuestionText(static_cast<Question>(9999)), "Do you want to proceed?");
}

}  // namespace
}  // namespace tarnview
