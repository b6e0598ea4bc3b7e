== TheMouseMarksCells
mouse grdData_2 2 3 -> screen tabPages=, grdData_2= focus, grdData(2) row=2, grdData(2) column=3, grdData(2) range=[2|3|2|3]
drag -> grdData(2) range=[1|2|2|3]
extend -> grdData(2) range=[2|1|2|3]
# A heading.
mouse grdData_2 0 2

== ACellIsEditedInItsPlace
double grdData_2 1 1 -> screen tabPages=, field=11 [11] focus, grdData(2) editing=11
keys 25 -> screen field=25 focus, grdData(2) editing=25
up -> screen field=26 focus, grdData(2) editing=26
mouse grdData_2 2 2 -> screen grdData_2= focus, field=26 hidden, grdData(2)[1][1]=26, grdData(2) row=2, grdData(2) column=2, grdData(2) range=[2|2|2|2]
# Typing opens the field with what was typed, and goes on behind that.
keys - -> screen grdData_2=, field=- focus, grdData(2) editing=-
keys 7 -> screen field=-7 focus, grdData(2) editing=-7
double grdData_2 2 3 -> screen field= focus, grdData(2)[2][2]=-7, grdData(2) column=3, grdData(2) range=[2|3|2|3], grdData(2) editing=

== TabsAndChoicesFollowBothWays
tab -> screen fraGrid= hidden, fraUnit=, tabPages=&Unit, fraGrid hidden, fraUnit shown
press radB -> screen radB=B ticked, radB checked
click radA -> screen tabPages=, radA=A ticked focus, radB=B, radA checked, radB unchecked
hit Down -> screen radA=A, radB=B ticked focus, radA unchecked, radB checked
none -> screen radB=B focus, radB unchecked
alone -> screen tabPages= focus, fraUnit= hidden, radB=B, fraGrid=, tabPages list=[Grid alone], tabPages=Grid alone, fraGrid shown, fraUnit hidden
