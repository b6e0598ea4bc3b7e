== NewDownloadBringsTheNameIntoItsForm
fails load; capture -> did prompt, +frmNewDownload
type txtFileName run -> txtFileName=run.txt
close -> -frmNewDownload

fails load; capture -> did prompt, +frmNewDownload
type txtFileName C:\Logs\run.dat -> txtFileName=run.txt
close -> -frmNewDownload

fails load; capture -> did prompt, +frmNewDownload
type txtFileName /logs/a.b.map -> txtFileName=a.b.txt
close -> -frmNewDownload

fails load; capture -> did prompt, +frmNewDownload
type txtFileName a*b; show focus -> focus txtFileName, [37 ok], did box of 48, txtFileName=a*b
close -> -frmNewDownload

fails load; capture -> did prompt, +frmNewDownload
type txtFileName a:b; click cmdOK; show focus -> focus txtFileName, [37 ok], [37 ok], did box of 48 | box of 48, txtFileName=a:b
close -> -frmNewDownload

fails load; capture -> did prompt, +frmNewDownload
type txtFileName a:b; click cmdCancel -> [37 ok], did box of 48, -frmNewDownload

fails load; capture -> did prompt, +frmNewDownload
type txtFileName run; click radFileType(1); show txtFileName chkRetainBIN; click radFileType(0); show txtFileName chkRetainBIN -> txtFileName=run.map, chkRetainBIN off, chkRetainBIN=&Retain Binary File, chkRetainBIN checked, txtFileName=run.txt, chkRetainBIN=&Retain Binary File, chkRetainBIN checked, txtFileName=run.txt
close -> -frmNewDownload

fails load; capture -> did prompt, +frmNewDownload
click radFileType(1); show txtFileName -> txtFileName=, radFileType(0) unchecked, radFileType(1) checked, chkRetainBIN off
close -> -frmNewDownload

