== WhatIsAcceptedIsTakenOverAndWhatACrashCutOffIsOfferedOnce
keep /car/a.map -> +frmDataLogViewer, zones=50 50
click mnuModulesZoneData -> +frmZoneData
type txtZone(6) 7; click cmdOK -> wrote Tarnview_Zones.journal, -frmZoneData, edited=yes, zones=7 50, journal=kept
click mnuFileSave -> wrote a.map Tarnview_Zones.journal, edited=no, journal=none, staDataLogViewer[0]=Saving complete
click mnuModulesZoneData -> +frmZoneData
click cmdUpload -> [6 ok]
close -> -frmZoneData
click mnuModulesZoneData -> +frmZoneData
# Throws the edit away.
type txtZone(6) 9; answer yes; click cmdCancel -> [Are you sure you want to throw away those changes? yes], wrote Tarnview_Zones.journal Tarnview_Zones.journal, -frmZoneData
click mnuModulesZoneData -> +frmZoneData
click cmdOK -> -frmZoneData
click mnuModulesZoneData -> +frmZoneData
type txtZone(6) 8; type txtZone(7) 9; note; click cmdOK -> wrote Tarnview_Zones.journal Tarnview_Zones.journal, -frmZoneData, edited=yes, zones=8 9, journal=kept
crash -> -frmDataLogViewer, edited=no, zones=
answer yes; keep -> [Edits of the zones of a.map were not saved when Tarnview ended.\nDo you want to go on with them? yes], wrote Tarnview_Zones.journal Tarnview_Zones.journal, +frmDataLogViewer, +frmZoneData, zones=7 50
show txtZone(6) txtZone(7) mnuEditUndo -> txtZone(6)=8, txtZone(7)=9, mnuEditUndo=&Undo Speedo. Calib. 50 to 9
click mnuEditUndo; note; click cmdOK -> wrote Tarnview_Zones.journal, -frmZoneData, edited=yes, zones=8 50
show caption; answer no; close -> caption=Tarnview - a.map (FM Link MAP File), [Do you want to save the changes made to a.map? no], wrote Tarnview_Zones.journal Tarnview.ini.old Tarnview.ini, -frmDataLogViewer, edited=no, zones=, journal=none
# Its file has gone.
crash; lose /car/a.map -> journal=kept
answer no; keep -> [Edits of the zones of a.map were not saved when Tarnview ended.\nDo you want to go on with them? no], wrote Tarnview_Zones.journal, +frmDataLogViewer, journal=none
crash -> -frmDataLogViewer, journal=kept
answer yes; keep -> [Edits of the zones of a.map were not saved when Tarnview ended.\nDo you want to go on with them? yes], [53, File not found ok], [56 ok], [12 ok], wrote Tarnview_Zones.journal Tarnview_Zones.journal, +frmDataLogViewer, +frmZoneData, edited=yes, zones=7 50
click cmdOK -> -frmZoneData, zones=8 50
show "mnuFileSave enabled"
put /car/Tarnview_Zones.journal nonsense; note; crash -> -frmDataLogViewer, edited=no, zones=
keep -> wrote Tarnview_Zones.journal, +frmDataLogViewer, journal=none

== ACellGoesThroughItsSamplesInTheGraph
keep /car/a.txt -> [17 ok], [8 ok], [9 ok], +frmDataLogViewer, graph=1-60 at 30, zones=6 7
range 25 40 -> graph=25-40 at 30, PlotRangeFrom=25, PlotRangeTo=40
click mnuModulesZoneData -> +frmZoneData, ring=4.5
choose cboShowOnGrid Visits -> fraDrive(0) shown, fraDrive(0)=Visits (Samples), fraDrive(1) shown, fraDrive(1)=Visits (Samples), cboShowOnGrid=Visits
cell grdDrive(0) 2 5 -> graph=25-40 at 25, frmDataLogViewer/staDataLogViewer[0]=Sample: 25, Secs: 2.048, lblStatus=Sample 25, one of 16 in this cell.
click cmdNextInCell -> graph=25-40 at 26, frmDataLogViewer/staDataLogViewer[0]=Sample: 26, Secs: 2.130, lblStatus=Sample 26, one of 16 in this cell.
click chkWholeLog -> chkWholeLog checked
cell grdDrive(1) 2 3 -> graph=1-8 at 1, ring=2.5, frmDataLogViewer/PlotRangeFrom=1, frmDataLogViewer/PlotRangeTo=8, frmDataLogViewer/staDataLogViewer[0]=Sample: 1, Secs: 0.082, lblStatus=Sample 1, one of 20 in this cell.
answer yes; click cmdCancel -> [Are you sure you want to throw away those changes? yes], -frmZoneData, ring=none

== Benchmarks
keep /car/a.map -> +frmDataLogViewer, zones=50 50
click mnuCustomiseBenchmarks -> +frmMaint
show caption; click cmdNew -> caption=Zone Data Benchmark Editor, +frmBenchmarkDetails
type txtName Mine; answer file /car/a.map; click cmdBrowse; click cmdLoad -> [open "Open" of FM Link Data Logs (*.txt) /car/a.map], txtName=Mine, txtFile=/car/a.map
click cmdZones -> +frmZoneData
show caption; type txtZone(6) 3; click cmdOK -> caption=Tarnview Zone Data - Mine (benchmark), -frmZoneData
click cmdOK -> -frmBenchmarkDetails
click cmdOK -> -frmMaint
