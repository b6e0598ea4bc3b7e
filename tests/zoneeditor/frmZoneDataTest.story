== OpensWithoutAChange
map 2 -> +frmZoneData, step=: unchanged
whole
show caption cboBenchmark fraData(0) fraData(1) fraData(5) txtChipDate cmdUpload -> caption=Tarnview Zone Data - a.map, cboBenchmark list=[Street|Track], cboBenchmark=Track, fraData(0)=This MAP File, fraData(1)=Selected Benchmark, fraData(5)=Difference, txtChipDate=10-Feb-2005, cmdUpload off, cmdUpload=&Upload...
show grdData(0)[0][1] grdData(0)[6][0] grdData(0)[1][16] grdData(0)[6][1] grdData(1)[6][3] grdData(2)[1][1] -> grdData(0)[0][1]=00, grdData(0)[6][0]=220 kPa 600, grdData(0)[1][16]=100, grdData(0)[6][1]=, grdData(0)[6][1] blacked_out=true, grdData(1)[6][3]=200, grdData(2)[1][1]=100
show grdData(6)[0][0] grdData(6)[0][11] grdData(7)[1][0] grdData(8)[2][0] -> grdData(6)[0][0]=kPa, grdData(6)[0][11]=75, grdData(7)[1][0]=Val, grdData(8)[2][0]=Conv

