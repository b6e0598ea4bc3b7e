// The numbers of a column of a block: whichever road they take, they are those of the tolerant one.

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "FieldTexts.h"
#include "fields/NumberColumn.h"
#ifdef __x86_64__
#include "fields/PlainNumberSteps.h"
#endif

namespace tarnview {
namespace {

/// A column as a logger may write it: mostly of one look, with some fields of any characters.
std::vector<std::string> Column(std::mt19937& random) {
  using namespace std::string_view_literals;
  constexpr std::string_view kCharacters = "0123456789..-- +x\0\7\t9"sv;
  const auto lines = 1 + random() % FieldIndex::kMostLines, odd = random() % 4 * 5;
  const bool lead = random() % 2, constant = random() % 8 == 0;
  const double span = std::pow(10, random() % 8);
  const auto places = span > 1e5 ? 0 : random() % 4;
  std::vector<std::string> fields;
  while (fields.size() < lines) {
    std::string field;
    if (random() % 100 < odd) {
      for (auto left = random() % 11; left > 0; --left)
        field += kCharacters[random() % kCharacters.size()];
    } else if (constant && !fields.empty()) {
      field = fields[0];
    } else {
      char text[40];
      std::snprintf(text, sizeof text, lead ? "%5.*f" : "%.*f", static_cast<int>(places),
                    span * (static_cast<double>(random() % 1000) / 999 - (lead ? 0.5 : 0)));
      field = text;
    }
    fields.push_back(field);
  }
  return fields;
}

TEST(NumberColumn, AgreesWithTheTolerantRoad) {
  std::mt19937 random(17);
  int slow = 0, all = 0;
  for (int n = 0; n < 20000; ++n) {
    const std::vector<std::string> fields = Column(random);
    const std::string before = std::to_string(random() % 1000) + ',';
    std::string bytes;
    for (const std::string& field : fields) bytes += before + field + '\n';
    FieldIndex block(bytes, ',', 2);
    AddLines(block, bytes);
    NumberColumn numbers;
    numbers.Read(block, 1, [&](std::size_t line) {
      ++slow;
      return StringToDouble(block.Field(line, 1));
    });
    BlockOf<double> values;
    numbers.Values(fields.size(), values);
    const int scale = static_cast<int>(random() % 5);
    BlockOf<std::int32_t> cells;
    numbers.Stored(scale, cells);
    for (std::size_t line = 0; line < fields.size(); ++line, ++all) {
      const double wanted = StringToDouble(fields[line]);
      ASSERT_EQ(values[line], wanted) << '"' << fields[line] << '"';
      ASSERT_EQ(cells[line], RoundToLong(wanted * std::pow(10, scale)))
          << '"' << fields[line] << "\" scale " << scale;
    }
  }
  EXPECT_LT(slow, all / 8);  // the quick roads are taken
}

#ifdef __x86_64__
TEST(PlainNumbers, ReadsTheSameInRegistersOfAnyWidth) {
  std::mt19937 random(23);
  for (int n = 0; n < 20000; ++n) {
    FieldKey keys[FieldIndex::kMostLines] = {};
    const std::vector<std::string> fields = Column(random);
    std::transform(fields.begin(), fields.end(), keys, KeyOf);
    std::int32_t digits[FieldIndex::kMostLines] = {}, inSteps[FieldIndex::kMostLines] = {};
    const PlainNumbers plain(keys[0], keys[fields.size() - 1]);
    const auto wanted = ~std::uint64_t{0} >> (64 - fields.size());
    const std::uint64_t others = plain.Read(keys, fields.size(), digits) & wanted;
    ASSERT_EQ(ReadInSteps(plain.Sought(), keys, fields.size(), inSteps) & wanted, others);
    for (std::size_t at = 0; at < fields.size(); ++at)
      ASSERT_TRUE(inSteps[at] == digits[at] || (others >> at & 1)) << fields[at];
  }
}
#endif

TEST(PlainNumbers, PlainOnesTakeTheQuickestRoad) {
  const auto others = [](const std::vector<std::string>& fields) {
    FieldKey keys[PlainNumbers::kAtOnce] = {};
    std::transform(fields.begin(), fields.end(), keys, KeyOf);
    std::int32_t digits[PlainNumbers::kAtOnce];
    return PlainNumbers(keys[0], keys[fields.size() - 1]).Read(keys, fields.size(), digits) &
           ((1u << fields.size()) - 1);
  };
#ifdef __x86_64__
  EXPECT_EQ(others({"0", "12", "1234567", "12345678"}), 0u);
  EXPECT_EQ(others({"1.5", "123456.7", ".5", "0.0"}), 0u);
  EXPECT_EQ(others({" 1.5", "  -2.5", "3.5", "-.5"}), 0u);
#endif
  EXPECT_EQ(others({"1.5", "15", "1.55", "1..5"}), 0b1110u);
  EXPECT_EQ(others({" 1", "1 ", "--1", "- 1"}), 0b1110u);
  EXPECT_EQ(others({"-1", "1-2", "1-", "123456789"}), 0b1110u);
  EXPECT_EQ(others({"1.25", " 1", "  5", "x.25"}), 0b1110u);
}

}  // namespace
}  // namespace tarnview
