== ShowsAChangeOnceTheLoopTurns
# The toolbar's view of a button keeps its own text.
code -> screen tbrDraw=Draw off, fraPicture= hidden, PlotRangeFrom=17 focus, cmdDrawGraph=&Draw off, chkQuickGraph=&Quick ticked, lblZoomAmount=Weite in µs, caption=Tarnview - run.txt, PlotRangeFrom=17, cmdDrawGraph off, chkQuickGraph=      &Quick , chkQuickGraph checked, fraPicture hidden, staDataLogViewer[0]=Loading

== TypingAndLeavingAFieldReachesItsControl
mouse PlotRangeFrom; show focus -> focus PlotRangeFrom
keys 1 -> screen PlotRangeFrom=1 focus, PlotRangeFrom=1
keys 2 -> screen PlotRangeFrom=12 focus, PlotRangeFrom=12
# A correction is shown.
mouse PlotRangeTo; show focus -> focus PlotRangeTo, screen PlotRangeFrom=9, PlotRangeTo= focus, PlotRangeFrom=9
write PlotRangeFrom 5 -> screen PlotRangeFrom=5 [5] focus, PlotRangeTo=, PlotRangeFrom=5

== ButtonsMenusAndArrowsReachTheirControls
press cmdZoomIn -> raised cmdZoomIn
press tbrZoomIn -> raised cmdZoomIn
press tbrOpen -> raised mnuFileOpen
press recentFile2 -> raised mnuRecentlyUsed(2)
press chkFixY -> screen chkFixY=Fi&x Graph Max ticked, chkFixY checked
down -> raised updYMax
amount -> screen cboZoomAmount=3, cboZoomAmount=3
hit Ctrl+L -> raised mnuFileOpen
# The form decides whether an entry is ticked.
press mnuViewZoneInfl -> raised mnuViewZoneInfl

== AListGoesBothWays
code -> screen lvwSampleDetails=; RPM 900; x MAP 31 <, lvwSampleDetails count=2, lvwSampleDetails[1]=[RPM|900], lvwSampleDetails[1] unchecked, lvwSampleDetails[1] unselected, lvwSampleDetails[2]=[MAP|31], lvwSampleDetails[2] checked, lvwSampleDetails[2] selected
mouse lvwSampleDetails 1 -> screen PlotRangeFrom=, lvwSampleDetails=; RPM 900 <; x MAP 31 focus, raised click a, lvwSampleDetails[1] selected, lvwSampleDetails[2] unselected
mouse lvwSampleDetails 1 -> raised click a
# The check is taken back.
tick -> raised check a check a
double lvwSampleDetails 2 -> screen lvwSampleDetails=; RPM 900; x MAP 31 < focus, raised click b double b, lvwSampleDetails[1] unselected, lvwSampleDetails[2] selected
heading -> screen lvwSampleDetails=; x MAP 31 <; RPM 900 focus, lvwSampleDetails[1]=[MAP|31], lvwSampleDetails[1] checked, lvwSampleDetails[1] selected, lvwSampleDetails[2]=[RPM|900], lvwSampleDetails[2] unchecked, lvwSampleDetails[2] unselected

== AScrollBarCountsWhenItsThumbIsLetGo
hold; drag 300
release -> screen hsbGraphScroll=300, raised hsbGraphScroll, hsbGraphScroll value=300
page -> screen hsbGraphScroll=400, raised hsbGraphScroll, hsbGraphScroll value=400
# No echo of what is set from code.
scroll hsbGraphScroll 50 -> screen hsbGraphScroll=50, raised hsbGraphScroll, hsbGraphScroll value=50
# While it is held it stays in the hand, and is looked at again when that lets go.
hold; scroll hsbGraphScroll 500; write PlotRangeFrom 1 -> screen PlotRangeFrom=1 focus, raised hsbGraphScroll, PlotRangeFrom=1, hsbGraphScroll value=500
release -> screen hsbGraphScroll=500

== KeysGoThroughTheFormFirst
write PlotRangeFrom 12 -> screen PlotRangeFrom=12 focus, PlotRangeFrom=12
# The form eats Left, so the caret stands at the end.
hit End; hit Left; hit Backspace -> screen PlotRangeFrom=1 focus, keys End, up End, Left, up Left, Backspace, up Backspace, PlotRangeFrom=1
hit Return -> raised cmdDrawGraph, keys Enter, up Enter
hit Ctrl+O -> keys Ctrl+O, up Ctrl+O
# Let go after its modifier, a key counts as it was pressed.
late -> keys Ctrl+I, up Ctrl+I

== AFieldThatHoldsAPathKeepsItsBytes
mouse PlotRangeTo -> screen PlotRangeFrom=, PlotRangeTo= focus
# The next text typed takes the place of what is there.
write PlotRangeFrom /café/ -> screen PlotRangeFrom=/café/ [/café/] focus, PlotRangeTo=, PlotRangeFrom=/café/
hit End -> screen PlotRangeFrom=/café/ focus
# A letter beyond Windows-1252.
keys ł -> screen PlotRangeFrom=/café/ł focus, PlotRangeFrom=/café/ł
