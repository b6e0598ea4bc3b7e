== OpensWithTheMainWindowsRangeTheFirstCarAndTheSettingsAir
show txtPlotRangeFrom txtPlotRangeTo cboCarDefs cboGear txtWeight txtSmoothFactor txtCorrFactor lblRH chkSAE cboBenchMarkAction mnuBench mnuFileSave -> txtPlotRangeFrom=120, txtPlotRangeTo=180, cboCarDefs list=[New|Metric], cboCarDefs=New, cboGear list=[1st|2nd|3rd|4th|5th|6th], cboGear=4th, txtWeight=180, txtSmoothFactor=7, txtCorrFactor=0.982, lblRH='C, chkSAE=S&AE Correction, chkSAE checked, cboBenchMarkAction off, cboBenchMarkAction list=[Hide|Show|Average], cboBenchMarkAction=Hide, mnuBench off, mnuBench=&Benchmark, mnuFileSave off, mnuFileSave=&Save...
show updPlotRangeFrom updPlotRangeTo updWeight updSmoothFactor updAmbTemp updAtmos updRH -> updPlotRangeFrom min=0, updPlotRangeFrom max=3000000, updPlotRangeTo min=0, updPlotRangeTo max=3000000, updWeight min=0, updWeight max=9999, updSmoothFactor min=0, updSmoothFactor max=50, updAmbTemp min=-30, updAmbTemp max=60, updAtmos min=75, updAtmos max=115, updRH min=-30, updRH max=100
choose cboCarDefs Metric -> cboCarDefs=Metric, cboGear=2nd, lblWeight=Contents &Weight (kg), txtWeight=80, txtSmoothFactor=0
choose cboHumidityType "Rel. Humidity" -> txtCorrFactor=0.971, cboHumidityType=Rel. Humidity, lblRH=%
type txtRH 0; type txtAmbTemp 25; step updAtmos down; step updAtmos down -> txtCorrFactor=1.000, txtAmbTemp=25, txtAtmos=99, txtRH=0

== DrawsCurvesTellsOfThemAndSavesThemWithAComment
draw 100 200 -> curves=Your Power (85.1 hp @ 3990 rpm, Vmax 109 mph); Your Torque (114.2 lbft @ 3990 rpm), txtPlotRangeFrom=100, txtPlotRangeTo=200, fraPicture hidden, staPowerGraph[0]=Graph draw complete, mnuFileSave on, mnuFileSaveAs on, mnuFilePrint on, mnuFilePrintPreview on, mnuFileSavePicture on, mnuEditCopy on, mnuToolsSpeed on, mnuToolsCopy on, mnuRightClickCopy on, mnuRightClickPrint on
show "chPowerGraph x_axis" "chPowerGraph y_axis" "chPowerGraph marks" "chPowerGraph series[0] x" -> chPowerGraph x_axis min=1000, chPowerGraph x_axis max=8000, chPowerGraph x_axis format=#######0, chPowerGraph y_axis max=120, chPowerGraph y_axis divisions=6, chPowerGraph marks count=2, chPowerGraph marks[0] x=3990, chPowerGraph marks[0] y=85.1117902812993, chPowerGraph marks[0] text=85.1 hp, chPowerGraph marks[1] x=3990, chPowerGraph marks[1] y=114.172645389884, chPowerGraph marks[1] text=114.2 lbft, chPowerGraph series[0] x=100 from 2010 to 3990
hover chPowerGraph 2051 -> labels=2050: 38.9 hp; 2050: 97.2 lbft; 2050: 2050 rpm; , staPowerGraph[2]=2050 rpm: 38.9 hp, 97.2 lbft
hover chPowerGraph -> labels=, staPowerGraph[2]=
draw 100 105 -> [26 ok], txtPlotRangeTo=105
answer printer; click mnuFilePrint -> [printer "" ok], pages=1
click mnuEditCopy -> copied=1
answer file /b/mine; click mnuFileSaveAs -> [save "Save Power Graph As" of Power Graph files (*.pow) /b/mine], +frmPowerBenchComments
type txtComments "a\nb"; click cmdOK -> -frmPowerBenchComments, disk=write /b/mine.pow, staPowerGraph[0]=Saved, mnuSepRecent shown, mnuFileRecent(0) shown, mnuFileRecent(0)=&1 /b/mine.pow
click mnuFileSave -> +frmPowerBenchComments
click cmdCancel -> -frmPowerBenchComments
break /b/mine.pow; click mnuFileSave -> +frmPowerBenchComments
click cmdOK -> [19 ok], -frmPowerBenchComments

