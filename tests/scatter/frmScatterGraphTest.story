== OpensWithAFirstChoiceOfAxesAndTheRangeOnShow
show caption lblEmptyPlace cboPointShape cboPointSize lvwFilters lvwPresets cmdShowPoint chScatterGraph -> caption=Tarnview Scatter Graph - run.txt, lblEmptyPlace=Choose two data items and press Draw, cboPointShape list=[3D Ball|Circle|Dash|Diamond|Down Tri|Plus|Square|Star|Up Tri|X], cboPointShape=3D Ball, cboPointSize list=[1|2|3|4|5|6|7|8|9|10], cboPointSize=4, lvwFilters columns=[Item|From|To], lvwFilters count=1, lvwFilters[1]=[Sample|10|30], lvwFilters[1] selected, lvwPresets columns=[Preset Graphs], lvwPresets count=1, lvwPresets[1]=[Boost], lvwPresets[1] unselected, cmdShowPoint off, cmdShowPoint=&Show Point..., chScatterGraph series count=0, chScatterGraph x_axis min=0, chScatterGraph x_axis max=1, chScatterGraph x_axis format=, chScatterGraph y_axis max=1, chScatterGraph y_axis divisions=10, chScatterGraph selected=[0|0]
click cmdDrawGraph -> points=0 4 12607488, caption=Tarnview Scatter Graph - run.txt Sample Load Range 1 - 50, cmdShowPoint on, chScatterGraph filters count=1, chScatterGraph filters[0]=Sample [Sample No.] from 10 to 30, chScatterGraph x_item=3, chScatterGraph y_item=1, chScatterGraph points=21 from [1010|10|10] to [1030|30|30], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=21 points, prgProgInd value=20

== WhatIsKeptOfItsPlace
click mnuFileClose -> -frmScatterGraph.2, main window=closed 0closed 3

== DrawsTheSamplesThatPass
axes 3 5; filter 5 100 -; filter 1 15 35 -> cboYAxis=Manifold Air Pressure, lvwFilters count=2, lvwFilters[1]=[MAP|100|-], lvwFilters[1] unselected, lvwFilters[2]=[Sample|15|35], lvwFilters[2] selected
click cmdDrawGraph -> points=0 4 12607488, cmdShowPoint on, chScatterGraph filters count=2, chScatterGraph filters[0]=MAP [Manifold Air Pressure] from 100, chScatterGraph filters[1]=Sample [Sample No.] from 15 to 35, chScatterGraph x_item=3, chScatterGraph y_item=5, chScatterGraph points count=2, chScatterGraph points[0]=[1020|120|20], chScatterGraph points[1]=[1030|120|30], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=2 points, prgProgInd value=20
show mnuFilePrint mnuFilePrintPreview mnuFileSavePicture mnuFileExport mnuEditCopy mnuRightClickCopy mnuRightClickPrint -> mnuFilePrint=&Print..., mnuFilePrintPreview=Print Pre&view..., mnuFileSavePicture=Save Pict&ure As..., mnuFileExport=&Export..., mnuEditCopy=&Copy Graph, mnuRightClickCopy=&Copy Graph, mnuRightClickPrint=&Print...
# An item that is not offered.
axes 1 47; axes 47 1 -> main window=refused refused 
answer cancel; click mnuFilePrint -> [printer "" cancel]
answer printer; click mnuRightClickPrint; click mnuEditCopy -> [printer "" ok], pages=1, copied=1

