== WhatIsWrittenIsReadBackByteForByte
begin full; show fraZoneInfl lvwPresets[1]; end -> fraZoneInfl off, fraZoneInfl hidden, fraZoneInfl=Zone Influence, lvwPresets[1]=[Mine], lvwPresets[1] unselected, wrote Tarnview.ini
begin none; show chkQuickGraph; end; now defaults -> chkQuickGraph=&Quick Graph, chkQuickGraph checked, wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: defaults
begin defaults; end -> wrote Tarnview.ini
# The settings from before a run stay beside; no run of many saves takes their place.
begin full; type txtYMax 90; save; type txtYMax 100; end -> wrote Tarnview.ini.old Tarnview.ini Tarnview.ini, kept Tarnview.ini: Graph Y Max=100, -Graph Y Max=120; Tarnview.ini.old: full
begin defaults; type cboZoomAmount 7; click chkQuickGraph; click chkFixY; write txtYMax 90; click mnuFileDrawScatter; load /logs/a.txt; tick lvwSampleDetails MAP off; click chkShowCheckedOnly; end -> [16 ok], wrote Tarnview.ini.old Tarnview.ini, opened yes, kept Tarnview.ini: Quick Graph=0, Checked Data Items=36,23,21,20,7,3,17, Fix Graph Max=1, Graph Y Max=90, Show Checked Only=Y, Scatter Graph Auto Draw=Y, File 0=1|/logs/a.txt, -Quick Graph=1, -Checked Data Items=36,23,21,20,5,7,3,17, -Fix Graph Max=0, -Graph Y Max=250, -Show Checked Only=N, -Scatter Graph Auto Draw=N; Tarnview.ini.old: defaults
now changed
begin changed; show mnuRecentlyUsed(0) chkFixY txtYMax; end -> mnuRecentlyUsed(0)=&1 /logs/a.txt, chkFixY=Fi&x Graph Max, chkFixY checked, txtYMax=90, wrote Tarnview.ini
# A window's place is kept, and a minimized one comes back.
begin defaults; minimized; end -> wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: Window State=0, Window Left=15, Window Top=0, Window Width=9000, Window Height=9000
now sized
begin sized -> +frmDataLogViewer, width=9000
end -> wrote Tarnview.ini, -frmDataLogViewer, width=
# Settings beyond the settled ones stand last, and only where they are not their default.
begin drawn; end; now beyond -> wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: beyond; Tarnview.ini.old: drawn
begin "not drawn"; end -> wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: defaults; Tarnview.ini.old: not drawn
begin full; disk full; type txtYMax 90; end -> [39 ok], wrote Tarnview.ini.old Tarnview.ini
disk free
break; begin full; mend; end -> [The settings file cannot be read. Every setting has its default, and nothing is kept from this run:\n/car/Tarnview.ini ok]

== WhatIsNoSettingsFileIsKeptBesideAndToldOnce
begin bare; show chkQuickGraph; end; now fresh -> chkQuickGraph=&Quick Graph, chkQuickGraph checked, [This is no settings file, so every setting has its default:\n/car/Tarnview.ini\n\nIt is kept as:\n/car/Tarnview.ini.bad ok], wrote Tarnview.ini.bad Tarnview.ini, kept Tarnview.ini: fresh; Tarnview.ini.bad: bare
begin fresh; end -> wrote Tarnview.ini
begin zeros; end -> [The settings file is damaged. What can be read of it holds:\n/car/Tarnview.ini\n\nIt is kept as:\n/car/Tarnview.ini.bad2 ok], wrote Tarnview.ini.bad2 Tarnview.ini, kept Tarnview.ini: fresh; Tarnview.ini.bad2: zeros
# Saved by an editor.
begin marked; show chkQuickGraph; end -> chkQuickGraph=&Quick Graph, chkQuickGraph unchecked, wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: 944 lines; Tarnview.ini.old: marked
# Of a damaged file each undamaged key is read.
begin damaged; show cboZoomAmount; end -> cboZoomAmount list=[2|3|4|5|10|20|30|40|50|100], cboZoomAmount=2, [The settings file is damaged. What can be read of it holds:\n/car/Tarnview.ini\n\nIt is kept as:\n/car/Tarnview.ini.bad3\nThe last good settings are:\n/car/Tarnview.ini.old ok], wrote Tarnview.ini.bad3 Tarnview.ini, kept Tarnview.ini: mended; Tarnview.ini.bad3: damaged
begin full; end -> wrote Tarnview.ini
begin cut; show cboZoomAmount; end -> cboZoomAmount list=[2|3|4|5|10|20|30|40|50|100], cboZoomAmount=30, wrote Tarnview.ini.bad4 Tarnview.ini, kept Tarnview.ini: 914 lines; Tarnview.ini.bad4: cut

