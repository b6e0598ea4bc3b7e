== ShortMemoryIsToldAndLeavesNoWordOfItsWork
memory full; click cmdDrawGraph; show "proProgInd visible" -> proProgInd hidden, [There is not enough memory for that. ok], logged  Tarnview/frmDataLogViewer/cmdDrawGraph_Click 7 Out of memory Tarnview/Story/click 7 Out of memory, staDataLogViewer[0]=
load /logs/run.txt -> [There is not enough memory for that. ok], [12 ok], logged  Tarnview/frmDataLogViewer/LoadDataFile -12 Loading failed: /logs/run.txt, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
memory well; load /logs/run.txt; click cmdDrawGraph -> [16 ok], chSampleGraph=600, fraPicture hidden, staDataLogViewer[0]=Sample: 300, Secs: 24.576, staDataLogViewer[2]=Sample Load Range 1 - 600
click mnuModulesPowerGraph; watch -> +frmPowerGraph, pointers=usual usual 
click frmDataLogViewer/mnuModulesScatterGraph -> +frmScatterGraph, pointers=usual usual usual 
choose cboYAxis #2; memory full; click cmdDrawGraph; show "prgProgInd visible" -> prgProgInd hidden, [There is not enough memory for that. ok], logged  Tarnview/frmScatterGraph/DrawScatter 7 Out of memory Tarnview/frmScatterGraph/cmdDrawGraph_Click 7 Out of memory Tarnview/Story/click 7 Out of memory, cboYAxis=A/C Switch
click frmPowerGraph/cmdDrawGraph -> [There is not enough memory for that. ok], logged  Tarnview/frmPowerGraph/cmdDrawGraph_Click 7 Out of memory Tarnview/Story/click 7 Out of memory
close -> -frmScatterGraph, pointers=usual usual 
memory well; click cmdDrawGraph -> fraPicture hidden, staPowerGraph[0]=Graph draw complete

== WhatFailsIsInTheErrorLog
load /logs/none.txt -> [15 ok], [12 ok], logged  Tarnview/frmDataLogViewer/LoadDataFile -12 Loading failed: /logs/none.txt, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
break /car/Tarnview.ini; save -> [39 ok], logged  Tarnview/Messages/ShowMessage -39 Problem updating application settings file., staDataLogViewer[0]=Data Item Display Properties
key F1 -> [30 ok], logged  Tarnview/Messages/ShowMessage -30 Problem trying to run on-line help.