== ACarWithoutARatioDrawsNothingAndSaysWhichField
draw 100 200 -> [63 ok], disk=append /car/error.log, txtPlotRangeFrom=100, txtPlotRangeTo=200, staPowerGraph[3]=Car definition: check 4th Gear Ratio

== ABenchmarkIsShownAveragedOrHidden
answer file /b/stock.pow; click mnuFileOpen -> [open "Open Power Graph" of Power Graph files (*.pow) /b/stock.pow], disk=read /b/stock.pow, lblBenchmark2=stock, cboBenchMarkAction on, cboBenchMarkAction=Show, staPowerGraph[0]=Loading complete, mnuSepRecent shown, mnuFileRecent(0) shown, mnuFileRecent(0)=&1 /b/stock.pow, mnuBench on, mnuBenchCalcDet on
draw 100 200 -> curves=Your Power (85.1 hp @ 3990 rpm, Vmax 109 mph); Your Torque (114.2 lbft @ 3990 rpm); Benchmark Power (199.9 hp @ 4000 rpm, Vmax 144.9 mph); Benchmark Torque (100.0 lbft @ 4000 rpm), txtPlotRangeFrom=100, txtPlotRangeTo=200, fraPicture hidden, staPowerGraph[0]=Graph draw complete, mnuFileSave on, mnuFileSaveAs on, mnuFilePrint on, mnuFilePrintPreview on, mnuFileSavePicture on, mnuEditCopy on, mnuToolsSpeed on, mnuToolsCopy on, mnuRightClickCopy on, mnuRightClickPrint on
click mnuToolsSpeed -> main=100 imperial speeds against 2 metric
choose cboBenchMarkAction Average -> cboBenchMarkAction=Average
click cmdDrawGraph -> curves=Your Power (142.3 hp @ 3990 rpm, Vmax 129.3 mph); Your Torque (107.0 lbft @ 3990 rpm); Benchmark Power (199.9 hp @ 4000 rpm, Vmax 144.9 mph); Benchmark Torque (100.0 lbft @ 4000 rpm)
choose cboBenchMarkAction Hide -> cboBenchMarkAction=Hide
click cmdDrawGraph -> curves=Your Power (85.1 hp @ 3990 rpm, Vmax 109 mph); Your Torque (114.2 lbft @ 3990 rpm)
click mnuToolsSpeed -> main=100 imperial speeds against 0 imperial
choose cboUnits Metric; choose cboBenchMarkAction Show; click cmdDrawGraph -> curves=Your Power (63.5 kW @ 3990 rpm, Vmax 175.4 kmh); Your Torque (154.9 Nm @ 3990 rpm); Benchmark Power (149.1 kW @ 4000 rpm, Vmax 233.2 kmh); Benchmark Torque (135.7 Nm @ 4000 rpm), cboUnits=Metric, cboBenchMarkAction=Show
# One that cannot be read takes the old one away.
answer file /b/none.pow; click mnuFileOpen -> [open "Open Power Graph" of Power Graph files (*.pow) /b/none.pow], [33 ok], [Can't do anything with that file I'm afraid. ok], disk=read /b/none.pow, lblBenchmark2=, cboBenchMarkAction off, cboBenchMarkAction=Hide, staPowerGraph[0]=Loading failed, mnuBench off, mnuBenchCalcDet off

== CopiesIntoTheLogWhatLiesWithinIt
click cmdFindRuns -> lvwRuns count=1, lvwRuns[1]=[101|1300|2020-26000|119.9], lvwRuns[1] unselected, staPowerGraph[0]=1 found
row lvwRuns 1 -> txtPlotRangeFrom=101, txtPlotRangeTo=1300, lvwRuns[1] selected
draw 1290 1300 -> curves=Your Power (5587.0 hp @ 25990 rpm, Vmax 439.6 mph); Your Torque (1132.3 lbft @ 25990 rpm), txtPlotRangeFrom=1290, fraPicture hidden, staPowerGraph[0]=Graph draw complete, mnuFileSave on, mnuFileSaveAs on, mnuFilePrint on, mnuFilePrintPreview on, mnuFileSavePicture on, mnuEditCopy on, mnuToolsSpeed on, mnuToolsCopy on, mnuRightClickCopy on, mnuRightClickPrint on
click mnuToolsCopy -> main=1290-1300 at 1295
# The sample in the middle is rounded half to even.
draw 1288 1299; click mnuToolsCopy -> curves=Your Power (5574.8 hp @ 25970 rpm, Vmax 439.3 mph); Your Torque (1130.7 lbft @ 25970 rpm), main=1288-1299 at 1294, txtPlotRangeFrom=1288, txtPlotRangeTo=1299
