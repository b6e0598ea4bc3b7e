== ANewOneNeedsANameAndAFileThatLoads
show caption cmdSave cmdZones -> caption=Benchmark Details, cmdSave off, cmdSave=&Save..., cmdZones off, cmdZones=&Zones...
key F1 -> help=BenchmarkDetails
type txtName ""; click cmdOK; show focus -> focus txtName, [47 ok]
type txtName Mine; click cmdOK -> [15 ok], result=Mine  z6=0 v2, txtName=Mine
answer file /car/no.map; click cmdBrowse; click cmdOK -> [open "Open" of FM Link Data Logs (*.txt) /car/no.map], [16 ok], result=Mine /car/no.map z6=0 v2, txtFile=/car/no.map
answer file /car/a.map; click cmdBrowse -> [open "Open" of FM Link Data Logs (*.txt) /car/a.map], txtFile=/car/a.map
click cmdLoad -> result=Mine /car/a.map z6=50 v3, cmdSave on, cmdZones on
answer file /car/b.map; click cmdZones; click cmdSave -> [save "Save" of FM Link MAP Files (*.map) /car/b.map], edited=Mine (benchmark), result=Mine /car/a.map z6=3 v3
click cmdOK -> -frmBenchmarkDetails, result=accepted Mine /car/a.map z6=3 v3

== OneThatIsThereIsLoadedAgainOnlyFromAnotherFile
show txtName txtFile -> txtName=Old, txtFile=/gone/old.map
click cmdZones -> edited=Old (benchmark)
answer file /car/b.map; click cmdSave -> [save "Save" of FM Link MAP Files (*.map) /car/b.map], [19 ok]
type txtFile ""; click cmdLoad -> [15 ok], txtFile=
type txtFile /gone/a.map; click cmdLoad -> [15 ok], txtFile=/gone/a.map
type txtFile /gone/old.map; click cmdOK -> -frmBenchmarkDetails, result=accepted Old /gone/old.map z6=0 v2

== OneThatIsThereIsLoadedAgainOnlyFromAnotherFile 2
answer file /car/a.map; click cmdBrowse; click cmdOK -> [open "Open" of FM Link Data Logs (*.txt) /car/a.map], -frmBenchmarkDetails, result=accepted Old /car/a.map z6=50 v3