== FieldsAndBoxesAreSteps
map 2 -> +frmZoneData, step=: unchanged
type txtZone(2) 7250 -> step=Rev Limit (RPM) 10000 to 7300: z2=73, txtZone(2)=7300, lblStatus=Rev Limit (RPM) 10000 to 7300
key Ctrl+Z -> step=: unchanged, txtZone(2)=10000, lblStatus=As opened
show mnuEditUndo mnuEditRedo cboSteps lblStatus -> mnuEditUndo off, mnuEditUndo=&Undo, mnuEditRedo=&Redo Rev Limit (RPM) 10000 to 7300, cboSteps list=[As opened|Rev Limit (RPM) 10000 to 7300], cboSteps=As opened, lblStatus=As opened
type txtZone(3) off -> step=MAP Limit (kPa) 100 to OFF: z3=255, txtZone(3)=OFF, lblStatus=MAP Limit (kPa) 100 to OFF
key Ctrl+Z; step updZone(13) down -> step=Knock Thr. 100 to 99: z13=99, txtZone(3)=100, txtZone(13)=99, lblStatus=Knock Thr. 100 to 99
key Ctrl+Z; step updZone(2) down -> step=Rev Limit (RPM) 10000 to 9000: z2=90, txtZone(13)=100, txtZone(2)=9000, lblStatus=Rev Limit (RPM) 10000 to 9000
key Ctrl+Z; type txtTrim 1.3 -> step=Trim 20.00 to 1.25: z21=25, txtTrim=1.25, txtZone(21)=5, txtZone(2)=10000, lblStatus=Trim 20.00 to 1.25
key Ctrl+Z; type txtZone(21) -4 -> step=Trim (deg.) 80 to -4: z21=16, txtTrim=-1.00, txtZone(21)=-4, lblStatus=Trim (deg.) 80 to -4
key Ctrl+Z; click chkMisc(0) -> step=EGR Enabled on: z5=10, chkMisc(0) checked, chkMisc(3) on, cboAutoTune(1) list=[NB], txtTrim=20.00, txtZone(21)=80, lblStatus=EGR Enabled on
key Ctrl+Z; click chkBoost(0) -> step=TPS Target Cont. on: z5=6, chkMisc(0) unchecked, chkMisc(3) off, chkBoost(0) checked, cboAutoTune(1) list=[NB|WB], lblStatus=TPS Target Cont. on
key Ctrl+Z; choose cboMAPID NA2 -> step=MAP ID NA2: z5=32, cboMAPID=NA2, chkBoost(0) unchecked, lblStatus=MAP ID NA2
key Ctrl+Z; choose cboAutoTune(0) L3 -> step=Auto Tuning L3: z5=131 z800=4, cboMAPID=T1, lblAutoTune(1) on, cboAutoTune(0)=L3, cboAutoTune(1) on, cboAutoTune(1) list=[NB|WB|NB+WB], lblStatus=Auto Tuning L3
key Ctrl+Z; type txtChipDate 31-Feb-2003; type txtAtmos 85 -> step=Atmospheric Pressure 85:, txtAtmos=85, lblAutoTune(1) off, cboAutoTune(0)=Off, cboAutoTune(1) off, cboAutoTune(1) list=[NB|WB], lblStatus=Atmospheric Pressure 85
key Ctrl+Z; type txtNotes "a\nb" -> step=Notes: 'a/b', txtAtmos=101, txtNotes=a\nb, lblStatus=Notes
key Ctrl+Z; cell grdData(0) 2 4 300 -> step=zf215 100 to 255: z51=255, txtNotes=, grdData(0)[2][4]=255, grdData(0) row=2, grdData(0) column=4, grdData(0) range=[2|4|2|4], grdData(0)[2][4] mark=raised, grdData(2)[2][4]=-55, grdData(2)[2][4] colour=255, lblStatus=zf215 100 to 255
key Ctrl+Z; cell grdData(3) 1 1 x -> step=zi100 100 to 0: z128=0, grdData(0)[2][4]=100, grdData(2)[2][4]=100, grdData(3)[1][1]=0, grdData(3)[1][1] mark=lowered, grdData(5)[1][1]=200, lblStatus=zi100 100 to 0, grdData(0)[2][4] mark gone, grdData(2)[2][4] colour gone
key Ctrl+Z; cell grdData(7) 1 4 7 -> step=z25 100 to 7: z25=7, grdData(3)[1][1]=100, grdData(5)[1][1]=100, grdData(7)[1][4]=7, grdData(7) column=4, grdData(7) range=[1|4|1|4], grdData(7)[1][4] mark=lowered, lblStatus=z25 100 to 7, grdData(3)[1][1] mark gone
key Ctrl+Z; type txtNotes "a\nb" -> step=Notes: 'a/b', txtNotes=a\nb, grdData(7)[1][4]=100, lblStatus=Notes, grdData(7)[1][4] mark gone
type txtChipDate nonsense
type txtChipDate 2001-01-31 -> step=Chip Date 2001-01-31: 'a/b', txtChipDate=31-Jan-2001, chkMisc(1) off, chkMisc(4) off, chkMisc(4) unchecked, chkBoost(1) off, chkBoost(1) unchecked, chkIdle(0) off, chkIdle(1) off, chkAutoTune(1) on, chkAutoTune(1) shown, lblAutoTune(1) hidden, cboAutoTune(0) list=[Off|Lambda|L3], cboAutoTune(1) hidden, cboAutoTune(1) list=[NB], lblZone(18)=Hot IAC, lblZone(19)=Cold IAC, lblZone(251) off, txtZone(251) off, updZone(251) off, lblZone(208) off, txtZone(208) off, updZone(208) off, lblZone(209) off, txtZone(209) off, updZone(209) off, lblZone(248) off, txtZone(248) off, updZone(248) off, lblZone(249) off, txtZone(249) off, updZone(249) off, lblZone(4) off, lblZone(4)=Advance Limit, txtZone(4) off, updZone(4) off, updZone(4) min=0, updZone(4) max=50, lblZone(252) off, lblZone(252)=Fuel Low Slope, txtZone(252) off, updZone(252) off, lblZone(253) off, lblZone(253)=Fuel High Slope, txtZone(253) off, updZone(253) off, lblZone(254) off, txtZone(254) off, updZone(254) off, lblZone(255) off, txtZone(255) off, updZone(255) off, lblZone(250) off, txtZone(250) off, updZone(250) off, lblZone(7)=Volt. Correction, lblZone(243) off, txtZone(243) off, updZone(243) off, lblStatus=Chip Date 2001-01-31

