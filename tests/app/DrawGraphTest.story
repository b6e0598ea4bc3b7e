== WithoutALogNothingIsDrawn
click cmdDrawGraph -> graph=1-50 at 26, txtYMax=240, staDataLogViewer[0]=Sample: 26, Secs: 2.130
load /logs/none.txt 1; show lvwSampleDetails[1] -> lvwSampleDetails[1]=[Sample|], lvwSampleDetails[1] unchecked, lvwSampleDetails[1] unselected, [15 ok], [12 ok], opened no, graph=none, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
tick lvwSampleDetails Knock on; key Ctrl+I; key Ctrl+End; key Alt+Left; key Shift+Left; type hsbGraphScroll 20 -> not taken, cannot: hsbGraphScroll is disabled
click cmdDrawGraph -> cannot: cmdDrawGraph is disabled

== TheSelectedSampleFollowsTheRangeAndTheKeys
click cmdDrawGraph -> graph=1-2000 at 997, txtYMax=240, staDataLogViewer[0]=Sample: 997, Secs: 81.674
# Enter leaves the box before it draws; every second sample is drawn.
write PlotRangeFrom 1001; key Enter; show lvwSampleDetails[1] -> lvwSampleDetails[1]=[Sample|1499], lvwSampleDetails[1] unchecked, lvwSampleDetails[1] unselected, graph=1001-2000 at 1499, PlotRangeFrom=1001, staDataLogViewer[0]=Sample: 1499, Secs: 122.798
# A key that draws from within a box keeps what is selected.
write PlotRangeTo 2000; key Ctrl+I; show lvwSampleDetails[1] -> lvwSampleDetails[1]=[Sample|1499], lvwSampleDetails[1] unchecked, lvwSampleDetails[1] unselected, graph=1251-1751 at 1499, PlotRangeFrom=1251, PlotRangeTo=1751
click mnuViewZoomFull -> graph=1-2000 at 1501, PlotRangeFrom=1, PlotRangeTo=2000, staDataLogViewer[0]=Sample: 1501, Secs: 122.962
# A point is each fourth sample here.
point chSampleGraph 3 10; show lvwSampleDetails[1] lvwSampleDetails[2] -> lvwSampleDetails[1]=[Sample|37], lvwSampleDetails[1] unchecked, lvwSampleDetails[1] unselected, lvwSampleDetails[2]=[Secs|3.031], lvwSampleDetails[2] unchecked, lvwSampleDetails[2] unselected, graph=1-2000 at 37, staDataLogViewer[0]=Sample: 37, Secs: 3.031
key Right -> graph=1-2000 at 41, staDataLogViewer[0]=Sample: 41, Secs: 3.359
key Shift+Up
range 30 60; show "chSampleGraph selected" -> chSampleGraph selected=[1|12], graph=30-60 at 41, PlotRangeFrom=30, PlotRangeTo=60

== TheFixedMaximumStepsWithinItsLimits
click chkFixY -> chkFixY checked
type txtYMax 240; step updYMax up
type txtYMax 240; step updYMax down -> txtYMax=230
type txtYMax 995; step updYMax up -> txtYMax=1000
type txtYMax 2147483647; step updYMax up
type txtYMax -2147483648; step updYMax down -> txtYMax=10

== TheWalkAlongThePointsHasOneRule
click cmdDrawGraph -> graph=1-50 at 26, txtYMax=240, staDataLogViewer[0]=Sample: 26, Secs: 2.130
point chSampleGraph 1 1; popup chSampleGraph mnuRightClickPlotTo; show "cmdDataPointLeft enabled" "cmdDataPointRight enabled" -> cmdDataPointLeft off, graph=1-50 at 1, PlotRangeTo=1, staDataLogViewer[0]=Sample: 1, Secs: 0.082
point chSampleGraph 1 2; popup chSampleGraph mnuRightClickPlotTo; show "cmdDataPointLeft enabled" "cmdDataPointRight enabled" -> graph=1-50 at 2, PlotRangeTo=2, staDataLogViewer[0]=Sample: 2, Secs: 0.164
point chSampleGraph 1 50; popup chSampleGraph mnuRightClickPlotTo; show "cmdDataPointLeft enabled" "cmdDataPointRight enabled" -> cmdDataPointRight off, graph=1-50 at 50, PlotRangeTo=50, staDataLogViewer[0]=Sample: 50, Secs: 4.096
