#include "MadeLogs.h"

namespace tarnview {

// clang-format off
std::vector<MadeLog> MadeLogs() {
  return {
      {"milliseconds, units in brackets, a maker in front",
       "Time (msec),XYZ Engine Speed (rpm),Throttle Opening Angle (%),Coolant Temperature (C),Manifold Relative Pressure (psi),Widget Count\n"
       "0,900,4.0,82,-9.80,1\n"
       "50,1409,12.4,82,-7.80,2\n"
       "100,1918,20.7,83,-5.80,3\n"
       "150,2427,29.1,83,3.20,4\n",
       "4 x 6: 0.000 0.050 0.100 0.150; rpm 900 1409 1918 2427; last 3:2427 17:29.1 23:83.0 37:3.20 101:4",
       "UTF-8 comma . titles 1 units 0 data 2, time 0 MILLISECONDS 0.05 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 17 TPS [%] | 23 C Temp [C] | 37 Boost [psi] | 101 Widget Count\n"},
      {"semicolons and decimal commas",
       "Time (msec);Engine Speed (rpm);Coolant Temperature (F);Battery Voltage (V)\n"
       "1000;900;180,5;13,90\n"
       "1040;1409;181,0;13,88\n"
       "1080;1918;181,5;13,86\n",
       "3 x 4: 0.000 0.040 0.080; rpm 900 1409 1918; last 3:1918 23:83.1 22:13.86",
       "UTF-8 semicolon , titles 1 units 0 data 2, time 0 MILLISECONDS 0.04 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 23 C Temp [C] x0.5556+-17.78 | 22 Volt [V]\n"},
      {"tabs, a quoted preamble, a row of units, marks",
       "\"MS3 Format 0435.14P : made up\"\n"
       "\"Capture Date: Tue Nov 24 14:05:09 2026\"\n"
       "Time\tSecL\tRPM\tMAP\tCLT\tAFR\tSPK: Spark Advance\n"
       "s\tsec\tRPM\tkPa\t\xB0\x46\tAFR\tdeg\n"
       "0.000\t0\t900\t33.7\t180\t14.70\t34.0\n"
       "0.066\t0\t1409\t47.5\t180\t14.41\t32.4\n"
       "MARK 001 - Tue Nov 24 14:05:10\n"
       "0.132\t0\t1918\t61.3\t181\t14.12\t-30.7\n"
       "0.198\t0\t2427\t75.1\t182\t13.83\t29.1\n",
       "4 x 7: 0.000 0.066 0.132 0.198; rpm 900 1409 1918 2427; last 101:0 3:2427 5:75.1 23:83.3 36:13.83 21:29.1",
       "WINDOWS-1252 tab . titles 3 units 4 data 5, time 0 SECONDS 0.066 rate 0\n"
       "| 63 Secs [s] | 101 SecL [sec] | 3 RPM [rpm] | 5 MAP [kPa] | 23 C Temp [C] x0.5556+-17.78 | 36 A/F [AFR] | 21 IAdv [deg]\n"},
      {"titles over two rows, and units below",
       "made up\n"
       "Time,Engine,Vehicle,Coolant,Intake Air,Bank 1,Bank 2\n"
       ",Speed,Speed,Temp,Temp,Trim,Trim\n"
       "s,rpm,km/h,C,C,%,%\n"
       "0.0,900,80,81,24,1,2\n"
       "0.1,1409,81,82,25,3,4\n"
       "0.2,1918,82,83,26,5,6\n",
       "3 x 7: 0.000 0.100 0.200; rpm 900 1409 1918; last 3:1918 24:51.0 23:83.0 31:26.0 101:5 102:6",
       "UTF-8 comma . titles 2 units 4 data 5, time 0 SECONDS 0.1 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 24 Speed [mph] x0.6214+0 | 23 C Temp [C] | 31 A Temp [C] | 101 Bank 1 Trim [%] | 102 Bank 2 Trim [%]\n"},
      {"titles over two rows in quotes, the first one empty",
       ";\"Throttle\";\"Pump\";\"Pump\"\n"
       "Time;\"Position (%)\";\"Left; 1\";\"Right\"\n"
       "0,5;40;1;2\n"
       "0,6;41;3;4\n"
       "0,7;42;5;6\n",
       "3 x 4: 0.000 0.100 0.200; rpm 0 0 0; last 17:42.0 101:5 102:6",
       "UTF-8 semicolon , quoted titles 1 units 0 data 3, time 0 SECONDS 0.1 rate 0\n"
       "| 63 Secs [s] | 17 TPS [%] | 101 Pump Left; 1 | 102 Pump Right\n"},
      {"the same without a preamble",
       "Time\tRPM\tTPS\tIAT\tPW\n"
       "s\tRPM\t%\tC\tms\n"
       "10.00\t900\t4.0\t24\t2.1\n"
       "10.10\t1409\t12.4\t25\t3.1\n"
       "10.20\t1918\t20.7\t26\t4.1\n",
       "3 x 5: 0.000 0.100 0.200; rpm 900 1409 1918; last 3:1918 17:20.7 31:26.0 13:4.100",
       "UTF-8 tab . titles 1 units 2 data 3, time 0 SECONDS 0.1 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 17 TPS [%] | 31 A Temp [C] | 13 Inj W [ms]\n"},
      {"a last column without data, on and off",
       "Time (sec),RPM (RPM),Boost (psi),Throttle Position (%),Actual AFR (AFR),Knock Retard (\xB0),Brake Switch (on/off),AP Info:[AP3-XYZ-001 v1][x]\n"
       "0.000,900,-9.80,4.0,14.70,-0,off,\n"
       "0.002,1409,-7.80,12.4,14.41,0.5,off,\n"
       "0.018,1918,-5.80,20.7,14.12,1.2,on,\n"
       "0.034,2427,3.00,29.1,13.83,-0,on,\n",
       "4 x 7: 0.000 0.002 0.018 0.034; rpm 900 1409 1918 2427; last 3:2427 37:3.00 17:29.1 36:13.83 62:0.00 101:on",
       "WINDOWS-1252 comma . titles 1 units 0 data 2, time 0 SECONDS 0.016 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 37 Boost [psi] | 17 TPS [%] | 36 A/F [AFR] | 62 KNR [deg] | 101 Brake Switch [on/off] list\n"},
      {"sections, ids, units, sparse rows",
       "HP Tuners CSV Log File\n"
       "Version: 1.0\n"
       "\n"
       "[Log Information]\n"
       "Creation Time: 11/24/2026 2:05:09 PM\n"
       "Notes: \n"
       "\n"
       "[Channel Information]\n"
       "0,12,5,9,77,30\n"
       "Offset,Engine RPM (SAE),Throttle Position (SAE),Engine Torque (actual, at crank),Mass Airflow (SAE),Fuel System Status\n"
       "s,rpm,%,ft-lb,lb/min,\n"
       "\n"
       "[Channel Data]\n"
       "0.000,900,,,0.53,CL - Normal\n"
       "0.012,,4.0,,,\n"
       "0.025,1409,,55.5,2.69,\n"
       "0.037,,12.4,,,OL - Drive\n"
       "0.050,1918,,,4.10,\n"
       "0.062,,20.7,61.0,,\n",
       "6 x 6: 0.000 0.012 0.025 0.037 0.050 0.062; rpm 900  1409  1918 ; last 3: 17:20.7 101:61.0 71: 102:",
       "UTF-8 comma . titles 10 units 11 data 14, time 0 SECONDS 0.012 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 17 TPS [%] | 101 Engine Torque (actual,at crank) [ft-lb] | 71 MAF [g/s] x7.5599+0 | 102 Fuel System Status list\n"},
      {"channels for titles, whole numbers by type",
       "%DataLog%\n"
       "DataLogVersion : 1.1\n"
       "Software : Made Up NSP\n"
       "SoftwareVersion : 1.0\n"
       "DownloadDateTime : 20260101 10:00:00\n"
       "Log Source : 20\n"
       "Log Number : 30\n"
       "Log : 20260101 10:00:00\n"
       "Channel : RPM\n"
       "ID : 384\n"
       "Type : EngineSpeed\n"
       "DisplayMaxMin : 20000,0\n"
       "Channel : Manifold Pressure\n"
       "ID : 224\n"
       "Type : Pressure\n"
       "DisplayMaxMin : 500,0\n"
       "Channel : Coolant Temperature\n"
       "ID : 225\n"
       "Type : Temperature\n"
       "DisplayMaxMin : 500,0\n"
       "Channel : Wideband O2 1\n"
       "ID : 226\n"
       "Type : AFR\n"
       "DisplayMaxMin : 2,0\n"
       "23:59:59.900,3696,1013,3631,1000\n"
       "23:59:59.950,3701,1520,3632,-2147483617\n"
       "00:00:00.000,3710,2026,3632,850\n"
       "00:00:00.050,3720,2530,3633,800\n",
       "4 x 5: 0.000 0.050 0.100 0.150; rpm 3696 3701 3710 3720; last 3:3720 5:253.0 23:90.2 36:11.76",
       "UTF-8 comma . titles 0 units 0 data 25, time 0 CLOCK 0.05 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 5 MAP [kPa] x0.1+0 | 23 C Temp [C] x0.1+-273.15 | 36 A/F [AFR] x0.0147+0\n"},
      {"paths for titles, blanks between samples",
       "TIME;engine/rpm;sensors/tps1;engine/lambda1;custom/thing\n"
       "0;900;4.5;;1\n"
       "0.04;1000;;0.99;2\n"
       "0.08;1100;5.5;;3\n"
       "0.12;1200;;0.88;4\n",
       "4 x 5: 0.000 0.040 0.080 0.120; rpm 900 1000 1100 1200; last 3:1200 17: 36:12.94 101:4",
       "UTF-8 semicolon . titles 1 units 0 data 2, time 0 SECONDS 0.04 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 17 TPS [%] | 36 A/F [AFR] x14.7+0 | 101 custom/thing\n"},
      {"comments in front, a late start, a file name behind",
       "#Encoding: UTF-8\n"
       "#VIN: XYZ0001\n"
       "#Unit: made up\n"
       "Time,Amb pressure (Bar),RPM,Boost (Bar),IAT (C),Lambda 1,run_0001.bin\n"
       "38.501,0.98,900,0.10,25,1.00,\n"
       "38.601,0.98,1409,0.55,26,0.95,\n"
       "38.701,0.98,1918,0.95,27,0.85,\n"
       "38.801,0.98,2427,1.20,28,0.80,\n",
       "4 x 6: 0.000 0.100 0.200 0.300; rpm 900 1409 1918 2427; last 101:0.98 3:2427 37:17.40 31:28.0 36:11.76",
       "UTF-8 comma . titles 4 units 0 data 5, time 0 SECONDS 0.1 rate 0\n"
       "| 63 Secs [s] | 101 Amb pressure [Bar] | 3 RPM [rpm] | 37 Boost [psi] x14.5038+0 | 31 A Temp [C] | 36 A/F [AFR] x14.7+0\n"},
      {"three heading rows, Unix time beside seconds, like titles",
       "This file is created using a race timer v7\n"
       "Format,3\n"
       "Session title,\"Made, up\"\n"
       "Session type,Lap timing\n"
       "Created,24/11/2026,14:05\n"
       "\n"
       "timestamp,fragment_id,lap_number,elapsed_time,speed,rpm,speed,coolant_temp\n"
       "unix time,,,s,m/s,rpm,m/s,\xB0\x43\n"
       ",,,,100: gps,200: obd,200: obd,200: obd\n"
       "1700000000.125,0,,0.000,10.00,,9.9,\n"
       "1700000000.175,0,,0.050,10.50,2500,,\n"
       "1700000000.225,0,1,0.100,11.00,2600,10.9,90\n"
       "1700000000.275,0,1,0.150,11.50,,,\n",
       "4 x 8: 0.000 0.050 0.100 0.150; rpm  2500 2600 ; last 101:1700000000 102:0 103:1 24:25.7 3: 104: 23:",
       "WINDOWS-1252 comma . titles 7 units 8 data 10, time 3 SECONDS 0.05 rate 0\n"
       "| 101 timestamp [unix time] | 102 fragment_id | 103 lap_number | 63 Secs [s] | 24 Speed [mph] x2.2369+0 | 3 RPM [rpm] | 104 speed 2 [m/s] | 23 C Temp [C]\n"},
      {"device time, no values, a heading again",
       "GPS Time, Device Time, Longitude, Latitude,GPS Speed (Meters/second), Engine RPM(rpm),Engine Coolant Temperature(\xC2\xB0\x43),Turbo Boost & Vacuum Gauge(psi),Never Logged\n"
       "Tue Nov 24 23:59:59 GMT+01:00 2026,24-Nov-2026 23:59:59.403,-1.2345,51.2345,8.1,900,82,-9.8,-\n"
       "Tue Nov 24 23:59:59 GMT+01:00 2026,24-Nov-2026 23:59:59.903,-1.2346,51.2346,8.2,-,82,-,-\n"
       "GPS Time, Device Time, Longitude, Latitude,GPS Speed (Meters/second), Engine RPM(rpm),Engine Coolant Temperature(\xC2\xB0\x43),Turbo Boost & Vacuum Gauge(psi),Never Logged\n"
       "Wed Nov 25 00:00:00 GMT+01:00 2026,25-Nov-2026 00:00:00.403,-1.2347,51.2347,8.3,1918,83,-5.8,-\n"
       "Wed Nov 25 00:00:00 GMT+01:00 2026,25-Nov-2026 00:00:00.903,-1.2348,51.2348,8.4,2427,83,-3.8,-\n",
       "4 x 9: 0.000 0.500 1.000 1.500; rpm 900  1918 2427; last 101:1.000 102:-1.2348 103:51.2348 24:18.8 3:2427 23:83.0 37:-3.80 104:",
       "UTF-8 comma . titles 1 units 0 data 2, time 1 DATE 0.5 rate 0\n"
       "| 101 GPS Time | 63 Secs [s] | 102 Longitude | 103 Latitude | 24 Speed [mph] x2.2369+0 | 3 RPM [rpm] | 23 C Temp [C] | 37 Boost [psi] | 104 Never Logged\n"},
      {"units in the cells, clocks to the minute, a bar at both ends, signs for no value",
       "| Clock | Engine speed | Coolant |  Speed, vehicle | Mode | State |\n"
       "|-------|--------------|---------|-----------------|------|-------|\n"
       "| 17:58 | 900 rpm | 82.5 \xB0\x43 | 10 km/h | idle | cold |\n"
       "| 17:59 | 950 rpm | --.- | 20 km/h | a | cold |\n"
       "| 17:59 | 1000 rpm | 83.5 \xB0\x43 | 30 km/h | b | cold |\n"
       "| 18:00 | 1050 rpm | 84 \xB0\x43 | 40 km/h | c | warm |\n"
       "| 18:00 | 1100 rpm | 84 \xB0\x43 | 50 km/h | d | warm |\n"
       "| 18:01 | 1150 rpm | 85 \xB0\x43 | 60 km/h | e | warm |\n",
       "6 x 6: 0.000 30.000 60.000 90.000 120.000 150.000; rpm 900 950 1000 1050 1100 1150; last 3:1150 23:85.0 24:37.3 101:e 102:warm",
       "WINDOWS-1252 bar . titles 1 units 0 data 3, time 0 CLOCK 60 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 23 C Temp [C] | 24 Speed [mph] x0.6214+0 | 101 Mode list | 102 State list\n"},
      {"a comment, blanks behind commas",
       "# StartTime = 11/24/2026 02:05:09.1234 PM\n"
       "Time (sec), Short term fuel % trim - Bank 1 (%), Engine RPM (RPM), Vehicle speed (MPH), Intake manifold absolute pressure (inHg)\n"
       "0.000, 4.0, 900, 18.0, 10.0\n"
       "0.110, 3.5, 1409, 24.8, 14.0\n"
       "0.220, -2.9, 1918, 31.6, 18.1\n",
       "3 x 5: 0.000 0.110 0.220; rpm 900 1409 1918; last 49:-2.9 3:1918 24:31.6 5:61.3",
       "UTF-8 comma . titles 2 units 0 data 3, time 0 SECONDS 0.11 rate 0\n"
       "| 63 Secs [s] | 49 CR [%] | 3 RPM [rpm] | 24 Speed [mph] | 5 MAP [kPa] x3.3864+0\n"},
      {"all of it quoted, thousands set off",
       "\"Format\",\"Made Up CSV File\",,,\"Workbook\",\"\"\n"
       "\"Venue\",\"Made up\",,,\"Worksheet\",\"\"\n"
       "\"Sample Rate\",\"50.000\",\"Hz\",,,\n"
       "\"Duration\",\"0.060\",\"s\",,,\n"
       "\n"
       "\n"
       "\"Time\",\"Engine RPM\",\"Inlet Manifold Pressure\",\"Gear\"\n"
       "\"s\",\"rpm\",\"kPa\",\"\"\n"
       "\n"
       "\"0.000\",\"880\",\"33.7\",\"1\"\n"
       "\"0.020\",\"1,409\",\"47.5\",\"1\"\n"
       "\"0.040\",\"2,000.00\",\"61.3\",\"2\"\n"
       "\"0.060\",\"2,427\",\"75.1\",\"2\"\n",
       "4 x 4: 0.000 0.020 0.040 0.060; rpm 880.00 1409.00 2000.00 2427.00; last 3:2427.00 5:75.1 101:2",
       "UTF-8 comma . quoted titles 7 units 8 data 10, time 0 SECONDS 0.02 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 5 MAP [kPa] | 101 Gear\n"},
      {"a distance in place of the time: the rate counts",
       "\"Format\",\"Made Up CSV File\",,,\"Workbook\",\"\"\n"
       "\"Sample Rate\",\"20.000\",\"Hz\",,,\n"
       "\n"
       "\"Distance\",\"Engine RPM\",\"Throttle Pos\"\n"
       "\"m\",\"rpm\",\"%\"\n"
       "\n"
       "\"0\",\"880\",\"3.0\"\n"
       "\"1\",\"1409\",\"4.0\"\n"
       "\"2\",\"2000\",\"5.0\"\n"
       "\"4\",\"2427\",\"6.0\"\n",
       "4 x 3: 0.000 0.050 0.100 0.150; rpm 880 1409 2000 2427; last 101:4 3:2427 17:6.0",
       "UTF-8 comma . quoted titles 4 units 5 data 7, time -1  0 rate 20\n"
       "| 101 Distance [m] | 3 RPM [rpm] | 17 TPS [%]\n"},
      {"three clocks",
       "LogID,LogEntryDate,LogEntryTime,LogEntrySeconds,LogNotes,2ByteRPM,AFR,TPS\n"
       "1,2026-03-15,22:34:39.62814,0.22742,,1054.6875,14.7,4\n"
       "1,2026-03-15,22:34:39.72814,0.32742,,1062.5,14.6,5\n"
       "1,2026-03-15,22:34:39.82814,0.42742,,1070.3125,14.5,6\n",
       "3 x 8: 0.000 0.100 0.200; rpm 1054.6875 1062.5000 1070.3125; last 101:1 102:0.000 103:0.200 104: 3:1070.3125 36:14.50 17:6.0",
       "UTF-8 comma . titles 1 units 0 data 2, time 3 SECONDS 0.1 rate 0\n"
       "| 101 LogID | 102 LogEntryDate | 103 LogEntryTime | 63 Secs [s] | 104 LogNotes | 3 RPM [rpm] | 36 A/F [AFR] | 17 TPS [%]\n"},
      {"comment lines within",
       "# RaceRender Data: made up\n"
       "\"Time\",\"UTC Time\",\"Lap\",\"Speed (MPH)\",\"Engine Speed (rpm)\"\n"
       "0.000,1700000000.000,0,18.0,900\n"
       "0.100,1700000000.100,0,18.5,1000\n"
       "# Lap 1: 00:01:02.345\n"
       "0.200,1700000000.200,1,19.0,1100\n"
       "0.300,1700000000.300,1,19.5,1200\n",
       "4 x 5: 0.000 0.100 0.200 0.300; rpm 900 1000 1100 1200; last 101:1700000000 102:1 24:19.5 3:1200",
       "UTF-8 comma . titles 2 units 0 data 3, time 0 SECONDS 0.1 rate 0\n"
       "| 63 Secs [s] | 101 UTC Time | 102 Lap | 24 Speed [mph] | 3 RPM [rpm]\n"},
      {"whole seconds repeated, Y and N, a comma at the end",
       "RUNTIME,RPM,MPH,CLOSED LOOP,O2,O2,SPARK,\n"
       "10,900,18,Y,450,460,20.0,\n"
       "10,910,18,Y,455,461,20.5,\n"
       "10,920,18,N,460,462,21.0,\n"
       "10,930,19,N,465,463,21.5,\n"
       "11,940,19,Y,470,464,22.0,\n"
       "11,950,19,Y,475,465,22.5,\n",
       "6 x 7: 0.000 0.250 0.500 0.750 1.000 1.500; rpm 900 910 920 930 940 950; last 3:950 24:19.0 101:Y 102:475 103:465 21:22.5",
       "UTF-8 comma . titles 1 units 0 data 2, time 0 SECONDS 1 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 24 Speed [mph] | 101 CLOSED LOOP list | 102 O2 | 103 O2 2 | 21 IAdv [deg]\n"},
      {"blanks behind commas, a marker column",
       "Time, Marker, RPM, Sync status, MAP, CLT\n"
       "0, , 900, Synced, 33.7, 82\n"
       "20, , 1409, Synced, 47.5, 82\n"
       "40, A, 1918, Lost, 61.3, 83\n"
       "60, , 2427, Synced, 75.1, 83\n",
       "4 x 6: 0.000 0.020 0.040 0.060; rpm 900 1409 1918 2427; last 101: 3:2427 102:Synced 5:75.1 23:83.0",
       "UTF-8 comma . titles 1 units 0 data 2, time 0 MILLISECONDS 0.02 rate 0\n"
       "| 63 Secs [s] | 101 Marker list | 3 RPM [rpm] | 102 Sync status list | 5 MAP [kPa] | 23 C Temp [C]\n"},
      {"UTF-16, a line of text, clocks to the minute beside seconds",
       AsUtf16(
       "Log of a dash app\n"
       "File Time,Clock,Drehzahl,Ladedruck (bar),Speed (km/h)\n"
       "0.0,22.8.2026 15:17,900,0.1,30\n"
       "0.5,22.8.2026 15:17,1400,0.4,35\n"
       "1.0,22.8.2026 15:17,1900,0.8,40\n", false),
       "3 x 5: 0.000 0.500 1.000; rpm 900 1400 1900; last 101:0.000 3:1900 37:11.60 24:24.9",
       "UTF-16LE comma . titles 2 units 0 data 3, time 0 SECONDS 0.5 rate 0\n"
       "| 63 Secs [s] | 101 Clock | 3 RPM [rpm] | 37 Boost [psi] x14.5038+0 | 24 Speed [mph] x0.6214+0\n"},
      {"UTF-16 the other way, dates alone",
       AsUtf16(
       "LogStart;nmot;tmot;Gaspedal\n"
       "22.8.2026 15:17:01,5;900;80,5;1,5\n"
       "22.8.2026 15:17:02,0;1400;80,6;2,5\n"
       "22.8.2026 15:17:02,5;1900;80,7;3,5\n", true),
       "3 x 4: 0.000 0.500 1.000; rpm 900 1400 1900; last 3:1900 23:80.7 101:3.5",
       "UTF-16BE semicolon , titles 1 units 0 data 2, time 0 DATE 0.5 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 23 C Temp [C] | 101 Gaspedal\n"},
      {"bars, minutes",
       "Zeit (min)|Motordrehzahl|Z\xFCndwinkel|Batteriespannung\n"
       "0.0|900|20|13.9\n"
       "0.1|1400|21|13.8\n"
       "0.2|1900|22|13.7\n",
       "3 x 4: 0.000 6.000 12.000; rpm 900 1400 1900; last 3:1900 21:22.0 22:13.70",
       "WINDOWS-1252 bar . titles 1 units 0 data 2, time 0 MINUTES 6 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 21 IAdv [deg] | 22 Volt [V]\n"},
      {"runs of blanks, no unit of whole milliseconds, a mark",
       "# Time   RPM    MAP   TPS\n"
       "  1000   900   33.7   4.0\n"
       "  1020  1409   47.5  12.4\n"
       "  1040  1918   61.3  20.7\n",
       "3 x 4: 0.000 0.020 0.040; rpm 900 1409 1918; last 3:1918 5:61.3 17:20.7",
       "UTF-8 blanks . titles 1 units 0 data 2, time 0 MILLISECONDS 0.02 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 5 MAP [kPa] | 17 TPS [%]\n"},
      {"carriage returns alone, days",
       "Date,Engine RPM,Water Temp\r46000.50000,900,80\r46000.50001,1400,81\r46000.50002,1900,82\r46000.50003,2000,83\r",
       "4 x 3: 0.000 0.864 1.728 2.592; rpm 900 1400 1900 2000; last 3:2000 23:83.0",
       "UTF-8 comma . titles 1 units 0 data 2, time 0 DAYS 0.864 rate 0\n"
       "| 63 Secs [s] | 3 RPM [rpm] | 23 C Temp [C]\n"},
  };
}
// clang-format on

}  // namespace tarnview
