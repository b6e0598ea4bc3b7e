== EditsAPreset
show txtName txtYMax chkFixY -> txtName=Boost, txtYMax off, txtYMax=10, chkFixY=Fi&x Graph Max, chkFixY unchecked
sort lvwDataItems Item; double lvwDataItems 20 -> ticked=66 5 3
click chkFixY -> chkFixY checked, txtYMax on
type txtYMax 33 -> txtYMax=35
type txtYMax 0; click chkFixY; click chkFixY -> txtYMax=250
type txtYMax 33; type txtName "  "; click cmdOK -> [41 ok], txtName=  , txtYMax=35
type txtName All -> txtName=All
choose cboLogFamily #5 -> ticked=5 3, cboLogFamily=TurboXS UTEC Data Log
click cmdOK -> -frmPresetSampleDetails

== SavesAndProposesTheSameFileAgain
# The name is proposed, and then the file used last.
answer no; answer ok; click cmdSave -> [Do you want to include the Log Family in the preset graph file? no], [save "Save As" of Preset Sample Graph files (*.sam) ok], disk=write /logs/Boost.sam
answer yes; answer file /p/b.sam; click cmdSave -> [Do you want to include the Log Family in the preset graph file? yes], [save "Save As" of Preset Sample Graph files (*.sam) /p/b.sam], disk=write /logs/Boost.sam, write /p/b.sam
answer no; answer file /p/c; click cmdSave -> [Do you want to include the Log Family in the preset graph file? no], [save "Save As" of Preset Sample Graph files (*.sam) /p/c], disk=write /logs/Boost.sam, write /p/b.sam, write /p/c
write txtName a/b; answer yes; answer ok; click cmdSave -> [Do you want to include the Log Family in the preset graph file? yes], [save "Save As" of Preset Sample Graph files (*.sam) ok], disk=write /logs/Boost.sam, write /p/b.sam, write /p/c, write /p/c, txtName=a/b

== SavesAndProposesTheSameFileAgain 2
answer yes; answer ok; click cmdSave -> [Do you want to include the Log Family in the preset graph file? yes], [save "Save As" of Preset Sample Graph files (*.sam) ok], [19 ok], disk=write /logs/Boost.sam, write /p/b.sam, write /p/c, write /p/c, write /p/c

== LoadsExactlyTheItemsOfAFile
answer file /p/a.sam; click cmdLoad -> [open "Load" of Preset Sample Graph files (*.sam) /p/a.sam], [92 ok], ticked=21 20, disk=read /p/a.sam, txtName=Knock, chkFixY checked, txtYMax on, txtYMax=120
answer file /p/b.sam; answer no; click cmdLoad -> [open "Load" of Preset Sample Graph files (*.sam) /p/b.sam], [The preset graph definition you are loading is for a different Log Family than that\ncurrently selected, and may contain data items that are not relevant.\n\nAre you sure you want to continue? no], disk=read /p/a.sam, read /p/b.sam
answer file /p/b.sam; answer yes; click cmdLoad -> [open "Load" of Preset Sample Graph files (*.sam) /p/b.sam], [The preset graph definition you are loading is for a different Log Family than that\ncurrently selected, and may contain data items that are not relevant.\n\nAre you sure you want to continue? yes], ticked=, disk=read /p/a.sam, read /p/b.sam, read /p/b.sam, txtName=Other, chkFixY unchecked, txtYMax off, txtYMax=0
answer file /p/none.sam; click cmdLoad -> [open "Load" of Preset Sample Graph files (*.sam) /p/none.sam], [58 ok], disk=read /p/a.sam, read /p/b.sam, read /p/b.sam, read /p/none.sam, append /car/error.log
