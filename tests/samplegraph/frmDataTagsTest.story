== AddsTheRangeShowsItAndDeletesIt
tag 10 20; open; show cmdShow cmdDelete -> cmdShow=&Show..., cmdDelete=&Delete, +frmDataTags, tags=10
# No range within the log.
click cmdNew
range 100 200; click cmdNew -> told=1, tags=10 100, lvwTags count=2, lvwTags[1] unselected, lvwTags[2]=[100|200], lvwTags[2] selected
double lvwTags 1 -> graph=10-20, lvwTags[1] selected, lvwTags[2] unselected
row lvwTags 2; key Enter -> graph=100-200, lvwTags[1] unselected, lvwTags[2] selected
tag 15 30; follow -> tags=10 100 15
range 5 9; click cmdNew -> told=2, tags=10 100 15 5, lvwTags count=4, lvwTags[2] unselected, lvwTags[3]=[15|30], lvwTags[3] unselected, lvwTags[4]=[5|9], lvwTags[4] selected
sort lvwTags From -> lvwTags[1]=[5|9], lvwTags[1] selected, lvwTags[2]=[10|20], lvwTags[4]=[100|200], lvwTags[4] unselected
double lvwTags 1 -> graph=5-9
row lvwTags 2; click cmdDelete -> told=3, tags=100 15 5, lvwTags count=3, lvwTags[1]=[100|200], lvwTags[1] unselected, lvwTags[2]=[15|30], lvwTags[2] selected, lvwTags[3]=[5|9], lvwTags[4] selected gone
click cmdDelete; click cmdDelete; click cmdDelete -> told=6, tags=, lvwTags count=0, cmdShow off, cmdDelete off, lvwTags[1] selected gone, lvwTags[2] selected gone, lvwTags[3] selected gone
key F1 -> help=DataTags
key Escape -> -frmDataTags

== TheTagsOfALogThatIsGoneAreAListOfTheWindowAlone
tag 10 20; tag 30 40; open -> +frmDataTags, tags=10 30
no_log; tag 500 600 -> tags=500
double lvwTags 2 -> graph=30-40, lvwTags[1] unselected, lvwTags[2] selected
click cmdDelete -> told=1, lvwTags count=1, lvwTags[1] selected, lvwTags[2] selected gone
follow -> lvwTags[1]=[500|600]
no_log; range 100 200 -> tags=
# A new tag is one of the open log.
click cmdNew -> told=2, tags=100, lvwTags[1]=[100|200]
