== EditsAPreset
type txtName Boost
choose imgcboYAxis Seconds -> imgcboYAxis=Seconds
choose cboPointShape "Up Tri" -> cboPointShape=Up Tri
type cboPointSize 11 -> cboPointSize=1
choose cboPointSize 10 -> cboPointSize=10
answer colour 33023; click cmdColourSelector -> [colour "Point Colour" ok], picColour colour=33023
type txtName " "; click cmdOK -> [41 ok], last box=The name is not optional., txtName= 
type txtName All; click cmdOK -> -frmPresetScatterDetails

== KeepsItsFilters
show lvwFilters -> lvwFilters columns=[Item|From|To], lvwFilters count=2, lvwFilters[1]=[MAP|100|-], lvwFilters[1] selected, lvwFilters[2]=[Throttle|Idle|-], lvwFilters[2] unselected
click cmdFilterNew -> +frmScatterFilter
choose imgcboDataItem "Knock Sensor"; type cboFrom 3; click cmdOK -> -frmScatterFilter, lvwFilters count=3, lvwFilters[1] unselected, lvwFilters[3]=[Knock|3|-], lvwFilters[3] selected
double lvwFilters 1 -> +frmScatterFilter, frmPresetScatterDetails/lvwFilters[1] selected, frmPresetScatterDetails/lvwFilters[3] unselected
type cboFrom 50; click cmdOK -> -frmScatterFilter, lvwFilters[1]=[MAP|50|-]
click cmdFilterNew -> +frmScatterFilter
click cmdCancel -> -frmScatterFilter
answer no; click cmdFilterDelete -> [Are you sure you want to delete this filter? no], last box=Are you sure you want to delete this filter?
# Sorted, the filters know their places all the same.
sort lvwFilters Item -> lvwFilters[1]=[Knock|3|-], lvwFilters[1] unselected, lvwFilters[2]=[MAP|50|-], lvwFilters[2] selected, lvwFilters[3]=[Throttle|Idle|-]
row lvwFilters Knock -> lvwFilters[1] selected, lvwFilters[2] unselected
answer yes; click cmdFilterDelete; show focus -> focus lvwFilters, [Are you sure you want to delete this filter? yes], lvwFilters count=2, lvwFilters[1]=[MAP|50|-], lvwFilters[2]=[Throttle|Idle|-], lvwFilters[3] selected gone

== KeepsItsFilters 2
click cmdFilterMod; click cmdFilterDelete

== AnotherFamilyHasOtherItems
choose cboLogFamily #2 -> cboLogFamily=Electromotive Tec-2 Data Log, imgcboXAxis list=[Sample No.|Seconds|Air Temperature|A/F Ratio|Boost|O2 Closed Loop Correction|Coolant Temperature|O2 Sensor Voltage|GAMA Fuelling Correction|General Purpose Output 1|Ignition Advance|Injector %|Injector Width|Knock Sensor|Manifold Air Pressure|Power|Injector Off Width|RPM|Torque|Throttle Position Sensor|Vacuum|Voltage], imgcboYAxis list=[Sample No.|Seconds|Air Temperature|A/F Ratio|Boost|O2 Closed Loop Correction|Coolant Temperature|O2 Sensor Voltage|GAMA Fuelling Correction|General Purpose Output 1|Ignition Advance|Injector %|Injector Width|Knock Sensor|Manifold Air Pressure|Power|Injector Off Width|RPM|Torque|Throttle Position Sensor|Vacuum|Voltage], lvwFilters count=1, lvwFilters[2] selected gone

== SavesAndLoads
# The name proposed.
answer no; answer ok; click cmdSave -> [Do you want to include the Log Family in the preset graph file? no], [save "Save As" of Preset Scatter Graph files (*.sca) ok], last box=Do you want to include the Log Family in the preset graph file?
failWrites; answer yes; answer ok; click cmdSave -> [Do you want to include the Log Family in the preset graph file? yes], [save "Save As" of Preset Scatter Graph files (*.sca) ok], [19 ok], last box=Something went wrong...
file "Graph 1 Name=Knock/Graph 1 X Axis=47/Graph 1 Y Axis=20/Graph 1 Filter 1 Data Item=48/Graph 1 Filter 2 Data Item=3/Graph 1 Filter 2 To=900/Graph 1 Filter 3 Data Item=49"
answer file /p/a.sca; click cmdLoad -> [open "Load" of Preset Scatter Graph files (*.sca) /p/a.sca], [92 ok], last box=Problem loading preset graph - data item(s) in preset graph file\nare not relevant to selected Log Family:\n\nX Axis: 47, Filters: 48, 49, txtName=Knock, imgcboXAxis=Sample No., imgcboYAxis=Knock Sensor, cboPointSize=1, lvwFilters count=1, lvwFilters[1]=[RPM|-|900], lvwFilters[2] selected gone
file "Graph 1 Name=Other/Graph 1 X Axis=3/Graph 1 Y Axis=5/Graph 1 Log Family=6"
answer file /p/a.sca; answer no; click cmdLoad -> [open "Load" of Preset Scatter Graph files (*.sca) /p/a.sca], [The preset graph definition you are loading is for a different Log Family than that\ncurrently selected, and may contain data items that are not relevant.\n\nAre you sure you want to continue? no], last box=The preset graph definition you are loading is for a different Log Family than that\ncurrently selected, and may contain data items that are not relevant.\n\nAre you sure you want to continue?
answer file /p/a.sca; answer yes; click cmdLoad -> [open "Load" of Preset Scatter Graph files (*.sca) /p/a.sca], [The preset graph definition you are loading is for a different Log Family than that\ncurrently selected, and may contain data items that are not relevant.\n\nAre you sure you want to continue? yes], txtName=Other, imgcboXAxis=RPM, imgcboYAxis=Manifold Air Pressure, lvwFilters count=0, lvwFilters[1] selected gone
answer file /p/none.sca; click cmdLoad -> [open "Load" of Preset Scatter Graph files (*.sca) /p/none.sca], [58 ok], last box=Problem loading preset sample graph file.
