== WithTheirWindowsAreAsTheyAreToldWhole
whole
click mnuHelpAbout -> +frmAbout
whole; close -> -frmAbout

== WhatMayRunFollowsWhatIsThere
load /logs/run.txt -> [16 ok], opened yes, may run  +cmdDrawGraph +fraGraphSeriesFrame +fraZoneInfl +hsbGraphScroll +hsbGraphScrollLarge +mnuEditNewPreset +mnuFileExport +mnuModulesPowerGraph +mnuModulesScatterGraph +mnuRightClickDrawGraph +mnuToolsDataLogView +mnuViewTags +mnuViewZoneInfl +updPlotRangeFrom +updPlotRangeTo, caption=Tarnview - run.txt (FM Link Data Log), PlotRangeFrom=1, PlotRangeTo=200, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete, staDataLogViewer[2]=Sample Load Range 1 - 200
click cmdDrawGraph -> may run  +cmdDataPointLeft +cmdDataPointRight +cmdZoomIn +mnuCopy +mnuFilePrint +mnuFilePrintPreview +mnuFileSavePicture +mnuRightClickCopy +mnuRightClickGoto +mnuRightClickNewDataTag +mnuRightClickPlotFrom +mnuRightClickPlotFromAnd +mnuRightClickPlotTo +mnuRightClickPlotToAnd +mnuRightClickPrint +mnuRightClickZoomIn +mnuViewGoto +mnuViewNewDataTag +mnuViewZoomIn, graph=1-200 at 100, txtYMax=240, staDataLogViewer[0]=Sample: 100, Secs: 8.192
# In the middle.
range 51 150 -> may run  +cmdZoomFull +cmdZoomOut +mnuRightClickPrevGraph +mnuRightClickZoomOut +mnuRightClickZoomOutFull +mnuViewFinish +mnuViewPageLeft +mnuViewPageRight +mnuViewPrevious +mnuViewScrollLeft +mnuViewScrollRight +mnuViewStart +mnuViewZoomFull +mnuViewZoomOut, graph=51-150 at 100, PlotRangeFrom=51, PlotRangeTo=150
click mnuViewStart -> may run  -mnuViewPageLeft -mnuViewScrollLeft -mnuViewStart, graph=1-101 at 100, PlotRangeFrom=1, PlotRangeTo=101
click mnuViewFinish -> may run  +mnuViewPageLeft +mnuViewScrollLeft +mnuViewStart -mnuViewFinish -mnuViewPageRight -mnuViewScrollRight, graph=100-200 at 100, PlotRangeFrom=100, PlotRangeTo=200
# Three samples.
range 51 53 -> may run  +mnuViewFinish +mnuViewPageRight +mnuViewScrollRight -cmdZoomIn -mnuRightClickZoomIn -mnuViewZoomIn, graph=51-53 at 53, PlotRangeFrom=51, PlotRangeTo=53, staDataLogViewer[0]=Sample: 53, Secs: 4.342
# As at the start.
load /logs/none.txt -> [15 ok], [12 ok], opened no, may run  -cmdDataPointLeft -cmdDataPointRight -cmdDrawGraph -cmdZoomFull -cmdZoomOut -fraGraphSeriesFrame -fraZoneInfl -hsbGraphScroll -hsbGraphScrollLarge -mnuCopy -mnuEditNewPreset -mnuFileExport -mnuFilePrint -mnuFilePrintPreview -mnuFileSavePicture -mnuModulesPowerGraph -mnuModulesScatterGraph -mnuRightClickCopy -mnuRightClickDrawGraph -mnuRightClickGoto -mnuRightClickNewDataTag -mnuRightClickPlotFrom -mnuRightClickPlotFromAnd -mnuRightClickPlotTo -mnuRightClickPlotToAnd -mnuRightClickPrevGraph -mnuRightClickPrint -mnuRightClickZoomOut -mnuRightClickZoomOutFull -mnuToolsDataLogView -mnuViewFinish -mnuViewGoto -mnuViewNewDataTag -mnuViewPageLeft -mnuViewPageRight -mnuViewPrevious -mnuViewScrollLeft -mnuViewScrollRight -mnuViewStart -mnuViewTags -mnuViewZoneInfl -mnuViewZoomFull -mnuViewZoomOut -updPlotRangeFrom -updPlotRangeTo, graph=none, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
