== ALogThatWasCapturedOrConvertedIsOpened
click mnuFileNew -> +frmNewDownload
type txtFileName new; click cmdOK -> [16 ok], wrote NewDataLogDescription.txt new.bin miatatmp.bin new.txt, -frmNewDownload, graph=none, caption=Tarnview - new.txt (FM Link Data Log), PlotRangeTo=50, staDataLogViewer[0]=Loading complete, staDataLogViewer[2]=Sample Load Range 1 - 50
show mnuRecentlyUsed(0) -> mnuRecentlyUsed(0)=&1 /logs/new.txt
click mnuFileNew -> +frmNewDownload
type txtFileName newer; fail; click cmdOK -> [Error opening comm port., -22 ok], wrote miata.dat miatatmp.bin miatatmp.txt NewDataLogDescription.txt, -frmNewDownload, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[2]=
show "cmdDrawGraph enabled" -> cmdDrawGraph off
click mnuToolsConvert -> +frmConvertBIN
type txtPath(0) /logs/kept.bin; type txtPath(1) /logs/kept; click chkAutoLoad; click cmdOK -> wrote miatatmp.bin kept.txt, -frmConvertBIN
click mnuToolsConvert -> +frmConvertBIN
type txtPath(0) /logs/kept.bin; type txtPath(1) /logs/kept; answer yes; click cmdOK -> [File already exists.  Overwrite? yes], [16 ok], wrote kept.txt miatatmp.bin miatatmp.txt miatatmp.bin kept.txt, -frmConvertBIN, caption=Tarnview - kept.txt (FM Link Data Log), PlotRangeFrom=1, PlotRangeTo=50, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[2]=Sample Load Range 1 - 50
