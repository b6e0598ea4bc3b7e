== CellsArePickedAndEditedInTheGraph
show caption cboRow chGridGraph -> caption=Tarnview 3D Graph - Fuel (This Datalog), cboRow list=[200kPa 600|160kPa 500|120kPa 400|80kPa 300|40kPa 200|0kPa 100], cboRow=, chGridGraph title=Fuel Zone Graph, chGridGraph subtitle=This Data Log, chGridGraph rotation=20, chGridGraph elevation=240, chGridGraph zoom=1, chGridGraph count=6, chGridGraph[1]=0kPa 100, chGridGraph[2]=40kPa 200, chGridGraph[3]=80kPa 300, chGridGraph[4]=120kPa 400, chGridGraph[5]=160kPa 500, chGridGraph[6]=200kPa 600, chGridGraph columns=[00|05|10|15|20|25|30|35|40|45|50|55|60|65|70|75], chGridGraph values count=6, chGridGraph values[0]=16 from 21 to 36, chGridGraph values[1]=16 from 41 to 56, chGridGraph values[2]=16 from 61 to 76, chGridGraph values[3]=16 from 81 to 96, chGridGraph values[4]=16 from 101 to 116, chGridGraph values[5]=16 from 121 to 136, chGridGraph locked count=2, chGridGraph locked[0]=[6|1], chGridGraph locked[1]=[6|2], chGridGraph height_axis min=20, chGridGraph height_axis max=140, chGridGraph height_axis divisions=6, chGridGraph selected=[0|0]
point chGridGraph 3 5 -> height=65, chGridGraph selected=[3|5], cboRow=80kPa 300, cboColumn=20, txtValue=65, updValue on
point chGridGraph 1 1 -> height=21, chGridGraph selected=[1|1], cboRow=0kPa 100, cboColumn=00, txtValue=21
point chGridGraph 3 5 -> height=65, chGridGraph selected=[3|5], cboRow=80kPa 300, cboColumn=20, txtValue=65
choose cboRow #0 -> height=125, chGridGraph selected=[6|5], cboRow=200kPa 600, txtValue=125
choose cboColumn 75 -> height=136, chGridGraph selected=[6|16], cboColumn=75, txtValue=136
type txtValue 300 -> height=255, chGridGraph values[5]=16 from 121 to 255, chGridGraph height_axis min=0, chGridGraph height_axis max=300, txtValue=255
step updValue up
step updValue down -> height=254, chGridGraph values[5]=16 from 121 to 254, txtValue=254
type txtValue x -> height=0, chGridGraph values[5]=16 from 121 to 0, chGridGraph height_axis max=150, chGridGraph height_axis divisions=3, txtValue=0
click cmdReset
point chGridGraph 6 2; show txtValue -> txtValue=122, height=122, chGridGraph selected=[6|2], cboColumn=05, txtValue=122, updValue off
point chGridGraph 6 3 -> height=123, chGridGraph selected=[6|3], cboColumn=10, txtValue=123, updValue on
point chGridGraph 7 1 -> cannot: chGridGraph has no such series
# Enter in the field takes the value alone.
write txtValue 77; key Enter -> height=77, txtValue=77
write txtValue 78; click cmdOK -> -frmGridGraph, height=78, result=accepted 20,240 78 0

== AnglesFollowFieldsArrowsAndTheHand
angles
type txtRotation 45 -> chGridGraph rotation=45, txtRotation=45
type txtRotation 400 -> chGridGraph rotation=359, txtRotation=359
step updRotation up
step updRotation down -> chGridGraph rotation=358, txtRotation=358
type txtElevation -5 -> chGridGraph elevation=0, txtElevation=0
step updElevation up -> chGridGraph elevation=1, txtElevation=1
turn chGridGraph 5 -20 -> chGridGraph rotation=3, chGridGraph elevation=21, txtRotation=3, txtElevation=21
wheel chGridGraph 0 2 -> chGridGraph zoom=1.3225
double chGridGraph -> chGridGraph rotation=1, chGridGraph elevation=2, chGridGraph zoom=1, txtRotation=1, txtElevation=2
write txtRotation 500 -> chGridGraph rotation=359, txtRotation=500
key Enter -> -frmGridGraph, result=accepted 359,2 123 136

== AViewEditsNothing
show cmdOK cmdCancel -> cmdOK hidden, cmdOK=OK, cmdCancel=&Close
# An empty difference is none.
point chGridGraph 2 2 -> height=0, chGridGraph selected=[2|2], cboRow=40kPa 200, cboColumn=05
type txtValue 1 -> cannot: txtValue cannot be edited
step updValue up -> cannot: updValue is disabled
click cmdCancel -> -frmGridGraph, result=closed 20,240 123 136
