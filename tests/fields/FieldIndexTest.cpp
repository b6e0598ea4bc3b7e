// The fields of a block of lines: where they stand, their keys, and what is read of a column.

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

#include "FieldTexts.h"
#include "base/Text.h"
#include "fields/FieldColumn.h"

namespace tarnview {
namespace {

TEST(ByteMarks, BothWaysMarkTheSameBytes) {
  std::mt19937 random(3);
  for (int n = 0; n < 2000; ++n) {
    char bytes[kMarkedBytes];
    for (char& byte : bytes)
      byte = static_cast<char>(random() % 3 ? ',' + random() % 3 - 1 : random() % 256);
    std::uint64_t wanted = 0;
    for (std::size_t at = 0; at < kMarkedBytes; ++at)
      wanted |= std::uint64_t{bytes[at] == ','} << at;
    ASSERT_EQ(MarksOf(bytes, ','), wanted);
    ASSERT_EQ(detail::MarksByWords(bytes, ','), wanted);
  }
}

TEST(FieldIndex, CutsLinesAsSplittingDoes) {
  std::mt19937 random(11);
  for (const int delimiter : {44, 9, 48, 0x80, 300}) {
    std::string bytes;
    for (int n = 0; n < 4000; ++n) {
      const auto kind = random() % 8;
      bytes += kind < 3   ? static_cast<char>(delimiter)
               : kind < 4 ? '\n'
                          : static_cast<char>('a' + random() % 26);
      if (random() % 300 == 0) bytes += std::string(100, 'x');
    }
    constexpr std::size_t kMost = 5;
    FieldIndex block(bytes, delimiter, kMost);
    for (std::string_view rest = bytes; !rest.empty();) {
      const std::string_view line = rest.substr(0, rest.find('\n'));
      rest.remove_prefix(std::min(line.size() + 1, rest.size()));
      auto wanted = delimiter <= 255 || line.empty() ? Split(line, static_cast<char>(delimiter))
                                                     : std::vector{std::string(line)};
      if (wanted.size() > kMost) wanted.resize(kMost);
      ASSERT_EQ(block.Add(line), wanted.size()) << delimiter;
      const std::size_t last = block.Lines() - 1;
      for (std::size_t field = 0; field < wanted.size(); ++field)
        ASSERT_EQ(block.Field(last, field), wanted[field]);
      if (random() % 4 == 0) block.DropLast();
      std::size_t fewest = block.Lines() ? kMost : 0, most = 0;
      for (std::size_t n = 0; n < block.Lines(); ++n) {
        fewest = std::min(fewest, block.Fields(n));
        most = std::max(most, block.Fields(n));
      }
      ASSERT_EQ(block.FewestFields() * 10 + block.MostFields(), fewest * 10 + most);
      ASSERT_EQ(block.Full(), block.Lines() == FieldIndex::kMostLines);
      if (block.Full()) block.Clear();
    }
  }
}

TEST(FieldIndex, FieldsOfOneKeyHaveOneText) {
  std::mt19937 random(5);
  constexpr std::string_view kCharacters{"01\0\3\7 .x\xFF", 9};
  std::map<FieldKey, std::string> texts;
  for (int n = 0; n < 50000; ++n) {
    std::string text;
    for (auto left = random() % 10; left > 0; --left)
      text += kCharacters[random() % kCharacters.size()];
    const FieldKey key = KeyOf(text);
    ASSERT_NE(key, kNoField);
    if (key == kOtherField) continue;
    ASSERT_EQ(texts.emplace(key, text).first->second, text);
  }
}

TEST(FieldColumn, ReadsEachTextOnce) {
  // The third line of the block before had what the second has now: a field less is none.
  const std::string before = "9,a\n9,a\n9,two\n9,a\n",
                    now = "1,long text 1,of nobody\n2,two,of somebody\n2\n3,\n";
  FieldIndex block(before, ',', 3);
  AddLines(block, before);
  block.Begin(now);
  AddLines(block, now);
  int asked = 0;
  const auto read = [&](std::size_t field) {
    BlockOf<std::string> texts;
    ReadColumn(block, field, texts, [&](std::size_t line) {
      ++asked;
      return block.Fields(line) > field ? std::string(block.Field(line, field)) : "none";
    });
    return Join({texts.begin(), texts.begin() + 4}, " ");
  };
  EXPECT_EQ(read(0), "1 2 2 3");
  EXPECT_EQ(asked, 3);
  EXPECT_EQ(read(1), "long text 1 two none ");
  EXPECT_EQ(read(2), "of nobody of somebody none none");
  // Texts without a key are not taken for one another.
  const std::string keyless = "of nobody\nof somebody\nof nobody\nof all\n";
  block.Begin(keyless);
  AddLines(block, keyless);
  EXPECT_EQ(read(0), "of nobody of somebody of nobody of all");
}

}  // namespace
}  // namespace tarnview