== GridsAndTheirMenus
map 2 -> +frmZoneData, step=: unchanged
range grdData(0) 6 4 6 1 -> grdData(0) row=6, grdData(0) column=4, grdData(0) range=[6|1|6|4]
show mnuEditPaste mnuEditReset -> mnuEditPaste=&Paste, mnuEditReset=Reset to &Opened Value
popup grdData(0) mnuApplyOffset -> popup mnuDatalogGrid, +frmOffset
whole
type txtOffset 300; click cmdOK -> -frmOffset, step=Offset +255 on 2 fuel cells: z114=255 z115=255, grdData(0)[6][3] to [6][4]=255, grdData(0)[6][3] mark to [6][4] mark=raised, grdData(2)[6][3] to [6][4]=-55, grdData(2)[6][3] colour to [6][4] colour=255, lblStatus=Offset +255 on 2 fuel cells
range grdData(2) 6 3 6 3 -> grdData(2) row=6, grdData(2) column=3, grdData(2) range=[6|3|6|3]
show mnuEditPaste mnuEditReset cboSteps grdData(0)[6][3] -> mnuEditPaste off, mnuEditPaste=&Paste, mnuEditReset off, mnuEditReset=Reset to &Opened Value, cboSteps list=[As opened|Offset +255 on 2 fuel cells], cboSteps=Offset +255 on 2 fuel cells, grdData(0)[6][3]=255, grdData(0)[6][3] mark=raised, grdData(0)[6][3] tool_tip=Opened as 100
popup grdData(2) mnuCopyOffset -> popup mnuDifferenceGrid, step=Apply difference on 1 fuel cell: z114=200 z115=255, grdData(0)[6][3]=200, grdData(2)[6][3]=, lblStatus=Apply difference on 1 fuel cell, grdData(2)[6][3] colour gone
range grdData(4) 1 1 1 2 -> grdData(4) range=[1|1|1|2]
popup grdData(4) mnuCopytoDatalog -> popup mnuBenchmarkGrid, step=Copy 2 ignition cells from Track: z114=200 z115=255 z128=200 z129=200, grdData(3)[1][1] to [1][2]=200, grdData(3)[1][1] mark to [1][2] mark=raised, grdData(5)[1][1] to [1][2]=, lblStatus=Copy 2 ignition cells from Track
popup grdData(6) mnuEditReset -> popup mnuDatalogGrid
popup grdData(7) mnuEditReset
popup grdData(8) mnuEditReset
choose cboSteps #1 -> step=Offset +255 on 2 fuel cells: z114=255 z115=255, grdData(0)[6][3]=255, grdData(2)[6][3]=-55, grdData(2)[6][3] colour=255, grdData(3)[1][1] to [1][2]=100, grdData(5)[1][1] to [1][2]=100, lblStatus=Offset +255 on 2 fuel cells, grdData(3)[1][1] mark gone, grdData(3)[1][2] mark gone
choose cboBenchmark Street -> own=Street 2000-01-01 v2, cboBenchmark=Street, grdData(1)[1][1] to [6][16]=90, grdData(2)[1][1] to [5][16]=-10, grdData(2)[6][3] to [6][4]=-165, grdData(2)[6][5] to [6][16]=-10, grdData(2)[1][1] colour to [6][16] colour=255, grdData(4)[1][1] to [6][16]=90, grdData(5)[1][1] to [6][16]=-10, grdData(5)[1][1] colour to [6][16] colour=255

