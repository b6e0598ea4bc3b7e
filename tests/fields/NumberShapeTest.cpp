#include <gtest/gtest.h>

#include <random>
#include <string>

#include "FieldTexts.h"
#include "fields/NumberShape.h"

namespace tarnview {
namespace {

TEST(NumberShape, AgreesWithTheTolerantRoadWhateverItReadBefore) {
  std::mt19937 random(7);
  constexpr std::string_view kCharacters{
      "01234567890123456789012345678901234567890123456789..-+ (/:;e,\0\7", 63};
  const auto character = [&] { return kCharacters[random() % kCharacters.size()]; };
  NumberShape shape;
  std::string field;
  int quick = 0;
  for (int n = 0; n < 400000; ++n) {
    if (n % 4 == 0) {
      field.clear();
      for (auto left = 1 + random() % 8; left > 0; --left) field += character();
    } else {
      field[random() % field.size()] = character();  // much alike
    }
    ShortNumber number;
    if (!shape.Read(KeyOf(field), number)) continue;
    ++quick;
    ASSERT_TRUE(IsNumeric(field)) << field;
    ASSERT_EQ(number.Value(), StringToDouble(field)) << field;
  }
  EXPECT_GT(quick, 100000);
}

TEST(NumberShape, PlainNumbersTakeTheQuickRoad) {
  NumberShape shape;
  ShortNumber number;
  for (const char* field :
       {"0", "12", "-1.5", "12345678", "-1234567", "1234.678", ".5", "5.", "-.5", "+1", "  21.5"})
    EXPECT_TRUE(shape.Read(KeyOf(field), number)) << field;
  for (const char* field : {"-", ".", "-.", "1.2.3", "--1", "1-", "1 ", "- 1", "", "123456789"})
    EXPECT_FALSE(shape.Read(KeyOf(field), number)) << field;
}

}  // namespace
}  // namespace tarnview
