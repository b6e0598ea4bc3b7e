== TakesBoundsOfANumber
show cboFrom cboTo -> cboFrom list=[], cboFrom=60, cboTo list=[], cboTo=
type cboFrom ""; type cboTo " "; click cmdOK -> [44 ok], cboFrom=
type cboFrom 60.5; type cboTo 60; click cmdOK -> [45 ok], cboFrom=60.5, cboTo=60
type cboFrom 5; type cboTo 5; click cmdOK -> -frmScatterFilter, filter=5 5 5
again; type cboFrom ""; type cboTo 1e2x; click cmdOK -> filter=5 - 1
again; type cboFrom x; type cboTo -0; click cmdOK -> filter=5 0 0
again; type cboFrom .50; type cboTo ""; click cmdOK -> filter=5 0.5 -
again; show cboFrom -> cboFrom list=[], cboFrom=0.5, +frmScatterFilter, filter=5 0.5 -?

== TakesAValueOfAList
choose imgcboDataItem "Throttle Switch" -> imgcboDataItem=Throttle Switch, cboFrom list=[None|Idle|WOT], cboFrom=None, cboTo off
type cboFrom wide; show focus -> focus cboFrom, [42 ok], cboFrom=wide
click cmdOK -> [42 ok]
type cboFrom wot -> cboFrom=WOT
click cmdOK -> -frmScatterFilter, filter=15 2 -

== TakesAValueOfAList 2
show cboFrom -> cboFrom list=[None|Idle|WOT], cboFrom=Idle
choose imgcboDataItem RPM -> imgcboDataItem=RPM, cboFrom list=[], cboFrom=, cboTo on

== LeavesWithoutAQuestion
choose imgcboDataItem "Throttle Switch" -> imgcboDataItem=Throttle Switch, cboFrom list=[None|Idle|WOT], cboFrom=None, cboTo off
write cboFrom wide; key Escape -> -frmScatterFilter
again; write cboFrom wide; click cmdCancel
