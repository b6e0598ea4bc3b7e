== AsksWhichLogOnceAndOtherNeedsAGoodDefinition
first -> +frmSplash, +frmFindINIFile
whole
click cmdCancel -> [65 ok], -frmSplash, -frmFindINIFile
first -> +frmSplash, +frmFindINIFile
show lstFileType txtPathOther lblPathOther cmdBrowse -> lstFileType list=[FM Link Data Logs|FM Link MAP Files|LinkPlus Data Logs|OBDLink Data Logs|Tec-2 Data Logs|Tec-3 Data Logs|UTEC CSV Data Logs|UTEC Fixed-Width Data Logs|<Other>], lstFileType=FM Link Data Logs, txtPathOther off, txtPathOther=, lblPathOther off, lblPathOther=Data log &definition file, cmdBrowse off, cmdBrowse=&Browse...
choose lstFileType <Other>; show "txtPathOther enabled" "lblPathOther enabled" "cmdBrowse enabled" -> lstFileType=<Other>
choose lstFileType #3; show "txtPathOther enabled" "lblPathOther enabled" "cmdBrowse enabled" -> txtPathOther off, lblPathOther off, cmdBrowse off, lstFileType=OBDLink Data Logs
choose lstFileType <Other>; click cmdOK -> [78 ok], lstFileType=<Other>
type txtPathOther /tv/none.txt; click cmdOK -> [70 ok], txtPathOther=/tv/none.txt
answer file "/tv/data/Universal Data Log Formats/OBDLink.txt"; click cmdBrowse; show focus -> focus cmdOK, [open "Open" of Text Files /tv/data/Universal Data Log Formats/OBDLink.txt], txtPathOther=/tv/data/Universal Data Log Formats/OBDLink.txt
click cmdOK -> wrote Tarnview.ini, -frmFindINIFile, +frmDataLogViewer
first
close frmDataLogViewer; bare -> wrote Tarnview.ini.old Tarnview.ini, -frmDataLogViewer
first -> +frmFindINIFile
choose lstFileType "Tec-2 Data Logs"; click cmdOK -> [29 ok], -frmFindINIFile, +frmDataLogViewer
close frmDataLogViewer -> wrote Tarnview.ini, -frmDataLogViewer

== ATemplateIsCopiedAndFilledIn
first -> +frmSplash, +frmFindINIFile
choose lstFileType #0; click cmdOK -> [18 ok], wrote Tarnview.ini, -frmFindINIFile, +frmDataLogViewer, settings=Initial Directory=/tv/|Default Working Directory=/tv/|Alternative Background Picture=/tv/Images/car.bmp|Log EXE=/tv/LinkWin/LinkWin.exe|Conversion EXE=/tv/MDOS/MDOS_AT.exe|O2 Input Conversion File=/tv/NB O2 Conversion Tables/AEM_WB_Derived_AF_14.7.txt|Zoom Amount=30|, definition=Hydra Nemesis 2.1 (MX-5 Miata)
show cboZoomAmount -> cboZoomAmount list=[2|3|4|5|10|20|30|40|50|100], cboZoomAmount=30
lose /tv/bin/Tarnview.ini; put "/tv/data/NB O2 Conversion Tables/AEM_WB_Derived_AF_14.7.txt" "TARNVIEW CONVERSION TABLE" -> settings=
first -> -frmDataLogViewer, +frmFindINIFile, definition=
choose lstFileType "FM Link MAP Files"; click cmdOK -> wrote Tarnview.ini, -frmFindINIFile, +frmDataLogViewer, settings=Initial Directory=/tv/|Default Working Directory=/tv/|Alternative Background Picture=|Log EXE=/tv/LinkWin/LinkWin.exe|Conversion EXE=/tv/MDOS/MDOS_AT.exe|O2 Input Conversion File=/tv/data/NB O2 Conversion Tables/AEM_WB_Derived_AF_14.7.txt|Zoom Amount=2|Default File Type=2|Generic Data Log Definition File=|, definition=Hydra Nemesis 2.1 (MX-5 Miata)
lose /tv/bin/Tarnview.ini -> settings=
first -> -frmDataLogViewer, +frmFindINIFile, definition=
choose lstFileType "OBDLink Data Logs"; click cmdOK -> wrote Tarnview.ini, -frmFindINIFile, +frmDataLogViewer, settings=Initial Directory=/tv/|Default Working Directory=/tv/|Alternative Background Picture=|Log EXE=|Conversion EXE=|O2 Input Conversion File=|Zoom Amount=2|Default File Type=8|Generic Data Log Definition File=/tv/data/Universal Data Log Formats/OBDLink.txt|, definition=OBDLink
# Logs of a user with a folder of his own lie in his documents.
home -> -frmDataLogViewer, +frmFindINIFile, definition=
choose lstFileType "Tec-2 Data Logs"; click cmdOK -> [32 ok], wrote Tarnview.ini, -frmFindINIFile, +frmDataLogViewer, settings=Initial Directory=/home/me/Documents/|Default Working Directory=/home/me/Documents/|Alternative Background Picture=|Log EXE=|Conversion EXE=|O2 Input Conversion File=|Zoom Amount=2|Default File Type=3|Generic Data Log Definition File=|, definition=Hydra Nemesis 2.1 (MX-5 Miata)