== KeysAndTheClipboard
map 2 -> +frmZoneData, step=: unchanged
range grdData(0) 1 1 1 2 -> grdData(0) range=[1|1|1|2]
key Plus -> step=Offset +1 on 2 fuel cells: z32=101 z33=101, grdData(0)[1][1] to [1][2]=101, grdData(0)[1][1] mark to [1][2] mark=raised, grdData(2)[1][1] to [1][2]=99, lblStatus=Offset +1 on 2 fuel cells
key Shift+Minus -> step=Offset -10 on 2 fuel cells: z32=91 z33=91, grdData(0)[1][1] to [1][2]=91, grdData(0)[1][1] mark to [1][2] mark=lowered, grdData(2)[1][1] to [1][2]=109, lblStatus=Offset -10 on 2 fuel cells
key Ctrl+Shift+C -> clipboard=	00	05\n20 kPa 100	91	91\n
copied "1	2\n3	4\n" -> clipboard=1	2\n3	4\n
cell grdData(0) 2 15 -> grdData(0) row=2, grdData(0) column=15, grdData(0) range=[2|15|2|15]
key Ctrl+V -> step=Paste 4 fuel cells: z32=91 z33=91 z62=1 z63=2 z78=3 z79=4, grdData(0)[2][15]=1, grdData(0)[2][16]=2, grdData(0)[3][15]=3, grdData(0)[3][16]=4, grdData(0)[2][15] mark to [3][16] mark=lowered, grdData(2)[2][15]=199, grdData(2)[2][16]=198, grdData(2)[3][15]=197, grdData(2)[3][16]=196, lblStatus=Paste 4 fuel cells
cell grdData(0) 2 16 -> grdData(0) column=16, grdData(0) range=[2|16|2|16]
key Ctrl+V -> lblStatus=What was copied does not fit there; nothing was pasted.
copied "1,5 x\n" -> clipboard=1,5 x\n
key Ctrl+V -> lblStatus="1,5 x" is no number; nothing was pasted.
copied 9 -> clipboard=9
range grdData(0) 6 1 6 3 -> grdData(0) row=6, grdData(0) column=1, grdData(0) range=[6|1|6|3]
key Ctrl+V -> step=Paste 1 fuel cell: z32=91 z33=91 z62=1 z63=2 z78=3 z79=4 z114=9, grdData(0)[6][3]=9, grdData(0)[6][3] mark=lowered, grdData(2)[6][3]=191, lblStatus=Paste 1 fuel cell
range grdData(0) 1 1 1 3 -> grdData(0) row=1, grdData(0) range=[1|1|1|3]
key Ctrl+I -> step=Interpolate 3 fuel cells: z32=91 z33=96 z62=1 z63=2 z78=3 z79=4 z114=9, grdData(0)[1][2]=96, grdData(2)[1][2]=104, lblStatus=Interpolate 3 fuel cells
key Ctrl+M -> step=Smooth 3 fuel cells: z32=93 z33=96 z34=99 z62=1 z63=2 z78=3 z79=4 z114=9, grdData(0)[1][1]=93, grdData(0)[1][3]=99, grdData(0)[1][3] mark=lowered, grdData(2)[1][1]=107, grdData(2)[1][3]=101, lblStatus=Smooth 3 fuel cells
click mnuEditReset -> step=Reset 3 fuel cells: z62=1 z63=2 z78=3 z79=4 z114=9, grdData(0)[1][1] to [1][3]=100, grdData(2)[1][1] to [1][3]=100, lblStatus=Reset 3 fuel cells, grdData(0)[1][1] mark gone, grdData(0)[1][2] mark gone, grdData(0)[1][3] mark gone
key Ctrl+Z -> step=Smooth 3 fuel cells: z32=93 z33=96 z34=99 z62=1 z63=2 z78=3 z79=4 z114=9, grdData(0)[1][1]=93, grdData(0)[1][2]=96, grdData(0)[1][3]=99, grdData(0)[1][1] mark to [1][3] mark=lowered, grdData(2)[1][1]=107, grdData(2)[1][2]=104, grdData(2)[1][3]=101, lblStatus=Smooth 3 fuel cells
key Ctrl+Shift+Z -> step=Reset 3 fuel cells: z62=1 z63=2 z78=3 z79=4 z114=9, grdData(0)[1][1] to [1][3]=100, grdData(2)[1][1] to [1][3]=100, lblStatus=Reset 3 fuel cells, grdData(0)[1][1] mark gone, grdData(0)[1][2] mark gone, grdData(0)[1][3] mark gone

== BoostTargets
map 2 -> +frmZoneData, step=: unchanged
cell grdData(6) 1 1 90 -> [Would you like to copy the first boost target to all the rest?  yes]
answer no
cell grdData(6) 1 1 120 -> [Would you like to copy the first boost target to all the rest?  no], step=z725 100 to 120: z725=120, grdData(6)[1][1]=120, grdData(6)[1][1] mark=raised, lblStatus=z725 100 to 120
answer no
click radBoost(1) -> [Confirm change to specifying wastegate duty cycles (existing data will be erased) ? no]
answer yes; answer yes
click radBoost(1) -> [Confirm change to specifying wastegate duty cycles (existing data will be erased) ? yes], step=Wastegate %: z725=0 z730=0 z735=0 z740=0 z745=0 z750=0 z755=0 z760=0 z765=0 z770=0 z775=0, radBoost(0) unchecked, radBoost(1) checked, grdData(6)[0][0]=Pct, grdData(6)[1][1] to [1][11]=0, grdData(6)[1][1] mark to [1][11] mark=lowered, lblStatus=Wastegate %
cell grdData(6) 1 1 200 -> [Would you like to copy the first wastegate duty cycle to all the rest?  yes], step=All boost targets 99: z725=99 z730=99 z735=99 z740=99 z745=99 z750=99 z755=99 z760=99 z765=99 z770=99 z775=99, grdData(6)[1][1] to [1][11]=99, lblStatus=All boost targets 99

