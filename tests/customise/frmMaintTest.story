== KeepsTheOrderOfAFamilyAmongOthers
show lvwNameList cmdPresetUp -> lvwNameList columns=[Name], lvwNameList count=3, lvwNameList[1]=[a], lvwNameList[1] selected, lvwNameList[2]=[b], lvwNameList[2] unselected, lvwNameList[3]=[c], lvwNameList[3] unselected, cmdPresetUp off, cmdPresetUp=Move &Up
row lvwNameList c -> lvwNameList[1] unselected, lvwNameList[3] selected, cmdPresetUp on, cmdPresetDown off
click cmdPresetUp -> all=a u c b v , lvwNameList[2]=[c], lvwNameList[2] selected, lvwNameList[3]=[b], lvwNameList[3] unselected, cmdPresetDown on
row lvwNameList c; key Ctrl+Up -> all=c a u b v , lvwNameList[1]=[c], lvwNameList[1] selected, lvwNameList[2]=[a], lvwNameList[2] unselected, cmdPresetUp off
key Shift+Down -> all=a c u b v , lvwNameList[1]=[a], lvwNameList[1] unselected, lvwNameList[2]=[c], lvwNameList[2] selected, cmdPresetUp on
key Up; key Shift+Left -> not taken, not taken
key Shift+Up -> all=c a u b v , lvwNameList[1]=[c], lvwNameList[1] selected, lvwNameList[2]=[a], lvwNameList[2] unselected, cmdPresetUp off
# The first row stays.
key Ctrl+Up
sort lvwNameList Name
choose cboLogFamily #6 -> cboLogFamily=Universal Data Log, lvwNameList count=2, lvwNameList[1]=[u], lvwNameList[2]=[v], lvwNameList[3] selected gone
# Past the neighbour in the list.
click cmdPresetDown -> all=c a b v u , lvwNameList[1]=[v], lvwNameList[1] unselected, lvwNameList[2]=[u], lvwNameList[2] selected, cmdPresetUp on, cmdPresetDown off
choose cboLogFamily #2 -> cboLogFamily=Electromotive Tec-2 Data Log, lvwNameList count=0, cmdPresetUp off, lvwNameList[1] selected gone, lvwNameList[2] selected gone
click cmdModify -> [40 ok]
click cmdDelete -> [40 ok]
click cmdCancel -> -frmMaint

== NewModifyAndDelete
choose cboLogFamily #1; click cmdNew -> all=a b c x , cboLogFamily=Flyin' Miata Link Data Log, lvwNameList count=1, lvwNameList[1]=[x], cmdPresetDown off, lvwNameList[2] selected gone, lvwNameList[3] selected gone
choose cboLogFamily #0 -> cboLogFamily=Flyin' Miata Link Full, lvwNameList count=3, lvwNameList[1]=[a], lvwNameList[2]=[b], lvwNameList[2] unselected, lvwNameList[3]=[c], lvwNameList[3] unselected, cmdPresetDown on
willName y; double lvwNameList b -> all=a y c x , lvwNameList[1] unselected, lvwNameList[2]=[y], lvwNameList[2] selected, cmdPresetUp on
willCancel; click cmdNew; click cmdModify
answer no; click cmdDelete -> [Are you sure you want to delete this item? no]
click cmdDelete -> [Are you sure you want to delete this item? yes], all=a c x , lvwNameList count=2, lvwNameList[2]=[c], cmdPresetDown off, lvwNameList[3] selected gone
click cmdOK -> -frmMaint

== AListWithoutFamiliesShowsAllItsRows
show cboLogFamily -> cboLogFamily hidden, cboLogFamily list=[Flyin' Miata Link Full|Flyin' Miata Link Data Log|Electromotive Tec-2 Data Log|Electromotive Tec-3 Data Log|Link Plus Data Log|TurboXS UTEC Data Log|Universal Data Log], cboLogFamily=Flyin' Miata Link Full
click cmdNew -> lvwNameList count=3, lvwNameList[1] unselected, lvwNameList[3]=[New!], lvwNameList[3] selected, cmdPresetUp on, cmdPresetDown off
