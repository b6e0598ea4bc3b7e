#pragma once

#include <string>

#include "model/Column.h"

namespace tarnview {

/// A settings file as it is written, with every key on another value than its default.
inline std::string FullSettings() {
  std::string text =
      "[General]\r\n"
      "Initial Directory=/old\r\n"
      "Default File Type=3\r\n"
      "Zoom Amount=30\r\n"
      "Quick Graph=0\r\n"
      "Checked Data Items=50,5,3\r\n"
      "Log EXE=/link/L.exe\r\n"
      "Conversion EXE=/link/C.exe\r\n"
      "Alternative Background Picture=/pictures/a\xE9"
      ".bmp\r\n"
      "Default Working Directory=/logs\r\n"
      "Aux Input Conversion File=/tables/aux.txt\r\n"
      "O2 Input Conversion File=/tables/o2.txt\r\n"
      "Generic Data Log Definition File=/defs/mine.txt\r\n"
      "Last Converted Binary File=/logs/a.bin\r\n"
      "Serial Com Port=4\r\n"
      "Default Engine Size=1.8\r\n"
      "Default Chip Date=2003-06-09\r\n"
      "Default Chip Version=3\r\n"
      "Default Atmospheric Pressure=98\r\n"
      "Silent Defaults=Y\r\n"
      "Default Benchmark=Mine = yours\r\n"
      "Plot From Temperature=-12\r\n"
      "Display Zone Influence=N\r\n"
      "Display Sample Details in Scatter Graph=N\r\n"
      "Upload Default 0=0\r\n"
      "Upload Default 1=0\r\n"
      "Upload Default 2=1\r\n"
      "Upload Default 3=1\r\n"
      "Retain Binary Files=N\r\n"
      "Auto Open Data Tags Window=N\r\n"
      "Window State=2\r\n"
      "Window Left=-15\r\n"
      "Window Top=30\r\n"
      "Window Width=20000\r\n"
      "Window Height=15000\r\n"
      "Scatter Graph Window State=0\r\n"
      "Scatter Graph Window Left=1\r\n"
      "Scatter Graph Window Top=2\r\n"
      "Scatter Graph Window Width=11881\r\n"
      "Scatter Graph Window Height=4761\r\n"
      "Power Graph Window State=0\r\n"
      "Power Graph Window Left=3\r\n"
      "Power Graph Window Top=4\r\n"
      "Power Graph Window Width=12391\r\n"
      "Power Graph Window Height=7846\r\n"
      "Speed Graph Window State=0\r\n"
      "Speed Graph Window Left=5\r\n"
      "Speed Graph Window Top=6\r\n"
      "Speed Graph Window Width=8971\r\n"
      "Speed Graph Window Height=4761\r\n"
      "Maintenance Form Window State=0\r\n"
      "Maintenance Form Window Left=7\r\n"
      "Maintenance Form Window Top=8\r\n"
      "Maintenance Form Window Width=4186\r\n"
      "Maintenance Form Window Height=4426\r\n"
      "Fix Graph Max=1\r\n"
      "Graph Y Max=120\r\n"
      "Show Checked Only=Y\r\n"
      "Auto File Names=Y\r\n"
      "Scatter Graph Auto Draw=Y\r\n"
      "Auto Scatter Graph Sample Filter=N\r\n"
      "Show Point Sample Graph Width=200\r\n"
      "Data Log Line Frequency=12.5\r\n"
      "Auto Gear Selection=N\r\n"
      "Auto Gear Selection Speed Units=3\r\n"
      "Auto Gear Selection Speed Conversion Factor=0.27778\r\n"
      "Initial Plot Width=500\r\n"
      "Ambient Temp=25\r\n"
      "Humidity Type=1\r\n"
      "Relative Humidity=18\r\n"
      "SAE Correction=Y\r\n"
      "Graph Colour Scheme=3\r\n"
      "[Power Graph]\r\n"
      "Name Car Def 1=Mine\r\n"
      "Description Car Def 1=Red\r\n"
      "Units Car Def 1=M\r\n"
      "1st Gear Ratio Car Def 1=3.76\r\n"
      "2nd Gear Ratio Car Def 1=2.269\r\n"
      "3rd Gear Ratio Car Def 1=1.645\r\n"
      "4th Gear Ratio Car Def 1=1.257\r\n"
      "5th Gear Ratio Car Def 1=1\r\n"
      "6th Gear Ratio Car Def 1=0.843\r\n"
      "Diff Ratio Car Def 1=3.909\r\n"
      "1st Gear Relative Loss Car Def 1=14\r\n"
      "2nd Gear Relative Loss Car Def 1=11\r\n"
      "3rd Gear Relative Loss Car Def 1=8\r\n"
      "4th Gear Relative Loss Car Def 1=5\r\n"
      "5th Gear Relative Loss Car Def 1=-1\r\n"
      "6th Gear Relative Loss Car Def 1=2\r\n"
      "Drive Wheel Radius Car Def 1=301.25\r\n"
      "Tyre Width Car Def 1=205\r\n"
      "Tyre Profile Car Def 1=45\r\n"
      "Wheel Diameter Car Def 1=16\r\n"
      "Tyre RPM Car Def 1=530\r\n"
      "Tyre Size Method Car Def 1=2\r\n"
      "Set Point Power Car Def 1=80\r\n"
      "Set Point Speed Car Def 1=185\r\n"
      "Use Drag Coefficient Car Def 1=Y\r\n"
      "Drag Coefficient Car Def 1=0.38\r\n"
      "Frontal Area Car Def 1=1.7\r\n"
      "Default Gear Car Def 1=3\r\n"
      "Car Weight Car Def 1=1080\r\n"
      "Car Contents Weight Car Def 1=85\r\n"
      "Smoothing Factor Car Def 1=4\r\n"
      "Dyno Factor Car Def 1=3\r\n"
      "[3D Graph]\r\n"
      "Initial Fuel Rotation=1\r\n"
      "Initial Fuel Elevation=2\r\n"
      "Initial Ignition Rotation=3\r\n"
      "Initial Ignition Elevation=4\r\n"
      "[New Preset Sample Graphs]\r\n"
      "Graph 1 Name=Mine\r\n"
      "Graph 1 Data Items=5,3\r\n"
      "Graph 1 Fix Graph Max=Y\r\n"
      "Graph 1 Graph Max=80\r\n"
      "Graph 1 Log Family=3\r\n"
      "[New Preset Scatter Graphs]\r\n"
      "Graph 1 Name=Mine\r\n"
      "Graph 1 Point Colour=255\r\n"
      "Graph 1 Point Shape=3\r\n"
      "Graph 1 Point Size=7\r\n"
      "Graph 1 X Axis=3\r\n"
      "Graph 1 Y Axis=5\r\n"
      "Graph 1 File Open Draw=Y\r\n"
      "Graph 1 Log Family=3\r\n"
      "Graph 1 Filter 1 Data Item=5\r\n"
      "Graph 1 Filter 1 From=60.5\r\n"
      "Graph 1 Filter 1 To=\r\n"
      "[Benchmarks]\r\n"
      "Benchmark 1 Name=Before\r\n"
      "Benchmark 1 File=/maps/before.map\r\n"
      "Benchmark 1 Engine Size=1.8\r\n"
      "Benchmark 1 Chip Date=2002-02-03\r\n"
      "Benchmark 1 Chip Version=1\r\n"
      "Benchmark 1 Atmospheric Pressure=95\r\n";
  for (int line = 0; line < 16; ++line) {
    text += "Benchmark 1 Data Line " + std::to_string(line) + "=";
    for (int c = 0; c < 16; ++c) text += " " + std::to_string(100 + line + c);
    text += "\r\n";
  }
  text +=
      "[Recently Used Files]\r\nFile 0=3|/logs/b.dat\r\nFile 1=1|/logs/a.txt\r\n"
      "[Recently Used Power Graph Files]\r\nFile 0=/logs/b.pow\r\nFile 1=/logs/a.pow\r\n";
  for (const char* section :
       {"Data Item Display Properties", "Generic Data Item Display Properties"}) {
    text += std::string("[") + section + "]\r\n";
    for (int item = 1; item <= kColumnCount; ++item) {
      const std::string key = "Item " + std::to_string(item) + " ";
      const bool universal = section[0] == 'G';
      text += key + "Colour=" + std::to_string(item + (universal ? 1000 : 0)) + "\r\n" + key +
              "Style=2\r\n" + key + "Width=4\r\n" + key +
              "Display=" + (item == 9 ? "False" : "True") + "\r\n" + key +
              "Display Factor=" + (universal ? "0.25" : "2.5") + "\r\n";
    }
  }
  return text;
}

}  // namespace tarnview
