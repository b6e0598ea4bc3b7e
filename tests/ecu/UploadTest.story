== GoesFromStepToStep
set Default Chip Version=3; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
read /link/TVW.map -> did  Tarnview MAP File\n File Created: 24-Nov-2026 14:05\n\n 000 001 002 003 004 005 006 007 008 009 010 011 012 013 014 015\n\n 016 017 018 019 020 021 022 023 024 025 026 027 028 029 030 031\n\n 032 033 034 035 036 037 038 039 040 041 042 043 044 045 046 047\n 048 049 050 051 052 053 054 055 056 057 058 059 060 061 062 063\n 064 065 066 067 068 069 070 071 072 073 074 075 076 077 078 079\n 080 081 082 083 084 085 086 087 088 089 090 091 092 093 094 095\n 096 097 098 099 100 101 102 103 104 105 106 107 108 109 110 111\n 112 113 114 115 116 117 118 119 120 121 122 123 124 125 126 127\n\n 128 129 130 131 132 133 134 135 136 137 138 139 140 141 142 143\n 144 145 146 147 148 149 150 151 152 153 154 155 156 157 158 159\n 160 161 162 163 164 165 166 167 168 169 170 171 172 173 174 175\n 176 177 178 179 180 181 182 183 184 185 186 187 188 189 190 191\n 192 193 194 195 196 197 198 199 200 201 202 203 204 205 206 207\n 208 209 210 211 212 213 214 215 216 217 218 219 220 221 222 223\n\n 224 225 226 227  -1 229 230 231 232 233 234 235 236 237 238 239\n 240 241 242 243 244 245 246 247 248 249 250 251 252 253 254 255\n\n Engine Size: 1.8\n Chip Date: 2003-06-09\n Chip Version: 0\n Atmospheric Pressure: 098\n Notes:\n\n End Of Notes\n

upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
left; read /link/vstrUploadCommand.txt; list /logs/Uploads -> did z720 | Tarnview Upload Command File\n\n/link/L.exe -q -s -c -f TVW.map\n | /TVW 2026-11-24 14-05-09.map 

set Serial Com Port=3; upload -> +frmUpload
click chkOption(0); click chkOption(1); click chkOption(3); choose cboAutoTune "Fine With Idle"; click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -p 3 -a fine_with_idle -v -f TVW.map in /link/, -frmUploadConf

upload -> +frmUpload
click chkOption(1); choose cboAutoTune "Coarse No Idle"; click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -a coarse_no_idle -f TVW.map in /link/, -frmUploadConf

upload -> +frmUpload
click chkOption(0); choose cboAutoTune "Fine No Idle"; click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -c -a fine_no_idle -f TVW.map in /link/, -frmUploadConf

# What ends it before anything is touched.
form 1.6 2003-06-09; gone /link/L.exe; upload -> [6 ok], did box of 64

form 1.6 2003-06-09; file /link/TVW.map=x; upload -> [5 ok], did box of 64
read /link/TVW.map -> did x

file /link/TVW.map=x; upload -> +frmUpload
click cmdCancel -> -frmUpload
read /link/TVW.map -> did x

broken /link/TVW.map; upload -> +frmUpload
click cmdOK -> [Problem creating temporary MAP file (/link/TVW.map). ok], did box of 48, -frmUpload

upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdNo -> -frmUploadConf
list /logs -> did /old.txt 

upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
whole; show focus -> focus nowhere
close -> -frmUploadConf

# Measured against a comparison.
upload -> +frmUpload
click chkOption(2); choose lstCCF #1; click cmdOK -> [23 ok], did box of 48, -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
left -> did z720

upload -> +frmUpload
click chkOption(2); click cmdOK -> [23 ok], did box of 48, -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf

file /logs/b.map=; upload -> +frmUpload
click chkOption(2); choose lstCCF #1; click cmdOK -> [22 ok], did compare /logs/b.map | box of 48, -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
left -> did z720

file /logs/b.map=; comparison 1.6 2003-06-09; upload -> +frmUpload
click chkOption(2); choose lstCCF #1; click cmdOK -> [21 ok], did compare /logs/b.map | box of 48, -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
left -> did z720

file /logs/b.map=; comparison 1.8 2003-06-08; upload -> +frmUpload
click chkOption(2); choose lstCCF #1; click cmdOK -> [21 ok], did compare /logs/b.map | box of 48, -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
left -> did z720

file /logs/b.map=; comparison 1.8 2003-06-10; upload -> +frmUpload
click chkOption(2); choose lstCCF #1; click cmdOK -> [21 ok], did compare /logs/b.map | box of 48, -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
left -> did z720

file /logs/b.map=; comparison 1.8 2003-06-09; upload -> +frmUpload
click chkOption(2); choose lstCCF #1; click cmdOK -> did compare /logs/b.map, -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
left -> did all but z1 z875

# Chips from 1 March 2001 on measure the intake air.
form 1.8 2001-02-28; upload -> +frmUpload
click cmdOK -> [28 ok], did box of 48, -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
left -> did z4 z720 z860 z865 z870 z875

