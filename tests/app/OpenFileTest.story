== ALogOnTheCommandLineIsLoadedAndDrawn
start "\"run.txt\"" -> [16 ok], +frmDataLogViewer, graph=1-40 at 20, top=1|/logs/run.txt, rows=40, ends=1 40
show caption staDataLogViewer[0] staDataLogViewer[2] "fraPicture visible" -> caption=Tarnview - run.txt (FM Link Data Log), staDataLogViewer[0]=Sample: 20, Secs: 1.638, staDataLogViewer[2]=Sample Load Range 1 - 40, fraPicture hidden
lose /logs/run.txt; click mnuRecentlyUsed(0); show "mnuRecentlyUsed(0) visible" -> [15 ok]

== WhatDoesNotLoadIsToldAndLeavesNoLog
load /logs/good.txt -> [16 ok], opened yes, top=1|/logs/good.txt, rows=3, ends=1 3, caption=Tarnview - good.txt (FM Link Data Log), PlotRangeFrom=1, PlotRangeTo=3, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete, staDataLogViewer[2]=Sample Load Range 1 - 3
load /logs/none.txt 8 -> [15 ok], [12 ok], opened no, rows=0, ends=0 0, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
load /logs/good.txt -> [16 ok], opened yes, rows=3, ends=1 3, caption=Tarnview - good.txt (FM Link Data Log), PlotRangeFrom=1, PlotRangeTo=3, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete, staDataLogViewer[2]=Sample Load Range 1 - 3
load /logs/two.txt; show "cmdDrawGraph enabled" "fraGraphSeriesFrame enabled" -> cmdDrawGraph off, fraGraphSeriesFrame off, [16 ok], [12 ok], opened no, rows=2, ends=0 0, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
load /logs/good.txt -> [16 ok], opened yes, rows=3, ends=1 3, caption=Tarnview - good.txt (FM Link Data Log), PlotRangeFrom=1, PlotRangeTo=3, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete, staDataLogViewer[2]=Sample Load Range 1 - 3
load /logs/empty.txt 1 -> [52 ok], [12 ok], opened no, rows=0, ends=0 0, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
load /logs/other.txt -> [52 ok], [12 ok], opened no
load /logs/other.txt 99 -> [31 ok], [12 ok], opened no
load /logs/giant.txt 8 -> [15 ok], [12 ok], opened no, because \n\nIt is larger than 1 GiB.
load /logs/line.txt 8 -> [15 ok], [12 ok], opened no, because \n\nIt has a line of more than 16 MB.
load /logs/none.txt 8 -> [15 ok], [12 ok], opened no

== AMarkInFrontAndLinesThatEndInCRAreNoFault
open /logs/mark.txt 1 -> [16 ok], opened yes, top=1|/logs/mark.txt, rows=5, ends=1 5, caption=Tarnview - mark.txt (FM Link Data Log), PlotRangeFrom=1, PlotRangeTo=5, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete, staDataLogViewer[2]=Sample Load Range 1 - 5
open /logs/mark.txt -> [16 ok], opened yes
content /logs/mark.txt -> [16 ok], staDataLogViewer[0]=Loading complete: FM Link Data Log
open /logs/cr.txt 1 -> [16 ok], opened yes, top=1|/logs/cr.txt, caption=Tarnview - cr.txt (FM Link Data Log), staDataLogViewer[0]=Loading complete
open /logs/cr.txt -> [16 ok], opened yes
content /logs/cr.txt -> [16 ok], staDataLogViewer[0]=Loading complete: FM Link Data Log
drop /logs
drop /logs/mark.txt -> [16 ok], top=1|/logs/mark.txt, caption=Tarnview - mark.txt (FM Link Data Log), staDataLogViewer[0]=Loading complete

== TheDialogStartsAtTheLastFileAndItsTypeDecides
click mnuFileOpen -> [open "Open" of FM Link Data Logs (*.txt) /logs/run.dat], [16 ok], top=1|/logs/run.dat, rows=5, ends=1 5, caption=Tarnview - run.dat (FM Link Data Log), PlotRangeFrom=1, PlotRangeTo=5, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete, staDataLogViewer[2]=Sample Load Range 1 - 5
answer cancel; click mnuFileOpen -> [open "Open" of FM Link Data Logs (*.txt) cancel]

== WithoutQuickGraphALongLogIsShortenedInSilence
click chkQuickGraph -> chkQuickGraph unchecked
load /logs/run.txt -> [16 ok], opened yes, PlotRangeTo=1000

== EditedZonesAreProtected
answer cancel; click mnuFileOpen -> [Do you want to save the changes made to run.txt? cancel]
answer cancel; click mnuRecentlyUsed(0) -> [Do you want to save the changes made to run.txt? cancel]
answer cancel; click mnuFileEditDefinition -> [Do you want to save the changes made to run.txt? cancel]
answer cancel; close -> [Do you want to save the changes made to run.txt? cancel]
answer yes; close -> [Do you want to save the changes made to run.txt? yes], [save "Save As" of FM Link MAP Files (*.map) cancel]
answer no; close -> [Do you want to save the changes made to run.txt? no], -frmDataLogViewer, edited=no, top=, rows=, ends=
