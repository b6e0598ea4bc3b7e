== PresetsAreUpdatedAddedAndEdited
row lvwPresets Knock -> chkFixY checked, txtYMax=120
tick lvwSampleDetails MAP on; write txtYMax 7x5; click mnuEditUpdatePreset -> presets=Knock of 1: 20 5 3 to 75; Other of 6: 1 to 0; None of 1: to 0, txtYMax=7x5
click mnuEditNewPreset -> +frmNewPresetName
type txtName " "; click cmdOK -> [41 ok], txtName= 
type txtName Mine; click cmdOK -> -frmNewPresetName, presets=Knock of 1: 20 5 3 to 75; Other of 6: 1 to 0; None of 1: to 0; Mine of 1: 20 5 3 to 75
show lvwPresets -> lvwPresets columns=[Preset Graphs], lvwPresets count=3, lvwPresets[1]=[Knock], lvwPresets[1] unselected, lvwPresets[2]=[None], lvwPresets[2] unselected, lvwPresets[3]=[Mine], lvwPresets[3] selected
# The editors work on a copy of their list.
click mnuCustomisePresetSample -> +frmMaint
double lvwNameList Knock -> +frmPresetSampleDetails
type txtName Renamed; click cmdOK -> -frmPresetSampleDetails
click cmdCancel -> -frmMaint
show lvwPresets[1] -> lvwPresets[1]=[Knock], lvwPresets[1] unselected
click mnuCustomisePresetSample -> +frmMaint
double lvwNameList Knock -> +frmPresetSampleDetails
type txtName Renamed; click cmdOK -> -frmPresetSampleDetails
click cmdOK -> -frmMaint, presets=Renamed of 1: 20 5 3 to 80; Other of 6: 1 to 0; None of 1: to 0; Mine of 1: 20 5 3 to 75
show lvwPresets[1] lvwPresets[3] -> lvwPresets[1]=[Renamed], lvwPresets[1] unselected, lvwPresets[3]=[Mine], lvwPresets[3] unselected
click mnuCustomisePresetScatter -> +frmMaint
click cmdNew -> +frmPresetScatterDetails
choose imgcboYAxis "Knock Sensor"; click cmdOK -> -frmPresetScatterDetails
click cmdOK -> -frmMaint, scatters=New Preset: 3 20

== GoesToASampleInAGraphOfTheSameWidth
click mnuViewGoto -> cannot: mnuViewGoto is disabled
draw 100 175 -> graph=100-175 at 137, PlotRangeFrom=100, PlotRangeTo=175, txtYMax=240, staDataLogViewer[0]=Sample: 137, Secs: 11.223
# To even halves.
click mnuViewGoto -> +frmGoto
type txtSampleNumber 1000; click cmdOK -> -frmGoto, graph=962-1038 at 1000, PlotRangeFrom=962, PlotRangeTo=1038, staDataLogViewer[0]=Sample: 1000, Secs: 81.920
draw 100 175 -> graph=100-175 at 137, PlotRangeFrom=100, PlotRangeTo=175, staDataLogViewer[0]=Sample: 137, Secs: 11.223
click mnuViewGoto -> +frmGoto
type txtSampleNumber 20; click chkShowPointWidth; click cmdOK -> -frmGoto, graph=1-70 at 20, PlotRangeFrom=1, PlotRangeTo=70, staDataLogViewer[0]=Sample: 20, Secs: 1.638
draw 100 109 -> graph=100-109 at 105, PlotRangeFrom=100, PlotRangeTo=109, staDataLogViewer[0]=Sample: 105, Secs: 8.602
click mnuViewGoto -> +frmGoto
type txtSampleNumber 500; click chkShowPointWidth; click cmdOK -> -frmGoto, graph=450-550 at 500, PlotRangeFrom=450, PlotRangeTo=550, staDataLogViewer[0]=Sample: 500, Secs: 40.960
draw 100 110 -> graph=100-110 at 105, PlotRangeFrom=100, PlotRangeTo=110, staDataLogViewer[0]=Sample: 105, Secs: 8.602
click mnuViewGoto -> +frmGoto
type txtSampleNumber 500; click cmdOK -> -frmGoto, graph=495-505 at 500, PlotRangeFrom=495, PlotRangeTo=505, staDataLogViewer[0]=Sample: 500, Secs: 40.960
draw 100 175 -> graph=100-175 at 137, PlotRangeFrom=100, PlotRangeTo=175, staDataLogViewer[0]=Sample: 137, Secs: 11.223
click mnuViewGoto -> +frmGoto
type txtSampleNumber 500; click cmdCancel -> -frmGoto

== AnExportKeepsItsPathUntilTheNextLog
answer file /logs/other.csv; click mnuFileExport -> [save "Export" of CSV files (*.csv) /logs/other.csv], wrote other.csv, staDataLogViewer[0]=Export complete
disk full; answer ok; click mnuFileExport -> [save "Export" of CSV files (*.csv) ok], [64 ok], wrote other.csv, staDataLogViewer[0]=
disk well; load /logs/run.txt -> [16 ok], opened yes, staDataLogViewer[0]=Loading complete
answer ok; click mnuFileExport -> [save "Export" of CSV files (*.csv) ok], wrote run.csv, staDataLogViewer[0]=Export complete

== ZoneInfluenceFollowsTheSelectedSampleOfALinkLog
show fraZoneInfl mnuViewZoneInfl lblZoneInfl(0) -> fraZoneInfl=Zone Influence, mnuViewZoneInfl=&Zone Influence, mnuViewZoneInfl checked, lblZoneInfl(0)=
click cmdDrawGraph; show lblZoneInfl(0) lblZoneInfl(1) lblZoneInfl(2) lblZoneInfl(3) -> lblZoneInfl(0)=105, lblZoneInfl(1)=110, lblZoneInfl(2)=205, lblZoneInfl(3)=210, graph=1-40 at 20, txtYMax=240, staDataLogViewer[0]=Sample: 20, Secs: 1.638
click mnuViewZoneInfl; show "fraZoneInfl visible" "mnuViewZoneInfl checked" -> fraZoneInfl hidden
click mnuViewZoneInfl; show "fraZoneInfl visible" "mnuViewZoneInfl checked" -> mnuViewZoneInfl checked
load /logs/none.txt; show lblZoneInfl(0) lblZoneInfl(1) lblZoneInfl(2) lblZoneInfl(3) "mnuViewZoneInfl enabled" -> lblZoneInfl(0)=, lblZoneInfl(1)=, lblZoneInfl(2)=, lblZoneInfl(3)=, mnuViewZoneInfl off, [15 ok], [12 ok], opened no, graph=none, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