form 1.8 2001-03-01; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
left -> did z720

set Default Chip Date=2001-02-28; form 1.8 2001-03-01; upload -> +frmUpload
click cmdOK -> [28 ok], did box of 48, -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf

set Default Chip Date=2001-02-28; form 1.8 2000-01-01; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf

# Offered again until it goes well or the user has enough; the same map is kept once.
exits -25; exits -38; exits 0; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> [Zone map verification failed., -25 ok], did run /link/L.exe -q -s -c -f TVW.map in /link/ | box of 48
click cmdYes -> [Unknown Error, -38 ok], did run /link/L.exe -q -s -c -f TVW.map in /link/ | box of 48
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
list /logs/Uploads -> did /TVW 2026-11-24 14-05-09.map 

trouble Permission denied; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> [L.exe could not be started:\nPermission denied ok], did run /link/L.exe -q -s -c -f TVW.map in /link/ | box of 48
click cmdYes -> [L.exe could not be started:\nPermission denied ok], did run /link/L.exe -q -s -c -f TVW.map in /link/ | box of 48
click cmdNo -> -frmUploadConf

answer stop; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> [L.exe was left alone and may still be at work, so nothing is known of its result. ok], did run /link/L.exe -q -s -c -f TVW.map in /link/ | box of 48, -frmUploadConf
upload -> [A program that was left alone is still running.\nWait until it has ended, then try again. ok], did box of 48
ended; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf

set Default Working Directory=; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
list /logs -> did /old.txt 

broken /logs/Uploads/TVW 2026-11-24 14-05-09.map; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> [No copy of the map could be kept in:\n/logs/Uploads ok], did box of 48 | run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf

broken /logs/Uploads/; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> [No copy of the map could be kept in:\n/logs/Uploads ok], did box of 48 | run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf

== KeepsTheLastFiftyMaps
fifty 2025; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
list /logs/Uploads/TVW 2025-01-01 00-00-; list /logs/Uploads/TVW 2026; list /logs/Uploads/TVW.; list /logs/Uploads/mine -> did 12.map 13.map 14.map 15.map 16.map 17.map 18.map 19.map 20.map 21.map 22.map 23.map 24.map 25.map 26.map 27.map 28.map 29.map 30.map 31.map 32.map 33.map 34.map 35.map 36.map 37.map 38.map 39.map 40.map 41.map 42.map 43.map 44.map 45.map 46.map 47.map 48.map 49.map 50.map 51.map 52.map 53.map 54.map 55.map 56.map 57.map 58.map 59.map  | -11-24 14-05-09 (2).map -11-24 14-05-09.map  | map  | .map 

# One of a clock that was years ahead is later.
fifty 2031; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> did run /link/L.exe -q -s -c -f TVW.map in /link/, -frmUploadConf
list /logs/Uploads/TVW 2031-01-01 00-00-; list /logs/Uploads/TVW 2026; list /logs/Uploads/TVW.; list /logs/Uploads/mine -> did 11.map 12.map 13.map 14.map 15.map 16.map 17.map 18.map 19.map 20.map 21.map 22.map 23.map 24.map 25.map 26.map 27.map 28.map 29.map 30.map 31.map 32.map 33.map 34.map 35.map 36.map 37.map 38.map 39.map 40.map 41.map 42.map 43.map 44.map 45.map 46.map 47.map 48.map 49.map 50.map 51.map 52.map 53.map 54.map 55.map 56.map 57.map 58.map 59.map  | -11-24 14-05-09.map  | map  | .map 

== OffersTheUsersDefaults
# Its window begins with the user's defaults; the comparison goes with its box.
set Upload Default 0=0; set Upload Default 2=1; set Upload Default 3=1; answer file /logs/c.map; upload -> +frmUpload
show chkOption(0) chkOption(1) chkOption(2) chkOption(3) cboAutoTune; click cmdCCF; show txtCCF; choose lstCCF #0; show txtCCF; click chkOption(2); show txtCCF lstCCF cmdCCF lblCCF; click cmdCancel -> chkOption(0)=&Permanently Store , chkOption(0) unchecked, chkOption(1)=&Verify Upload, chkOption(1) checked, chkOption(2)=Upload &Changes Only, chkOption(2) checked, chkOption(3)=Ver&bose Mode, chkOption(3) checked, cboAutoTune list=[None|Coarse No Idle|Fine No Idle|Fine With Idle], cboAutoTune=None, txtCCF=/logs/c.map, txtCCF=/logs/a.txt, txtCCF off, txtCCF=/logs/a.txt, lstCCF off, lstCCF list=[/logs/a.txt|/logs/b.map], lstCCF=/logs/a.txt, cmdCCF off, cmdCCF=B&rowse..., lblCCF off, lblCCF=C&hange Comparison File, [open "Open" of filter /logs/c.map], did looks into /logs/, -frmUpload

upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
show lblChipDate lblEngineSize; click cmdNo -> lblChipDate=09-Jun-2003, lblEngineSize=1.8, -frmUploadConf

upload -> +frmUpload
whole; click cmdCancel -> -frmUpload
