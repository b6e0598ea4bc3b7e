== NumberAndTimeFollowEachOtherAndEnterTakesThem
show txtSampleNumber txtSampleTime chkShowPointWidth -> txtSampleNumber=6, txtSampleTime=1.5, chkShowPointWidth=&Use Show Point Width, chkShowPointWidth checked
type txtSampleNumber 7 -> txtSampleNumber=7, txtSampleTime=2
type txtSampleNumber 6.5x -> txtSampleNumber=6, txtSampleTime=1.5
type txtSampleNumber -3 -> txtSampleNumber=5, txtSampleTime=1
type txtSampleNumber 8 -> txtSampleNumber=8, txtSampleTime=2
type txtSampleNumber 99999 -> txtSampleNumber=11, txtSampleTime=4.5
type txtSampleTime 4 -> txtSampleNumber=10, txtSampleTime=4
type txtSampleTime -1 -> txtSampleNumber=5, txtSampleTime=1
type txtSampleTime 1e9 -> txtSampleNumber=11, txtSampleTime=4.5
type txtSampleTime x -> txtSampleNumber=5, txtSampleTime=1
click chkShowPointWidth -> chkShowPointWidth unchecked
write txtSampleTime 2; key Enter -> -frmGoto
