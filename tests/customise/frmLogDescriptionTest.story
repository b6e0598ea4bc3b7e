== OfRubbishCannotBeAccepted
show cmdOK lvwHead -> cmdOK off, cmdOK=OK, lvwHead columns=[Line|Is|Text], lvwHead count=2, lvwHead[1]=[1|Preamble|no log], lvwHead[1] unselected, lvwHead[2]=[2|Preamble|at all], lvwHead[2] unselected

== OfRubbishCannotBeAccepted 2
show cmdOK lvwHead[1] lvwColumns[1] lvwColumns[2] -> cmdOK=OK, lvwHead[1]=[1|Titles|RPM Time], lvwHead[1] unselected, lvwColumns[1]=[RPM||900  901  902|900|902|RPM||0|Yes], lvwColumns[1] selected, lvwColumns[2]=[Time||1  2  3|1|3|Secs||0|Yes], lvwColumns[2] unselected

== ALineFrequencyIsHeldToItsLimits
show txtLineFrequency -> txtLineFrequency=12.5
type txtLineFrequency 0 -> txtLineFrequency=0.01
type txtLineFrequency 100001 -> txtLineFrequency=100000
type txtLineFrequency 20 -> txtLineFrequency=20
key F1; key Enter -> -frmLineFrequency, help=AnyLog
