#include <gtest/gtest.h>

#include "DefinitionText.h"
#include "universal/DefinitionFaults.h"
#include "universal/DefinitionReader.h"
#include "universal/DefinitionWriter.h"

namespace tarnview {
namespace {

clsDataLog Read(std::string_view text) {
  return ReadDataLogDefinition(text, "my.txt", BuiltInItems());
}

/// "74: my.txt|File Name: ..."; empty for a good definition.
std::string FaultOf(std::string_view text) {
  try {
    Read(text);
    return "";
  } catch (const DefinitionFault& fault) {
    return std::to_string(static_cast<int>(fault.Told())) + ": " +
           Join(SplitAt(fault.what(), "\r\n"), "|");
  }
}

std::string With(const std::string& column, const std::string& behind = "") {
  return DefinitionText{"", {ColumnText("Time", 63, 3), column}, behind}.Text();
}
std::string Behind(const std::string& presets) {
  return With(ColumnText("Gear", 2, 0, "[VALUES]\nN\n1\n2\n", 2), presets);
}

TEST(DefinitionReader, AWholeDefinition) {
  const TableRow file(
      R"([DataLogDefinition]; NAME = My Logs; FileExtension=csv; FILEIDTEXTLINESBEFORE=1.5; FILEIDTEXTCOLUMNSBEFORE=2abc; FILEIDTEXT=A=B; COLUMNHEADERSLINESBEFORE=3; DATALINESBEFORE=5; DELIMITERASCIICHARACTER=59; LINEFREQUENCY=1e1; IGNOREDUPLICATECOLUMNS=y; COLOUR=3; VERSION=1; VERSION=2
[Column]; NAME=Gear; DESCRIPTION=Gear chosen; COLUMNTITLE=gear Sel; DATAITEMID=5; TYPE=2; COLUMNDECIMALPLACES=9; OFFSET=-2.5x; DISPLAYZERO=Yes; DISPLAYLINEWIDTH=0; ALLOWSETTOMINIMUMVALUE=n; CONVERSIONTYPE=-3
 [Values];  Off; On = 1; 
[SAMPLE GRAPH]; NAME= One; no attribute; DATA ITEMS=5,0,84,3,5; GRAPH MAX=5; NAME =Two
[SCATTER GRAPH]; NAME=Three; POINT SIZE=99; POINT SHAPE=-1; X AXIS=3; Y AXIS=45
[FILTER]; DATA ITEM=5; FROM=2; TO=3
[SAMPLE GRAPH]
[FILTER]; DATA ITEM=45; TO=0.5)");
  const clsDataLog log = Read(file.Lines());
  // What the file of it would say; a float is the number at the text's start, a listed value has no
  // upper bound, and the last line of the file counts here.
  ExpectTold(
      BlockLines(DefinitionFileText(log)),
      R"([DATALOGDEFINITION]; LINEFREQUENCY=1; DELIMITERASCIICHARACTER=59; DATALINESBEFORE=5; COLUMNHEADERSLINESBEFORE=3; FILEIDTEXT=A=B; FILEIDTEXTCOLUMNSBEFORE=2; FILEIDTEXTLINESBEFORE=2; FILEEXTENSION=csv; NAME=My Logs; IGNOREDUPLICATECOLUMNS=Y; VERSION=2
[COLUMN]; NAME=Gear; COLUMNTITLE=gear Sel; DATAITEMID=5; COLUMNDECIMALPLACES=5; TYPE=2; DESCRIPTION=Gear chosen; OFFSET=-2.5; DISPLAYZERO=N; DISPLAYLINEWIDTH=1; ALLOWSETTOMINIMUMVALUE=N
[VALUES]; Off; On = 1; 
[SAMPLE GRAPH]; DATA ITEMS=5,3; NAME=One; GRAPH MAX=10
[SCATTER GRAPH]; POINT SIZE=10; Y AXIS=45; X AXIS=3; NAME=Three
[FILTER]; FROM=2; DATA ITEM=5
[FILTER]; TO=0.5; DATA ITEM=45; )");
  EXPECT_EQ(log.objPresetSampleGraphs.Item(1).lngLogFamily, 7);
}

/// What the lines are of: a whole file, a header, a column (name, item and type), or what stands
/// behind the columns of a good definition.
std::string FileOf(const TableRow& row) {
  const auto words = Split(row.Text(0), ' ');
  const std::string lines = row.Count() > 1 ? TableRow(row.Text(1)).Lines() + "\n" : "";
  if (words[0] == "file") return lines.substr(0, lines.size() - 1);
  if (words[0] == "header") return DefinitionText{lines, {ColumnText("A", 5)}, ""}.Text();
  if (words[0] == "behind") return Behind(lines);
  if (words.size() == 1) return With(lines);
  return With(ColumnText(words[1], std::stoi(words[2]), 0, lines, std::stoi(words[3])));
}

TEST(DefinitionReader, EachFaultTellsItsNumberAndDetails) {
  ExpectTable([](const TableRow& row) { return FaultOf(FileOf(row)); }, R"(
file,  -> 69: 
file, [DATALOGDEFINITION] ;  -> 69: [DATALOGDEFINITION] 
file, [DATALOGDEFINITION] -> 74: my.txt|File Name: |File Extension: |Delimiter ASCII Character: 0
file, [DATALOGDEFINITION]; NAME=a; DELIMITERASCIICHARACTER=44; [COLUMN]; ;  -> 74: my.txt|File Name: a|File Extension: |Delimiter ASCII Character: 44
file, [DATALOGDEFINITION]; FILEEXTENSION=c; DELIMITERASCIICHARACTER=44; [COLUMN]; ;  -> 74: my.txt|File Name: |File Extension: c|Delimiter ASCII Character: 44
file, [DATALOGDEFINITION]; NAME=; ;  -> 68: NAME=
file, [DATALOGDEFINITION]; =X; ;  -> 68: =X
file, [DATALOGDEFINITION]; ; ;  -> 68: 
file, [DATALOGDEFINITION]; NAME=a; FILEEXTENSION=c:; DELIMITERASCIICHARACTER=44; [COLUMN]; ;  -> 75: my.txt|File Extension: c:
file, [DATALOGDEFINITION]; NAME=<OTHER>; FILEEXTENSION=c; DELIMITERASCIICHARACTER=44; [COLUMN]; ;  -> 91: my.txt|File Name: <OTHER>
file, [DATALOGDEFINITION]; NAME=a; FILEEXTENSION=c; DELIMITERASCIICHARACTER=44; [COLUMN];  -> 67: [COLUMN]
file, [DATALOGDEFINITION]; NAME=a; FILEEXTENSION=c; DELIMITERASCIICHARACTER=44; [COLUMN]; [COLUMN];  -> 71: Column Name: |Column Title: |Description: |Data Item ID: 0|Column Data Type: 0|Column Decimal Places Set: N
# The last attribute of a file wants a line behind it.
file, [DATALOGDEFINITION]; NAME=a; FILEEXTENSION=c; DELIMITERASCIICHARACTER=44; LINEFREQUENCY=1; [COLUMN]; NAME=A; DESCRIPTION=A; COLUMNTITLE=A; DATAITEMID=5; TYPE=1; COLUMNDECIMALPLACES=1;  -> 71: Column Name: A|Column Title: A|Description: A|Data Item ID: 5|Column Data Type: 1|Column Decimal Places Set: N
column, NAME= -> 66: NAME=
column, [FILTER] -> 66: [FILTER]
column A 1 1 -> 84: Column Name: A|Data Item ID: 1
column A 84 1 -> 85: Column Name: A|Data Item ID: 84
column A 5 1, COLUMNMINIMUMVALUE=2.5; COLUMNMAXIMUMVALUE=-1 -> 88: Column Name: A|Minimum: 2.5|Maximum: -1
column A 23 2, [VALUES]; Off -> 73: Column Name: A|Data Item ID: 23|Column Data Type: 2|Data Item Type: 2
column A 5 1, [VALUES]; Off -> 80: A
column A 5 2 -> 81: A
header, LINEFREQUENCY=0 -> 77: my.txt
behind, [SAMPLE GRAPH]; DATA ITEMS=2 -> 93: my.txt|Name: 
behind, [SAMPLE GRAPH]; NAME=S; DATA ITEMS=3,45,5 -> 100: my.txt|Name: S|Data Item ID: 5
behind, [SCATTER GRAPH]; NAME=S; X AXIS=3; Y AXIS=2 -> 94: my.txt|Name: S|Point Size: 0|X Axis Data Item ID: 3|Y Axis Data Item ID: 2
behind, [SCATTER GRAPH]; NAME=S; POINT SIZE=1; X AXIS=5; Y AXIS=2 -> 98: my.txt|Name: S|X Axis Data Item ID: 5
behind, [SCATTER GRAPH]; NAME=S; POINT SIZE=1; X AXIS=3; Y AXIS=99 -> 99: my.txt|Name: S|Y Axis Data Item ID: 99
behind, [SCATTER GRAPH]; NAME=S; [FILTER]; DATA ITEM=3; FROM=0 -> 95: my.txt|Scatter Graph Name: S|Filter Data Item ID: 3|Filter From Value: 0|Filter To Value: -99999
behind, [SCATTER GRAPH]; NAME=S; [FILTER]; DATA ITEM=5; FROM=1 -> 96: my.txt|Scatter Graph Name: S|Filter Data Item ID: 5
behind, [SCATTER GRAPH]; NAME=S; [FILTER]; DATA ITEM=2; FROM=1.5 -> 97: my.txt|Scatter Graph Name: S|Filter Data Item ID: 2|Filter From Value: 1.5
# No fault: a type that is not known, limits that are one, two columns of one item, items that every log has.
column A 5 3 -> 
column A 5 1, COLUMNMINIMUMVALUE=1; COLUMNMAXIMUMVALUE=1 -> 
column A 63 1 -> 
behind, [SAMPLE GRAPH]; NAME=S; DATA ITEMS=1,24,46; [FILTER];  -> 
header, LINEFREQUENCY=10 -> 
)");
  // A block that the file's end cuts off, and a last line, are not looked at.
  for (const char* end : {"[COLUMN]", "rubbish", "[SCATTER GRAPH]"})
    EXPECT_EQ(FaultOf(Behind(end)), "");
}

TEST(DefinitionReader, LargeFilesAreReadAtOnce) {
  DefinitionText large;
  for (int n = 0; n < 10000; ++n)
    large.columns.push_back(ColumnText("Title " + std::to_string(n), 2 + n % 82));
  std::string values = "[VALUES]\n";
  for (int n = 0; n < 100000; ++n) values += "Value " + std::to_string(n) + "\n";
  large.columns.push_back(ColumnText("List", 2, 0, values, 2));
  for (int n = 0; n < 20000; ++n) large.behind += "[SAMPLE GRAPH]\nNAME=S\nDATA ITEMS=2,3,4,83\n";
  large.behind += "[SCATTER GRAPH]\nNAME=S\nPOINT SIZE=1\nX AXIS=3\nY AXIS=2\n";
  for (int n = 0; n < 100000; ++n) large.behind += "[FILTER]\nDATA ITEM=83\nFROM=1\n";
  const clsDataLog log = Read(large.Text());
  EXPECT_EQ(log.objColumns.Count(), 10001);
  EXPECT_EQ(log.objColumns.Item(10001).objColumnValues->Count(), 100000);
  EXPECT_EQ(log.objPresetScatterGraphs.Item(1).objFilters.Count(), 100000);
}

}  // namespace
}  // namespace tarnview
