#include <gtest/gtest.h>

#include "DefinitionText.h"
#include "model/Catalogue.h"
#include "universal/DefinitionFaults.h"
#include "universal/DefinitionReader.h"
#include "universal/DefinitionWriter.h"

namespace tarnview {
namespace {

clsDataLog Read(std::string_view text) {
  static const Catalogue catalogue = BuildDataItemCatalogue();
  return ReadDataLogDefinition(text, "my.txt", catalogue.gcolFixedDataItems);
}

/// "74: my.txt|File Name: ..."; empty for a good definition.
std::string FaultOf(std::string_view text) {
  try {
    Read(text);
    return "";
  } catch (const DefinitionFault& fault) {
    std::string detail = fault.what();
    for (auto at = detail.find("\r\n"); at != std::string::npos; at = detail.find("\r\n"))
      detail.replace(at, 2, "|");
    return std::to_string(static_cast<int>(fault.Told())) + ": " + detail;
  }
}

const std::string kTime = ColumnText("Time", 63, 3);

std::string With(const std::string& column, const std::string& behind = "") {
  return DefinitionText{"", {kTime, column}, behind}.Text();
}
std::string Behind(const std::string& presets) {
  return DefinitionText{"", {kTime, ColumnText("Gear", 2, 0, "[VALUES]\nN\n1\n2\n", 2)}, presets}
      .Text();
}

TEST(DefinitionReader, AWholeDefinition) {
  const clsDataLog log = Read(R"([DataLogDefinition]
NAME = My Logs
FileExtension=csv
FILEIDTEXTLINESBEFORE=1.5
FILEIDTEXTCOLUMNSBEFORE=2abc
FILEIDTEXT=A=B
COLUMNHEADERSLINESBEFORE=3
DATALINESBEFORE=5
DELIMITERASCIICHARACTER=59
LINEFREQUENCY=1e1
IGNOREDUPLICATECOLUMNS=y
COLOUR=3
VERSION=1
VERSION=2
[Column]
NAME=Gear
DESCRIPTION=Gear chosen
COLUMNTITLE=gear Sel
DATAITEMID=5
TYPE=2
COLUMNDECIMALPLACES=9
OFFSET=-2.5x
DISPLAYZERO=Yes
DISPLAYLINEWIDTH=0
ALLOWSETTOMINIMUMVALUE=n
CONVERSIONTYPE=-3
 [Values]
 Off
On = 1

[SAMPLE GRAPH]
NAME= One
no attribute
DATA ITEMS=5,0,84,3,5
GRAPH MAX=5
NAME =Two
[SCATTER GRAPH]
NAME=Three
POINT SIZE=99
POINT SHAPE=-1
X AXIS=3
Y AXIS=45
[FILTER]
DATA ITEM=5
FROM=2
TO=3
[SAMPLE GRAPH]
[FILTER]
DATA ITEM=45
TO=0.5)");
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

TEST(DefinitionReader, EachFaultTellsItsNumberAndDetails) {
  const struct {
    std::string text, fault;
  } kRows[] = {
      // clang-format off
      {"", "69: "},
      {"[DATALOGDEFINITION] \n", "69: [DATALOGDEFINITION] "},
      {"[DATALOGDEFINITION]", "74: my.txt|File Name: |File Extension: |Delimiter ASCII Character: 0"},
      {"[DATALOGDEFINITION]\nNAME=\n\n", "68: NAME="},
      {"[DATALOGDEFINITION]\n=X\n\n", "68: =X"},
      {"[DATALOGDEFINITION]\n\n\n", "68: "},
      {"[DATALOGDEFINITION]\nNAME=a\nFILEEXTENSION=c:\nDELIMITERASCIICHARACTER=44\n[COLUMN]\n\n",
       "75: my.txt|File Extension: c:"},
      {"[DATALOGDEFINITION]\nNAME=<OTHER>\nFILEEXTENSION=c\nDELIMITERASCIICHARACTER=44\n[COLUMN]\n\n",
       "91: my.txt|File Name: <OTHER>"},
      {"[DATALOGDEFINITION]\nNAME=a\nFILEEXTENSION=c\nDELIMITERASCIICHARACTER=44\n[COLUMN]\n", "67: [COLUMN]"},
      {"[DATALOGDEFINITION]\nNAME=a\nFILEEXTENSION=c\nDELIMITERASCIICHARACTER=44\n[COLUMN]\n[COLUMN]\n",
       "71: Column Name: |Column Title: |Description: |Data Item ID: 0|Column Data Type: 0|Column Decimal Places Set: "
       "N"},
      {With("NAME=\n"), "66: NAME="},
      {With("[FILTER]\n"), "66: [FILTER]"},
      {With(ColumnText("A", 1)), "84: Column Name: A|Data Item ID: 1"},
      {With(ColumnText("A", 84)), "85: Column Name: A|Data Item ID: 84"},
      {With(ColumnText("A", 5, 0, "COLUMNMINIMUMVALUE=2.5\nCOLUMNMAXIMUMVALUE=-1\n")),
       "88: Column Name: A|Minimum: 2.5|Maximum: -1"},
      {With(ColumnText("A", 23, 0, "[VALUES]\nOff\n", 2)),
       "73: Column Name: A|Data Item ID: 23|Column Data Type: 2|Data Item Type: 2"},
      {With(ColumnText("A", 5, 0, "[VALUES]\nOff\n")), "80: A"},
      {With(ColumnText("A", 5, 0, "", 2)), "81: A"},
      {DefinitionText{"LINEFREQUENCY=0\n", {ColumnText("A", 5)}, ""}.Text(), "77: my.txt"},
      {Behind("[SAMPLE GRAPH]\nDATA ITEMS=2\n"), "93: my.txt|Name: "},
      {Behind("[SAMPLE GRAPH]\nNAME=S\nDATA ITEMS=3,45,5\n"), "100: my.txt|Name: S|Data Item ID: 5"},
      {Behind("[SCATTER GRAPH]\nNAME=S\nX AXIS=3\nY AXIS=2\n"),
       "94: my.txt|Name: S|Point Size: 0|X Axis Data Item ID: 3|Y Axis Data Item ID: 2"},
      {Behind("[SCATTER GRAPH]\nNAME=S\nPOINT SIZE=1\nX AXIS=5\nY AXIS=2\n"),
       "98: my.txt|Name: S|X Axis Data Item ID: 5"},
      {Behind("[SCATTER GRAPH]\nNAME=S\nPOINT SIZE=1\nX AXIS=3\nY AXIS=99\n"),
       "99: my.txt|Name: S|Y Axis Data Item ID: 99"},
      {Behind("[SCATTER GRAPH]\nNAME=S\n[FILTER]\nDATA ITEM=3\nFROM=0\n"),
       "95: my.txt|Scatter Graph Name: S|Filter Data Item ID: 3|Filter From Value: 0|Filter To Value: -99999"},
      {Behind("[SCATTER GRAPH]\nNAME=S\n[FILTER]\nDATA ITEM=5\nFROM=1\n"),
       "96: my.txt|Scatter Graph Name: S|Filter Data Item ID: 5"},
      {Behind("[SCATTER GRAPH]\nNAME=S\n[FILTER]\nDATA ITEM=2\nFROM=1.5\n"),
       "97: my.txt|Scatter Graph Name: S|Filter Data Item ID: 2|Filter From Value: 1.5"},
      // clang-format on
  };
  for (const auto& row : kRows) EXPECT_EQ(FaultOf(row.text), row.fault) << row.text;
}

TEST(DefinitionReader, WhatIsNoFault) {
  const std::string kRows[] = {
      With(ColumnText("A", 5, 0, "", 3)),  // an unknown type stores nothing
      With(ColumnText("A", 5, 0, "COLUMNMINIMUMVALUE=1\nCOLUMNMAXIMUMVALUE=1\n")),
      With(ColumnText("A", 63)),             // two columns of one item
      With(ColumnText("A", 5), "[COLUMN]"),  // a block that the file's end cuts off
      With(ColumnText("A", 5), "rubbish"),   // the last line is not looked at
      Behind(
          "[SAMPLE GRAPH]\nNAME=S\nDATA ITEMS=1,24,46\n[FILTER]\n\n"),  // items that every log has
      Behind("[SCATTER GRAPH]"),
      DefinitionText{"LINEFREQUENCY=10\n", {ColumnText("A", 5)}, ""}.Text(),
  };
  for (const std::string& text : kRows) EXPECT_EQ(FaultOf(text), "") << text;
}

TEST(DefinitionReader, TheLastAttributeOfAFileWantsALineBehindIt) {
  EXPECT_EQ(FaultOf("[DATALOGDEFINITION]\nNAME=a\nFILEEXTENSION=c\nDELIMITERASCIICHARACTER="
                    "44\nLINEFREQUENCY=1\n"
                    "[COLUMN]\nNAME=A\nDESCRIPTION=A\nCOLUMNTITLE=A\nDATAITEMID=5\nTYPE="
                    "1\nCOLUMNDECIMALPLACES=1\n"),
            "71: Column Name: A|Column Title: A|Description: A|Data Item ID: 5|Column Data Type: 1|"
            "Column Decimal Places Set: N");
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
