== TakeTheRangeOnShowAsAFilterWhereThatIsWanted
click mnuModulesScatterGraph -> +frmScatterGraph, clouds=[no]
type frmDataLogViewer/PlotRangeTo 30 -> frmDataLogViewer/PlotRangeTo=30
click frmDataLogViewer/mnuModulesScatterGraph -> +frmScatterGraph.2, clouds=[no][no, 1 from 1 to 30]

== TakeTheRangeOnShowAsAFilterWhereThatIsWanted 2
type PlotRangeTo 30; click mnuModulesScatterGraph -> +frmScatterGraph, clouds=[no], frmDataLogViewer/PlotRangeTo=30

== AreDrawnAfterALoadWhereThatIsWanted
show caption cboPointShape -> caption=Tarnview Scatter Graph - run.txt, cboPointShape list=[3D Ball|Circle|Dash|Diamond|Down Tri|Plus|Square|Star|Up Tri|X], cboPointShape=Up Tri
click frmDataLogViewer/mnuFileDrawScatter
load /logs/run.txt -> [16 ok], opened yes, frmDataLogViewer/staDataLogViewer[0]=Loading complete
click mnuFileClose -> -frmScatterGraph, clouds=
# Of too many points nothing is told but what the load has to say; the user's own row is.
click mnuFileDrawScatter
load /logs/long.txt -> [16 ok], opened yes, +frmScatterGraph, clouds=[no], frmDataLogViewer/caption=Tarnview - long.txt (FM Link Data Log), frmDataLogViewer/PlotRangeTo=5100, frmDataLogViewer/staDataLogViewer[0]=Drawing Scatter Graphs..., frmDataLogViewer/staDataLogViewer[2]=Sample Load Range 1 - 5100
row lvwPresets Gone -> [43 ok], cboYAxis=Sample No., cboPointShape=3D Ball, cboPointSize=1

== KeepTheirGraphThroughALoadAndEndWithTheProgram
click mnuModulesScatterGraph -> +frmScatterGraph, clouds=[no]
click cmdDrawGraph -> clouds=[500], staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=500 points
point chScatterGraph 1 100; click cmdShowPoint -> graph=50-150 at 100, PlotRangeFrom=50, PlotRangeTo=150, txtYMax=240, staDataLogViewer[0]=Sample: 100, Secs: 8.192
click mnuModulesScatterGraph -> +frmScatterGraph.2, clouds=[500][no, 1 from 50 to 150]
point frmScatterGraph/chScatterGraph 1 400
load /logs/short.txt; show "cmdDrawGraph enabled" -> [16 ok], opened yes, graph=none, frmDataLogViewer/caption=Tarnview - short.txt (FM Link Data Log), frmDataLogViewer/PlotRangeFrom=1, frmDataLogViewer/PlotRangeTo=5, frmDataLogViewer/staDataLogViewer[0]=Loading complete, frmDataLogViewer/staDataLogViewer[2]=Sample Load Range 1 - 5
load /logs/none.txt; show caption "cmdDrawGraph enabled" -> caption=Tarnview Scatter Graph - run.txt, cmdDrawGraph off, [15 ok], [12 ok], opened no, frmDataLogViewer/caption=Tarnview, frmDataLogViewer/PlotRangeFrom=, frmDataLogViewer/PlotRangeTo=, frmDataLogViewer/staDataLogViewer[0]=Loading failed, frmDataLogViewer/staDataLogViewer[2]=
click frmScatterGraph/cmdShowPoint
load /logs/short.txt; click frmScatterGraph/cmdDrawGraph -> [16 ok], opened yes, clouds=[5][no, 1 from 50 to 150], frmDataLogViewer/caption=Tarnview - short.txt (FM Link Data Log), frmDataLogViewer/PlotRangeFrom=1, frmDataLogViewer/PlotRangeTo=5, frmDataLogViewer/staDataLogViewer[0]=Loading complete, frmDataLogViewer/staDataLogViewer[2]=Sample Load Range 1 - 5, frmScatterGraph/caption=Tarnview Scatter Graph - short.txt, frmScatterGraph/staScatterGraph[2]=5 points
click frmScatterGraph.2/mnuFileClose -> -frmScatterGraph.2, clouds=[5]
