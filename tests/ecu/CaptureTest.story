== GoesFromStepToStep
set Serial Com Port=2; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> did close | run /link/L.exe -p 2 -t in /link/ | run /mdos/C.exe in /mdos/ | load /logs/run.txt 1, -frmNewDownload
list /; read /logs/run.txt; read /logs/run.bin; read /link/NewDataLogDescription.txt -> did link/L.exe link/NewDataLogDescription.txt link/miata.dat link/miata.map logs/old.txt logs/run.bin logs/run.txt mdos/C.exe mdos/miatatmp.bin mdos/miatatmp.txt  | text of binary | binary | [General]\nPath and Filename=/logs/run.txt\n

set Default Working Directory=/logs; set Retain Binary Files=N; exits 0; exits 7; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> did close | run /link/L.exe -t in /link/ | run /mdos/C.exe in /mdos/ | load /logs/run.txt 1, -frmNewDownload
list /logs -> did /old.txt /run.txt 

capture -> did prompt, +frmNewDownload
type txtFileName run; click radFileType(1); click cmdOK -> did close | run /link/L.exe -m -t in /link/ | load /logs/run.map 2 | save /logs/run.map, -frmNewDownload
read /logs/run.map; list /logs -> did zones | /old.txt /run.map 

set Serial Com Port=9; capture -> did prompt, +frmNewDownload
type txtFileName run; click radFileType(1); click cmdOK -> did close | run /link/L.exe -m -p 9 -t in /link/ | load /logs/run.map 2 | save /logs/run.map, -frmNewDownload

fails save; capture -> did prompt, +frmNewDownload
type txtFileName run; click radFileType(1); click cmdOK -> [12 ok], did close | run /link/L.exe -m -t in /link/ | load /logs/run.map 2 | save /logs/run.map | box of 64 | say Loading failed, -frmNewDownload

fails load; capture -> did prompt, +frmNewDownload
type txtFileName run; click radFileType(1); click cmdOK -> did close | run /link/L.exe -m -t in /link/ | load /logs/run.map 2, -frmNewDownload

L nothing; capture -> did prompt, +frmNewDownload
type txtFileName run; click radFileType(1); click cmdOK -> [14 ok], did close | run /link/L.exe -m -t in /link/ | box of 48, -frmNewDownload

L nothing; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [13 ok], did close | run /link/L.exe -t in /link/ | box of 48, -frmNewDownload

C nothing; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [25 ok], did close | run /link/L.exe -t in /link/ | run /mdos/C.exe in /mdos/ | box of 48, -frmNewDownload
list /logs -> did /old.txt /run.bin 

exits -22; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [Error opening comm port., -22 ok], did close | run /link/L.exe -t in /link/ | box of 48, -frmNewDownload
list /logs -> did /old.txt 

broken /logs/run.txt; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [38 ok], did close | run /link/L.exe -t in /link/ | run /mdos/C.exe in /mdos/ | box of 48, -frmNewDownload

broken /logs/run.bin; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [38 ok], did close | run /link/L.exe -t in /link/ | box of 48, -frmNewDownload

broken /mdos/miatatmp.bin; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [38 ok], did close | run /link/L.exe -t in /link/ | box of 48, -frmNewDownload

# The log that is open goes, too, once the user says so.
file /logs/run.txt=open; open /logs/run.txt; answer yes; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [File already exists.  Overwrite? yes], did box of 36 | close | run /link/L.exe -t in /link/ | run /mdos/C.exe in /mdos/ | load /logs/run.txt 1, -frmNewDownload
read /logs/run.txt -> did text of binary

file /logs/run.txt=old; answer no; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [File already exists.  Overwrite? no], did box of 36, txtFileName=run.txt
close -> -frmNewDownload
read /logs/run.txt -> did old

file /logs/run.txt=old; protected /logs/run.txt; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [Protected:\n/logs/run.txt\n\nPlease choose another name. ok], did box of 48, txtFileName=run.txt
close -> -frmNewDownload

answer stop; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [L.exe was left alone and may still be at work, so nothing is known of its result. ok], did close | run /link/L.exe -t in /link/ | box of 48, -frmNewDownload
capture -> [A program that was left alone is still running.\nWait until it has ended, then try again. ok], did prompt | box of 48
ended; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> did close | run /link/L.exe -t in /link/ | run /mdos/C.exe in /mdos/ | load /logs/run.txt 1, -frmNewDownload

== IsRefusedBeforeAnythingIsTouched
leftovers; fails prompt; capture -> did prompt
list / -> did link/L.exe link/miata.dat link/miata.map link/miatatmp.bin link/miatatmp.txt logs/old.txt mdos/C.exe mdos/miata.dat mdos/miata.map mdos/miatatmp.bin mdos/miatatmp.txt 

leftovers; gone /link/L.exe; gone /mdos/C.exe; capture -> [6 ok], did prompt | box of 64
list / -> did link/miata.dat link/miata.map link/miatatmp.bin link/miatatmp.txt logs/old.txt mdos/miata.dat mdos/miata.map mdos/miatatmp.bin mdos/miatatmp.txt 

