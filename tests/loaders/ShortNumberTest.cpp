#include <gtest/gtest.h>

#include <random>
#include <string>

#include "loaders/ShortNumber.h"

namespace tarnview {
namespace {

TEST(ShortNumber, AgreesWithTheTolerantRoad) {
  std::mt19937 random(1);
  constexpr std::string_view kCharacters = "0123456789012345678901234567890123456789..........      ---++eE,\t\0\xB0x";
  int quick = 0;
  for (int i = 0; i < 400000; ++i) {
    std::string text(8, 'x');  // what stands before the field does not count
    const std::size_t length = 1 + random() % 8;
    const std::size_t blanks = random() % 3 ? random() % length : 0;
    text += std::string(blanks, ' ');
    while (text.size() < 8 + length) text += kCharacters[random() % (random() % 4 ? 50 : kCharacters.size())];
    const std::string_view field = std::string_view(text).substr(8);
    ShortNumber number;
    if (!ReadWord(WordBefore(text.data() + text.size(), length), number)) continue;
    ++quick;
    ASSERT_TRUE(IsNumeric(field)) << field;
    ASSERT_EQ(number.Value(), StringToDouble(field)) << field;
    ASSERT_EQ(number.Value(), ValDouble(field)) << field;
    const int scale = static_cast<int>(random() % 4);
    ASSERT_EQ(number.Stored(scale), RoundToLong(StringToDouble(field) * std::pow(10, scale))) << field;
  }
  EXPECT_GT(quick, 100000);
}

TEST(ShortNumber, ALongNumberBeyond32BitsIsStoredAs0) {
  ShortNumber number;
  ASSERT_TRUE(ReadWord(WordBefore("99999999" + 8, 8), number));
  EXPECT_EQ(number.Stored(1), 999999990);
  EXPECT_EQ(number.Stored(2), 0);
}

}  // namespace
}  // namespace tarnview