== WhatThePathsNameAndIsNotThereIsToldAndStays
begin gone; end -> [18 ok], [32 ok], [79 ok], [43 ok], wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: 950 lines; Tarnview.ini.old: gone, paths=/none.bmp /none /none.txt 
begin pipe; show fraPicture; end -> fraPicture=, [18 ok], wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: 944 lines; Tarnview.ini.old: pipe, paths=/pipe.png   

== TwoProgramsKeepEachOthersSettings
begin full; aside; begin full; type txtYMax 90; type cboZoomAmount 4; load /logs/a.txt 1; add; end -> [16 ok], wrote Tarnview.ini.old Tarnview.ini, opened yes, kept Tarnview.ini: Zoom Amount=4, Graph Y Max=90, Graph 2 Name=New Preset, Graph 2 Data Items=, Graph 2 Fix Graph Max=N, Graph 2 Graph Max=0, Graph 2 Log Family=1, File 0=1|/logs/a.txt, File 1=3|/logs/b.dat, Item 3 Colour=77, [Beyond], Draw After Opening=Y, -Zoom Amount=30, -Graph Y Max=120, -File 0=3|/logs/b.dat, -File 1=1|/logs/a.txt, -Item 3 Colour=3; Tarnview.ini.old: full
back; type cboZoomAmount 5; car Ours; save -> wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: Zoom Amount=5, Name Car Def 1=Ours, -Zoom Amount=4, -Name Car Def 1=Mine; Tarnview.ini.old: Zoom Amount=4, Graph Y Max=90, Graph 2 Name=New Preset, Graph 2 Data Items=, Graph 2 Fix Graph Max=N, Graph 2 Graph Max=0, Graph 2 Log Family=1, File 0=1|/logs/a.txt, File 1=3|/logs/b.dat, Item 3 Colour=77, [Beyond], Draw After Opening=Y, -Zoom Amount=30, -Graph Y Max=120, -File 0=3|/logs/b.dat, -File 1=1|/logs/a.txt, -Item 3 Colour=3, +frmDataLogViewer
# What came from the other is no change of this one's own.
tell "Graph Y Max=90" "Graph Y Max=80"; save -> wrote Tarnview.ini, kept Tarnview.ini: Graph Y Max=80, -Graph Y Max=90
# What a window puts in the order of its list is no change of its user.
begin ordered; aside; begin ordered; wide; tick lvwSampleDetails MAP off; end -> wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: 950 lines; Tarnview.ini.old: ordered, -frmDataLogViewer
back; save -> wrote Tarnview.ini, +frmDataLogViewer

== ADefinitionsPresetsJoinOnAFirstRunAndAreTheUsersFromThenOn
begin first -> +frmDataLogViewer, presets=2 A; 7 Overview; 7 A/F Investigation; 7 Knock Investigation 1; 7 Knock Investigation 2; 7 Power Graphing; 7 Clear All Checkboxes; 12
edit -> presets=7 Power Graphing; 2 A; 7 A/F Investigation; 7 Mine; 7 Knock Investigation 2; 7 Clear All Checkboxes; 12
end; now written -> wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: written; Tarnview.ini.old: first, -frmDataLogViewer, presets=
begin written -> +frmDataLogViewer, presets=7 Power Graphing; 2 A; 7 A/F Investigation; 7 Mine; 7 Knock Investigation 2; 7 Clear All Checkboxes; 12
end -> wrote Tarnview.ini, -frmDataLogViewer, presets=
begin later -> +frmDataLogViewer, presets=0
end -> wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: 944 lines; Tarnview.ini.old: later, -frmDataLogViewer, presets=
none -> +frmDataLogViewer, presets=7 Overview; 7 A/F Investigation; 7 Knock Investigation 1; 7 Knock Investigation 2; 7 Power Graphing; 7 Clear All Checkboxes; 12
end -> wrote Tarnview.ini, kept Tarnview.ini: 172 lines, -frmDataLogViewer, presets=

== AFreshFileLetsTheDefinitionSayHowItsItemsLook
begin first -> +frmDataLogViewer, knock retard= 8404992 of style 1 620000 of style 3
end -> wrote Tarnview.ini.old Tarnview.ini, kept Tarnview.ini: 1112 lines; Tarnview.ini.old: first, -frmDataLogViewer, knock retard=
begin later -> +frmDataLogViewer, knock retard= 5 of style 3 620000 of style 3
begin bare -> knock retard= 620000 of style 3 620000 of style 3
