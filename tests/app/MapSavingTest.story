== OpeningAndSaving
start /car/a.map -> +frmDataLogViewer
show caption "mnuFileSave enabled" "mnuFileSaveAs enabled" "mnuModulesScatterGraph enabled" staDataLogViewer[0] -> caption=Tarnview - a.map (FM Link MAP File), mnuModulesScatterGraph off, staDataLogViewer[0]=Loading complete
edit; click mnuFileSave -> wrote a.map, staDataLogViewer[0]=Saving complete
edit; disk full; click mnuFileSave; show "mnuFileSave enabled" -> mnuFileSave off, [19 ok], wrote a.map, edited=yes, staDataLogViewer[0]=Problem saving
disk well; answer cancel; click mnuFileSaveAs -> [save "Save As" of FM Link MAP Files (*.map) cancel]
answer file /car/b.map; click mnuFileSaveAs; show mnuRecentlyUsed(0) -> mnuRecentlyUsed(0)=&1 /car/b.map, [save "Save As" of FM Link MAP Files (*.map) /car/b.map], wrote b.map, edited=no, caption=Tarnview - b.map (FM Link MAP File), staDataLogViewer[0]=Saving complete
edit; answer cancel; ask -> [Do you want to save the changes made to b.map? cancel], edited=yes, goes on=no
answer no; ask -> [Do you want to save the changes made to b.map? no], goes on=yes
answer yes; ask -> [Do you want to save the changes made to b.map? yes], wrote b.map, edited=no
ask
load /car/none.map 2; show "mnuFileSave enabled" -> mnuFileSave off, [53, File not found ok], [56 ok], [12 ok], opened no, caption=Tarnview, staDataLogViewer[0]=Loading failed
put /car/no.map none; load /car/no.map 2 -> [56 ok], [12 ok], opened no

== WhatIsNotToBeWrittenOver
start /car/a.map -> +frmDataLogViewer
# Another program changed it.
put /car/a.map other; answer no; click mnuFileSave -> [a.map was changed by another program since it was opened.\nDo you want to overwrite it? no]
answer yes; click mnuFileSave -> [a.map was changed by another program since it was opened.\nDo you want to overwrite it? yes], wrote a.map, staDataLogViewer[0]=Saving complete
# It is protected by its owner.
protect /car/a.map; edit; answer ok; answer file /car/a.map; answer ok; answer file /car/b.map; click mnuFileSave -> [This file is write-protected:\n/car/a.map\n\nPlease choose another name. ok], [save "Save As" of FM Link MAP Files (*.map) /car/a.map], [This file is write-protected:\n/car/a.map\n\nPlease choose another name. ok], [save "Save As" of FM Link MAP Files (*.map) /car/b.map], wrote b.map, caption=Tarnview - b.map (FM Link MAP File)
# It is the log that the zones came from.
load /car/run.map 1 -> [16 ok], opened yes, caption=Tarnview - run.map (FM Link Data Log), PlotRangeFrom=1, PlotRangeTo=20, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete, staDataLogViewer[2]=Sample Load Range 1 - 20
edit; answer yes; answer ok; answer file /car/zones.map; ask -> [Do you want to save the changes made to run.map? yes], [The log that is open is never written over:\n/car/run.map\n\nPlease choose another name. ok], [save "Save As" of FM Link MAP Files (*.map) /car/zones.map], wrote zones.map, caption=Tarnview - zones.map (FM Link MAP File), staDataLogViewer[0]=Saving complete