== AFaultLeavesNoGraph
drawQuietly -> lblEmptyPlace=Too many samples for a graph without a filter: add a filter, or choose Draw All, staScatterGraph[0]=Too many samples for a graph without a filter: add a filter, or choose Draw All
click cmdDrawGraph; show mnuFileExport mnuFilePrint -> mnuFileExport off, mnuFileExport=&Export..., mnuFilePrint off, mnuFilePrint=&Print..., [3 ok]
# Draw All, and that once.
takesOffers yes; click cmdDrawGraph; show mnuFileExport mnuFilePrint -> mnuFileExport=&Export..., mnuFilePrint=&Print..., [3 ok], points=0 4 12607488, cmdShowPoint on, chScatterGraph filters count=0, chScatterGraph x_item=3, chScatterGraph y_item=1, chScatterGraph points=6000 from [1001|1|1] to [7000|6000|6000], fraPicture hidden, lblEmptyPlace=Choose two data items and press Draw, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=6000 points, prgProgInd value=5999
takesOffers no; click cmdDrawGraph -> [3 ok], points=none, cmdShowPoint off, chScatterGraph series count=0, chScatterGraph x_axis min=0, chScatterGraph x_axis max=1, chScatterGraph x_axis format=, chScatterGraph y_axis max=1, chScatterGraph y_axis divisions=10, fraPicture shown, lblEmptyPlace=Too many samples for a graph without a filter: add a filter, or choose Draw All, fraSampleDetails off, staScatterGraph[0]=Too many samples for a graph without a filter: add a filter, or choose Draw All, staScatterGraph[2]=
# A filter lifts the limit.
filter 3 0 -; click cmdDrawGraph -> points=0 4 12607488, cmdShowPoint on, lvwFilters count=1, lvwFilters[1]=[RPM|0|-], lvwFilters[1] selected, chScatterGraph filters count=1, chScatterGraph filters[0]=RPM [RPM] from 0, chScatterGraph x_item=3, chScatterGraph y_item=1, chScatterGraph points=6000 from [1001|1|1] to [7000|6000|6000], fraPicture hidden, lblEmptyPlace=Choose two data items and press Draw, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=6000 points
# None passes.
filter 3 9000 -; drawQuietly -> points=none, cmdShowPoint off, lvwFilters count=2, lvwFilters[1] unselected, lvwFilters[2]=[RPM|9000|-], lvwFilters[2] selected, chScatterGraph series count=0, chScatterGraph x_axis min=0, chScatterGraph x_axis max=1, chScatterGraph x_axis format=, chScatterGraph y_axis max=1, chScatterGraph y_axis divisions=10, fraPicture shown, fraSampleDetails off, staScatterGraph[0] to [2]=, prgProgInd value=5970
click cmdDrawGraph; show mnuFileExport mnuFilePrint -> mnuFileExport off, mnuFileExport=&Export..., mnuFilePrint off, mnuFilePrint=&Print..., [46 ok]

== ExportsThePoints
axes 5 3; filter 5 100 -; filter 1 - 30; click cmdDrawGraph -> points=0 4 12607488, cboXAxis=Manifold Air Pressure, cboYAxis=RPM, cmdShowPoint on, lvwFilters count=2, lvwFilters[1]=[MAP|100|-], lvwFilters[1] unselected, lvwFilters[2]=[Sample|-|30], lvwFilters[2] selected, chScatterGraph filters count=2, chScatterGraph filters[0]=MAP [Manifold Air Pressure] from 100, chScatterGraph filters[1]=Sample [Sample No.] to 30, chScatterGraph x_item=5, chScatterGraph y_item=3, chScatterGraph points count=3, chScatterGraph points[0]=[120|1010|10], chScatterGraph points[1]=[120|1020|20], chScatterGraph points[2]=[120|1030|30], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=3 points, prgProgInd value=29
# Not drawn with.
filter 3 1 - -> lvwFilters count=3, lvwFilters[2] unselected, lvwFilters[3]=[RPM|1|-], lvwFilters[3] selected
answer file /a.csv; click mnuFileExport; read /a.csv -> [save "Export" of CSV files (*.csv) /a.csv], main window=TARNVIEW SCATTER GRAPH EXPORT FILE\nOriginal Data Log Path and File Name: /logs/run.txt\nOriginal Data Log File Type: FM Link Data Logs\n\nFilters:\nMAP [Manifold Air Pressure] from 100\nSample [Sample No.] to 30\n\nSample,MAP,RPM\n10,120.0,1010\n20,120.0,1020\n30,120.0,1030\n, staScatterGraph[0]=Export complete, prgProgInd value=2
failWrites yes; answer file /a.csv; click mnuFileExport -> [save "Export" of CSV files (*.csv) /a.csv], [64 ok], staScatterGraph[0]=
failWrites no; axes 1 3; click cmdDrawGraph; answer file /b.csv; click mnuFileExport; read /b.csv -> [save "Export" of CSV files (*.csv) /b.csv], main window=TARNVIEW SCATTER GRAPH EXPORT FILE\nOriginal Data Log Path and File Name: /logs/run.txt\nOriginal Data Log File Type: FM Link Data Logs\n\nFilters:\nMAP [Manifold Air Pressure] from 100\nSample [Sample No.] to 30\nRPM [RPM] from 1\n\nSample,Sample,RPM,MAP\n10,10,1010,120.0\n20,20,1020,120.0\n30,30,1030,120.0\n, cboXAxis=Sample No., chScatterGraph filters count=3, chScatterGraph filters[2]=RPM [RPM] from 1, chScatterGraph x_item=1, chScatterGraph points[0]=[10|1010|10], chScatterGraph points[1]=[20|1020|20], chScatterGraph points[2]=[30|1030|30], staScatterGraph[0]=Export complete

