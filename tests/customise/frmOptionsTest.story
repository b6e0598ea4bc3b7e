== HoldWhatIsTypedToTheLimitsOfTheSettings
type txtComPort 9 -> txtComPort=9
type txtComPort 10 -> txtComPort=1
type txtComPort x
type txtChipDate 2001-9-18 -> txtChipDate=18-Sep-2001
type txtChipDate soon
type txtPlotFromTemp 100 -> txtPlotFromTemp=99
type txtPlotFromTemp -100 -> txtPlotFromTemp=-99
type txtPlotFromTemp 12abc -> txtPlotFromTemp=12
type txtSampleWidth 49 -> txtSampleWidth=50
type txtSampleWidth 1001 -> txtSampleWidth=1000
type txtInitialPlotWidth 300001 -> txtInitialPlotWidth=300000
type txtDefFreq 0
type txtDefFreq 12.50 -> txtDefFreq=12.5
type txtmsConvFactor 100
type txtmsConvFactor 99.99 -> txtmsConvFactor=99.99
click chkSAE -> chkSAE checked, lblHumidityType on, cboHumidityType on, lblAmbTemp on, txtAmbTemp on, lblAtmos on, txtAtmos on, lblRH on, txtRH on, lblCorrFactor on, txtCorrFactor on
type txtAtmos 74
type txtAtmos 116 -> txtAtmos=115, txtCorrFactor=0.838
type txtAmbTemp 61 -> txtAmbTemp=60, txtCorrFactor=0.996
type txtRH 101 -> txtRH=100, txtCorrFactor=1.119
type txtRH -1 -> txtRH=0, txtCorrFactor=0.894
choose cboHumidityType "Wet Bulb" -> cboHumidityType=Wet Bulb, lblRH=Wet &Bulb Temp ('C)
# A wet bulb is never warmer than the air.
type txtRH 61 -> txtRH=60, txtCorrFactor=1.119
type txtRH -31 -> txtRH=-30, txtCorrFactor=0.894
type txt3DSpec(1) 360 -> txt3DSpec(1)=359
type txt3DSpec(1) -1 -> txt3DSpec(1)=0
step updElevation(0) down
step updElevation(0) up -> txt3DSpec(1)=1
step updRotation(0) up -> txt3DSpec(0)=21
step updRotation(1) down -> txt3DSpec(2)=19
step updElevation(1) down -> txt3DSpec(3)=129
type txtFactor 0 -> item=Sample 1 1 10000 0.01, txtFactor=0.01
type txtFactor 101 -> item=Sample 1 1 10000 100, txtFactor=100
# Enter presses OK with the caret still in the field.
write txtComPort 33; key Enter -> -frmOptions, item=

== CheckThePathsThatWereChanged
tab tabOptions General
type txtPath(0) /link/none.exe; click cmdOK; show focus -> focus txtPath(0), [24 ok], tabOptions=FM Link ECU, txtPath(0)=/link/none.exe, fraGeneralTab hidden, fraFMLinkTab shown
type txtPath(0) /link/notes.txt; click cmdOK -> [24 ok], txtPath(0)=/link/notes.txt
type txtPath(0) /link/L.EXE -> txtPath(0)=/link/L.EXE
type txtPath(1) /link; click cmdOK; show focus -> focus txtPath(1), [24 ok], txtPath(1)=/link
type txtPath(1) /link/C.exe -> txtPath(1)=/link/C.exe
type txtPath(2) /pictures/b.bmp; click cmdOK; show focus -> focus txtPath(2), [15 ok], tabOptions=File Locations, txtPath(2)=/pictures/b.bmp, fraFMLinkTab hidden, fraFilesTab shown
type txtPath(2) /pictures/a.bmp -> txtPath(2)=/pictures/a.bmp
type txtPath(3) C:\\MyFolder; click cmdOK; show focus -> focus txtPath(3), [36 ok], txtPath(3)=C:\\MyFolder\
type txtPath(3) /new -> txtPath(3)=/new
type txtPath(4) /tables/x.txt; click cmdOK; show focus -> focus txtPath(4), [15 ok], tabOptions=FM Link ECU, txtPath(3)=/new/, txtPath(4)=/tables/x.txt, fraFMLinkTab shown, fraFilesTab hidden
type txtPath(4) "" -> txtPath(4)=
type txtPath(5) /tables/x.txt; click cmdOK; show focus -> focus txtPath(5), [15 ok], txtPath(5)=/tables/x.txt
type txtPath(5) "" -> txtPath(5)=
type txtPath(6) /defs/none.txt; click cmdOK; show focus -> focus txtPath(6), [15 ok], tabOptions=File Locations, txtPath(6)=/defs/none.txt, fraFMLinkTab hidden, fraFilesTab shown
type txtPath(6) /defs/bad.txt; click cmdOK; show focus -> focus txtPath(6), [74 ok], txtPath(6)=/defs/bad.txt
# The first of them.
type txtPath(5) /no; type txtPath(3) /nowhere; click cmdOK -> [36 ok], txtPath(3)=/nowhere/, txtPath(5)=/no
type txtPath(5) ""; type txtPath(3) /logs -> txtPath(3)=/logs, txtPath(5)=
type txtPath(6) /defs/mine.txt; click cmdOK -> [86 ok], -frmOptions, item=, definition=Mine, changed
anew -> +frmOptions, item=Sample 1 1 10000 1, definition=Hydra Nemesis 2.1 (MX-5 Miata)
answer folder /new; click cmdBrowse(3) -> [folder "Select Default Working Directory" /new], txtPath(3)=/new
answer file /pictures/a.bmp; click cmdBrowse(2) -> [open "Open" of Pictures (*.bmp;*.jpg;*.png) /pictures/a.bmp], txtPath(2)=/pictures/a.bmp
answer file /link/L.EXE; click cmdBrowse(0) -> [open "Open" of Programs (*.exe) /link/L.EXE], txtPath(0)=/link/L.EXE

== LoadADefinitionIntoTheDraftAlone
type txtPath(6) /defs/bad.txt; click cmdLoadGeneric -> [74 ok], txtPath(6)=/defs/bad.txt
type txtPath(6) /defs/mine.txt; click cmdLoadGeneric -> [86 ok], definition=Mine, txtPath(6)=/defs/mine.txt, cboFileType list=[FM Link Data Logs|FM Link MAP Files|Tec-2 Data Logs|Tec-3 Data Logs|LinkPlus Data Logs|UTEC CSV Data Logs|UTEC Fixed-Width Data Logs|Universal - Mine], cboLogFamily list=[Flyin' Miata Link Full|Flyin' Miata Link Data Log|Electromotive Tec-2 Data Log|Electromotive Tec-3 Data Log|Link Plus Data Log|TurboXS UTEC Data Log|Universal - Mine], cboLogFamily=Universal - Mine
row lvwDataItems Revs -> item=Revs 1 5 255 0.01, picDataColour colour=255, imgcboDataWidth=Fattest, picDataSample strokes[0] colour=255, picDataSample strokes[0] width=50, txtFactor=0.01
# Reset gives what the column says.
choose imgcboDataWidth Thinnest -> item=Revs 1 1 255 0.01, imgcboDataWidth=Thinnest, picDataSample strokes[0] width=10
click cmdReset -> item=Revs 1 5 255 0.01, imgcboDataWidth=Fattest, picDataSample strokes[0] width=50
choose imgcboDataWidth Thinner -> item=Revs 1 2 255 0.01, imgcboDataWidth=Thinner, picDataSample strokes[0] width=20
# It is not read again.
click cmdOK -> -frmOptions, item=, definition=Mine, changed

== ShowAndRecordHowADataItemIsDrawn
show cboLogFamily lvwDataItems[1] -> cboLogFamily list=[Flyin' Miata Link Full|Flyin' Miata Link Data Log|Electromotive Tec-2 Data Log|Electromotive Tec-3 Data Log|Link Plus Data Log|TurboXS UTEC Data Log|Universal - Hydra Nemesis 2.1 (MX-5 Miata)], cboLogFamily=Flyin' Miata Link Full, lvwDataItems[1]=[Sample|Sample No.], lvwDataItems[1] checked, lvwDataItems[1] selected
row lvwDataItems RPM -> item=RPM 1 3 4227072 0.01, lvwDataItems[1] unselected, lvwDataItems[44] selected, picDataColour colour=4227072, imgcboDataWidth=Medium, picDataSample strokes[0] colour=4227072, picDataSample strokes[0] width=30, txtFactor=0.01
choose imgcboDataStyle Dashed -> item=RPM 3 3 4227072 0.01, imgcboDataStyle=Dashed, picDataSample strokes[0] style=3
choose imgcboDataWidth Fattest -> item=RPM 3 5 4227072 0.01, imgcboDataWidth=Fattest, picDataSample strokes[0] width=50
answer colour 1193046; click cmdDataColour -> [colour "Data Item Colour" ok], item=RPM 3 5 1193046 0.01, picDataColour colour=1193046, picDataSample strokes[0] colour=1193046
type txtFactor 0.5 -> item=RPM 3 5 1193046 0.5, txtFactor=0.5
choose cboGraphColourScheme Black -> cboGraphColourScheme=Black, picDataSample colour=0
# A style that the list lacks stays until one is chosen.
row lvwDataItems MAP -> item=MAP 9 3 16776960 1, lvwDataItems[36] selected, lvwDataItems[44] unselected, picDataColour colour=16776960, imgcboDataWidth=Medium, picDataSample strokes[0] colour=16776960, picDataSample strokes[0] style=9, picDataSample strokes[0] width=30, txtFactor=1
row lvwDataItems RPM -> item=RPM 3 5 1193046 0.5, lvwDataItems[36] unselected, lvwDataItems[44] selected, picDataColour colour=1193046, imgcboDataWidth=Fattest, picDataSample strokes[0] colour=1193046, picDataSample strokes[0] style=3, picDataSample strokes[0] width=50, txtFactor=0.5
tick lvwDataItems RPM off -> item=RPM 3 5 1193046 0.5 hidden, lvwDataItems[44] unchecked
click cmdReset -> item=RPM 1 3 4227072 0.01, lvwDataItems[44] checked, picDataColour colour=4227072, imgcboDataStyle=Solid, imgcboDataWidth=Medium, picDataSample strokes[0] colour=4227072, picDataSample strokes[0] style=1, picDataSample strokes[0] width=30, txtFactor=0.01

== CheckAndUncheckTheItemsOfAFamily
click cmdUnCheckAll -> displayed=Sample! Secs! Power! RPM! Speed! Torque!
tick lvwDataItems MAP on -> displayed=Sample! Secs! MAP Power! RPM! Speed! Torque!
choose cboLogFamily #2; choose cboLogFamily #0; show lvwDataItems[36] lvwDataItems[5] -> lvwDataItems[36]=[MAP|Manifold Air Pressure], lvwDataItems[36] checked, lvwDataItems[36] unselected, lvwDataItems[5]=[A/F|A/F Ratio], lvwDataItems[5] unchecked, lvwDataItems[5] unselected
click cmdCheckAll -> displayed=53

== LetTheFieldsOfThePowerGraphFollow
# What was kept stands.
show txtmsConvFactor -> txtmsConvFactor=0.5
anew -> txtmsConvFactor=0.44704
show cboHumidityType txtAmbTemp txtAtmos txtRH txtCorrFactor lblRH -> cboHumidityType off, cboHumidityType list=[Rel. Humidity|Wet Bulb], cboHumidityType=Rel. Humidity, txtAmbTemp off, txtAmbTemp=20, txtAtmos off, txtAtmos=75, txtRH off, txtRH=50, txtCorrFactor off, txtCorrFactor=1.389, lblRH off, lblRH=Relati&ve Humidity (%)
choose cboSpeedUnits KPH -> cboSpeedUnits=KPH, txtmsConvFactor=0.27778
choose cboSpeedUnits Other -> cboSpeedUnits=Other
choose cboSpeedUnits MPH -> cboSpeedUnits=MPH, txtmsConvFactor=0.44704
click chkPowerGraphGearSelection -> chkPowerGraphGearSelection unchecked, lblSpeedUnits off, cboSpeedUnits off, lblmsConvFactor off, txtmsConvFactor off
click chkSAE -> chkSAE checked, lblHumidityType on, cboHumidityType on, lblAmbTemp on, txtAmbTemp on, lblAtmos on, txtAtmos on, lblRH on, txtRH on, lblCorrFactor on, txtCorrFactor on
type txtAmbTemp 25 -> txtAmbTemp=25, txtCorrFactor=1.411
type txtAtmos 100 -> txtAtmos=100, txtCorrFactor=1.007
type txtRH 0 -> txtRH=0, txtCorrFactor=0.988
type txtAtmos 99 -> txtAtmos=99, txtCorrFactor=1.000
choose cboHumidityType "Wet Bulb" -> cboHumidityType=Wet Bulb, lblRH=Wet &Bulb Temp ('C)
type txtRH 20 -> txtRH=20, txtCorrFactor=1.024
choose cboHumidityType "Rel. Humidity" -> cboHumidityType=Rel. Humidity, lblRH=Relati&ve Humidity (%), txtCorrFactor=1.008
choose cboHumidityType "Wet Bulb" -> cboHumidityType=Wet Bulb, lblRH=Wet &Bulb Temp ('C), txtCorrFactor=1.024

== FindASettingByCaptionKeyOrToolTip
anew; type txtFind "colour scheme"; show focus -> focus cboGraphColourScheme, +frmOptions, item=Sample 1 1 10000 1, definition=Hydra Nemesis 2.1 (MX-5 Miata)
anew; type txtFind "Show Point Sample"; show focus -> focus txtSampleWidth, txtFind=Show Point Sample
anew; type txtFind retain; show focus -> focus chkRetainBIN, txtFind=retain, tabOptions=FM Link ECU, fraGeneralTab hidden, fraFMLinkTab shown
anew; type txtFind "Log EXE"; show focus -> focus txtPath(0), txtFind=Log EXE
anew; type txtFind "default benchmark"; show focus -> focus nowhere, txtFind=default benchmark, tabOptions=General, fraGeneralTab shown, fraFMLinkTab hidden
anew; type txtFind working; show focus -> focus txtPath(3), txtFind=working, tabOptions=File Locations, fraGeneralTab hidden, fraFilesTab shown
anew; type txtFind "o2 input"; show focus -> focus txtPath(5), txtFind=o2 input, tabOptions=FM Link ECU, fraFMLinkTab shown, fraFilesTab hidden
anew; type txtFind "fuel graph rotation"; show focus -> focus txt3DSpec(0), txtFind=fuel graph rotation
anew; type txtFind "elevation in degrees"; show focus -> focus txt3DSpec(1), txtFind=elevation in degrees
anew; type txtFind uncheck; show focus -> focus cmdUnCheckAll, txtFind=uncheck, tabOptions=Data Item Definitions, fraFMLinkTab hidden, fraDataItemsTab shown
anew; type txtFind verify; show focus -> focus chkUploadDefs(1), txtFind=verify, tabOptions=FM Link ECU, fraFMLinkTab shown, fraDataItemsTab hidden
anew; type txtFind "wet bulb"; show focus -> focus nowhere, txtFind=wet bulb, tabOptions=General, fraGeneralTab shown, fraFMLinkTab hidden
anew; type txtFind ""; show focus -> focus nowhere, txtFind=
anew; type txtFind "line style"; show focus -> focus imgcboDataStyle, txtFind=line style, tabOptions=Data Item Definitions, fraGeneralTab hidden, fraDataItemsTab shown
anew; type txtFind "Generic Data"; show focus -> focus txtPath(6), txtFind=Generic Data, tabOptions=File Locations, fraFilesTab shown, fraDataItemsTab hidden
anew -> txtFind=, tabOptions=General, fraGeneralTab shown, fraFilesTab hidden
# While the user types, the caret stays.
write txtFind "com port"; show focus -> focus txtFind, txtFind=com port, tabOptions=FM Link ECU, fraGeneralTab hidden, fraFMLinkTab shown
key Enter; show focus; key F1 -> focus txtComPort, help=OptionsFMLinkECUTab
tab tabOptions "File Locations"; key F1 -> help=OptionsFMLinkECUTab OptionsFileLocationsTab, tabOptions=File Locations, fraFMLinkTab hidden, fraFilesTab shown
tab tabOptions "Data Item Definitions"; key F1 -> help=OptionsFMLinkECUTab OptionsFileLocationsTab OptionsDataItemDefinitionsTab, tabOptions=Data Item Definitions, fraFilesTab hidden, fraDataItemsTab shown
tab tabOptions General; key F1 -> help=OptionsFMLinkECUTab OptionsFileLocationsTab OptionsDataItemDefinitionsTab OptionsGeneralTab, tabOptions=General, fraGeneralTab shown, fraDataItemsTab hidden

== TakeTheBuiltInDefinitionForNone
kept -> +frmOptions, item=Sample 1 1 10000 1, definition=Mine
type txtPath(6) ""; click cmdOK -> -frmOptions, item=, definition=Hydra Nemesis 2.1 (MX-5 Miata), changed
# The draft no longer holds it.
kept; type txtPath(6) ""; click cmdLoadGeneric -> +frmOptions, item=Sample 1 1 10000 1, definition=Hydra Nemesis 2.1 (MX-5 Miata)
type txtPath(6) /defs/mine.txt; click cmdOK -> [86 ok], -frmOptions, item=, definition=Mine
