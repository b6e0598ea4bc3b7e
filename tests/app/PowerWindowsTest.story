== KeepTheirGraphWhenTheLogGoes
click mnuModulesPowerGraph; show caption txtPlotRangeFrom txtPlotRangeTo cboCarDefs -> caption=Tarnview Power Graph - run.txt, txtPlotRangeFrom=1, txtPlotRangeTo=60, cboCarDefs list=[Original], cboCarDefs=Original, +frmPowerGraph
click cmdDrawGraph; show "mnuToolsCopy enabled" "chPowerGraph series count" -> chPowerGraph series count=2, staPowerGraph[0]=Graph draw complete
load /other.txt 1; show caption "mnuToolsCopy enabled" "chPowerGraph series count" -> caption=Tarnview Power Graph - run.txt, mnuToolsCopy off, chPowerGraph series count=2, [16 ok], opened yes, frmDataLogViewer/caption=Tarnview - other.txt (FM Link Data Log), frmDataLogViewer/PlotRangeTo=30, frmDataLogViewer/staDataLogViewer[2]=Sample Load Range 1 - 30, txtPlotRangeTo=30
click frmPowerGraph/mnuToolsSpeed; show caption -> caption=Tarnview Speed Graph - run.txt, +frmSpeedGraph
close frmDataLogViewer -> -frmDataLogViewer, -frmPowerGraph, -frmSpeedGraph

== CopyTheRunToTheSampleGraph
range 10 40; show "chSampleGraph series[0] y" -> chSampleGraph series[0] y=31 from 0 to 0, graph=10-40 at 25, PlotRangeFrom=10, PlotRangeTo=40, txtYMax=240, staDataLogViewer[0]=Sample: 25, Secs: 2.048
click mnuModulesPowerGraph -> +frmPowerGraph
type txtPlotRangeFrom 10; type txtPlotRangeTo 40; click cmdDrawGraph -> staPowerGraph[0]=Graph draw complete
click mnuToolsCopy
close; show "chSampleGraph series[0] y" -> chSampleGraph series[0] y=31 from 0 to 151, -frmPowerGraph

== CarsAndRecentGraphsAreTheSameInAll
click mnuModulesPowerGraph; click frmDataLogViewer/mnuModulesPowerGraph -> +frmPowerGraph, +frmPowerGraph.2
answer file /a.pow; click mnuFileOpen; show mnuFileRecent(0) -> mnuFileRecent(0)=&1 /a.pow, [open "Open Power Graph" of Power Graph files (*.pow) /a.pow], lblBenchmark2=a, cboBenchMarkAction=Show, staPowerGraph[0]=Loading complete
show lblBenchmark2 -> lblBenchmark2=a
click frmPowerGraph/mnuFileRecent(0) -> frmPowerGraph/lblBenchmark2=a, frmPowerGraph/cboBenchMarkAction=Show, frmPowerGraph/staPowerGraph[0]=Loading complete
click frmDataLogViewer/mnuCustomiseCarDefs -> +frmMaint
show caption fraNameList "cboLogFamily visible"; click cmdNew -> caption=Car Definition Editor Editor, fraNameList=&Car Definitions, cboLogFamily hidden, +frmCarDefinitionDetails
type txtName Mine; click cmdOK -> -frmCarDefinitionDetails
click cmdPresetUp; click cmdOK -> -frmMaint, frmPowerGraph/cboCarDefs list=[Mine|Original], cboCarDefs list=[Mine|Original]
