#include "DefinitionText.h"
#include "universal/DefinitionEdit.h"
#include "universal/DefinitionReader.h"
#include "universal/DefinitionWriter.h"

namespace tarnview {
namespace {

/// A definition whose MAP has more to it than an edit says; "Gone" is in no log.
clsDataLog Definition() {
  const std::string more =
      "OFFSET=2\nCOLUMNMINIMUMVALUE=1\nCOLUMNMAXIMUMVALUE=900\nALLOWSETTOMINIMUMVALUE=N\n"
      "ALLOWSETTOMAXIMUMVALUE=N\nSMOOTH=Y\nDISPLAYCOLOUR=255\nDISPLAYLINESTYLE=2\n"
      "DISPLAYLINEWIDTH=3\nCONVERSIONFACTOR=2\nCONVERSIONOFFSET=5\n";
  const DefinitionText text{"TIMEFORM=SECONDS\n",
                            {ColumnText("Time", 63, 3), ColumnText("MAP", 5, 1, more),
                             ColumnText("Gone", 7), ColumnText("RPM", 3)},
                            ""};
  return ReadDataLogDefinition(text.Text(), "", BuiltInItems());
}

LogShape ShapeUnder(const clsDataLog& definition) {
  LogShape shape =
      ReadLogShape("Time,MAP,RPM,Widget,TPS\n0,40,900,1,2\n1,50,950,2,3\n2,60,980,3,4\n",
                   BuiltInDictionary(), BuiltInItems(), ChoicesOf(definition));
  ShowColumnsOf(definition, shape);
  return shape;
}

TEST(DefinitionEdit, AShapeShowsTheItemsOfTheDefinition) {
  const clsDataLog definition = Definition();
  const LogShape shape = ShapeUnder(definition);
  EXPECT_EQ(TimeColumnOf(definition, shape), 0);
  std::string told;
  for (const ShapeItem& item : shape.items)
    told += std::to_string(item.item) + " x" + NumberText(item.factor) + "+" +
            NumberText(item.offset) + (item.shown ? "" : " hidden") + " " + item.why + "\n";
  ExpectTold(told, R"(63 x1+0 the time of the lines
5 x2+10 as the definition has it
3 x1+0 as the definition has it
0 x1+0 the definition does not read it
0 x1+0 the definition does not read it
)");
}

/// What keys of a definition settle of a log's form.
TEST(DefinitionEdit, ADefinitionSettlesTheForm) {
  const auto tell = [](const TableRow& row) {
    const DefinitionText text{
        Join(SplitAt(row.All(), ", "), "\n") + "\n", {ColumnText("Time", 63, 3)}, ""};
    const ShapeChoices choices = ChoicesOf(ReadDataLogDefinition(text.Text(), "", BuiltInItems()));
    std::string told = std::string(1, *choices.delimiter) + *choices.decimalSign;
    const auto add = [&](const char* name, const auto& value) {
      if (value) told += name + std::to_string(static_cast<int>(*value));
    };
    add(" rows ", choices.titleRows);
    add(" titles ", choices.titleLine);
    add(" units ", choices.unitsLine);
    add(" data ", choices.dataLine);
    add(" rate ", choices.lineFrequency);
    add(" time ", choices.timeForm);
    return told + (choices.encoding ? " " + std::string(EncodingName(*choices.encoding)) : "");
  };
  ExpectTable(tell, R"(
LINEFREQUENCY=5 -> ,. rows 1 titles 0 data 1 rate 5
TIMEFORM=MINUTES -> ,. rows 1 titles 0 data 1 time 4
TIMEFORM=SECONDS, DECIMALSIGN=,, DELIMITERASCIICHARACTER=59, ENCODING=UTF-8 -> ;, rows 1 titles 0 data 1 time 1 UTF-8
TIMEFORM=SECONDS, DELIMITERRUNS=Y, TITLEROWS=2, UNITSROW=2, COLUMNHEADERSLINESBEFORE=1, DATALINESBEFORE=4 ->  . rows 2 titles 1 units 3 data 4 time 1
TIMEFORM=SECONDS, TITLESSTART=A,B, UNITSROW=1 -> ,. rows 1 time 1
TIMEFORM=SECONDS, TITLESFROM=NONE -> ,. rows 1 time 1
)");
}

/// "2=17" makes column 2 of the log item 17, "form" takes how the text is read, too: what the
/// definition then reads as which items.
TEST(DefinitionEdit, ColumnsThatAreNotEditedStay) {
  const auto tell = [](const TableRow& row) {
    LogShape shape = ShapeUnder(Definition());
    DefinitionEdits edits;
    for (std::size_t n = 0; n < row.Count(); ++n) {
      edits.form = edits.form || row.Text(n) == "form";
      const auto sign = row.Text(n).find('=');
      if (sign == std::string::npos) continue;
      edits.columns.push_back(std::stoul(row.Text(n)));
      shape.items[edits.columns.back()].item = std::stoi(row.Text(n).substr(sign + 1));
    }
    const clsDataLog edited = EditedDefinition(Definition(), shape, edits);
    std::string told = edited.strTimeForm + (edited.blnOwnDataItems ? " own" : "");
    for (const clsDataLogColumn& column : edited.objColumns)
      told += " " + column.strColumnTitle + ":" + std::to_string(column.lngDataItemID);
    return told;
  };
  ExpectTable(tell, R"(
none -> SECONDS Time:63 MAP:5 Gone:7 RPM:3
form -> SECONDS MAP:5 Gone:7 RPM:3 Time:63
1=37 -> SECONDS Time:63 MAP:37 Gone:7 RPM:3
1=0 -> SECONDS Time:63 Gone:7 RPM:3
2=0, 1=0 -> SECONDS Time:63 Gone:7
3=101 -> SECONDS own Time:63 MAP:5 Gone:7 RPM:3 Widget:101
3=101, 4=102 -> SECONDS own Time:63 MAP:5 Gone:7 RPM:3 Widget:101 TPS:102
4=17 -> SECONDS Time:63 MAP:5 Gone:7 RPM:3 TPS:17
4=17, form -> SECONDS MAP:5 Gone:7 RPM:3 Time:63 TPS:17
2=17, 3=101 -> SECONDS own Time:63 MAP:5 Gone:7 RPM:17 Widget:101
)");
}

TEST(DefinitionEdit, OfAnEditedColumnTheRestStays) {
  LogShape shape = ShapeUnder(Definition());
  shape.items[1] = {};
  shape.items[1].item = 37;
  shape.items[1].name = "Mine";
  shape.items[1].factor = 3;
  DefinitionEdits edits;
  edits.name = "Edited";
  edits.columns = {1};
  ExpectTold(
      BlockLines(DefinitionFileText(EditedDefinition(Definition(), shape, edits))),
      R"([DATALOGDEFINITION]; DELIMITERASCIICHARACTER=44; DATALINESBEFORE=1; FILEEXTENSION=csv; NAME=Edited; TIMEFORM=SECONDS
[COLUMN]; NAME=Time; COLUMNTITLE=Time; DATAITEMID=63; COLUMNDECIMALPLACES=3; TYPE=1; DESCRIPTION=About Time
[COLUMN]; NAME=Mine; COLUMNTITLE=MAP; DATAITEMID=37; COLUMNDECIMALPLACES=0; TYPE=1; OFFSET=2; DISPLAYDECIMALPLACES=0; DISPLAYFACTOR=1; DISPLAYZERO=Y; DISPLAYCOLOUR=255; DISPLAYLINESTYLE=2; DISPLAYLINEWIDTH=3; COLUMNMINIMUMVALUE=1; COLUMNMAXIMUMVALUE=900; CONVERSIONFACTOR=3; ALLOWSETTOMAXIMUMVALUE=N; ALLOWSETTOMINIMUMVALUE=N; SMOOTH=Y; SIGNED=Y
[COLUMN]; NAME=Gone; COLUMNTITLE=Gone; DATAITEMID=7; COLUMNDECIMALPLACES=0; TYPE=1; DESCRIPTION=About Gone
[COLUMN]; NAME=RPM; COLUMNTITLE=RPM; DATAITEMID=3; COLUMNDECIMALPLACES=0; TYPE=1; DESCRIPTION=About RPM; ; )");
}

}  // namespace
}  // namespace tarnview
