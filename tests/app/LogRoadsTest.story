== AStrangeLogOpensByItsShapeAfterAQuestion
drop /run.csv -> [This looks like a log of an unknown logger: 3 of 3 columns. Open it so? yes], as=Universal: by its shape, reads=1, cells=0.150 1050 1.7 , caption=Tarnview - run.csv (Universal: by its shape), PlotRangeFrom=1, PlotRangeTo=4, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete: Universal: by its shape. Time: "Time" rises; milliseconds: its unit is told, staDataLogViewer[2]=Sample Load Range 1 - 4
# Half of the columns known are enough.
open /half.csv -> opened yes, as=, cells=, caption=Tarnview - half.csv (Universal - Hydra Nemesis 2.1 (MX-5 Miata)), PlotRangeTo=3, staDataLogViewer[0]=Loading complete, staDataLogViewer[2]=Sample Load Range 1 - 3
# The definition of the settings is back for the next log.
load /hydra.csv 8 -> opened yes, cells=0.300 4000 , caption=Tarnview - hydra.csv (Universal - Hydra Nemesis 2.1 (MX-5 Miata)), PlotRangeTo=4, staDataLogViewer[2]=Sample Load Range 1 - 4
open /good.txt -> [16 ok], opened yes, cells=0.328 1000 , caption=Tarnview - good.txt (FM Link Data Log), PlotRangeTo=5, staDataLogViewer[2]=Sample Load Range 1 - 5
# The open log stays where the kind of another was only guessed.
answer no; open /run.csv -> [This looks like a log of an unknown logger: 3 of 3 columns. Open it so? no], opened no, reads=2
open /notes.txt -> [52 ok], [12 ok], opened no, staDataLogViewer[0]=Loading failed
# Whoever chose another type is told so.
open /good.txt 3 -> [good.txt does not load as Tec-2 Data Log.\nThis looks like a log of the kind FM Link Data Log. Open it so? yes], [16 ok], opened yes, as=FM Link Data Log, staDataLogViewer[0]=Loading complete: FM Link Data Log
answer no; open /good.txt 3 -> [good.txt does not load as Tec-2 Data Log.\nThis looks like a log of the kind FM Link Data Log. Open it so? no], [54 ok], [12 ok], opened no, as=, cells=, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
# Described by hand instead.
offers yes; open /run.csv -> [This looks like a log of an unknown logger: 3 of 3 columns. Open it so? yes], +frmLogDescription, reads=4
click cmdCancel; offers no -> opened no, -frmLogDescription
answer file /run.csv; click mnuFileNewLogDescription -> [open "Open" of All Files (*.*) /run.csv], +frmLogDescription, reads=5
click cmdCancel -> -frmLogDescription

== ALogWithoutAClockIsAskedAboutOnceAndReadOnce
open /run.csv -> [This looks like a log of an unknown logger: 2 of 2 columns. Open it so? yes], +frmLineFrequency, reads=1
show txtLineFrequency; type txtLineFrequency 5; click cmdCancel -> txtLineFrequency=10, opened no, -frmLineFrequency
# The least there is.
open /run.csv -> [This looks like a log of an unknown logger: 2 of 2 columns. Open it so? yes], +frmLineFrequency, reads=2
type txtLineFrequency 0; click cmdOK -> opened yes, -frmLineFrequency, as=Universal: by its shape, cells=300.000 905 , caption=Tarnview - run.csv (Universal: by its shape), PlotRangeFrom=1, PlotRangeTo=4, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete: Universal: by its shape, staDataLogViewer[2]=Sample Load Range 1 - 4
open /run.csv -> [This looks like a log of an unknown logger: 2 of 2 columns. Open it so? yes], +frmLineFrequency, reads=3
show txtLineFrequency; type txtLineFrequency 4; click cmdOK -> txtLineFrequency=0.01, opened yes, -frmLineFrequency, cells=0.750 905 
load /none.txt 1 -> [15 ok], [12 ok], opened no, as=, cells=, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
content /run.csv -> opened yes, as=Universal: by its shape, reads=4, cells=0.750 905 , caption=Tarnview - run.csv (Universal: by its shape), PlotRangeFrom=1, PlotRangeTo=4, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete: Universal: by its shape, staDataLogViewer[2]=Sample Load Range 1 - 4

