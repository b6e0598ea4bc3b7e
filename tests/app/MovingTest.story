== ShiftUpAndDownWalkTheCurvesByTheirHeightAndStopAtTheEnds
range 501 601 -> height=10.01, PlotRangeFrom=501, PlotRangeTo=601, staDataLogViewer[0]=Sample: 601, Secs: 49.234
key Shift+Down -> height=10
key Shift+Down -> height=9
key Shift+Down -> height=0
key Shift+Down; key Shift+Down; key Shift+Down; key Shift+Down; key Shift+Down
key Shift+Up -> height=9
key Shift+Up -> height=10
key Shift+Up -> height=10.01
key Shift+Up; key Shift+Up -> height=40
key Shift+Up -> height=80
key Shift+Up; key Shift+Up -> height=147
# To what names an item.
key Shift+F; show focus -> focus txtFindItem
