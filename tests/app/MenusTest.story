== AndAllElseOfTheirWindowsIsAsItIsToldWhole
whole
click mnuHelpAbout -> +frmAbout
whole; close -> -frmAbout