== APointLeadsBackToTheSampleGraphAsLongAsItsLogIsOpen
axes 3 5; click cmdDrawGraph -> points=0 4 12607488, cboYAxis=Manifold Air Pressure, cmdShowPoint on, chScatterGraph filters count=0, chScatterGraph x_item=3, chScatterGraph y_item=5, chScatterGraph points=500 from [1001|40|1] to [1500|120|500], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=500 points, prgProgInd value=499
# No point, nothing to show.
click cmdShowPoint
point chScatterGraph 1 100 -> rpm=1100, chScatterGraph selected=[1|100]
click cmdShowPoint -> main window=100 
logCloses; show mnuFileExport mnuFilePrint -> mnuFileExport off, mnuFileExport=&Export..., mnuFilePrint=&Print..., rpm=
# Of the log that was open before.
click cmdShowPoint
point chScatterGraph 1 100
click cmdShowPoint
click mnuViewSampleDetails; show mnuViewSampleDetails -> mnuViewSampleDetails=&Sample Details, fraSampleDetails hidden

== ColoursAndDensityChangeTheGraphOnShow
click cmdDrawGraph; point chScatterGraph 1 1 -> points=0 4 12607488, cmdShowPoint on, chScatterGraph filters count=0, chScatterGraph x_item=3, chScatterGraph y_item=1, chScatterGraph points=40 from [1001|1|1] to [1040|40|40], chScatterGraph selected=[1|1], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=40 points, prgProgInd value=39
# A new filter waits for Draw.
filter 5 100 -; choose cboColourBy "Manifold Air Pressure"; show mnuViewDensity -> mnuViewDensity off, mnuViewDensity=&Density, points=0 4 12607488 by Manifold Air Pressure from 40 to 120, cboColourBy=Manifold Air Pressure, lvwFilters count=1, lvwFilters[1]=[MAP|100|-], lvwFilters[1] selected
choose cboColourBy None; show mnuViewDensity -> mnuViewDensity=&Density, points=0 4 12607488, cboColourBy=None
click mnuViewDensity -> points=0 4 12607488 density
choose cboColourBy "Manifold Air Pressure" -> points=0 4 12607488 by Manifold Air Pressure from 40 to 120, cboColourBy=Manifold Air Pressure

== PresetsAreAppliedUpdatedAndAdded
# None is selected.
click mnuEditUpdatePreset
row lvwPresets Boost -> cboYAxis=Manifold Air Pressure, cboPointShape=Up Tri, cboPointSize=6, picColour colour=255, lvwFilters count=1, lvwFilters[1]=[MAP|100|-], lvwFilters[1] selected, lvwPresets[1] selected
double lvwPresets Boost -> points=8 6 255, cmdShowPoint on, chScatterGraph filters count=1, chScatterGraph filters[0]=MAP [Manifold Air Pressure] from 100, chScatterGraph x_item=3, chScatterGraph y_item=5, chScatterGraph points count=4, chScatterGraph points[0]=[1010|120|10], chScatterGraph points[1]=[1020|120|20], chScatterGraph points[2]=[1030|120|30], chScatterGraph points[3]=[1040|120|40], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=4 points, prgProgInd value=39
type cboPointSize 9; choose cboXAxis "Sample No."; choose cboYAxis "Knock Sensor"; filter 3 - 2000 -> cboXAxis=Sample No., cboYAxis=Knock Sensor, cboPointSize=9, lvwFilters count=2, lvwFilters[1] unselected, lvwFilters[2]=[RPM|-|2000], lvwFilters[2] selected
click mnuEditUpdatePreset -> main window=changed , boost=1 20 9 2 drawn
click mnuEditNewPreset -> +frmNewPresetName
type txtName Mine; click cmdOK -> -frmNewPresetName, main window=changed added , frmScatterGraph/lvwPresets count=2, frmScatterGraph/lvwPresets[2]=[Mine], frmScatterGraph/lvwPresets[2] unselected, lvwPresets count=2, lvwPresets[1] unselected, lvwPresets[2]=[Mine], lvwPresets[2] selected
style 99; row lvwPresets Boost -> boost=1 20 99 2 drawn, cboPointShape=X, cboPointSize=10, lvwFilters[1] selected, lvwFilters[2] unselected, lvwPresets[1] selected, lvwPresets[2] unselected
style -1; row lvwPresets Boost -> boost=1 20 -1 2 drawn, cboPointShape=3D Ball, cboPointSize=1
