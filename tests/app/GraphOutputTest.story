== ThePageTellsFileAndRangeAsTheGraphWasDrawn
range 11 31 -> graph=11-31 at 21, PlotRangeFrom=11, PlotRangeTo=31, txtYMax=240, staDataLogViewer[0]=Sample: 21, Secs: 1.720
type PlotRangeTo 40; answer printer; click mnuFilePrint -> [printer "" ok], pages=1, graph=11-31 at 0, page=Tarnview Sample Graph|File : |/logs/run.txt|Sample Range From : |11 to 31|Time Range From : |0.901 secs to 2.540 secs|, PlotRangeTo=40
click mnuFilePrintPreview -> pages=2
answer printer; click mnuRightClickPrint -> [printer "" ok], pages=3
click mnuCopy -> copied=1
click mnuRightClickCopy -> copied=2
answer ok; click mnuFileSavePicture -> [save "Save Picture As" of PNG picture (*.png) ok], pictures=/logs/run.png
