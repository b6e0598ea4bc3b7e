== ShowsSpeedsAboveZeroAndAsksHowLongFromOneToTheOther
show caption txtSpeedFrom txtSpeedTo txtOffset "chSpeedGraph series" "chSpeedGraph x_axis" "chSpeedGraph y_axis" -> caption=Tarnview Speed Graph - run.txt, txtSpeedFrom=0, txtSpeedTo=0, txtOffset=0, chSpeedGraph series count=2, chSpeedGraph series[0] item=0, chSpeedGraph series[0] name=You, chSpeedGraph series[0] x=[0.1|1.1|2.1], chSpeedGraph series[0] y=[50|60|80.0002236936292], chSpeedGraph series[0] colour=255, chSpeedGraph series[0] style=1, chSpeedGraph series[0] width=3, chSpeedGraph series[1] item=0, chSpeedGraph series[1] name=Benchmark, chSpeedGraph series[1] x=[0|2|4], chSpeedGraph series[1] y=[50|60|80], chSpeedGraph series[1] colour=16711680, chSpeedGraph series[1] style=1, chSpeedGraph series[1] width=3, chSpeedGraph x_axis min=0, chSpeedGraph x_axis max=4, chSpeedGraph x_axis format=#######0.0, chSpeedGraph y_axis max=90, chSpeedGraph y_axis divisions=9
type txtSpeedFrom 50; type txtSpeedTo 80; click cmdCalc -> txtSpeedFrom=50, txtSpeedTo=80, txtResYou=02.00, txtResBench=04.00
type txtSpeedFrom 60; type txtSpeedTo 30; click cmdCalc -> txtSpeedFrom=60, txtSpeedTo=60, txtResYou=00.00, txtResBench=00.00
type txtSpeedFrom 55; type txtSpeedTo 70; click cmdCalc -> txtSpeedFrom=55, txtSpeedTo=70, txtResYou=01.00, txtResBench=02.00
type txtSpeedFrom 40; type txtSpeedTo 70; click cmdCalc -> txtSpeedFrom=40, txtResYou=N/A, txtResBench=N/A
type txtSpeedFrom 60; type txtSpeedTo 90; click cmdCalc -> txtSpeedFrom=60, txtSpeedTo=90
type txtSpeedFrom 60; type txtSpeedTo 70; click cmdCalc -> txtSpeedTo=70, txtResYou=00.50, txtResBench=01.00
click optSpeedUnits(1) -> optSpeedUnits(0) unchecked, optSpeedUnits(1) checked, txtSpeedFrom=97, txtSpeedTo=113, chSpeedGraph series[0] y=[80.4665562675498|96.5598675210598|128.7468500252], chSpeedGraph series[1] y=[80.4665562675498|96.5598675210598|128.74649002808], chSpeedGraph y_axis max=140, chSpeedGraph y_axis divisions=7
click optSpeedUnits(0) -> optSpeedUnits(0) checked, optSpeedUnits(1) unchecked, txtSpeedFrom=60, txtSpeedTo=70, chSpeedGraph series[0] y=[50|60|80.0002236936292], chSpeedGraph series[1] y=[50|60|80], chSpeedGraph y_axis max=90, chSpeedGraph y_axis divisions=9
# The offset moves the benchmark and leaves the results.
type txtOffset -0.5 -> txtOffset=-0.5, chSpeedGraph series[1] x=[-0.5|1.5|3.5], chSpeedGraph x_axis min=-0.5, chSpeedGraph x_axis max=3.5
step updOffset up -> txtOffset=-0.4, chSpeedGraph series[1] x=[-0.4|1.6|3.6], chSpeedGraph x_axis max=4
step updSpeedFrom down -> txtSpeedFrom=59
step updSpeedFrom up; step updSpeedTo up -> txtSpeedFrom=60, txtSpeedTo=71
step updSpeedTo down; step updOffset down -> txtSpeedTo=70, txtOffset=-0.5, chSpeedGraph series[1] x=[-0.5|1.5|3.5], chSpeedGraph x_axis max=3.5
show mnuFile mnuFilePrint mnuFilePrintPreview mnuFileSavePicture mnuFileClose mnuEdit mnuEditCopy mnuHelp mnuHelpHelp mnuRightClick mnuRightClickCopy mnuRightClickPrint -> mnuFile=&File, mnuFilePrint=&Print..., mnuFilePrintPreview=Print Pre&view..., mnuFileSavePicture=Save Pict&ure As..., mnuFileClose=&Close, mnuEdit=&Edit, mnuEditCopy=&Copy Graph, mnuHelp=&Help, mnuHelpHelp=&Speed Graphs, mnuRightClick=Graph, mnuRightClickCopy=&Copy Graph, mnuRightClickPrint=&Print...
click mnuEditCopy; click mnuRightClickCopy; click mnuHelpHelp; answer printer; click mnuRightClickPrint -> [printer "" ok], pages=1, copied=2, help=SpeedGraph
answer file /a; click mnuFileSavePicture -> [save "Save Picture As" of PNG picture (*.png) /a], pictures=/a.png
click mnuFilePrintPreview -> pages=2

== WithoutABenchmarkItsFieldsAreHidden
show lblOffset txtOffset updOffset lblResBench txtResBench "chSpeedGraph series count" -> lblOffset hidden, lblOffset=Benchmark &Offset (Secs), txtOffset hidden, txtOffset=0, updOffset hidden, updOffset min=0, updOffset max=10, lblResBench hidden, lblResBench=Benchmark (Secs), txtResBench hidden, txtResBench=, chSpeedGraph series count=1
answer printer; click mnuFilePrint -> [printer "" ok], pages=1
type txtSpeedFrom 90; type txtSpeedTo 100; click cmdCalc -> txtSpeedFrom=90, txtSpeedTo=100, txtResYou=00.51
answer printer; click mnuFilePrint -> [printer "" ok], pages=2

== ASpeedWithoutEndIsNotShown
click optSpeedUnits(1) -> optSpeedUnits(0) unchecked, optSpeedUnits(1) checked, chSpeedGraph series[1] y=[32.1866225070199], chSpeedGraph y_axis max=35, chSpeedGraph y_axis divisions=7
show "chSpeedGraph series[0] x" "chSpeedGraph series[1] x" "chSpeedGraph y_axis max" -> chSpeedGraph series[0] x count=0, chSpeedGraph series[1] x=[1], chSpeedGraph y_axis max=35
