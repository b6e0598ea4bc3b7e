== ShowsACarAndGivesItBackOnOK
show txtWheelRadius txtSetPointPower txtSetPointSpeed txtCarWeight txtCarContentsWeight txtTotalWeight txtTyreRPM txtFrontalArea lblCarWeight -> txtWheelRadius off, txtWheelRadius=11.50, txtSetPointPower=100, txtSetPointSpeed=115, txtCarWeight=2420, txtCarContentsWeight=180, txtTotalWeight=2600, txtTyreRPM off, txtTyreRPM=887, txtFrontalArea off, txtFrontalArea=2.00, lblCarWeight=Car Kerb Weight (lb)
show txtGearRatios(2) txtGearRatios(6) cboTyreWidth cboTyreProfile cboWheelDiameter cboDefGear txtCD -> txtGearRatios(2)=1.330, txtGearRatios(6)=4.100, cboTyreWidth list=[125|135|145|155|165|175|185|195|205|215|225|235|245|255|265|275|285|295|305|315|325|335|345|355], cboTyreWidth=185, cboTyreProfile list=[25|30|35|40|45|50|55|60|65|70|75|80|85], cboTyreProfile=60, cboWheelDiameter list=[10|11|12|13|14|15|16|17|18|19|20|21|22], cboWheelDiameter=14, cboDefGear list=[1st|2nd|3rd|4th|5th|6th], cboDefGear=4th, txtCD off, txtCD=0.40
type txtName Mine; type txtGearRatios(6) 3.9; choose cboWheelDiameter 15; choose cboDefGear 2nd -> txtName=Mine, cboWheelDiameter=15, txtGearRatios(6)=3.9, cboDefGear=2nd
type txtCarWeight 2400 -> txtCarWeight=2400, txtTotalWeight=2580
click optRevsPerMile -> optTyreSize unchecked, cboTyreWidth off, cboTyreProfile off, cboWheelDiameter off, optRevsPerMile checked, txtTyreRPM on
click optRadius -> optRevsPerMile unchecked, txtTyreRPM off, optRadius checked, txtWheelRadius on
click optAeroCD -> optAeroSetPoint unchecked, txtSetPointPower off, txtSetPointSpeed off, optAeroCD checked, txtCD on, txtFrontalArea on
type txtCD 1.2 -> txtCD=0.99
type txtFrontalArea abc -> txtFrontalArea=0.01
# Enter leaves the field first.
write txtCD 5; key Enter -> -frmCarDefinitionDetails, car=accepted Name=Mine, Diff Ratio=3.900, Wheel Diameter=15, Tyre Size Method=3, Use Drag Coefficient=Y, Drag Coefficient=0.99, Frontal Area=0.01, Default Gear=2, Car Weight=2400,

== OtherUnitsAskToConvertAndChangeTheLabelsInAnyCase
answer yes; click optUnits(1) -> [Convert field entries from imperial to metric as well? yes], optUnits(0) unchecked, optUnits(1) checked, optRevsPerMile=Revs per km, txtTyreRPM=551, optRadius=Drive Wheel Radius (mm), txtWheelRadius=292.10, lblSetPointPower=Wheel Power (kW), txtSetPointPower=75, lblSetPointSpeed=Speed (kmh), txtSetPointSpeed=185, lblFrontalArea=Frontal Area (m2), txtFrontalArea=0.19, lblCarWeight=Car Kerb Weight (kg), txtCarWeight=1098, lblCarContentsWeight=Car Contents Weight (kg), txtCarContentsWeight=82, lblTotalWeight=Total Car Weight (kg), txtTotalWeight=1180
answer no; click optUnits(0) -> [Convert field entries from metric to imperial as well? no], optUnits(0) checked, optUnits(1) unchecked, optRevsPerMile=Revs per Mile, optRadius=Drive Wheel Radius (inches), lblSetPointPower=Wheel Power (hp), lblSetPointSpeed=Speed (mph), lblFrontalArea=Frontal Area (ft2), lblCarWeight=Car Kerb Weight (lb), lblCarContentsWeight=Car Contents Weight (lb), lblTotalWeight=Total Car Weight (lb)

== AChangedFormAsksBeforeItIsLeft
open; click cmdCancel
open; type txtDesc changed; answer no; click cmdCancel -> [Do you want to keep Car Definition changes? no]
open; type txtDesc changed; answer yes; click cmdCancel -> [Do you want to keep Car Definition changes? yes], car=accepted Description=changed,

== SavesAndLoadsFilesOfItsFields
type txtName Mine -> txtName=Mine
answer file /cars/mine; click cmdSave -> [save "Save As" of Car Definition files (*.car) /cars/mine]
answer file /cars/none.car; click cmdLoad -> [open "Load" of Car Definition files (*.car) /cars/none.car], [57 ok]
answer file /cars/missing.car; click cmdLoad -> [open "Load" of Car Definition files (*.car) /cars/missing.car], [57 ok]
answer file /cars/other.car; click cmdLoad -> [open "Load" of Car Definition files (*.car) /cars/other.car], txtName=Other, optUnits(0) unchecked, optUnits(1) checked, optTyreSize unchecked, cboTyreWidth off, cboTyreWidth list=[125|135|145|155|165|175|185|195|205|215|225|235|245|255|265|275|285|295|305|315|325|335|345|355|187], cboTyreWidth=187, cboTyreProfile off, cboWheelDiameter off, optRevsPerMile=Revs per km, optRadius=Drive Wheel Radius (mm), optRadius checked, txtWheelRadius on, lblSetPointPower=Wheel Power (kW), lblSetPointSpeed=Speed (kmh), lblFrontalArea=Frontal Area (m2), lblCarWeight=Car Kerb Weight (kg), lblCarContentsWeight=Car Contents Weight (kg), lblTotalWeight=Total Car Weight (kg)
