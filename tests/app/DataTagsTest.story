== TheWindowOutlivesItsLogAndOpensWhereThereAreTags
load /logs/run.txt 1; click cmdDrawGraph; click mnuViewNewDataTag -> [16 ok], opened yes, graph=1-60 at 30, tags=1, caption=Tarnview - run.txt (FM Link Data Log), PlotRangeFrom=1, PlotRangeTo=60, txtYMax=240, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Sample: 30, Secs: 2.458, staDataLogViewer[2]=Sample Load Range 1 - 60
click mnuViewTags -> +frmDataTags
load /logs/none.txt 1; show "frmDataLogViewer/mnuViewTags enabled" -> [15 ok], [12 ok], opened no, graph=none, tags=0, frmDataLogViewer/caption=Tarnview, frmDataLogViewer/PlotRangeFrom=, frmDataLogViewer/PlotRangeTo=, frmDataLogViewer/lblEmptyPlace=Open a log, or drop one here, frmDataLogViewer/staDataLogViewer[0]=Loading failed, frmDataLogViewer/staDataLogViewer[2]=
click cmdShow; click cmdNew; click cmdDelete; click cmdDelete -> cannot: cmdDelete is disabled
load /logs/run.txt 1; click frmDataLogViewer/cmdDrawGraph; click frmDataLogViewer/mnuViewNewDataTag -> [16 ok], opened yes, graph=1-60 at 30, tags=1, frmDataLogViewer/caption=Tarnview - run.txt (FM Link Data Log), frmDataLogViewer/PlotRangeFrom=1, frmDataLogViewer/PlotRangeTo=60, frmDataLogViewer/lblEmptyPlace=Press Draw, or Enter, frmDataLogViewer/staDataLogViewer[0]=Sample: 30, Secs: 2.458, frmDataLogViewer/staDataLogViewer[2]=Sample Load Range 1 - 60
load /logs/other.csv 6 -> opened yes, graph=none, tags=0, frmDataLogViewer/caption=Tarnview - other.csv (UTEC CSV Data Log), frmDataLogViewer/PlotRangeTo=400, frmDataLogViewer/staDataLogViewer[0]=Loading complete, frmDataLogViewer/staDataLogViewer[2]=Sample Load Range 1 - 400
click cmdShow; click cmdNew; click cmdDelete; click cmdDelete -> cannot: cmdDelete is disabled, graph=1-60 at 30, frmDataLogViewer/PlotRangeTo=60, frmDataLogViewer/staDataLogViewer[0]=Sample: 30, Secs: 4.752
close; show "mnuViewTags enabled" -> mnuViewTags off, -frmDataTags
# Of no samples.
write PlotRangeFrom 9; write PlotRangeTo 9; click mnuViewNewDataTag -> graph=1-60 at 0, PlotRangeFrom=9, PlotRangeTo=9
write PlotRangeFrom 1; write PlotRangeTo 60 -> PlotRangeFrom=1, PlotRangeTo=60
click cmdDrawGraph; click mnuViewNewDataTag; show "mnuViewTags enabled" -> graph=1-60 at 30, tags=1
click mnuViewTags -> +frmDataTags
click cmdDelete -> tags=0
close; show "mnuViewTags enabled" -> mnuViewTags off, -frmDataTags
