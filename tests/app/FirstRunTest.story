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
