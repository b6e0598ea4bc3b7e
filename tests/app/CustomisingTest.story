== OpenWindowsFollowAtOnce
start /car/run.txt -> [16 ok], +frmDataLogViewer, graph=1-40 at 20, definition=Hydra Nemesis 2.1 (MX-5 Miata), Universal - Hydra Nemesis 2.1 (MX-5 Miata), RPM, presets=A/F Investigation; , looks=12632256, RPM 4227072, MAP, width=100
click mnuModulesScatterGraph; click cmdDrawGraph -> +frmScatterGraph, looks=12632256 12632256, RPM 4227072, MAP
click frmDataLogViewer/mnuCustomiseOptions -> +frmOptions, looks=12632256, RPM 4227072, MAP
choose cboGraphColourScheme Black; row lvwDataItems RPM; answer colour 1193046; click cmdDataColour; tick lvwDataItems MAP off; click chkScatterAutoDraw; click cmdOK -> [colour "Data Item Colour" ok], -frmOptions, looks=0 0, RPM 1193046
close; show "mnuFileDrawScatter checked" -> mnuFileDrawScatter checked, -frmScatterGraph, looks=0, RPM 1193046
click mnuCustomiseOptions -> +frmOptions
row lvwDataItems RPM; click cmdUnCheckAll; click cmdCancel -> -frmOptions

== ANewDefinitionIsTakenWithOrWithoutItsPresetsOrKeptOutByALogOfTheOld
start -> +frmDataLogViewer, definition=Hydra Nemesis 2.1 (MX-5 Miata), Universal - Hydra Nemesis 2.1 (MX-5 Miata), RPM, presets=A/F Investigation; , looks=16777215, RPM 4227072, MAP, width=100
click mnuCustomiseOptions -> +frmOptions
type txtPath(6) /car/mine.txt; answer ok; answer yes; click cmdOK -> [86 ok], [The Data Log Definition you have loaded contains Preset Sample Graphs or Preset Scatter Graphs.\nDo you want to clear your existing sets of Universal log family preset graphs before adding the new ones? yes], -frmOptions, definition=Mine, Universal - Mine, Revs, presets=Its own; 
start -> definition=Hydra Nemesis 2.1 (MX-5 Miata), Universal - Hydra Nemesis 2.1 (MX-5 Miata), RPM, presets=A/F Investigation; 
click mnuCustomiseOptions -> +frmOptions
type txtPath(6) /car/mine.txt; answer ok; answer no; click cmdOK -> [86 ok], [The Data Log Definition you have loaded contains Preset Sample Graphs or Preset Scatter Graphs.\nDo you want to clear your existing sets of Universal log family preset graphs before adding the new ones? no], -frmOptions, definition=Mine, Universal - Mine, Revs, presets=A/F Investigation; Its own; 
start -> definition=Hydra Nemesis 2.1 (MX-5 Miata), Universal - Hydra Nemesis 2.1 (MX-5 Miata), RPM, presets=A/F Investigation; 
click mnuCustomiseOptions -> +frmOptions
type txtPath(6) /car/mine.txt; answer ok; answer cancel; click cmdOK -> [86 ok], [The Data Log Definition you have loaded contains Preset Sample Graphs or Preset Scatter Graphs.\nDo you want to clear your existing sets of Universal log family preset graphs before adding the new ones? cancel], -frmOptions, definition=Mine, Universal - Mine, Revs
start /car/old.csv|8 -> graph=1-4 at 2, definition=Hydra Nemesis 2.1 (MX-5 Miata), Universal - Hydra Nemesis 2.1 (MX-5 Miata), RPM, looks=12632256, RPM 4227072, MAP, caption=Tarnview - old.csv (Universal - Hydra Nemesis 2.1 (MX-5 Miata)), PlotRangeFrom=1, PlotRangeTo=4, txtYMax=240, staDataLogViewer[0]=Sample: 2, Secs: 0.200, staDataLogViewer[2]=Sample Load Range 1 - 4
click mnuCustomiseOptions -> +frmOptions
type txtPath(6) /car/mine.txt; type txtSampleWidth 500; answer ok; answer no; click cmdOK -> [86 ok], [Loading the new Universal Data Log definition file will close the currently loaded datalog.\n\nAre you sure you want to continue? no], -frmOptions, width=500
click mnuCustomiseOptions -> +frmOptions
show txtPath(6); type txtPath(6) /car/mine.txt; answer ok; answer yes; answer no; click cmdOK -> txtPath(6)=, [86 ok], [Loading the new Universal Data Log definition file will close the currently loaded datalog.\n\nAre you sure you want to continue? yes], [The Data Log Definition you have loaded contains Preset Sample Graphs or Preset Scatter Graphs.\nDo you want to clear your existing sets of Universal log family preset graphs before adding the new ones? no], -frmOptions, graph=none, definition=Mine, Universal - Mine, Revs, presets=A/F Investigation; Its own; , looks=16777215, RPM 4227072, MAP, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, staDataLogViewer[2]=
