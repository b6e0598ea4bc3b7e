== CaptureConvertAndUpload
# The path is one word, blank and all.
file "@/my link/L.exe.script=words words.txt\nwrite miata.dat samples\n"; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> did close | load @/logs/run.txt 1, -frmNewDownload
read @/logs/run.txt; read @/logs/run.bin; read @/my link/words.txt -> did samples | samples | @/my link/L.exe|-p|3|-t|
file "@/my link/L.exe.script=words words.txt\ncopy TVW.map sent.map\n"; upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> -frmUploadConf
read @/my link/words.txt -> did @/my link/L.exe|-q|-s|-c|-p|3|-f|TVW.map|
read @/my link/sent.map -> did  Tarnview MAP File\n File Created: 24-Nov-2026 14:05\n\n 000 001 002 003 004 005 006 007 008 009 010 011 012 013 014 015\n\n 016 017 018 019 020 021 022 023 024 025 026 027 028 029 030 031\n\n 032 033 034 035 036 037 038 039 040 041 042 043 044 045 046 047\n 048 049 050 051 052 053 054 055 056 057 058 059 060 061 062 063\n 064 065 066 067 068 069 070 071 072 073 074 075 076 077 078 079\n 080 081 082 083 084 085 086 087 088 089 090 091 092 093 094 095\n 096 097 098 099 100 101 102 103 104 105 106 107 108 109 110 111\n 112 113 114 115 116 117 118 119 120 121 122 123 124 125 126 127\n\n 128 129 130 131 132 133 134 135 136 137 138 139 140 141 142 143\n 144 145 146 147 148 149 150 151 152 153 154 155 156 157 158 159\n 160 161 162 163 164 165 166 167 168 169 170 171 172 173 174 175\n 176 177 178 179 180 181 182 183 184 185 186 187 188 189 190 191\n 192 193 194 195 196 197 198 199 200 201 202 203 204 205 206 207\n 208 209 210 211 212 213 214 215 216 217 218 219 220 221 222 223\n\n 224 225 226 227  -1 229 230 231 232 233 234 235 236 237 238 239\n 240 241 242 243 244 245 246 247 248 249 250 251 252 253 254 255\n\n Engine Size: 1.8\n Chip Date: 2003-06-09\n Chip Version: 0\n Atmospheric Pressure: 098\n Notes:\n\n End Of Notes\n
read @/logs/Uploads/TVW 2026-11-24 14-05-09.map -> did  Tarnview MAP File\n File Created: 24-Nov-2026 14:05\n\n 000 001 002 003 004 005 006 007 008 009 010 011 012 013 014 015\n\n 016 017 018 019 020 021 022 023 024 025 026 027 028 029 030 031\n\n 032 033 034 035 036 037 038 039 040 041 042 043 044 045 046 047\n 048 049 050 051 052 053 054 055 056 057 058 059 060 061 062 063\n 064 065 066 067 068 069 070 071 072 073 074 075 076 077 078 079\n 080 081 082 083 084 085 086 087 088 089 090 091 092 093 094 095\n 096 097 098 099 100 101 102 103 104 105 106 107 108 109 110 111\n 112 113 114 115 116 117 118 119 120 121 122 123 124 125 126 127\n\n 128 129 130 131 132 133 134 135 136 137 138 139 140 141 142 143\n 144 145 146 147 148 149 150 151 152 153 154 155 156 157 158 159\n 160 161 162 163 164 165 166 167 168 169 170 171 172 173 174 175\n 176 177 178 179 180 181 182 183 184 185 186 187 188 189 190 191\n 192 193 194 195 196 197 198 199 200 201 202 203 204 205 206 207\n 208 209 210 211 212 213 214 215 216 217 218 219 220 221 222 223\n\n 224 225 226 227  -1 229 230 231 232 233 234 235 236 237 238 239\n 240 241 242 243 244 245 246 247 248 249 250 251 252 253 254 255\n\n Engine Size: 1.8\n Chip Date: 2003-06-09\n Chip Version: 0\n Atmospheric Pressure: 098\n Notes:\n\n End Of Notes\n

== TellOfEachWayInWhichTheyFail
# The signal of abort is 6.
file "@/my link/L.exe.script=exit 127\n"; file "@/mdos/C.exe.script=\n"; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [Unknown Error, 127 ok], did close | box of 48, -frmNewDownload
file "@/my link/L.exe.script=exit 128\n"; file "@/mdos/C.exe.script=\n"; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [Unknown Error, -128 ok], did close | box of 48, -frmNewDownload
file "@/my link/L.exe.script=exit 218\n"; file "@/mdos/C.exe.script=\n"; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [Unknown Error, -38 ok], did close | box of 48, -frmNewDownload
file "@/my link/L.exe.script=exit 234\n"; file "@/mdos/C.exe.script=\n"; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [Error opening comm port., -22 ok], did close | box of 48, -frmNewDownload
file "@/my link/L.exe.script=exit 255\n"; file "@/mdos/C.exe.script=\n"; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [Stop/Resume log data output command NAK'd., -1 ok], did close | box of 48, -frmNewDownload
file "@/my link/L.exe.script=write miata.dat x\nkill\n"; file "@/mdos/C.exe.script=\n"; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [Unknown Error, -122 ok], did close | box of 48, -frmNewDownload
file "@/my link/L.exe.script=write other.dat x\n"; file "@/mdos/C.exe.script=\n"; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [13 ok], did close | box of 48, -frmNewDownload
file "@/my link/L.exe.script=write miata.dat x\n"; file "@/mdos/C.exe.script=exit 3\n"; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [25 ok], did close | box of 48, -frmNewDownload
file "@/my link/L.exe.script=half miata.dat samples\n"; file "@/mdos/C.exe.script=half miatatmp.txt text\nexit 7\n"; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> did close | load @/logs/run.txt 1, -frmNewDownload
# The loader says what it thinks of half a log.
read @/logs/run.txt -> did te

== AreLeftAloneAndKeepTheEcuToThemselves
file "@/my link/L.exe.script=wait go\n"; answer stop; capture -> did prompt, +frmNewDownload
type txtFileName run; click cmdOK -> [L.exe was left alone and may still be at work, so nothing is known of its result. ok], did close | box of 48, -frmNewDownload
upload -> [A program that was left alone is still running.\nWait until it has ended, then try again. ok], did box of 48
file @/my link/go=

== AreLeftAloneAndKeepTheEcuToThemselves 2
upload -> +frmUpload
click cmdOK -> -frmUpload, +frmUploadConf
click cmdYes -> -frmUploadConf