fails load; capture -> did prompt, +frmNewDownload
click cmdOK; show txtFileName focus -> txtFileName=, focus txtFileName, [That's an interesting file name.  However, something more practical is required. ok], did box of 64
close -> -frmNewDownload

answer no; fails load; capture -> did prompt, +frmNewDownload
type txtFileName old; click cmdOK; show focus -> focus txtFileName, [File already exists.  Overwrite? no], did box of 36, txtFileName=old.txt
close -> -frmNewDownload

set Retain Binary Files=N; fails load; capture -> did prompt, +frmNewDownload
show chkRetainBIN radFileType(0); click cmdCancel -> chkRetainBIN=&Retain Binary File, chkRetainBIN unchecked, radFileType(0)=&Data Log, radFileType(0) checked, -frmNewDownload

fails load; capture -> did prompt, +frmNewDownload
whole; click cmdCancel -> -frmNewDownload

name 2026-11-24a -> +frmNewDownload
show txtFileName radFileType(1) chkRetainBIN -> txtFileName=2026-11-24a, radFileType(1)=&Zone Settings, radFileType(1) checked, chkRetainBIN off, chkRetainBIN=&Retain Binary File, chkRetainBIN checked
close -> -frmNewDownload

== ConvertBINTakesPathsThatCanBe
convert -> +frmConvertBIN
show txtPath(0) txtPath(1) chkAutoLoad -> txtPath(0)=, txtPath(1)=, chkAutoLoad=&Automatically Load After Conversion, chkAutoLoad checked
close -> did target none, -frmConvertBIN

open C:\Logs\a.txt; convert -> +frmConvertBIN
show txtPath(0) txtPath(1) -> txtPath(0)=C:\Logs\, txtPath(1)=C:\Logs\
close -> did target none, -frmConvertBIN

open /a/b; set Last Converted Binary File=/old/b.bin; convert -> +frmConvertBIN
show txtPath(0) -> txtPath(0)=/old/
close -> did target none, -frmConvertBIN

convert -> +frmConvertBIN
whole; click cmdCancel -> did target none, -frmConvertBIN

# A path that is none keeps its text, and the focus.
convert -> +frmConvertBIN
type txtPath(0) /nowhere/*.bin; show focus -> focus txtPath(0), [36 ok], did box of 48, txtPath(0)=/nowhere/*.bin
close -> did target none, -frmConvertBIN

convert -> +frmConvertBIN
type txtPath(0) run.bin -> [36 ok], did box of 48, txtPath(0)=run.bin
close -> did target none, -frmConvertBIN

convert -> +frmConvertBIN
type txtPath(0) /logs/ru?.xxx; show focus -> focus txtPath(0), [37 ok], did box of 48, txtPath(0)=/logs/ru?.xxx
close -> did target none, -frmConvertBIN

convert -> +frmConvertBIN
type txtPath(0) /logs/old.txt -> [35 ok], did box of 48, txtPath(0)=/logs/old.txt
close -> did target none, -frmConvertBIN

convert -> +frmConvertBIN
type txtPath(0) /logs/none.bin -> [35 ok], did box of 48, txtPath(0)=/logs/none.bin
close -> did target none, -frmConvertBIN

file /logs/K.Dat=; convert -> +frmConvertBIN
type txtPath(0) /logs/K.Dat -> txtPath(0)=/logs/K.Dat
close -> did target none, -frmConvertBIN

convert -> +frmConvertBIN
type txtPath(1) /nowhere/a -> [36 ok], did box of 48, txtPath(1)=/nowhere/a
close -> did target none, -frmConvertBIN

convert -> +frmConvertBIN
type txtPath(1) /logs/a|b; show focus -> focus txtPath(1), [37 ok], did box of 48, txtPath(1)=/logs/a|b
close -> did target none, -frmConvertBIN

convert -> +frmConvertBIN
type txtPath(1) /logs/; show focus -> focus txtPath(1), [37 ok], did box of 48, txtPath(1)=/logs/
close -> did target none, -frmConvertBIN

convert -> +frmConvertBIN
type txtPath(1) /logs/a -> txtPath(1)=/logs/a.txt
close -> did target none, -frmConvertBIN

convert -> +frmConvertBIN
type txtPath(1) /logs/a.b.c -> txtPath(1)=/logs/a.b.txt
close -> did target none, -frmConvertBIN

# Nobody is stopped on the way to its own Browse or to Cancel.
convert -> +frmConvertBIN
type txtPath(0) x; click cmdBrowse(0); click cmdCancel -> [36 ok], [open "Open" of Source files (*.bin; *.dat) cancel], did box of 48 | looks into x | target none, -frmConvertBIN

convert -> +frmConvertBIN
type txtPath(0) x; click cmdBrowse(1); click chkAutoLoad; click cmdOK -> [36 ok], [36 ok], [36 ok], [36 ok], did box of 48 | box of 48 | box of 48 | box of 48, txtPath(0)=x
close -> did target none, -frmConvertBIN

answer file /logs/old.txt; answer cancel; answer file /logs/b; convert -> +frmConvertBIN
click cmdBrowse(0); show txtPath(0); click cmdBrowse(1); show txtPath(1); click cmdBrowse(1); show txtPath(1) -> txtPath(0)=/logs/old.txt, txtPath(1)=, txtPath(1)=/logs/b, [open "Open" of Source files (*.bin; *.dat) /logs/old.txt], [save "Save As" of Data Log files (*.txt) cancel], [save "Save As" of Data Log files (*.txt) /logs/b], did looks into  | looks into  | looks into , txtPath(0)=/logs/old.txt, txtPath(1)=/logs/b
close -> did target none, -frmConvertBIN

open /logs/b.txt; answer file /logs/b.txt; convert -> +frmConvertBIN
click cmdBrowse(1); show txtPath(1) -> txtPath(1)=/logs/b.txt, [save "Save As" of Data Log files (*.txt) /logs/b.txt], did looks into /logs/, txtPath(1)=/logs/b.txt
close -> did target none, -frmConvertBIN

protected /logs/b.txt; answer file /logs/b.txt; answer cancel; convert -> +frmConvertBIN
click cmdBrowse(1); show txtPath(1) -> txtPath(1)=, [save "Save As" of Data Log files (*.txt) /logs/b.txt], [Protected:\n/logs/b.txt\n\nPlease choose another name. cancel], [save "Save As" of Data Log files (*.txt) cancel], did looks into  | box of 48 | looks into /logs/b.txt
close -> did target none, -frmConvertBIN

# Enter presses OK with the caret still in the field.
convert -> +frmConvertBIN
write txtPath(0) x; key Enter -> [36 ok], did box of 48, txtPath(0)=x
close -> did target none, -frmConvertBIN

== ConvertBINGoesFromStepToStep
file /logs/run.bin=binary; file /mdos/miata.map=x; file /link/miata.map=y; convert -> +frmConvertBIN
type txtPath(0) /logs/run.bin; type txtPath(1) /logs/run; click cmdOK -> did run /mdos/C.exe in /mdos/ | target /logs/run.txt, -frmConvertBIN
read /logs/run.txt; list /; setting Last Converted Binary File -> did text of binary | link/L.exe link/miata.map logs/old.txt logs/run.bin logs/run.txt mdos/C.exe mdos/miatatmp.bin mdos/miatatmp.txt  | /logs/run.bin

file /logs/run.bin=binary; gone /mdos/C.exe; file /logs/run.txt=x; convert -> +frmConvertBIN
type txtPath(0) /logs/run.bin; type txtPath(1) /logs/run; click cmdOK -> [11 ok], did box of 64, txtPath(0)=/logs/run.bin, txtPath(1)=/logs/run.txt
close -> did target none, -frmConvertBIN

file /logs/run.bin=binary; file /logs/run.txt=open; open /logs/run.txt; answer no; convert -> +frmConvertBIN
type txtPath(0) /logs/run.bin; type txtPath(1) /logs/run; click cmdOK -> [File already exists.  Overwrite? no], did box of 36, txtPath(0)=/logs/run.bin, txtPath(1)=/logs/run.txt
close -> did target none, -frmConvertBIN
answer yes; convert -> +frmConvertBIN
type txtPath(0) /logs/run.bin; type txtPath(1) /logs/run; click cmdOK -> [File already exists.  Overwrite? yes], did box of 36 | run /mdos/C.exe in /mdos/ | target /logs/run.txt, -frmConvertBIN
read /logs/run.txt -> did text of binary

file /logs/run.bin=binary; C nothing; file /logs/run.txt=x; file /mdos/miatatmp.txt=old; convert -> +frmConvertBIN
type txtPath(0) /logs/run.bin; type txtPath(1) /logs/run; click cmdOK -> [File already exists.  Overwrite? yes], [25 ok], did box of 36 | run /mdos/C.exe in /mdos/ | box of 48 | target none, -frmConvertBIN
list /logs; setting Last Converted Binary File -> did /old.txt /run.bin  | 

file /logs/run.bin=binary; exits 5; broken /logs/run.txt; convert -> +frmConvertBIN
type txtPath(0) /logs/run.bin; type txtPath(1) /logs/run; click cmdOK -> [38 ok], did run /mdos/C.exe in /mdos/ | box of 48 | target none, -frmConvertBIN

file /logs/run.bin=binary; broken /mdos/miatatmp.bin; convert -> +frmConvertBIN
type txtPath(0) /logs/run.bin; type txtPath(1) /logs/run; click cmdOK -> [38 ok], did box of 48, txtPath(0)=/logs/run.bin, txtPath(1)=/logs/run.txt
close -> did target none, -frmConvertBIN

file /logs/run.bin=binary; answer stop; convert -> +frmConvertBIN
type txtPath(0) /logs/run.bin; type txtPath(1) /logs/run; click cmdOK -> [C.exe was left alone and may still be at work, so nothing is known of its result. ok], did run /mdos/C.exe in /mdos/ | box of 48 | target none, -frmConvertBIN
convert -> +frmConvertBIN
type txtPath(0) /logs/run.bin; type txtPath(1) /logs/run; click cmdOK -> [A program that was left alone is still running.\nWait until it has ended, then try again. ok], did box of 48, txtPath(0)=/logs/run.bin, txtPath(1)=/logs/run.txt
close -> did target none, -frmConvertBIN

file /logs/run.bin=binary; trouble Exec format error; file /logs/run.txt=x; file /mdos/miatatmp.bin=old; convert -> +frmConvertBIN
type txtPath(0) /logs/run.bin; type txtPath(1) /logs/run; click cmdOK -> [File already exists.  Overwrite? yes], [C.exe could not be started:\nExec format error ok], did box of 36 | run /mdos/C.exe in /mdos/ | box of 48, txtPath(0)=/logs/run.bin, txtPath(1)=/logs/run.txt
close -> did target none, -frmConvertBIN
read /logs/run.txt; read /mdos/miatatmp.bin -> did x | old

# What lies among the leftovers is converted and not deleted.
file /mdos/miata.dat=captured; convert -> +frmConvertBIN
type txtPath(0) /mdos/miata.dat; type txtPath(1) /logs/run; click cmdOK -> did run /mdos/C.exe in /mdos/ | target /logs/run.txt, -frmConvertBIN
read /logs/run.txt; read /mdos/miata.dat -> did text of captured | captured

file /mdos/miatatmp.bin=kept; convert -> +frmConvertBIN
type txtPath(0) /mdos/miatatmp.bin; type txtPath(1) /logs/run; click cmdOK -> did run /mdos/C.exe in /mdos/ | target /logs/run.txt, -frmConvertBIN
read /logs/run.txt -> did text of kept