leftovers; set Log EXE=; capture -> [6 ok], did prompt | box of 64
list / -> did link/L.exe link/miata.dat link/miata.map link/miatatmp.bin link/miatatmp.txt logs/old.txt mdos/C.exe mdos/miata.dat mdos/miata.map mdos/miatatmp.bin mdos/miatatmp.txt 

leftovers; gone /mdos/C.exe; set Default Working Directory=/nowhere; capture -> [11 ok], did prompt | box of 64
list / -> did link/L.exe link/miata.dat link/miata.map link/miatatmp.bin link/miatatmp.txt logs/old.txt mdos/miata.dat mdos/miata.map mdos/miatatmp.bin mdos/miatatmp.txt 

leftovers; set Conversion EXE=; capture -> [11 ok], did prompt | box of 64
list / -> did link/L.exe link/miata.dat link/miata.map link/miatatmp.bin link/miatatmp.txt logs/old.txt mdos/C.exe mdos/miata.dat mdos/miata.map mdos/miatatmp.bin mdos/miatatmp.txt 

leftovers; set Default Working Directory=/nowhere; capture -> [32 ok], did prompt | box of 48
list / -> did link/L.exe link/miata.dat link/miata.map link/miatatmp.bin link/miatatmp.txt logs/old.txt mdos/C.exe mdos/miata.dat mdos/miata.map mdos/miatatmp.bin mdos/miatatmp.txt 

leftovers; set Default Working Directory=; capture -> [32 ok], did prompt | box of 48
list / -> did link/L.exe link/miata.dat link/miata.map link/miatatmp.bin link/miatatmp.txt logs/old.txt mdos/C.exe mdos/miata.dat mdos/miata.map mdos/miatatmp.bin mdos/miatatmp.txt 

leftovers; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdCancel -> -frmNewDownload
list / -> did link/L.exe link/miata.dat link/miata.map link/miatatmp.bin link/miatatmp.txt logs/old.txt mdos/C.exe mdos/miata.dat mdos/miata.map mdos/miatatmp.bin mdos/miatatmp.txt 

== MakesRoomAndGivesItBackWhereTheProgramDoesNotStart
leftovers; file /logs/run.txt=9; L nothing; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [File already exists.  Overwrite? yes], [13 ok], did box of 36 | close | run /link/L.exe -t in /link/ | box of 48, -frmNewDownload
list / -> did link/L.exe link/NewDataLogDescription.txt logs/old.txt mdos/C.exe 

leftovers; file /logs/run.txt=9; trouble Permission denied; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [File already exists.  Overwrite? yes], [L.exe could not be started:\nPermission denied ok], did box of 36 | close | run /link/L.exe -t in /link/ | box of 48, -frmNewDownload
list /; read /mdos/miatatmp.txt; read /logs/run.txt -> did link/L.exe link/NewDataLogDescription.txt link/miata.dat link/miata.map link/miatatmp.bin link/miatatmp.txt logs/old.txt logs/run.txt mdos/C.exe mdos/miata.dat mdos/miata.map mdos/miatatmp.bin mdos/miatatmp.txt  | /mdos/ | 9

== ProposesNamesAndCountsThoseThatWereLoaded
# One that was not loaded keeps its number; a name is taken with any extension.
set Auto File Names=Y; capture -> did prompt, +frmNewDownload
show txtFileName; click cmdOK -> txtFileName=2026-11-24a, did close | run /link/L.exe -t in /link/ | run /mdos/C.exe in /mdos/ | load /logs/2026-11-24a.txt 1, -frmNewDownload
capture -> did prompt, +frmNewDownload
show txtFileName; click cmdOK -> txtFileName=2026-11-24b, did close | run /link/L.exe -t in /link/ | run /mdos/C.exe in /mdos/ | load /logs/2026-11-24b.txt 1, -frmNewDownload
file /logs/2026-11-24c.sam=; file /logs/2026-11-24d=; fails load; capture -> did prompt, +frmNewDownload
show txtFileName; click cmdOK -> txtFileName=2026-11-24e, did close | run /link/L.exe -t in /link/ | run /mdos/C.exe in /mdos/ | load /logs/2026-11-24e.txt 1, -frmNewDownload
gone /logs/2026-11-24e.txt; gone /logs/2026-11-24e.bin; capture -> did prompt, +frmNewDownload
show txtFileName; click cmdOK -> txtFileName=2026-11-24e, did close | run /link/L.exe -t in /link/ | run /mdos/C.exe in /mdos/ | load /logs/2026-11-24e.txt 1, -frmNewDownload
set Auto File Names=N; capture -> did prompt, +frmNewDownload
show txtFileName; click cmdOK -> txtFileName=, [That's an interesting file name.  However, something more practical is required. ok], did box of 64
close -> -frmNewDownload

set Auto File Names=Y; capture -> did prompt, +frmNewDownload
type txtFileName run; click radFileType(1); click cmdOK -> did close | run /link/L.exe -m -t in /link/ | load /logs/run.map 2 | save /logs/run.map, -frmNewDownload
gone /logs/2026-11-24a.map; capture -> did prompt, +frmNewDownload
show txtFileName radFileType(1) chkRetainBIN -> txtFileName=2026-11-24b, radFileType(1)=&Zone Settings, radFileType(1) unchecked, chkRetainBIN=&Retain Binary File, chkRetainBIN checked
close -> -frmNewDownload
