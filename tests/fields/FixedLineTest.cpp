#include "base/Text.h"
#include "fields/FixedLine.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// A line between bars, where a field of it begins and how long it is: the field, and its numbers.
TEST(FixedLine, FieldsAreThoseOfTheLineAlone) {
  const auto told = [](const TableRow& row) {
    const std::string text = SplitAt(row.Text(0), "|")[1];
    const std::string more = text + "99";  // which the line does not reach
    const FixedLine<12> line(std::string_view(more).substr(0, text.size()));
    const int at = row.Int(1), length = row.Int(2);
    const std::string field(line.Text(at, length));
    EXPECT_TRUE(line.Has(at, field) && line.Length() == text.size());
    EXPECT_EQ(line.Number(at, length), StringToDouble(field));
    EXPECT_EQ(line.Whole(at, length), StringToLong(field));
    return "[" + field + "] " + NumberText(line.Number(at, length)) + " " +
           std::to_string(line.Whole(at, length)) + " from " + line.At(at);
  };
  ExpectTable(told, R"(
|1234567890|, 1, 3 -> [123] 123 123 from 1
|1234567890|, 9, 2 -> [90] 90 90 from 9
|1234567890|, 8, 5 -> [890] 890 890 from 8
|12345678901234|, 5, 8 -> [56789012] 56789012 56789012 from 5
|  42 7 1.5|, 1, 4 -> [  42] 42 42 from  
|  42 7 1.5|, 1, 6 -> [  42 7] 42 42 from  
|  42 7 1.5|, 7, 4 -> [ 1.5] 1.5 2 from  
|  -9:1 12;|, 1, 4 -> [  -9] -9 -9 from  
|  -9:1 12;|, 4, 2 -> [9:] 9 9 from 9
|  -9:1 12;|, 7, 4 -> [ 12;] 12 12 from  
|  -9/1     |, 8, 4 -> [    ] 0 0 from  
)");
}

}  // namespace
}  // namespace tarnview
