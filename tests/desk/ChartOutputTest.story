== AChartIsCopiedPrintedAndSaved
click mnu(0) -> cannot: mnu(0) is disabled
draw -> mnu(0) on, mnu(1) on, mnu(2) on, mnu(3) on, mnu(4) on, mnu(5) on
click mnu(0) -> copied=1
click mnu(1) -> copied=2
answer printer; click mnu(2) -> [printer "" ok], page Tarnview Sample Graph; File : ; /logs/run.txt; 1 picture, pages=1
answer printer; click mnu(3) -> [printer "" ok], page Tarnview Sample Graph; File : ; /logs/run.txt; 1 picture, pages=2
answer cancel; click mnu(3) -> [printer "" cancel]
click mnu(4) -> page Tarnview Sample Graph; File : ; /logs/run.txt; 1 picture, pages=3
# Named after the log, with the ending of the kind that is chosen.
answer ok; click mnu(5) -> [save "Save Picture As" of PNG picture (*.png) ok], pictures=/logs/run.1.png
answer file /out/a.svg; click mnu(5) -> [save "Save Picture As" of PNG picture (*.png) /out/a.svg], pictures=/logs/run.1.png /out/a.svg
kind /out/b 3; click mnu(5) -> [save "Save Picture As" of PNG picture (*.png) /out/b], pictures=/logs/run.1.png /out/a.svg /out/b.pdf
answer cancel; click mnu(5) -> [save "Save Picture As" of PNG picture (*.png) cancel]
refuse "The disk is full."; answer file /out/a.png; click mnu(5) -> [save "Save Picture As" of PNG picture (*.png) /out/a.png], [Problem saving the picture /out/a.png.\n\nThe disk is full. ok], logged Number       : 75 The disk is full.\n\n--------------------------------------------------\n
answer printer; click mnu(2) -> [printer "" ok], [Problem printing the graph.\n\nThe disk is full. ok], logged Number       : 482 The disk is full.\n\n--------------------------------------------------\n