== NormallyAspirated
map 0 -> +frmZoneData, step=: z5=0 unchanged
show fraBoost fraBoostTargets txtZone(3) chkBoost(0) grdData(6)[1][1] grdData(0)[6][0] grdData(0)[6][1] -> fraBoost off, fraBoost=Wastegate, fraBoostTargets off, fraBoostTargets=Boost &Targets, txtZone(3) off, txtZone(3)=100, chkBoost(0) off, chkBoost(0)= TPS Target Cont., chkBoost(0) unchecked, grdData(6)[1][1]=100, grdData(0)[6][0]=97 kPa 600, grdData(0)[6][1]=100

== GraphsDrawTheNumbersOfTheirOwnGrid
map 2 -> +frmZoneData, step=: unchanged
type txtZone(112) 7 -> step=Closed Lp -ve 100 to 7: z112=7, txtZone(112)=7, lblStatus=Closed Lp -ve 100 to 7
click cmdGraph(0) -> +frmGridGraph, heights=This Data Log 7 100
close; click cmdGraph(1) -> heights=Benchmark Track 0 200, caption=Tarnview 3D Graph - Fuel (Selected Benchmark), chGridGraph subtitle=Benchmark Track, chGridGraph values[0] to [4]=16 from 200 to 200, chGridGraph values[5]=16 from 0 to 200, chGridGraph height_axis max=200, chGridGraph height_axis divisions=4, cmdOK hidden, cmdCancel=&Close
close; click cmdGraph(2) -> heights=Comparison with Benchmark Track 0 100, caption=Tarnview 3D Graph - Fuel (Difference), chGridGraph subtitle=Comparison with Benchmark Track, chGridGraph values[0] to [4]=16 from 100 to 100, chGridGraph values[5]=16 from 0 to 100, chGridGraph height_axis max=100, chGridGraph height_axis divisions=5
close; click cmdGraph(3) -> heights=This Data Log 100 100, caption=Tarnview 3D Graph - Ignition (This MAP File), chGridGraph title=Ignition Zone Graph, chGridGraph subtitle=This Data Log, chGridGraph elevation=130, chGridGraph values[5]=16 from 100 to 100, chGridGraph height_axis min=100, chGridGraph height_axis max=101, chGridGraph height_axis divisions=1, txtElevation=130, cmdOK shown, cmdCancel=Cancel
close; click cmdGraph(4) -> heights=Benchmark Track 0 200, caption=Tarnview 3D Graph - Ignition (Selected Benchmark), chGridGraph subtitle=Benchmark Track, chGridGraph values[0] to [4]=16 from 200 to 200, chGridGraph values[5]=16 from 0 to 200, chGridGraph height_axis min=0, chGridGraph height_axis max=200, chGridGraph height_axis divisions=4, cmdOK hidden, cmdCancel=&Close
close; click cmdGraph(5) -> heights=Comparison with Benchmark Track 0 100, caption=Tarnview 3D Graph - Ignition (Difference), chGridGraph subtitle=Comparison with Benchmark Track, chGridGraph values[0] to [4]=16 from 100 to 100, chGridGraph values[5]=16 from 0 to 100, chGridGraph height_axis max=100, chGridGraph height_axis divisions=5
close -> -frmGridGraph, heights=

== ClosingAsksForChanges
map 2; close -> step=closed unchanged
map 2 -> +frmZoneData, step=: unchanged
type txtZone(6) 1; close -> [Are you sure you want to throw away those changes? no], step=Choke Scale 100 to 1: z6=1, txtZone(6)=1, lblStatus=Choke Scale 100 to 1
write txtNotes n; click cmdOK -> -frmZoneData, step=accepted z6=1 'n'

== UploadNeedsTheUsersOwnChip
map 2 -> +frmZoneData, step=: unchanged
answer yes; click cmdDefault -> [Are you sure you want to overwrite your current chip type and date with those from the data log? yes], own=Track 2005-02-10 v3, cmdUpload on
choose cboEngineSize 1.6 -> step=Engine Size 1.6: z17=30 z705=190, cboEngineSize=1.6, chkMisc(0) off, chkMisc(0)=MAP/Knock Cntrl, chkBoost(0)=WOT Target Cont., chkIdle(0) off, updZone(17) min=0, updZone(17) max=255, lblZone(9) off, txtZone(9) off, updZone(9) off, lblZone(10) off, txtZone(10) off, updZone(10) off, lblZone(11) off, txtZone(11) off, updZone(11) off, lblStatus=Engine Size 1.6, cmdUpload off