== OwnItemsAreDrawnAsTheirTitlesWere
content /run.csv -> opened yes, as=Universal: by its shape, reads=1, cells=0.150 1050 1.7 , own=Engine Speed 4227072; Widget 8177704; , caption=Tarnview - run.csv (Universal: by its shape), PlotRangeFrom=1, PlotRangeTo=4, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete: Universal: by its shape. Time: "Time" rises; milliseconds: its unit is told, staDataLogViewer[2]=Sample Load Range 1 - 4
click mnuCustomiseOptions -> +frmOptions
row lvwDataItems RPM; answer colour 77; click cmdDataColour; row lvwDataItems Widget; answer colour 1193046; click cmdDataColour; tick lvwDataItems Widget off; click cmdOK -> [colour "Data Item Colour" ok], [colour "Data Item Colour" ok], -frmOptions, own=Engine Speed 77; Widget 1193046 not drawn; 
content /other.csv -> opened yes, cells=3.000 930 4 , own=Engine Speed 77; More 8177704; widget 1193046 not drawn; , caption=Tarnview - other.csv (Universal: by its shape), staDataLogViewer[0]=Loading complete: Universal: by its shape. Time: "Time" rises; seconds: its unit is told

== ADefinitionIsEditedOverTheOpenLog
content /run.csv -> opened yes, as=Universal: by its shape, reads=1, cells=0.150 1050 1.7 , caption=Tarnview - run.csv (Universal: by its shape), PlotRangeFrom=1, PlotRangeTo=4, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete: Universal: by its shape. Time: "Time" rises; milliseconds: its unit is told, staDataLogViewer[2]=Sample Load Range 1 - 4
answer file /mine.txt; click mnuFileEditDefinition -> [open "Edit Definition" of Data Log Definitions (*.txt) /mine.txt], +frmLogDescription, reads=2
show lvwColumns[1] lvwColumns[2] lvwColumns[3] -> lvwColumns[1]=[Time|msec|0  50  100|0|150|Secs||0|Yes], lvwColumns[1] unselected, lvwColumns[2]=[Engine Speed|rpm|900  950  1000|900|1050|Engine Speed (rpm)||0|Yes], lvwColumns[2] selected, lvwColumns[3]=[Widget|V|1,5  1,6  1,7|||Not read||0|Yes], lvwColumns[3] unselected
row lvwColumns "Engine Speed"; type txtUnit 1/min; row lvwColumns Widget; choose cboItem "An item of the log's own"; click cmdOK -> wrote mine.txt, -frmLogDescription, as=Universal: Test Logs, reads=3, cells=0.150 1050 1,7 , saved=[DATALOGDEFINITION]\nDELIMITERASCIICHARACTER=59\nDATALINESBEFORE=1\nFILEEXTENSION=csv\nNAME=Test Logs\nCOMMENTS=kept\nOWNDATAITEMS=Y\n[COLUMN]\nNAME=Time (msec)\nCOLUMNTITLE=Time (msec)\nDATAITEMID=63\nCOLUMNDECIMALPLACES=3\nTYPE=1\nDESCRIPTION=About Time (msec)\nCONVERSIONFACTOR=0.001\n[COLUMN]\nNAME=Engine Speed (rpm)\nCOLUMNTITLE=Engine Speed (rpm)\nDATAITEMID=3\nCOLUMNDECIMALPLACES=0\nTYPE=1\nDESCRIPTION=About Engine Speed (rpm)\nDISPLAYDECIMALPLACES=0\nDISPLAYFACTOR=1\nDISPLAYZERO=Y\nSMOOTH=Y\nSIGNED=Y\nUNIT=1/min\n[COLUMN]\nNAME=Gone\nCOLUMNTITLE=Gone\nDATAITEMID=5\nCOLUMNDECIMALPLACES=0\nTYPE=1\nDESCRIPTION=About Gone\n[COLUMN]\nNAME=Widget\nCOLUMNTITLE=Widget (V)\nDATAITEMID=101\nCOLUMNDECIMALPLACES=0\nTYPE=2\nDESCRIPTION=Widget\nDISPLAYDECIMALPLACES=0\nDISPLAYFACTOR=1\nDISPLAYZERO=Y\nDISPLAYCOLOUR=8177704\nUNIT=V\n[VALUES]\n\n1,5\n1,6\n1,7\n[SAMPLE GRAPH]\nDATA ITEMS=3,5\nNAME=All\n, caption=Tarnview - run.csv (Universal: Test Logs), staDataLogViewer[0]=Loading complete: Universal: Test Logs

== TheProgramsOwnFilesAreNoLogs
take /run.pow -> [52 ok], [12 ok], staDataLogViewer[0]=Loading failed
take /run.CAR -> [52 ok], [12 ok]
take /run.sam -> [52 ok], [12 ok]
take /run.sca -> [52 ok], [12 ok]
take /run.map -> [56 ok], [12 ok]
