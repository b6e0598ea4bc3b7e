== ALogOfUnknownColumnsNamesTheReportAndABadDefinitionIsTold
in /d.txt -> +frmDataLogViewer, columns=1
load /none.csv 8 -> [83 ok], [12 ok], wrote Universal Load Unknown Columns.txt, opened no, told Error loading data log - no columns recognised:\n\na,b\n\nThe columns are listed in the report:\n/car/Universal Load Unknown Columns.txt &Open Report, opened=/car/Universal Load Unknown Columns.txt, logged=2, staDataLogViewer[0]=Loading failed
load /short.csv 8 -> [12 ok], wrote Universal Load Unknown Columns.txt, opened no, logged=3
# Without a folder to write to there is no report, and the message says no more than the line.
bare /d.txt; load /none.csv 8 -> [83 ok], [12 ok], opened no, told Error loading data log - no columns recognised:\n\na,b , logged=0
# The built-in definition serves for one that is missing or bad.
bare /none.txt -> [79 ok], columns=19, staDataLogViewer[0]=
bare /bad.txt -> [69 ok]
load /none.csv -> [90 ok], [12 ok], opened no, staDataLogViewer[0]=Loading failed