== CopyAndDetailsOfTheComparison
map 2 -> +frmZoneData, step=: unchanged
click cmdCopyBenchmark -> +frmCopyBench
whole
click cmdCancel -> -frmCopyBench
click cmdCopyBenchmark -> +frmCopyBench
click chkOptions(2); click chkOptions(9); click cmdOK -> -frmCopyBench, step=Copy Idle, Ignition from Track: z8=200 z13=200 z18=200 z19=200 z20=200 z21=200 z800=16 z855=200, chkMisc(4) unchecked, txtTrim=45.00, txtZone(8)=10000, txtZone(18)=200, txtZone(19)=200, txtZone(20)=200, txtZone(251)=200, txtZone(13)=200, txtZone(21)=180, lblStatus=Copy Idle, Ignition from Track
click cmdDetails -> +frmZoneData.2
show caption fraData(0) cmdCancel txtZone(6) txtAtmos cboAutoTune(0) cboBenchmark cmdOK fraNotesTab tabZoneData2 grdData(0)[1][1] -> caption=Tarnview Zone Data - Track (benchmark), fraData(0)=This Benchmark, cmdCancel=&Close, txtZone(6) off, txtZone(6)=200, txtAtmos off, txtAtmos=88, cboAutoTune(0) off, cboAutoTune(0) list=[Off|Lambda|L3|L3+L4], cboAutoTune(0)=Off, cboBenchmark hidden, cboBenchmark list=[], cboBenchmark=, cmdOK hidden, cmdOK=&OK, fraNotesTab hidden, fraNotesTab=, tabZoneData2 list=[General|Fuel|Ignition], tabZoneData2=General, grdData(0)[1][1]=200
key F1; tab tabZoneData2 Ignition; key F1 -> help=ZoneDataGeneralTab ZoneDataIgnitionZonesTab, tabZoneData2=Ignition, fraGeneralTab hidden, fraIgnitionTab shown
cell grdData(0) 1 1 1 -> cannot: this cell of grdData(0) cannot be edited
close -> -frmZoneData.2

== TheLogsOwnSetsComeFirst
show cboBenchmark fraData(0) grdData(2)[1][1] -> cboBenchmark list=[Lambda/Knock Zone Changes|Original Zone Settings|Street|Track], cboBenchmark=Lambda/Knock Zone Changes, fraData(0)=This Datalog, grdData(2)[1][1]=10
choose cboBenchmark "Original Zone Settings"; show grdData(2)[1][1] -> grdData(2)[1][1]=20, own=Original Zone Settings 2000-01-01 v2, cboBenchmark=Original Zone Settings, grdData(1)[1][1] to [6][16]=120, grdData(2)[1][1] to [6][16]=20, grdData(4)[1][1] to [6][16]=120, grdData(5)[1][1] to [6][16]=20
choose cboBenchmark Street; show grdData(2)[1][1] -> grdData(2)[1][1]=-10, grdData(2)[1][1] colour=255, own=Street 2000-01-01 v2, cboBenchmark=Street, grdData(1)[1][1] to [6][16]=90, grdData(2)[1][1] to [6][16]=-10, grdData(2)[1][1] colour to [6][16] colour=255, grdData(4)[1][1] to [6][16]=90, grdData(5)[1][1] to [6][16]=-10, grdData(5)[1][1] colour to [6][16] colour=255
show grdData(8)[2][1] -> grdData(8)[2][1]=12.00, grdData(8)[2][1] back_colour=14737632, grdData(8)[2][1] locked=true

== TheLogsOwnSetsComeFirst 2
show fraData(0) -> fraData(0)=This Benchmark

== EverythingTicksWhatThereIs
click chkOptions(0) -> names=Everything, chkOptions(0) checked, chkOptions(1) checked, chkOptions(2) checked, chkOptions(6) checked, chkOptions(8) checked, chkOptions(9) checked, chkOptions(10) checked, chkOptions(12) checked, chkOptions(13) checked, chkOptions(14) checked
click chkOptions(9) -> names=Start, Idle, Auto Tuning, Miscellaneous, Fuel, Fuel Zones, Ignition Zones, General Information, chkOptions(0) unchecked, chkOptions(9) unchecked
